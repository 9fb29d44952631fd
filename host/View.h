#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/Geometry.h"

namespace kel {

class CheckBox;
class FieldWidget;
class Label;
class PictureBox;
class UpDown;

/// What of a widget may look different from one moment to the next.
enum class Change : std::uint16_t {
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
};

class Changes {
public:
    Changes() = default;
    Changes(Change change) : Bits_(static_cast<unsigned>(change)) {}

    bool has(Change change) const { return (Bits_ & static_cast<unsigned>(change)) != 0; }
    bool none() const { return Bits_ == 0; }

    Changes& operator|=(Changes others) {
        Bits_ |= others.Bits_;
        return *this;
    }

private:
    unsigned Bits_ = 0;
};

inline Changes operator|(Change one, Change other) { return Changes(one) |= other; }

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

/// What the widgets of one control stand on in their home. Outlives them.
class WidgetHost {
public:
    /// nullptr where nobody looks.
    virtual std::unique_ptr<PictureView> makeView(PictureBox& /*box*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(CheckBox& /*box*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(UpDown& /*spinner*/) { return nullptr; }
    virtual std::unique_ptr<View> makeView(Label& /*label*/) { return nullptr; }

    /// The control is enabled and shown, so that its widgets take input.
    virtual bool takesInput() const = 0;
    /// By code; a field that takes none stays without it.
    virtual void moveFocusTo(FieldWidget& field) = 0;
    /// A field has been disabled or hidden, which is about to be seen: the focus goes on from it.
    virtual void focusBarred(FieldWidget& field) = 0;

protected:
    ~WidgetHost() = default;
};

}  // namespace kel
