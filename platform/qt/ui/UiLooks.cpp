#include "platform/qt/ui/UiLooks.h"

#include <algorithm>
#include <cmath>

#include "platform/qt/base/TextBridge.h"
#include "values/Text.h"

namespace kel::qt {

namespace {

constexpr double ClassicPoints = 8.25;

/// Colours that the desktop chooses for such a thing anyway.
bool isUsual(std::string_view role, std::uint32_t color) {
    constexpr std::uint32_t WindowGround = 0x80000005;
    constexpr std::uint32_t WindowText = 0x80000008;
    constexpr std::uint32_t ButtonFace = 0x8000000F;
    constexpr std::uint32_t ButtonText = 0x80000012;
    if (role == "Base") return color == WindowGround;
    if (role == "Text") return color == WindowText;
    return color == (role.ends_with("Text") ? ButtonText : ButtonFace);
}

/// The form's is 0x00BBGGRR, or with the highest bit one of the desktop's.
std::uint32_t rgbOf(std::uint32_t color) { return (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU); }

bool isDesktops(std::uint32_t color) { return (color & 0x80000000U) != 0; }

}  // namespace

void writeFont(BlockReader& block, UiWriter& ui, int basePoints, bool isWindow) {
    UiWriter::Font font;
    if (isWindow) font.points = basePoints;
    const auto group = block.group(u"Font");
    if (!group && !isWindow) return;
    for (const FormProperty& property : group ? group->properties : std::vector<FormProperty>()) {
        const auto is = [&](std::u16string_view name) { return equalsIgnoringCase(property.name, name); };
        const auto isOn = [&] { return std::get<bool>(block.file().valueAs(property, TypeTag::Boolean)); };
        constexpr double BoldWeight = 600;
        if (is(u"Name")) {
            const QString family = toQString(block.file().stringValue(property));
            // Of a screen of 1995: those of today's desktop stand in for it.
            if (family != u"MS Sans Serif" && !family.startsWith(u"MS Shell Dlg")) font.family = family;
        } else if (is(u"Size")) {
            const double size = std::get<double>(block.file().valueAs(property, TypeTag::Double));
            const int scaled = static_cast<int>(std::lround(size * basePoints / ClassicPoints));
            if (scaled != basePoints || isWindow) font.points = scaled;
        } else if (is(u"Weight")) {
            font.bold = std::get<double>(block.file().valueAs(property, TypeTag::Double)) >= BoldWeight;
        } else if (is(u"Italic")) {
            font.italic = isOn();
        } else if (is(u"Underline")) {
            font.underline = isOn();
        } else if (is(u"Strikethrough")) {
            font.strikeOut = isOn();
        }
    }
    ui.font(font);
}

void writeColors(BlockReader& block, UiWriter& ui, const char* textRole, const char* groundRole, bool mustFill) {
    QList<UiWriter::Color> colors;
    for (const auto& [name, role] : {std::pair(u"ForeColor", textRole), std::pair(u"BackColor", groundRole)}) {
        const auto property = block.file().find(block.id(), name);
        const auto value = block.integer(name);
        if (!value) continue;
        const auto color = static_cast<std::uint32_t>(*value);
        if (!isDesktops(color))
            colors.append({role, rgbOf(color)});
        else if (!isUsual(role, color))
            block.leave(name, property->line, "it is another colour of the desktop");
    }
    const bool hasGround = std::any_of(colors.begin(), colors.end(), [groundRole](const UiWriter::Color& color) {
        return std::string_view(color.role) == groundRole;
    });
    if (hasGround && mustFill) ui.property(QStringLiteral("autoFillBackground"), true);
    if (!colors.isEmpty()) ui.palette(colors);
}

}  // namespace kel::qt
