#pragma once

#include "common/EntryField.h"

namespace kel {

/// Free text entry: a caption and a single-line or multi-line text field.
class KelText final : public EntryControl, private TextBoxListener {
public:
    static const EventRow Change;
    static const EventRow Click;

    explicit KelText(ControlHost& host);

    bool get_Changed() const;
    bool get_ChangedSaved() const;
    std::int32_t get_hWnd() const;
    bool get_MultiLine() const { return FieldIndex_ == 1; }
    void put_MultiLine(bool multiLine);
    std::u16string get_PasswordChar() const;
    void put_PasswordChar(const std::u16string& character);
    /// Takes trailing empty lines off a multi-line field itself, not only off the result.
    std::u16string get_Text();
    void put_Text(const std::u16string& text);
    std::u16string get_TextOriginal() const { return TextOriginal_; }
    void put_TextOriginal(const std::u16string& text) {
        TextOriginal_ = text;
        Field_.mayDiffer();
    }
    std::u16string get_TextRaw() const;
    std::u16string get_TextSaved() const { return TextSaved_; }
    void put_TextSaved(const std::u16string& text) { TextSaved_ = text; }
    bool get_Valid() const;

    const ClassModel& model() const override;
    void InitProperties() override;
    void EnterFocus() override;
    void ExitFocus() override;
    EntryField& entry() override { return Field_; }
    Variant heldValue() const override { return get_TextRaw(); }

private:
    bool isValid() override { return get_Valid(); }
    bool differsFromOriginal() const override { return get_Changed(); }

    void Text1_Change() override;
    void Text1_Edited() override { Field_.host().container.textEdited(); }
    void Text1_Click() override;
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    bool Text1_Edit(EditAction /*Action*/) override { return Field_.mayChange<&KelText::put_Text>(); }
    bool Text1_Paste(std::u16string& /*Text*/) override { return true; }
    void Text1_MouseDown(MouseButton /*Button*/) override {}
    bool Text1_UsesWheel() override { return false; }
    void Text1_Wheel(std::int32_t /*Notches*/) override {}
    void Text1_GotFocus() override;
    void Text1_LostFocus() override;

    TextBox& activeBox() const { return *Text1_[FieldIndex_]; }
    void makeMultiLineBox();
    KeyAnswer answerToCharacter(char32_t character) const;

    EntryField Field_;
    /// 0 single-line, 1 multi-line. The second is made when the field first turns multi-line, which few do;
    /// it then takes over what is kept in the first.
    std::unique_ptr<TextBox> Text1_[2];
    std::int16_t FieldIndex_ = 0;
    std::u16string TextOriginal_;
    std::u16string TextSaved_;
};

extern const ClassModel KelTextModel;

}  // namespace kel
