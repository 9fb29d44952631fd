#pragma once

#include <functional>

#include "host/ListItems.h"
#include "host/widgets/TextEntry.h"

namespace kel {

/// What a combo box tells its control, as it happens. A handler may do anything to the widget, also move the focus
/// away; it may run host code.
class ComboBoxListener {
public:
    /// The text differs from before, by an edit of the user's or by code; not by picking.
    virtual void Combo1_Change() = 0;
    /// The user is about to pick an item. False: the box stays as it is.
    virtual bool Combo1_Pick() { return true; }
    /// The user has picked an item, which is selected now; it may be the one that was before.
    virtual void Combo1_Click() = 0;
    /// A key goes down; `KeyCode` set to 0 swallows it.
    virtual void Combo1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) = 0;
    /// The user is about to edit the text in this way, by whatever means. False: it stays as it is.
    virtual bool Combo1_Edit(EditAction Action) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Combo1_KeyPress(char32_t& KeyAscii) = 0;
    virtual void Combo1_GotFocus() = 0;
    virtual void Combo1_LostFocus() = 0;

protected:
    ~ComboBoxListener() = default;
};

/// A single-line edit box with a list that drops down below it. Items count from 0. A new box is enabled, visible,
/// unlocked, empty and closed, with `colors::SystemWindow` behind `colors::SystemWindowText`.
///
/// The box knows which of its items is selected as long as the text is what the selection made it: any edit, by the
/// user or by code, leaves none selected, even when the text is an item. The maximum length does not bind the items.
///
/// F4, Alt+Down and Alt+Up open and close the list, and Down opens it; nothing else does anything in a closed one, the
/// wheel is left to what is around the box. In an open list Up, Down, Page Up and Page Down go from the highlighted row
/// to another and pick it at once; where none is highlighted those that lead down begin at the first, the others lead
/// nowhere. The pointer only highlights. Enter, Escape and Tab close the list and keep what was picked; Enter goes on
/// to the key-press handler, which may want to leave the field. The wheel is left to the open list. A locked box opens
/// and gives nothing.
class ComboBox final : public TextEntry, private TextBoxListener {
public:
    /// That the list shows at once; a longer one scrolls.
    static constexpr std::int32_t RowsOfList = 8;

    ComboBox(WidgetHost& host, ComboBoxListener& listener);

    /// Also where the text is an item. What is there already stays as it is, caret and selection too.
    void setText(std::u16string_view text) override;

    const ListItems& items() const { return Items_; }
    /// Closes the list and leaves none selected; the text stays. Notifies nobody.
    void setItems(ListItems items);

    /// The selected item, `ListItems::NotFound` when there is none.
    std::int32_t listIndex() const { return ListIndex_; }
    /// Selects an item: it becomes the text, the caret goes to 0. What is no item selects none and empties the text.
    /// A text that was the item already keeps caret and selection; an open list moves its highlight with the text.
    /// Notifies nobody.
    void setListIndex(std::int32_t index);

    bool isDropped() const { return Dropped_; }
    /// Closing picks nothing. A box that takes no input does not open.
    void showDropDown(bool dropped);
    /// Called each time before the list opens, by whomever: its owner may put other items then. Empty for nobody.
    void beforeDrop(std::function<void()> handler) { BeforeDrop_ = std::move(handler); }

    /// The first item that begins with what was typed; where none does, its owner is asked.
    std::int32_t itemFor(std::u16string_view typed);
    /// Called where no item begins so: its owner may put other items then, and says whether it has. Empty for nobody.
    void whenMissing(std::function<bool(std::u16string_view typed)> handler) { WhenMissing_ = std::move(handler); }

    /// Width of the dropped list in screen pixels; 0, as in a new box, is the box's own width.
    std::int32_t droppedWidth() const { return DroppedWidth_; }
    void setDroppedWidth(std::int32_t pixels);

    /// Down opens a closed list instead of picking in it. The keys of this box do so anyhow; it is passed on to a
    /// native one, whose owner may ask for it.
    bool extendedUi() const { return ExtendedUi_; }
    void setExtendedUi(bool extended) { change(ExtendedUi_, extended, Change::ExtendedUi); }

    /// Draws from now on, over the widget's own painting, a sunken frame and at its right end inside it the raised edge
    /// of a button, so many pixels wide. `buttonWidthPixels` is read at each painting and outlives the box. A desktop
    /// that draws its text fields and combo boxes alike keeps its own edge.
    void installFrame(const std::int16_t& buttonWidthPixels);
    /// nullptr without a frame.
    const std::int16_t* frameButtonWidth() const { return FrameButtonWidth_; }

    // ---- What a person does

    /// The row that a dropped list shows as the one that keys go on from.
    std::int32_t highlighted() const { return Highlighted_; }
    /// The pointer has moved over this row of the dropped list.
    void highlight(std::int32_t index);
    /// This row of the dropped list was clicked.
    void pick(std::int32_t index);
    /// The button beside the edit box was pressed, which has taken the focus first. Where that has gone elsewhere by
    /// then, the press is none.
    void pressButton() {
        if (hasFocus()) showDropDown(!Dropped_);
    }

    bool claims(const KeyStroke& stroke) const override;
    bool strike(const KeyStroke& stroke) override;
    void pressedAnywhere() override { showDropDown(false); }

    TextView* view() const override { return View_.get(); }

private:
    void Text1_Change() override;
    void Text1_Click() override {}
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override { Listener_.Combo1_KeyPress(KeyAscii); }
    bool Text1_Edit(EditAction Action) override { return Listener_.Combo1_Edit(Action); }
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
    ListItems Items_;
    std::function<void()> BeforeDrop_;
    std::function<bool(std::u16string_view)> WhenMissing_;
    const std::int16_t* FrameButtonWidth_ = nullptr;
    std::int32_t ListIndex_ = ListItems::NotFound;
    std::int32_t Highlighted_ = ListItems::NotFound;
    std::int32_t DroppedWidth_ = 0;
    bool Dropped_ = false;
    bool ExtendedUi_ = false;
    bool Silent_ = false;             ///< nobody is told of a change of the text
    std::unique_ptr<TextView> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
