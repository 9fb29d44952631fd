#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Keys.h"
#include "host/ListItems.h"
#include "host/TextEntry.h"

namespace kel {

enum class EditAction : std::uint8_t;

/// A single-line edit box with a list that drops down below it. Items count from 0. A new box is enabled, visible,
/// unlocked, empty and closed, with `colors::SystemWindow` behind `colors::SystemWindowText`.
///
/// The box knows which of its items is selected as long as the text is what the selection made it: any edit, by the
/// user or by code, leaves none selected, even when the text is an item. The maximum length does not bind the items. A
/// locked box drops its list, and takes nothing from it.
class ComboBox : public TextEntry {
public:
    virtual const ListItems& items() const = 0;
    /// Closes the list and leaves none selected; the text stays. Notifies nobody.
    virtual void setItems(ListItems items) = 0;

    /// The selected item, `ListItems::NotFound` when there is none.
    virtual std::int32_t listIndex() const = 0;
    /// Selects an item: it becomes the text, the caret goes to 0. What is no item selects none and empties the text.
    /// A text that was the item already keeps caret and selection, and so does it in `setText`; an open list moves its
    /// highlight with the text. Notifies nobody.
    virtual void setListIndex(std::int32_t index) = 0;

    virtual bool isDropped() const = 0;
    /// Closing picks nothing. A box that takes no input does not open.
    virtual void showDropDown(bool dropped) = 0;

    /// Width of the dropped list in screen pixels; 0, as in a new box, is the box's own width.
    virtual std::int32_t droppedWidth() const = 0;
    virtual void setDroppedWidth(std::int32_t pixels) = 0;

    /// Down opens a closed list instead of picking in it. The keys of every box do so anyhow; it is passed on to a
    /// native box, whose owner may ask for it.
    virtual void setExtendedUi(bool extended) = 0;

    /// Draws from now on, over the widget's own painting, a sunken frame and at its right end inside it the raised edge
    /// of a button, so many pixels wide. `buttonWidthPixels` is read at each painting and outlives the box.
    virtual void installFrame(const std::int16_t& buttonWidthPixels) = 0;

protected:
    using TextEntry::TextEntry;
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
    /// The user is about to edit the text in this way, by whatever means.
    virtual void Combo1_Edit(EditAction Action) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Combo1_KeyPress(char32_t& KeyAscii) = 0;
    virtual void Combo1_GotFocus() = 0;
    virtual void Combo1_LostFocus() = 0;

protected:
    ~ComboBoxListener() = default;
};

}  // namespace kel
