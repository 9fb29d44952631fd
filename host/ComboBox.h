#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Keys.h"
#include "host/ListItems.h"
#include "host/Widget.h"

namespace kel {

/// A single-line edit box with a list that drops down below it. Items count from 0, positions and lengths in UTF-16
/// units. A new box is enabled, visible, unlocked, empty and closed, with `colors::SystemWindow` behind
/// `colors::SystemWindowText`.
///
/// The box knows which of its items is selected as long as the text is what the selection made it: any edit, by the
/// user or by code, leaves none selected.
class ComboBox : public FieldWidget {
public:
    /// Valid until the text changes.
    virtual const std::u16string& text() const = 0;

    /// Puts a text, of any length, and the caret to 0; no item is selected then, even when the text is one. Notifies a
    /// change when it differs from the old one.
    virtual void setText(std::u16string_view text) = 0;

    virtual bool textEquals(std::u16string_view other) const = 0;
    virtual std::int32_t textLength() const = 0;

    virtual std::int32_t selStart() const = 0;
    /// Drops the selection. A position past the end is the end.
    virtual void setSelStart(std::int32_t position) = 0;
    virtual std::int32_t selLength() const = 0;
    /// Selects from the selection's start; cut at the end of the text.
    virtual void setSelLength(std::int32_t length) = 0;
    virtual std::u16string selText() const = 0;
    /// Replaces the selection as typing would, caret behind it, undo kept; the maximum length does not bind.
    virtual void setSelText(std::u16string_view text) = 0;

    /// A locked box drops its list, and takes nothing from it.
    virtual bool locked() const = 0;
    virtual void setLocked(bool locked) = 0;

    /// Binds typing and pasting, neither `setText` nor the items; 0 is no limit.
    virtual std::int32_t maxLength() const = 0;
    virtual void setMaxLength(std::int32_t units) = 0;

    virtual const ListItems& items() const = 0;
    /// Closes the list and empties the text, and notifies nobody.
    virtual void setItems(ListItems items) = 0;

    /// The selected item, `ListItems::NotFound` when there is none.
    virtual std::int32_t listIndex() const = 0;
    /// Selects an item: it becomes the text, the caret goes to 0. What is no item selects none and empties the text.
    /// Notifies nobody.
    virtual void setListIndex(std::int32_t index) = 0;

    virtual bool isDropped() const = 0;
    /// Closing picks nothing. A box that takes no input does not open.
    virtual void showDropDown(bool dropped) = 0;

    /// Width of the dropped list in screen pixels; 0, as in a new box, is the box's own width.
    virtual std::int32_t droppedWidth() const = 0;
    virtual void setDroppedWidth(std::int32_t pixels) = 0;

    /// Passed on to a native box, whose owner may ask for it. Keys do the same with and without.
    virtual void setExtendedUi(bool extended) = 0;

    /// Draws from now on, over the widget's own painting, a sunken frame and at its right end inside it the raised edge
    /// of a button, so many pixels wide. `buttonWidthPixels` is read at each painting and outlives the box.
    virtual void installFrame(const std::int16_t& /*buttonWidthPixels*/) {}
};

/// What a combo box tells its control, as it happens. A handler may do anything to the widget, also move the focus
/// away; it may run host code.
class ComboBoxListener {
public:
    /// The text differs from before, by an edit of the user's or by code; not by picking.
    virtual void Combo1_Change() = 0;
    /// The user has picked an item, which is selected now; it may be the one that was before.
    virtual void Combo1_Click() = 0;
    /// A key goes down; `KeyCode` set to 0 swallows it.
    virtual void Combo1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Combo1_KeyPress(char32_t& KeyAscii) = 0;
    virtual void Combo1_GotFocus() = 0;
    virtual void Combo1_LostFocus() = 0;

protected:
    ~ComboBoxListener() = default;
};

}  // namespace kel
