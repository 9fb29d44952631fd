#pragma once

#include "common/EntryField.h"
#include "controls/number/NumberText.h"

namespace kel {

/// Number entry: a caption, a text field that takes only what makes a number, and a spinner.
class KelNumber final : public EntryControl, private TextBoxListener {
public:
    static const EventRow Change;

    explicit KelNumber(ControlHost& host);

    bool get_Changed() { return number() != ValueOriginal_; }
    bool get_ChangedCaption(std::u16string& CaptionToSave) const;
    bool get_ChangedSaved() { return number() != ValueSaved_; }
    std::int16_t get_Decimals() const { return Decimals_; }
    /// -1: as many as the region uses. Beyond 16 it is ignored.
    void put_Decimals(std::int16_t count);
    bool get_GroupDigits() const { return GroupDigits_; }
    void put_GroupDigits(bool group);
    /// Either bound takes the other one along when it passes it. The value stays until it is next committed.
    double get_MaxValue() const { return MaxValue_; }
    void put_MaxValue(double maximum);
    double get_MinValue() const { return MinValue_; }
    void put_MinValue(double minimum);
    double get_UpDownChange() const { return UpDownChange_; }
    void put_UpDownChange(double step);
    /// Looks at the text as it stands, without committing it.
    bool get_Valid(bool ShowMessage);
    /// Always a double; text that is being edited is committed first.
    Variant get_Value() { return number(); }
    /// Ignores what is not numeric, and does not heed the bounds.
    void put_Value(const Variant& value);
    double get_ValueOriginal() const { return ValueOriginal_; }
    void put_ValueOriginal(double value) {
        ValueOriginal_ = value;
        Field_.mayDiffer();
    }
    double get_ValueSaved() const { return ValueSaved_; }
    void put_ValueSaved(double value) { ValueSaved_ = value; }

    /// The value as a form file keeps it: what is being typed counts, and stays as it is typed.
    double storedValue() const;
    void loadValue(double value) { put_Value(value); }

    const ClassModel& model() const override;
    void InitProperties() override;
    void RegionChanged(const RegionalSettings& region) override;
    void EnterFocus() override;
    void ExitFocus() override;
    EntryField& entry() override { return Field_; }
    void step(int direction) override;
    Variant heldValue() const override { return Value_; }
    Variant valueToStore() const override { return storedValue(); }
    /// Within the bounds.
    bool enterNumber(double number) override;

private:
    bool isValid() override { return get_Valid(false); }
    bool differsFromOriginal() const override { return storedValue() != ValueOriginal_; }
    std::optional<NumberRange> range() const override;

    void Text1_Change() override { Field_.mayDiffer(); }
    void Text1_Click() override {}
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    /// Also one that comes without a key, such as an erasing by assistive technology.
    bool Text1_Edit(EditAction /*Action*/) override { return TextDirty_ = true; }
    bool Text1_Paste(std::u16string& Text) override;
    void Text1_MouseDown(MouseButton Button) override;
    bool Text1_UsesWheel() override { return Field_.get_UpDown(); }
    void Text1_Wheel(std::int32_t Notches) override { Field_.turn(Notches); }
    void Text1_GotFocus() override;
    void Text1_LostFocus() override {}

    double number();
    void CommitText();
    void takeValue(double value);
    /// As if a person had entered it. False where the host wants to keep what is there.
    bool moveTo(double number);
    double numberFromValue(const Variant& value) const;
    double roundNumber(double number) const;
    double bounded(double value) const;
    double parseField() const { return numberFromValue(Text1_.text()); }
    void takeDecimals();
    std::u16string valueText() const;
    void showValue();
    TextSpan selection() const;
    void select(TextSpan span);
    void apply(const KeyEffect& effect);

    EntryField Field_;
    TextBox Text1_;
    std::int16_t Decimals_ = -1;
    std::int16_t DecimalsInUse_ = 0;
    char16_t DecimalCharacter_ = u'.';
    bool GroupDigits_ = true;
    double MinValue_ = -9999999999.0;
    double MaxValue_ = 9999999999.0;
    double Value_ = 0;
    double UpDownChange_ = 1;
    double ValueOriginal_ = 0;
    double ValueSaved_ = 0;
    bool TextDirty_ = false;  ///< the text may differ from the value
    bool KeypadDecimal_ = false;
};

extern const ClassModel KelNumberModel;

}  // namespace kel
