#pragma once

#include "common/EntryField.h"
#include "controls/datetime/DateTimeText.h"

namespace kel {

/// What makes a date field of a field, or a time field. The rules are told what they need of the field: its host, and
/// its format and bounds.
class DateTimeRules {
public:
    /// The date or time that the run-time object reads in a text or a value, else Null.
    virtual Variant parse(const Variant& text, const ControlHost& host, const std::u16string& format) const = 0;
    /// A format as the field keeps it that it is given; nothing for one that it does not take.
    virtual std::optional<std::u16string> acceptedFormat(const std::u16string& format) const = 0;
    virtual Date acceptedBound(Date bound) const = 0;
    /// A value as the field holds it that comes from code, or from its own text.
    virtual Date assigned(Date date, const ControlHost& host) const = 0;
    virtual Date committed(Date date, const ControlHost& host, const DateBounds& bounds) const = 0;
    virtual FieldStep step(const BoxState& box, std::int32_t delta, const ControlHost& host,
                           const FieldRules& rules) const = 0;
    virtual KeyAnswer answerToCharacter(char32_t character, const RegionalSettings& region) const = 0;
    /// Whether a field that is not mandatory may hold a text that is no value.
    virtual bool allowsAnyText() const = 0;
    virtual const ValueMessages& messages() const = 0;
    /// Of a press of the spinner, in days, where the caret stands at no part in particular.
    virtual double usualStep() const = 0;

protected:
    ~DateTimeRules() = default;
};

/// The value of a date or time field behind its text: read, shown, stepped and validated alike in both.
class DateTimeField final : private TextBoxListener {
public:
    /// `control`, whose part it is, `rules` and `change`, the event of a step, outlive it.
    DateTimeField(ControlHost& host, EntryControl& control, const DateTimeRules& rules, const EventRow& change,
                  std::u16string_view format, const DateBounds& bounds);

    /// Of a control that is a `DateTimeControl`.
    static DateTimeField& of(Object& control);
    static const DateTimeField& of(const Object& control);

    EntryField& entry() { return Entry_; }
    const ControlHost& host() const { return Entry_.host(); }

    // ---- Members of the controls

    bool get_Changed() { return isChanged(ValueOriginal_, get_Value()); }
    bool get_ChangedSaved() { return isChanged(ValueSaved_, get_Value()); }
    const std::u16string& get_Format() const { return Format_.text(); }
    /// A text that stands as it was displayed shows its value anew, in a locked field too; one that is being edited is
    /// read by the new format.
    void put_Format(const std::u16string& format);
    /// Putting either bound takes the other one along when it passes it. The value stays until it is next committed.
    Date get_MaxValue() const { return Bounds_.maximum; }
    void put_MaxValue(Date maximum);
    Date get_MinValue() const { return Bounds_.minimum; }
    void put_MinValue(Date minimum);
    /// Looks at the text as it stands, without committing it.
    bool get_Valid(bool ShowMessage);
    /// Empty until the first assignment, then Null or a date; text that is being edited is committed first.
    const Variant& get_Value();
    /// Does not heed the bounds.
    void put_Value(const Variant& value);
    const Variant& get_ValueOriginal() const { return ValueOriginal_; }
    void put_ValueOriginal(const Variant& value) {
        ValueOriginal_ = value;
        Entry_.mayDiffer();
    }
    const Variant& get_ValueSaved() const { return ValueSaved_; }
    void put_ValueSaved(const Variant& value) { ValueSaved_ = value; }

    /// The value as it was last committed, and as it would be committed now.
    const Variant& heldValue() const { return Value_; }
    std::optional<Date> valueToStore() const;
    bool differsFromOriginal() const;

    /// What a person sets without the text: false where it does not go.
    bool enter(Date value);
    NumberRange moment() const;
    void step(int direction);

    // ---- What the container tells

    void initNew();
    void exitFocus();
    void takeRegion(const RegionalSettings& region);

private:
    void Text1_Change() override { Entry_.mayDiffer(); }
    void Text1_Click() override {}
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    /// Also one that comes without a key, such as an erasing by assistive technology.
    bool Text1_Edit(EditAction /*Action*/) override { return TextDirty_ = true; }
    bool Text1_Paste(std::u16string& Text) override;
    void Text1_MouseDown(MouseButton Button) override;
    bool Text1_UsesWheel() override { return Entry_.get_UpDown(); }
    void Text1_Wheel(std::int32_t Notches) override { Entry_.turn(Notches); }
    void Text1_GotFocus() override;
    void Text1_LostFocus() override;

    FieldRules textRules() const { return {Format_, Bounds_, Entry_.region()}; }
    void CommitText();
    bool moveTo(const FieldStep& step);
    /// The value that the text stands for. As it was displayed it is not read again: it may leave much of the value
    /// out (the century), or be no text that can be read.
    std::optional<Date> read() const;
    std::optional<Date> parsed(const Variant& text) const;
    void takeRead(std::optional<Date> date);
    bool mayTake(const Variant& value) const;
    void take(const Variant& value);
    void show(std::optional<Date> date) { Text1_.setText(Format_.show(date, Entry_.region())); }
    bool showsValue() const;
    bool isValueOutOfRange() const;

    const DateTimeRules& Rules_;
    const EventRow& Change_;
    EntryField Entry_;
    TextBox Text1_;
    FieldFormat Format_;
    DateBounds Bounds_;
    Variant Value_;
    Variant ValueOriginal_;
    Variant ValueSaved_;
    bool TextDirty_ = false;  ///< the text must be read before the value is used
};

/// A control that is a date or time field, as the rows of its members and its container see it.
class DateTimeControl : public EntryControl {
public:
    virtual DateTimeField& field() = 0;
    const DateTimeField& field() const { return const_cast<DateTimeControl*>(this)->field(); }

    EntryField& entry() final { return field().entry(); }
    void step(int direction) final { field().step(direction); }
    void InitProperties() override { field().initNew(); }
    void EnterFocus() override {}
    void ExitFocus() override { field().exitFocus(); }
    void RegionChanged(const RegionalSettings& region) override { field().takeRegion(region); }
    Variant heldValue() const override { return field().heldValue(); }
    Variant valueToStore() const override;
    bool enterNumber(double number) override { return field().enter(Date{number}); }

private:
    std::optional<NumberRange> moment() const override { return field().moment(); }
    bool isValid() override { return field().get_Valid(false); }
    bool differsFromOriginal() const override { return field().differsFromOriginal(); }
};

}  // namespace kel
