#pragma once

#include <memory>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/Control.h"
#include "library/StandingWatch.h"
#include "platform/qt/base/TwipGrid.h"

class QFocusEvent;

namespace kel {
class EntryField;
}

namespace kel::qt {

class CaptionLabel;
class FieldView;
class KelControlWidget;

/// What a control on Qt works with. All of it outlives the control.
struct ControlServices {
    SharedSettings& settings;
    System& system;
    const RegionalSettings& region;
    /// Among widgets of others its twips go by the font of its own, and its mnemonic is a shortcut of the window. On a
    /// form they go by the scale of the system, and the form knows its mnemonic.
    bool amongOthers = false;
};

/// The place of a control in its Qt widget: the container that the control sees, and the maker of its child
/// widgets.
class ControlSite final : public Container, public WidgetHost {
public:
    ControlSite(KelControlWidget& widget, const ControlServices& surroundings);
    ControlSite(const ControlSite&) = delete;
    ControlSite& operator=(const ControlSite&) = delete;
    ~ControlSite();

    /// Makes the control and runs its `Initialize`.
    void makeControl(const ClassModel& model);
    /// The control goes on without its host's widget, which is being destroyed: nothing is seen or heard of it.
    void leaveWidget();

    Control& control() const { return *Control_; }
    bool hasControl() const { return Control_ != nullptr; }
    QWidget& widget() const { return *Widget_; }
    const RegionalSettings& region() const { return *Region_; }
    /// Numbers and dates are written by another region from now on, which outlives the control.
    void setRegion(const RegionalSettings& region);

    // ---- The container, as its control sees it

    bool hasSize() const override;
    Size size() const override;
    void setSize(Size size) override;
    bool enabled() const override;
    void setEnabled(bool enabled) override;
    std::int32_t windowHandle() override;
    std::u16string displayName() const override;
    void propertyChanged(const MemberRow& property) override;
    void raiseEvent(const EventRow& event, std::span<Variant> arguments) override;
    void standingMayDiffer() override;
    void textEdited() override;
    void finished() override;
    std::u16string toolTipText() const override;
    void setToolTipText(std::u16string_view text) override;

    std::unique_ptr<PictureView> makeView(PictureBox& box) override;
    std::unique_ptr<View> makeView(CheckBox& box) override;
    std::unique_ptr<View> makeView(UpDown& spinner) override;
    std::unique_ptr<View> makeView(Label& label) override;
    std::unique_ptr<TextView> makeView(TextBox& box) override;
    std::unique_ptr<TextView> makeView(ComboBox& box) override;
    bool takesInput() const override;
    void moveFocusTo(FieldWidget& field) override;
    void focusBarred(FieldWidget& field) override;
    void controlEntered() override { Control_->EnterFocus(); }
    void controlLeft() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;

    // ---- What the widget tells

    /// Somebody wants to be told of changes.
    void follow(StandingWatch::Aspect aspect);

    void resized();
    void mirrored();
    void recolored();
    /// Its font or its style is another one.
    void measuresDiffer();
    /// Somebody enabled or disabled the widget past its control.
    void enabledMayDiffer();
    void toolTipChanged();
    /// The first time only: the control's `Show`.
    void shown();
    /// It is seen no longer: itself or something around it is hidden, or its window.
    void hidden();
    /// Somebody pressed the key of a mnemonic. Returns whether it was the caption's.
    bool mnemonicPressed(int shortcutId);
    /// What is left of an event when the host's program has had its way with it: the field that shows gets it. False
    /// where there is none.
    bool giveToField(QEvent& event) const;
    /// The field that shows, where `place` is in it.
    const QWidget* fieldAt(const QPoint& place) const;
    /// What is in `area` of it, but for its children.
    void paint(const QRect& area) const;
    QSize sizeHint(int characters) const;

    // ---- What the child widgets tell

    void fieldMade(FieldView& field);
    void fieldGoes(const FieldView& field);
    void fieldShown(FieldView& field);
    void fieldEnabled(const FieldView& field, bool enabled);
    void setLabel(CaptionLabel* label) { Label_ = label; }
    /// What Qt has told a field of the focus, and the field its control.
    void tellFocus(const QFocusEvent& event) const;
    void captionChanged(const QString& spokenBefore);
    /// The caption is as wide as it needs, until it is given a width, where nobody has laid the control out in twips.
    void fitCaption();
    /// The width that it was given is taken back.
    void resetCaptionWidth();
    /// Its field takes the focus by a click only.
    void leaveTabOrder();
    /// The Tab key comes here from another one. Both have a field.
    void tabAfter(ControlSite& before);

    /// The field that shows, nullptr when there is none.
    FieldView* activeField() const { return Active_; }

    // ---- Places

    bool isAmongOthers() const { return Surroundings_.amongOthers; }
    /// Where something inside the control stands in the widget: mirrored from right to left.
    QRect pixelRect(const Rect& bounds) const;
    /// The control's own place in a form that counts in twips; no resize follows.
    void setOrigin(QPoint twips);
    const TwipGrid& grid() const { return Grid_; }
    /// Of a width that the control has reckoned by the scale of the system.
    int ownPixels(int pixelsOfSystem) const {
        return Grid_.across().pixel(Surroundings_.system.scale().twips(pixelsOfSystem));
    }

private:
    /// The child widgets, or those of them that are fields.
    template <class Child, class Action>
    void forEach(Action action) const {
        const QObjectList children = Widget_->children();
        for (QObject* const child : children)
            if (auto* const view = dynamic_cast<Child*>(child)) action(*view);
    }

    void commit();
    QSize pixelSize() const;
    void placeChildren() const;
    bool isFieldEnabled() const;
    EntryField* captioned() const;

    KelControlWidget* Host_;  ///< nullptr once it is gone
    QWidget* Widget_;         ///< the host's, or what is left in its place
    std::unique_ptr<QWidget> Remains_;
    ControlServices Surroundings_;
    const RegionalSettings* Region_;
    TwipGrid Grid_;
    CaptionLabel* Label_ = nullptr;
    FieldView* Active_ = nullptr;
    std::unique_ptr<StandingWatch> Watch_;  ///< none while nobody wants to be told
    QPoint Origin_;                         ///< twips
    Size Size_;
    int Mnemonic_ = 0;  ///< of the widget's shortcuts; 0 for none
    bool Sized_ = false;
    bool Enabled_ = true;  ///< as the control knows it
    bool Shown_ = false;
    std::unique_ptr<Control> Control_;  ///< last, so that it goes before all it stands on
};

}  // namespace kel::qt
