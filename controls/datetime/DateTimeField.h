#pragma once

#include "common/SpinnerField.h"
#include "controls/datetime/DateTimeText.h"

namespace kel {

/// What makes a date field of a field, or a time field.
class DateTimeRules {
public:
    /// The date or time that the run-time object reads in a text or a value, else Null.
    virtual Variant parse(const Variant& text) const = 0;
    /// A value as the field holds it that comes from code, or from its own text.
    virtual Date assigned(Date date) const = 0;
    virtual Date committed(Date date) const = 0;
    virtual FieldStep step(const BoxState& box, std::int32_t delta) const = 0;
    virtual KeyPressEffect keyPressEffect(char32_t key) const = 0;
    /// Whether a field that is not mandatory may hold a text that is no value.
    virtual bool allowsAnyText() const = 0;
    virtual std::u16string_view complaintTitle() const = 0;
    virtual std::u16string complaint(Validity validity) const = 0;
    virtual void raiseChange() = 0;

protected:
    ~DateTimeRules() = default;
};

/// The value of a date or time field behind its text: read, shown, stepped and validated alike in both.
class DateTimeField final : private TextBoxListener, private UpDownListener {
public:
    /// `rules` outlives it.
    DateTimeField(ControlHost& host, DateTimeRules& rules, std::u16string_view format, const DateBounds& bounds);

    SpinnerField& frame() { return Frame_; }
    const SpinnerField& frame() const { return Frame_; }
    const RegionalSettings& region() const { return Frame_.host().region; }
    const FieldFormat& format() const { return Format_; }
    const DateBounds& bounds() const { return Bounds_; }
    FieldRules textRules() const { return {Format_, Bounds_, region()}; }

    // ---- Properties. Each put of a persisted one reports its own name.

    /// A text that stands as it was displayed shows its value anew, in a locked field too; one that is being edited is
    /// read by the new format.
    void putFormat(std::u16string format);
    void putMinimum(Date date);
    void putMaximum(Date date);
    /// Empty until the first assignment, then Null or a date; text that is being edited is committed first.
    const Variant& value();
    /// Does not heed the bounds.
    void putValue(const Variant& value);
    const Variant& valueOriginal() const { return ValueOriginal_; }
    void putValueOriginal(const Variant& value) { ValueOriginal_ = value; }
    const Variant& valueSaved() const { return ValueSaved_; }
    void putValueSaved(const Variant& value) { ValueSaved_ = value; }
    bool changed() { return isChanged(ValueOriginal_, value()); }
    bool changedSaved() { return isChanged(ValueSaved_, value()); }
    /// Looks at the text as it stands, without committing it.
    bool valid(bool showMessage);
    /// The value as it would be committed now.
    std::optional<Date> valueToStore() const;

    // ---- What the container tells

    void initNew();
    void exitFocus();

private:
    void Text1_Change() override {}
    void Text1_Click() override {}
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    bool Text1_Paste(std::u16string& Text) override;
    void Text1_MouseDown(MouseButton Button) override;
    bool Text1_UsesWheel() override { return Frame_.upDown(); }
    void Text1_Wheel(std::int32_t Notches) override;
    void Text1_GotFocus() override;
    void Text1_LostFocus() override;
    void UpDown1_Change() override;

    void CommitText();
    void step(std::int32_t delta);
    /// The value that the text stands for. As it was displayed it is not read again: it may leave much of the value
    /// out (the century), or be no text that can be read.
    std::optional<Date> read() const;
    void takeRead(std::optional<Date> date);
    void show(std::optional<Date> date) { Frame_.box().setText(Format_.show(date, region())); }
    bool showsValue() const;
    bool isValueOutOfRange() const;

    DateTimeRules& Rules_;
    SpinnerField Frame_;
    FieldFormat Format_;
    DateBounds Bounds_;
    Variant Value_;
    Variant ValueOriginal_;
    Variant ValueSaved_;
    bool TextDirty_ = false;  ///< the text must be read before the value is used
};

}  // namespace kel
