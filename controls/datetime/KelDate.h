#pragma once

#include "controls/datetime/DateText.h"
#include "controls/datetime/DateTimeField.h"

namespace kel {

/// Date entry: a caption, a text field that takes a date in free form, and a spinner that steps the part of the
/// date under the caret.
class KelDate final : public Control, private DateTimeRules {
public:
    static const EventRow Change;

    explicit KelDate(ControlHost& host);

    const std::u16string& get_Caption() const { return frame().label().caption(); }
    void put_Caption(const std::u16string& caption) { frame().putCaption(caption); }
    std::int16_t get_CaptionWidth() const { return frame().captionWidth(); }
    void put_CaptionWidth(std::int16_t twips) { frame().putCaptionWidth(twips); }
    bool get_Changed() { return Field_.changed(); }
    bool get_ChangedSaved() { return Field_.changedSaved(); }
    KelDateDaysFlag get_DaysFlag() const { return DaysFlag_; }
    /// Heeded from the next commit or step on.
    void put_DaysFlag(KelDateDaysFlag flag);
    bool get_Enabled() const { return frame().enabled(); }
    void put_Enabled(bool enabled) { frame().putEnabled(enabled); }
    const std::u16string& get_Format() const { return Field_.format().text(); }
    /// An empty format is ignored.
    void put_Format(const std::u16string& format);
    bool get_InsertMode() const { return frame().insertMode(); }
    void put_InsertMode(bool insert) { frame().putInsertMode(insert); }
    bool get_Locked() const { return frame().locked(); }
    void put_Locked(bool locked) { frame().putLocked(locked); }
    bool get_Mandatory() const { return frame().mandatory(); }
    void put_Mandatory(bool mandatory) { frame().putMandatory(mandatory); }
    /// Either bound takes the other one along when it passes it. The value stays until it is next committed.
    Date get_MaxValue() const { return Field_.bounds().maximum; }
    void put_MaxValue(Date maximum) { Field_.putMaximum(maximum); }
    Date get_MinValue() const { return Field_.bounds().minimum; }
    void put_MinValue(Date minimum) { Field_.putMinimum(minimum); }
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

    /// The flag and the value as a form file keeps them.
    std::int16_t storedDaysFlag() const { return static_cast<std::int16_t>(DaysFlag_); }
    void loadDaysFlag(std::int16_t flag) { put_DaysFlag(static_cast<KelDateDaysFlag>(flag)); }
    std::u16string storedValue() const;
    void loadValue(const std::u16string& text) { put_Value(text); }

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
    Date assigned(Date date) const override { return pinned(date, pin()); }
    Date committed(Date date) const override { return kel::committed(date, Field_.bounds(), pin()); }
    FieldStep step(const BoxState& box, std::int32_t delta) const override;
    KeyPressEffect keyPressEffect(char32_t key) const override { return dateKeyPressEffect(key); }
    bool allowsAnyText() const override { return false; }
    std::u16string_view complaintTitle() const override { return InvalidDateTitle; }
    std::u16string complaint(Validity validity) const override { return dateComplaint(validity, Field_.textRules()); }
    void raiseChange() override { host().container.raiseEvent(Change, {}); }

    SpinnerField& frame() { return Field_.frame(); }
    const SpinnerField& frame() const { return Field_.frame(); }
    const ControlHost& host() const { return frame().host(); }
    DayPin pin() const;

    DateTimeField Field_;
    KelDateDaysFlag DaysFlag_ = KelDateDaysFlag::Allow;
};

extern const ClassModel KelDateModel;

}  // namespace kel
