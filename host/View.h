#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/Geometry.h"

namespace kel {

class CheckBox;
class ComboBox;
class FieldWidget;
class Label;
class PictureBox;
class TextBox;
class TextLines;
class UpDown;

/// What of a widget may look different from one moment to the next.
enum class Change : std::uint32_t {
    Place = 1U << 0U,
    Enabled = 1U << 1U,
    Visible = 1U << 2U,
    Colors = 1U << 3U,
    Font = 1U << 4U,
    ToolTip = 1U << 5U,
    Caption = 1U << 6U,
    Mnemonic = 1U << 7U,
    Value = 1U << 8U,
    Picture = 1U << 9U,
    Percent = 1U << 10U,
    Text = 1U << 11U,
    Selection = 1U << 12U,
    Locked = 1U << 13U,
    Password = 1U << 14U,
    Items = 1U << 15U,
    List = 1U << 16U,  ///< open or closed, how wide, which row is highlighted
    ExtendedUi = 1U << 17U,
    Frame = 1U << 18U,
};

class Changes {
public:
    Changes() = default;
    Changes(Change change) : Bits_(static_cast<unsigned>(change)) {}

    static Changes all() {
        Changes changes;
        changes.Bits_ = ~0U;
        return changes;
    }

    /// Any of them.
    bool has(Changes wanted) const { return (Bits_ & wanted.Bits_) != 0; }
    bool none() const { return Bits_ == 0; }

    Changes& operator|=(Changes others) {
        Bits_ |= others.Bits_;
        return *this;
    }

private:
    unsigned Bits_ = 0;
};

inline Changes operator|(Changes some, Change other) { return some |= other; }
inline Changes operator|(Change one, Change other) { return Changes(one) | other; }

/// What a person sees of one widget. Its home makes it together with the widget, which it reads for all that it shows
/// and tells what the person does. Where nobody looks there is none.
class View {
public:
    View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View() = default;

    /// The widget has changed. Said once until its changes are taken, which may be at once or when the view next
    /// paints.
    virtual void outOfDate() = 0;

    /// Paints the same anew at the next opportunity.
    virtual void paintAgain() = 0;
};

class PictureView : public View {
public:
    /// Of a text in the widget's font, twips.
    virtual Size extentOf(std::u16string_view text) const = 0;

    /// Whoever draws does not wait for the next opportunity.
    virtual void paintNow() = 0;
};

/// Of a text that can be edited.
class TextView : public View {
public:
    /// Where lines are broken that are longer than the view is wide; nullptr where the text alone breaks them.
    virtual const TextLines* lines() const { return nullptr; }
    /// That are seen at once; at least 1.
    virtual std::ptrdiff_t linesOfPage() const { return 1; }
    /// The text at the caret runs from right to left.
    virtual bool isMirrored() const { return false; }
};

/// What the widgets of one control stand on in their home. Outlives them.
class WidgetHost {
public:
    /// nullptr where nobody looks.
    virtual std::unique_ptr<PictureView> makeView(PictureBox& /*box*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(CheckBox& /*box*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(UpDown& /*spinner*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(Label& /*label*/) { return nullptr; }
    virtual std::unique_ptr<TextView> makeView(TextBox& /*box*/) { return nullptr; }
    virtual std::unique_ptr<TextView> makeView(ComboBox& /*box*/) { return nullptr; }

    /// The control is enabled and shown, and there is a person to work it: nobody fills in a form that is only being
    /// designed. Else its widgets take no input, and look as ever.
    virtual bool takesInput() const = 0;
    /// By code. The field takes input.
    virtual void moveFocusTo(FieldWidget& field) = 0;
    /// A field has been disabled or hidden, which is about to be seen: the focus goes on from it.
    virtual void focusBarred(FieldWidget& field) = 0;
    /// The focus comes into the control, before its field hears of it; it has gone, after its field has heard.
    virtual void controlEntered() {}
    virtual void controlLeft() {}

    virtual std::u16string clipboardText() = 0;
    virtual void setClipboardText(std::u16string_view text) = 0;

protected:
    ~WidgetHost() = default;
};

}  // namespace kel
