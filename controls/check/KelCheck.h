#pragma once

#include "common/FieldFrame.h"
#include "library/Control.h"

namespace kel {

/// A check box whose own caption is the label, with the change tracking of the entry fields. It is never invalid.
class KelCheck final : public Control, private CheckBoxListener {
public:
    static const EventRow Change;

    explicit KelCheck(ControlHost& host);

    const std::u16string& get_Caption() const { return Check1_.caption(); }
    /// The caption that is there already reports nothing.
    void put_Caption(const std::u16string& caption);
    bool get_Changed() const { return get_Value() != ValueOriginal_; }
    bool get_ChangedSaved() const { return get_Value() != ValueSaved_; }
    bool get_Enabled() const { return Enabled_; }
    void put_Enabled(bool enabled);
    bool get_FontBold() const { return Check1_.fontBold(); }
    void put_FontBold(bool bold);
    bool get_Locked() const { return Locked_; }
    /// A locked box is drawn as it was, and takes neither clicks nor keys.
    void put_Locked(bool locked);
    bool get_Mandatory() const { return Mandatory_; }
    void put_Mandatory(bool mandatory);
    void Refresh() { Check1_.refresh(); }
    void TooltipSet(const std::u16string& tooltip);
    bool get_Valid() const { return true; }
    /// Neither an unchecked nor a grey box is true.
    bool get_Value() const { return Check1_.value() == CheckBox::Checked; }
    /// Raises no `Change`.
    void put_Value(bool value);
    bool get_ValueOriginal() const { return ValueOriginal_; }
    void put_ValueOriginal(bool value) {
        ValueOriginal_ = value;
        Host_.container.standingMayDiffer();
    }
    bool get_ValueSaved() const { return ValueSaved_; }
    void put_ValueSaved(bool value) { ValueSaved_ = value; }

    /// As a form file has them, without a report.
    void loadCaption(const std::u16string& caption) { Check1_.setCaption(caption); }
    void loadFontBold(bool bold) { Check1_.setFontBold(bold); }

    const ClassModel& model() const override;
    void InitProperties() override;
    void ReadProperties(PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    void Resize() override;
    void Show() override;
    void EnterFocus() override { put_ValueOriginal(get_Value()); }
    void ExitFocus() override {}
    WidgetSet widgets() override { return {.field = &Check1_, .checkBox = &Check1_}; }
    Variant heldValue() const override { return get_Value(); }
    Standing standing() override { return {.required = Mandatory_, .locked = Locked_, .changed = get_Changed()}; }

private:
    bool Check1_Toggle() override;
    void Check1_Click() override;
    void Check1_KeyPress(char32_t& KeyAscii) override;

    void applyEnabled();
    void applyTextColor();
    template <auto Put>
    void report() {
        Host_.container.propertyChanged(model().rowPutBy<Put>());
    }

    ControlHost Host_;
    CheckBox Check1_;

    bool Mandatory_ = true;
    bool Enabled_ = true;
    bool Locked_ = false;
    bool ValueOriginal_ = false;
    bool ValueSaved_ = false;
    std::int16_t EventDepth_ = 0;  ///< above 0 while the control itself sets the check box
    std::int16_t LayoutDepth_ = 0;
};

extern const ClassModel KelCheckModel;

}  // namespace kel
