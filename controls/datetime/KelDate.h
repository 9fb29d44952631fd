#pragma once

#include "controls/datetime/DateText.h"
#include "controls/datetime/DateTimeField.h"

namespace kel {

/// The rules of a field that holds a date.
class DateRules final : public DateTimeRules {
public:
    KelDateDaysFlag DaysFlag = KelDateDaysFlag::Allow;

    Variant parse(const Variant& text, const ControlHost& host, const std::u16string& format) const override;
    /// An empty format is none.
    std::optional<std::u16string> acceptedFormat(const std::u16string& format) const override;
    Date acceptedBound(Date bound) const override { return bound; }
    Date assigned(Date date, const ControlHost& host) const override { return pinned(date, pin(host)); }
    Date committed(Date date, const ControlHost& host, const DateBounds& bounds) const override;
    FieldStep step(const BoxState& box, std::int32_t delta, const ControlHost& host,
                   const FieldRules& rules) const override;
    KeyAnswer answerToCharacter(char32_t character, const RegionalSettings& region) const override;
    bool allowsAnyText() const override { return false; }
    const ValueMessages& messages() const override { return DateMessages; }
    double usualStep() const override { return 1; }

private:
    DayPin pin(const ControlHost& host) const;
};

/// Date entry: a caption, a text field that takes a date in free form, and a spinner that steps the part of the
/// date under the caret.
class KelDate final : public DateTimeControl {
public:
    static const EventRow Change;

    explicit KelDate(ControlHost& host);

    KelDateDaysFlag get_DaysFlag() const { return Rules_.DaysFlag; }
    /// Heeded from the next commit or step on.
    void put_DaysFlag(KelDateDaysFlag flag);

    /// The flag and the value as a form file keeps them.
    std::int16_t storedDaysFlag() const { return static_cast<std::int16_t>(Rules_.DaysFlag); }
    void loadDaysFlag(std::int16_t flag) { put_DaysFlag(static_cast<KelDateDaysFlag>(flag)); }
    std::u16string storedValue() const;
    void loadValue(const std::u16string& text) { Field_.put_Value(loadedDate(text)); }

    const ClassModel& model() const override;
    DateTimeField& field() override { return Field_; }

private:
    DateRules Rules_;
    DateTimeField Field_;
};

extern const ClassModel KelDateModel;

}  // namespace kel
