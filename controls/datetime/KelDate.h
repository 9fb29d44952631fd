#pragma once

#include "controls/datetime/DateText.h"
#include "controls/datetime/DateTimeControl.h"

namespace kel {

/// Date entry: a caption, a text field that takes a date in free form, and a spinner that steps the part of the
/// date under the caret.
class KelDate final : public DateTimeControl {
public:
    static const EventRow Change;

    explicit KelDate(ControlHost& host) : DateTimeControl(host, DefaultDateFormat, AllDates) {}

    KelDateDaysFlag get_DaysFlag() const { return DaysFlag_; }
    /// Heeded from the next commit or step on.
    void put_DaysFlag(KelDateDaysFlag flag);
    /// An empty format is ignored.
    void put_Format(const std::u16string& format);
    void put_MaxValue(Date maximum) { field().putMaximum(maximum); }
    void put_MinValue(Date minimum) { field().putMinimum(minimum); }

    /// The flag and the value as a form file keeps them.
    std::int16_t storedDaysFlag() const { return static_cast<std::int16_t>(DaysFlag_); }
    void loadDaysFlag(std::int16_t flag) { put_DaysFlag(static_cast<KelDateDaysFlag>(flag)); }
    std::u16string storedValue() const;
    void loadValue(const std::u16string& text) { put_Value(loadedDate(text)); }

    const ClassModel& model() const override;

private:
    Variant parse(const Variant& text) const override;
    Date assigned(Date date) const override { return pinned(date, pin()); }
    Date committed(Date date) const override { return kel::committed(date, field().bounds(), pin()); }
    FieldStep step(const BoxState& box, std::int32_t delta) const override;
    KeyPressEffect keyPressEffect(char32_t key) const override { return dateKeyPressEffect(key); }
    bool allowsAnyText() const override { return false; }
    std::u16string_view complaintTitle() const override { return InvalidDateTitle; }
    std::u16string complaint(Validity validity) const override { return dateComplaint(validity, field().textRules()); }
    void raiseChange() override { host().container.raiseEvent(Change, {}); }

    DayPin pin() const;

    KelDateDaysFlag DaysFlag_ = KelDateDaysFlag::Allow;
};

extern const ClassModel KelDateModel;

}  // namespace kel
