#pragma once

#include "common/EntryField.h"
#include "host/widgets/ComboBox.h"

namespace kel {

/// Choice from a list: a caption and a combo box that completes what is typed, and may take nothing but its items.
/// Public indexes count from 1.
class KelCombo final : public EntryControl, private ComboBoxListener {
public:
    static const EventRow Change;
    static const EventRow Click;
    static const EventRow ChangeEx;

    explicit KelCombo(ControlHost& host);

    bool get_Changed() const { return Combo1_.text() != TextOriginal_; }
    bool get_ChangedSaved() const { return Combo1_.text() != TextSaved_; }
    std::int32_t get_DropDownWidth() const { return DropDownWidth_; }
    /// Twips. From 1 to 8000, other than the field's own width; anything else stands for that width, and is 0.
    void put_DropDownWidth(std::int32_t twips);
    bool get_LimitToList() const { return LimitToList_; }
    void put_LimitToList(bool limit);
    std::u16string get_List() const;
    void put_List(const std::u16string& list);
    void ListFromArray(const StringArray& strArray);
    std::int32_t get_ListCount() const { return Combo1_.items().size(); }
    /// The first item that is the text; -1 where the text may be any other.
    std::int16_t get_ListIndex() const;
    void put_ListIndex(std::int16_t item);
    /// Without a number, the item in front of the selected one.
    std::u16string get_ListItem(std::int16_t Item) const;
    const std::u16string& get_ListTag() const { return ListTag_; }
    void put_ListTag(const std::u16string& tags);
    /// Without a number, the tag of the selected item.
    std::u16string get_ListTagItem(std::int16_t Item) const;
    /// Settles what is being typed first.
    const std::u16string& get_Text() const;
    void put_Text(const std::u16string& text);
    const std::u16string& get_TextOriginal() const { return TextOriginal_; }
    void put_TextOriginal(const std::u16string& text) {
        TextOriginal_ = text;
        Field_.mayDiffer();
    }
    const std::u16string& get_TextSaved() const { return TextSaved_; }
    void put_TextSaved(const std::u16string& text) { TextSaved_ = text; }
    bool get_Valid() const;

    /// The item that the text is, counted from 0, also where it may be any other; `ListItems::NotFound` for none.
    std::int32_t itemOfText() const { return Combo1_.items().findExact(settledText()); }
    const ListItems& items() const { return Combo1_.items(); }

    /// The width as form files keep it.
    std::int16_t storedDropDownWidth() const { return static_cast<std::int16_t>(DropDownWidth_); }
    void loadDropDownWidth(std::int16_t twips) { put_DropDownWidth(twips); }

    const ClassModel& model() const override;
    void Initialize() override;
    void InitProperties() override;
    void ReadProperties(PropertyBag& bag) override;
    void Resize() override;
    void EnterFocus() override;
    void ExitFocus() override;
    WidgetSet widgets() override;
    EntryField& entry() override { return Field_; }
    Variant heldValue() const override { return Combo1_.text(); }
    Variant valueToStore() const override { return settledText(); }

private:
    bool isValid() override { return get_Valid(); }
    bool differsFromOriginal() const override { return get_Changed(); }

    void Combo1_Change() override;
    void Combo1_Click() override;
    void Combo1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    bool Combo1_Edit(EditAction Action) override;
    bool Combo1_Pick() override { return Field_.mayChange<&KelCombo::put_Text>(); }
    void Combo1_KeyPress(char32_t& KeyAscii) override;
    void Combo1_GotFocus() override;
    void Combo1_LostFocus() override;

    void loadItems(ListItems items);
    bool selectEqual(const std::u16string& text) const;
    void showText(const std::u16string& text) const;
    void settleText() const;
    std::u16string settledText() const;
    void bringBackOriginal() const;
    std::u16string originalThatMayStand() const;
    void completeTyping();
    void selectFrom(std::int32_t caret);
    void expectResult(EditAction action);
    void tellText() const;
    bool hostWantsChange();

    /// Where the tag asked for last stands, so that a loop over all tags reads each of them once more and not all.
    struct TagPlace {
        std::weak_ptr<Runtime> reader;  ///< the held run-time object whose position it is; none: a default one's
        std::int32_t passed = 0;        ///< fields in front of it
        std::int32_t position = 0;
    };

    EntryField Field_;
    /// Reading the text settles it, as if it had been settled all along.
    mutable ComboBox Combo1_;

    bool LimitToList_ = true;
    std::int32_t DropDownWidth_ = 0;
    std::u16string ListTag_;
    mutable TagPlace TagPlace_;
    std::u16string TextOriginal_;
    std::u16string TextSaved_;

    mutable std::u16string TextTold_;          ///< the text that listeners know
    mutable std::int16_t SelectionDepth_ = 0;  ///< above 0 while the control itself changes text or selection
    mutable bool Typing_ = false;              ///< keys were pressed whose result is not settled
};

extern const ClassModel KelComboModel;

}  // namespace kel
