#include "host/Accessible.h"

#include <string>
#include <utility>

#include "host/Widgets.h"
#include "values/Text.h"

namespace kel {

namespace {

AccessibleRole roleOf(const WidgetSet& widgets) {
    if (widgets.checkBox != nullptr) return AccessibleRole::CheckBox;
    if (widgets.picture != nullptr) return AccessibleRole::ProgressBar;
    if (widgets.comboBox != nullptr) return AccessibleRole::ComboBox;
    return widgets.upDown != nullptr ? AccessibleRole::SpinBox : AccessibleRole::Text;
}

void describeCaption(const WidgetSet& widgets, Accessible& out) {
    if (widgets.checkBox == nullptr && widgets.label == nullptr) return;
    const bool isBox = widgets.checkBox != nullptr;
    out.name = readCaption(isBox ? widgets.checkBox->caption() : widgets.label->caption()).text;
    out.mnemonic = isBox ? widgets.checkBox->mnemonic() : widgets.label->mnemonic();
}

void describeField(const FieldWidget& field, Accessible& out) {
    out.enabled = out.enabled && field.enabled();
    out.focusable = field.takesInput();
    out.help = field.toolTip();
}

void describeEntry(const TextEntry& entry, Accessible& out) {
    out.multiLine = entry.multiLine();
    out.hidden = entry.isPassword();
    if (!out.hidden) out.value = entry.text();
}

void describePicture(const PictureBox& picture, Accessible& out) {
    const std::int32_t percent = picture.picture().percent;
    out.value = widen(std::to_string(percent)) + u'%';
    out.range = NumberRange{static_cast<double>(percent), 0, 100, 0};
    out.readOnly = true;
    out.help = picture.toolTip();
}

}  // namespace

Accessible describe(Control& control) {
    const WidgetSet widgets = control.widgets();
    const Standing standing = control.standing();
    Accessible out;
    out.role = roleOf(widgets);
    out.enabled = standing.enabled;
    out.readOnly = standing.locked;
    out.required = standing.required;
    out.invalid = !standing.valid;
    out.range = standing.range;
    out.moment = standing.moment;
    describeCaption(widgets, out);
    if (widgets.field != nullptr) describeField(*widgets.field, out);
    if (widgets.entry != nullptr) describeEntry(*widgets.entry, out);
    if (widgets.picture != nullptr) describePicture(*widgets.picture, out);
    if (widgets.checkBox != nullptr) out.checked = widgets.checkBox->value();
    if (widgets.comboBox != nullptr) out.expanded = widgets.comboBox->isDropped();
    if (out.name.empty()) out.name = std::exchange(out.help, {});
    return out;
}

std::u16string remarksOn(const Accessible& described) {
    std::u16string remarks = described.required ? u"required" : u"";
    if (described.invalid) remarks += remarks.empty() ? u"not valid" : u", not valid";
    return remarks;
}

std::u16string shortcutOf(const Accessible& described) {
    return described.mnemonic != 0 ? u"Alt+" + std::u16string(1, described.mnemonic) : std::u16string();
}

std::u16string helpAndRemarks(const Accessible& described) {
    const std::u16string remarks = remarksOn(described);
    if (described.help.empty() || remarks.empty()) return described.help + remarks;
    return described.help + u", " + remarks;
}

bool enterText(Control& control, std::u16string_view text) {
    TextEntry* const entry = control.widgets().entry;
    if (entry == nullptr || entry->locked() || !entry->takesInput()) return false;
    entry->write(0, entry->text().size(), text);
    return true;
}

bool press(Control& control) {
    const WidgetSet widgets = control.widgets();
    if (widgets.field == nullptr || !widgets.field->takesInput()) return false;
    if (widgets.checkBox != nullptr)
        widgets.checkBox->press();
    else if (widgets.comboBox != nullptr)
        widgets.comboBox->showDropDown(!widgets.comboBox->isDropped());
    else
        return false;
    return true;
}

}  // namespace kel
