#include "forms/play/ControlInWords.h"

#include <array>
#include <cstdio>

#include "forms/ScriptValue.h"
#include "host/Widgets.h"
#include "values/Text.h"

namespace kel {

namespace {

std::u16string hex(Color color) {
    std::array<char, 9> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%08X", static_cast<unsigned>(color));
    return widen(buffer.data());
}

std::u16string written(const Rect& bounds) {
    return widen(std::to_string(bounds.left) + " " + std::to_string(bounds.top) + " " + std::to_string(bounds.width) +
                 " " + std::to_string(bounds.height));
}

std::u16string drawn(const TextEntry& box) {
    return drawScriptText(box.text(), static_cast<std::size_t>(box.selStart()),
                          static_cast<std::size_t>(box.selLength()));
}

std::u16string_view stateOf(const CheckBox& box) {
    switch (box.value()) {
        case CheckBox::Unchecked: return u"unchecked";
        case CheckBox::Checked: return u"checked";
        default: return u"grey";
    }
}

std::u16string lookOf(const CheckBox& box) {
    return std::u16string(stateOf(box)) + u" caption " + quoteScriptText(box.caption()) + u" fore " +
           hex(box.foreColor());
}

std::u16string lookOf(const PictureBox& surface) {
    const BarPicture& picture = surface.picture();
    return u"bar " + widen(std::to_string(picture.barWidth)) + u" of " + widen(std::to_string(surface.bounds().width)) +
           u" text " + quoteScriptText(picture.text);
}

}  // namespace

std::u16string describeLook(std::u16string_view name, Control& control) {
    const WidgetSet widgets = control.widgets();
    std::u16string look(name);
    if (widgets.checkBox != nullptr) return look + u" " + lookOf(*widgets.checkBox);
    if (widgets.picture != nullptr) return look + u" " + lookOf(*widgets.picture);
    if (widgets.entry != nullptr) look += u" " + drawn(*widgets.entry);
    if (widgets.field != nullptr)
        look += u" back " + hex(widgets.field->backColor()) + u" fore " + hex(widgets.field->foreColor());
    if (widgets.label != nullptr) look += u" caption " + hex(widgets.label->foreColor());
    return look;
}

std::u16string describeLayout(std::u16string_view name, const Rect& bounds, Control& control) {
    const WidgetSet widgets = control.widgets();
    std::u16string layout = std::u16string(name) + u" " + written(bounds);
    if (widgets.checkBox != nullptr) return layout + u" check " + written(widgets.checkBox->bounds());
    if (widgets.picture != nullptr) return layout;
    if (widgets.label != nullptr) layout += u" label " + written(widgets.label->bounds());
    if (widgets.field != nullptr) layout += u" field " + written(widgets.field->bounds());
    const bool spins = widgets.upDown != nullptr && widgets.upDown->visible();
    layout += u" spinner " + (spins ? written(widgets.upDown->bounds()) : u"-");
    if (widgets.comboBox != nullptr) layout += u" list " + widen(std::to_string(widgets.comboBox->droppedWidth()));
    return layout;
}

std::u16string describeTip(std::u16string_view name, Control& control) {
    const WidgetSet widgets = control.widgets();
    std::u16string tip;
    if (widgets.field != nullptr) tip = widgets.field->toolTip();
    if (widgets.checkBox != nullptr) tip = widgets.checkBox->toolTip();
    if (widgets.picture != nullptr) tip = widgets.picture->toolTip();
    return std::u16string(name) + u" tip " + quoteScriptText(tip);
}

}  // namespace kel
