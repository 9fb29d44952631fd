#pragma once

#include "controls/datetime/DateTimeField.h"
#include "controls/datetime/TimeText.h"

namespace kel {

/// Time entry: a caption, a text field that takes a time of day, and a spinner that steps the part of the time under
/// the caret.
class KelTime final : public Control, private DateTimeRules {
public:
    static const EventRow Change;

    explicit KelTime(ControlHost& host);

    const std::u16string& get_Caption() const { return frame().label().caption(); }
    void put_Caption(const std::u16string& caption) { frame().putCaption(caption); }
    std::int16_t get_CaptionWidth() const { return frame().captionWidth(); }
    void put_CaptionWidth(std::int16_t twips) { frame().putCaptionWidth(twips); }
    bool get_Changed() { return Field_.changed(); }
    bool get_ChangedSaved() { return Field_.changedSaved(); }
    bool get_Enabled() const { return frame().enabled(); }
    void put_Enabled(bool enabled) { frame().putEnabled(enabled); }
    const std::u16string& get_Format() const { return Field_.format().text(); }
    /// Minutes written with the letter of the months, as in "hh:mm", are put right.
    void put_Format(const std::u16string& format) { Field_.putFormat(correctedTimeFormat(format)); }
    bool get_InsertMode() const { return frame().insertMode(); }
    void put_InsertMode(bool insert) { frame().putInsertMode(insert); }
    bool get_Locked() const { return frame().locked(); }
    void put_Locked(bool locked) { frame().putLocked(locked); }
    bool get_Mandatory() const { return frame().mandatory(); }
    void put_Mandatory(bool mandatory) { frame().putMandatory(mandatory); }
    /// Only the time of day of a bound counts. Either bound takes the other one along when it passes it. The value
    /// stays until it is next committed.
    Date get_MaxValue() const { return Field_.bounds().maximum; }
    void put_MaxValue(Date maximum) { Field_.putMaximum(timeBound(maximum)); }
    Date get_MinValue() const { return Field_.bounds().minimum; }
    void put_MinValue(Date minimum) { Field_.putMinimum(timeBound(minimum)); }
    void Refresh() { frame().box().refresh(); }
    bool get_SelectOnFocus() const { return frame().selectOnFocus(); }
    void put_SelectOnFocus(bool select) { frame().putSelectOnFocus(select); }
    void TooltipSet(const std::u16string& tooltip) { frame().setToolTip(tooltip); }
    bool get_UpDown() const { return frame().upDown(); }
    void put_UpDown(bool shown) { frame().putUpDown(shown); }
    bool get_Valid(bool ShowMessage) { return Field_.valid(ShowMessage); }
    const Variant& get_Value() { return Field_.value(); }
    void put_Value(const Variant& value) { Field_.putValue(value); }
    const Variant& get_ValueOriginal() const { return Field_.valueOriginal(); }
    void put_ValueOriginal(const Variant& value) { Field_.putValueOriginal(value); }
    const Variant& get_ValueSaved() const { return Field_.valueSaved(); }
    void put_ValueSaved(const Variant& value) { Field_.putValueSaved(value); }

    /// The value as a form file keeps it, a text.
    Variant storedValue() const { return savedTime(Field_.valueToStore()); }

    const ClassModel& model() const override;
    void InitProperties() override { Field_.initNew(); }
    void ReadProperties(PropertyBag& bag) override { frame().load(*this, bag); }
    void WriteProperties(PropertyBag& bag) const override;
    void Resize() override { frame().layOut(); }
    void Show() override { frame().show(); }
    void EnterFocus() override {}
    void ExitFocus() override { Field_.exitFocus(); }
    WidgetSet widgets() override { return frame().widgets(); }

private:
    Variant parse(const Variant& text) const override;
    Date assigned(Date date) const override { return date; }
    Date committed(Date date) const override { return Field_.bounds().clamp(date); }
    FieldStep step(const BoxState& box, std::int32_t delta) const override;
    KeyPressEffect keyPressEffect(char32_t key) const override { return timeKeyPressEffect(key); }
    bool allowsAnyText() const override { return true; }
    std::u16string_view complaintTitle() const override { return InvalidTimeTitle; }
    std::u16string complaint(Validity validity) const override { return timeComplaint(validity, Field_.textRules()); }
    void raiseChange() override { host().container.raiseEvent(Change, {}); }

    SpinnerField& frame() { return Field_.frame(); }
    const SpinnerField& frame() const { return Field_.frame(); }
    const ControlHost& host() const { return frame().host(); }

    DateTimeField Field_;
};

extern const ClassModel KelTimeModel;

}  // namespace kel
