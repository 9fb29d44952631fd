#pragma once

#include "controls/datetime/DateTimeControl.h"
#include "controls/datetime/TimeText.h"

namespace kel {

/// Time entry: a caption, a text field that takes a time of day, and a spinner that steps the part of the time under
/// the caret.
class KelTime final : public DateTimeControl {
public:
    static const EventRow Change;

    explicit KelTime(ControlHost& host) : DateTimeControl(host, DefaultTimeFormat, AllTimes) {}

    /// Minutes written with the letter of the months, as in "hh:mm", are put right.
    void put_Format(const std::u16string& format) { field().putFormat(correctedTimeFormat(format)); }
    /// Only the time of day of a bound counts.
    void put_MaxValue(Date maximum) { field().putMaximum(timeBound(maximum)); }
    void put_MinValue(Date minimum) { field().putMinimum(timeBound(minimum)); }

    /// The value as a form file keeps it, a text.
    Variant storedValue() const { return savedTime(field().valueToStore()); }

    const ClassModel& model() const override;

private:
    Variant parse(const Variant& text) const override;
    Date assigned(Date date) const override { return date; }
    Date committed(Date date) const override { return field().bounds().clamp(date); }
    FieldStep step(const BoxState& box, std::int32_t delta) const override;
    KeyPressEffect keyPressEffect(char32_t key) const override {
        return timeKeyPressEffect(key, field().region().ZeroDigit);
    }
    bool allowsAnyText() const override { return true; }
    std::u16string_view complaintTitle() const override { return InvalidTimeTitle; }
    std::u16string complaint(Validity validity) const override { return timeComplaint(validity, field().textRules()); }
    void raiseChange() override { host().container.raiseEvent(Change, {}); }
};

extern const ClassModel KelTimeModel;

}  // namespace kel
