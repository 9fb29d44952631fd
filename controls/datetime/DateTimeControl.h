#pragma once

#include "common/Persistence.h"
#include "controls/datetime/DateTimeField.h"

namespace kel {

/// What the date control and the time control give their container and their callers alike.
class DateTimeControl : public Control, protected DateTimeRules {
public:
    const std::u16string& get_Caption() const { return frame().label().caption(); }
    void put_Caption(const std::u16string& caption) { frame().putCaption(caption); }
    std::int16_t get_CaptionWidth() const { return frame().captionWidth(); }
    void put_CaptionWidth(std::int16_t twips) { frame().putCaptionWidth(twips); }
    bool get_Changed() { return Field_.changed(); }
    bool get_ChangedSaved() { return Field_.changedSaved(); }
    bool get_Enabled() const { return frame().enabled(); }
    void put_Enabled(bool enabled) { frame().putEnabled(enabled); }
    const std::u16string& get_Format() const { return Field_.format().text(); }
    bool get_InsertMode() const { return frame().insertMode(); }
    void put_InsertMode(bool insert) { frame().putInsertMode(insert); }
    bool get_Locked() const { return frame().locked(); }
    void put_Locked(bool locked) { frame().putLocked(locked); }
    bool get_Mandatory() const { return frame().mandatory(); }
    void put_Mandatory(bool mandatory) { frame().putMandatory(mandatory); }
    /// Putting either bound takes the other one along when it passes it. The value stays until it is next committed.
    Date get_MaxValue() const { return Field_.bounds().maximum; }
    Date get_MinValue() const { return Field_.bounds().minimum; }
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

    void InitProperties() override { Field_.initNew(); }
    void ReadProperties(PropertyBag& bag) override { frame().load(*this, bag); }
    void WriteProperties(PropertyBag& bag) const override { writePersisted(*this, bag); }
    void Resize() override { frame().layOut(); }
    void Show() override { frame().show(); }
    void EnterFocus() override {}
    void ExitFocus() override { Field_.exitFocus(); }
    WidgetSet widgets() override { return frame().widgets(); }

protected:
    DateTimeControl(ControlHost& host, std::u16string_view format, const DateBounds& bounds)
        : Field_(host, *this, format, bounds) {}

    DateTimeField& field() { return Field_; }
    const DateTimeField& field() const { return Field_; }
    const ControlHost& host() const { return frame().host(); }

private:
    SpinnerField& frame() { return Field_.frame(); }
    const SpinnerField& frame() const { return Field_.frame(); }

    DateTimeField Field_;
};

}  // namespace kel
