#include "forms/Looks.h"

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

std::u16string drawn(const TextBox& box) {
    return drawScriptText(box.text(), static_cast<std::size_t>(box.selStart()),
                          static_cast<std::size_t>(box.selLength()));
}

}  // namespace

std::u16string describeLook(std::u16string_view name, Control& control) {
    const WidgetSet widgets = control.widgets();
    std::u16string look(name);
    if (widgets.textBox != nullptr) look += u" " + drawn(*widgets.textBox);
    if (widgets.field != nullptr)
        look += u" back " + hex(widgets.field->backColor()) + u" fore " + hex(widgets.field->foreColor());
    if (widgets.label != nullptr) look += u" caption " + hex(widgets.label->foreColor());
    return look;
}

std::u16string describeLayout(std::u16string_view name, const Rect& bounds, Control& control) {
    const WidgetSet widgets = control.widgets();
    std::u16string layout = std::u16string(name) + u" " + written(bounds);
    if (widgets.label != nullptr) layout += u" label " + written(widgets.label->bounds());
    if (widgets.field != nullptr) layout += u" field " + written(widgets.field->bounds());
    return layout + u" spinner -";
}

}  // namespace kel
