#pragma once

#include "controls/datetime/DateTimeField.h"
#include "controls/datetime/TimeText.h"

namespace kel {

/// The rules of a field that holds a time of day.
class TimeRules final : public DateTimeRules {
public:
    Variant parse(const Variant& text, const ControlHost& host, const std::u16string& format) const override;
    /// Minutes written with the letter of the months, as in "hh:mm", are put right.
    std::optional<std::u16string> acceptedFormat(const std::u16string& format) const override;
    /// Only the time of day of a bound counts.
    Date acceptedBound(Date bound) const override { return timeBound(bound); }
    Date assigned(Date date, const ControlHost& /*host*/) const override { return date; }
    Date committed(Date date, const ControlHost& /*host*/, const DateBounds& bounds) const override {
        return bounds.clamp(date);
    }
    FieldStep step(const BoxState& box, std::int32_t delta, const ControlHost& host,
                   const FieldRules& rules) const override;
    KeyAnswer answerToCharacter(char32_t character, const RegionalSettings& region) const override;
    bool allowsAnyText() const override { return true; }
    const ValueMessages& messages() const override { return TimeMessages; }
    double usualStep() const override { return 60.0 / SecondsPerDay; }
};

/// Time entry: a caption, a text field that takes a time of day, and a spinner that steps the part of the time under
/// the caret.
class KelTime final : public DateTimeControl {
public:
    static const EventRow Change;

    explicit KelTime(ControlHost& host);

    /// The value as a form file keeps it, a text.
    Variant storedValue() const { return savedTime(Field_.valueToStore()); }

    const ClassModel& model() const override;
    DateTimeField& field() override { return Field_; }

private:
    TimeRules Rules_;
    DateTimeField Field_;
};

extern const ClassModel KelTimeModel;

}  // namespace kel
