#pragma once

#include "host/widgets/Widget.h"
#include "platform/qt/ChildWidget.h"

namespace kel::qt {

/// A child widget that can have the focus.
class ChildField : public ChildWidget {
public:
    ChildField(ControlSite& site, QWidget& widget, FieldWidget& shown);
    ~ChildField() override;

    FieldWidget& shown() const { return Shown_; }

    /// Enabled and shown, with all around it.
    bool takesFocus() const;
    /// For one that can have it no longer, or in a moment: the focus goes on. Qt would do so in some cases only, and
    /// say nothing while the window is inactive.
    void giveUpFocus();

    virtual void gotFocus() = 0;
    virtual void lostFocus() = 0;

    /// The desktop's colours are others.
    virtual void colorAgain() = 0;

    /// Several lines of text, which want height.
    virtual bool isTall() const = 0;
    /// From the widget's top to the baseline of its (first) line of text, in pixels.
    virtual int baseline() const = 0;
    /// How wide it is best, to show about so many characters. In pixels.
    virtual int widthFor(int characters) const;

private:
    FieldWidget& Shown_;
};

}  // namespace kel::qt
