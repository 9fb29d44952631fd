#pragma once

#include "host/Accessible.h"
#include "host/widgets/Widget.h"
#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/FieldColors.h"
#include "platform/qt/widgets/PlacedView.h"

class QEvent;

namespace kel::qt {

/// A child widget that can have the focus.
class FieldView : public PlacedView {
public:
    FieldView(ControlSite& site, QWidget& widget, FieldWidget& shown);
    ~FieldView() override;

    FieldWidget& shown() const { return Shown_; }
    /// For those who cannot see it. While the control is being made there is nothing to tell; a description that the
    /// program has given the composite stands before the help.
    Accessible described() const;

    /// Enabled and shown, with all around it.
    bool takesFocus() const;
    /// For one that can have it no longer, or in a moment: the focus goes on. Qt would do so in some cases only, and
    /// say nothing while the window is inactive.
    void giveUpFocus();

    void fontAgain() override;
    /// It is shown, or gets the focus: where Qt's own widget speaks for itself, what it cannot know is given to it.
    virtual void prepareSpeech() {}
    /// The desktop's colours are others.
    virtual void colorAgain() = 0;

    /// Several lines of text, which want height.
    virtual bool isTall() const = 0;
    /// From the widget's top to the baseline of its (first) line of text, in pixels.
    virtual int baseline() const = 0;
    /// An event that is the field's by way of its control: see `hear`.
    void give(QEvent& event);

    /// Where presses arrive.
    virtual QWidget& mouseArea() { return widget(); }

    /// How wide it is best, to show about so many characters. In pixels.
    virtual int widthFor(int characters) const;

protected:
    /// An event comes to the widget, whose class has its own `way` with it: what it says of the focus is told after. To
    /// the outside the control is one widget: what Qt sends to the field of keys and menus goes on to the control,
    /// where event filters and overridden handlers find it, and comes back from there.
    template <class Way>
    bool hear(QEvent& event, Way way) {
        return atEdge([&] {
            if (goesToControl(event)) return false;
            const bool done = way();
            tellFocus(event);
            return done;
        });
    }

    /// What Qt does the same for every field: place, state, font and tooltip.
    void showState(Changes changes);
    /// The label in front of the composite is that of the widget inside, too.
    void takeNameOfLabel();
    FieldColors colors() const { return {Shown_.backColor(), Shown_.foreColor()}; }

private:
    bool goesToControl(QEvent& event) const;
    void tellFocus(QEvent& event);

    FieldWidget& Shown_;
    const QEvent* Given_ = nullptr;  ///< that the control has let through
};

}  // namespace kel::qt
