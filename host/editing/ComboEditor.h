#pragma once

#include <cstdint>
#include <string_view>

#include "host/ComboBox.h"
#include "host/editing/TextBoxEditor.h"

namespace kel {

/// What a combo box has around it on its platform. `linesOfPage` counts the rows that the dropped list shows at once.
class ComboSurroundings : public EditSurroundings {
public:
    /// The list was opened, closed or given another width, or another row of it is highlighted.
    virtual void listChanged() = 0;

protected:
    ~ComboSurroundings() = default;
};

/// A combo box behind its widget: the edit box, the list, and how keys, wheel and mouse work the two. A home drives
/// `edit()` as it drives any text box, strokes, focus and wheel included, and adds what the mouse does to button and
/// list; then it has only to draw.
///
/// F4, Alt+Down and Alt+Up open and close the list, and Down opens it; nothing else does anything in a closed one, the
/// wheel is left to what is around the box. In an open list Up, Down, Page Up and Page Down go from the highlighted row
/// to another and pick it at once; where none is highlighted those that lead down begin at the first, the others lead
/// nowhere. The pointer only highlights. Enter and Escape close the list and keep what was picked, and so does a home
/// when Tab is pressed; Enter goes on to the key-press handler, which may want to leave the field. The wheel is left to
/// the open list. A locked box opens and gives nothing.
class ComboEditor final : private TextBoxListener {
public:
    /// Both outlive the editor.
    ComboEditor(ComboBoxListener& listener, ComboSurroundings& surroundings)
        : Listener_(listener), Surroundings_(surroundings), Edit_(*this, surroundings, false) {}

    TextBoxEditor& edit() { return Edit_; }
    const EditBuffer& buffer() const { return Edit_.buffer(); }

    // ---- By code, as `ComboBox` has it

    void setText(std::u16string_view text);
    void setSelStart(std::int32_t position) { Edit_.setSelStart(position); }
    void setSelLength(std::int32_t length) { Edit_.setSelLength(length); }
    void setSelText(std::u16string_view text) { Edit_.setSelText(text); }
    bool locked() const { return Edit_.locked(); }
    void setLocked(bool locked) { Edit_.setLocked(locked); }
    std::int32_t maxLength() const { return Edit_.maxLength(); }
    void setMaxLength(std::int32_t units) { Edit_.setMaxLength(units); }

    const ListItems& items() const { return Items_; }
    void setItems(ListItems items);
    std::int32_t listIndex() const { return ListIndex_; }
    void setListIndex(std::int32_t index);

    bool isDropped() const { return Dropped_; }
    void showDropDown(bool dropped);
    std::int32_t droppedWidth() const { return DroppedWidth_; }
    void setDroppedWidth(std::int32_t pixels);

    // ---- By the user

    /// The row that a dropped list shows as the one that keys go on from.
    std::int32_t highlighted() const { return Highlighted_; }
    /// The pointer has moved over this row of the dropped list.
    void highlight(std::int32_t index);
    /// This row of the dropped list was clicked.
    void pick(std::int32_t index);
    /// The button beside the edit box was pressed; the box has the focus.
    void pressButton() { showDropDown(!Dropped_); }

    /// Whether a shortcut of the window with this key would take something away from the box.
    bool claims(const KeyStroke& stroke) const;

private:
    void Text1_Change() override;
    void Text1_Click() override {}
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override { Listener_.Combo1_KeyPress(KeyAscii); }
    void Text1_Edit(EditAction Action) override { Listener_.Combo1_Edit(Action); }
    bool Text1_Paste(std::u16string& /*Text*/) override { return true; }
    void Text1_MouseDown(MouseButton /*Button*/) override {}
    bool Text1_UsesWheel() override { return Dropped_; }
    void Text1_Wheel(std::int32_t /*Notches*/) override {}
    void Text1_GotFocus() override { Listener_.Combo1_GotFocus(); }
    void Text1_LostFocus() override;

    bool actOnList(std::int16_t code, Modifiers modifiers);
    void walk(std::int64_t rows);
    void take(std::int32_t index);
    std::int32_t currentItem() const;
    std::int32_t rowFrom(std::int32_t row, std::int64_t rows) const;

    ComboBoxListener& Listener_;
    ComboSurroundings& Surroundings_;
    TextBoxEditor Edit_;
    ListItems Items_;
    std::int32_t ListIndex_ = ListItems::NotFound;
    std::int32_t Highlighted_ = ListItems::NotFound;
    std::int32_t DroppedWidth_ = 0;
    bool Dropped_ = false;
    bool Silent_ = false;  ///< nobody is told of a change of the text
};

}  // namespace kel
