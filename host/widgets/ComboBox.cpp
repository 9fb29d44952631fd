#include "host/widgets/ComboBox.h"

#include <algorithm>
#include <utility>

namespace kel {

namespace {

bool togglesList(std::int16_t code, Modifiers modifiers) {
    if (code == keys::F4) return modifiers == NoModifier;
    return (code == keys::Up || code == keys::Down) && modifiers == AltKey;
}

}  // namespace

ComboBox::ComboBox(WidgetHost& host, ComboBoxListener& listener)
    : TextEntry(host, static_cast<TextBoxListener&>(*this), false), Listener_(listener), View_(host.makeView(*this)) {}

// ---- By code

void ComboBox::setText(std::u16string_view text) {
    ListIndex_ = ListItems::NotFound;
    if (text != this->text()) TextEntry::setText(text);
}

void ComboBox::setItems(ListItems items) {
    showDropDown(false);
    Items_ = std::move(items);
    changed(Change::Items);
    ListIndex_ = ListItems::NotFound;
}

void ComboBox::setListIndex(std::int32_t index) {
    const bool exists = Items_.contains(index);
    ListIndex_ = exists ? index : ListItems::NotFound;
    const std::u16string_view text = exists ? Items_.item(index) : std::u16string_view();
    if (text == this->text()) return;
    highlight(ListIndex_);
    Silent_ = true;
    TextEntry::setText(text);
    Silent_ = false;
}

void ComboBox::showDropDown(bool dropped) {
    if (dropped == Dropped_ || (dropped && !takesInput())) return;
    if (dropped && BeforeDrop_) BeforeDrop_();
    Dropped_ = dropped;
    if (dropped) {
        Highlighted_ = currentItem();
        if (Highlighted_ == ListItems::NotFound) Highlighted_ = Items_.findPrefix(text());
    }
    changed(Change::List);
}

std::int32_t ComboBox::itemFor(std::u16string_view typed) {
    const std::int32_t item = Items_.findPrefix(typed);
    if (item != ListItems::NotFound || typed.empty() || !WhenMissing_) return item;
    const std::u16string wanted(typed);  // with the items, the owner may put another text
    return WhenMissing_(wanted) ? Items_.findPrefix(wanted) : item;
}

void ComboBox::setDroppedWidth(std::int32_t pixels) { change(DroppedWidth_, std::max(pixels, 0), Change::List); }

void ComboBox::installFrame(const std::int16_t& buttonWidthPixels) {
    FrameButtonWidth_ = &buttonWidthPixels;
    changed(Change::Frame);
}

// ---- Keys

bool ComboBox::claims(const KeyStroke& stroke) const {
    const bool closesList = stroke.code == keys::Enter || stroke.code == keys::Escape;
    return togglesList(stroke.code, stroke.modifiers) || (Dropped_ && closesList) || TextEntry::claims(stroke);
}

bool ComboBox::strike(const KeyStroke& stroke) {
    if (leavesField(stroke)) showDropDown(false);
    return TextEntry::strike(stroke);
}

void ComboBox::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    const std::int16_t code = KeyCode;
    Listener_.Combo1_KeyDown(KeyCode, Shift);
    if (KeyCode != 0 && takesInput() && actOnList(code, Shift)) KeyCode = 0;
}

/// False when the key goes on to the edit box.
bool ComboBox::actOnList(std::int16_t code, Modifiers modifiers) {
    if (togglesList(code, modifiers)) {
        showDropDown(!Dropped_);
        return true;
    }
    if ((modifiers & (ControlKey | AltKey)) != 0) return false;
    switch (code) {
        case keys::Up: walk(-1); return true;
        case keys::Down:
            if (Dropped_)
                walk(1);
            else
                showDropDown(true);
            return true;
        case keys::PageUp: walk(-RowsOfList); return true;
        case keys::PageDown: walk(RowsOfList); return true;
        case keys::Enter: showDropDown(false); return false;
        case keys::Escape: {
            const bool closes = Dropped_;
            showDropDown(false);
            return closes;
        }
        default: return false;
    }
}

/// At an end of the list, the row that is picked already is not picked again.
void ComboBox::walk(std::int64_t rows) {
    if (!Dropped_) return;
    const std::int32_t row = rowFrom(Highlighted_, rows);
    if (row == Highlighted_ && row == ListIndex_) return;
    highlight(row);
    take(row);
}

/// The selected item, or the one that the text is without being selected.
std::int32_t ComboBox::currentItem() const {
    return ListIndex_ != ListItems::NotFound ? ListIndex_ : Items_.findExact(text());
}

/// As far as there are rows.
std::int32_t ComboBox::rowFrom(std::int32_t row, std::int64_t rows) const {
    const std::int64_t last = Items_.size() - 1;
    if (!Items_.contains(row)) return rows > 0 && last >= 0 ? 0 : ListItems::NotFound;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(row + rows, 0, last));
}

// ---- Mouse

void ComboBox::highlight(std::int32_t index) {
    if (!Dropped_ || index == Highlighted_) return;
    Highlighted_ = index;
    changed(Change::List);
}

void ComboBox::pick(std::int32_t index) {
    showDropDown(false);
    take(index);
}

void ComboBox::take(std::int32_t index) {
    if (locked() || !Items_.contains(index) || !Listener_.Combo1_Pick()) return;
    setListIndex(index);
    setSelStart(0);
    Listener_.Combo1_Click();
}

// ---- Text and focus

void ComboBox::Text1_Change() {
    if (Silent_) return;
    ListIndex_ = ListItems::NotFound;
    Listener_.Combo1_Change();
}

void ComboBox::Text1_LostFocus() {
    showDropDown(false);
    Listener_.Combo1_LostFocus();
}

}  // namespace kel
