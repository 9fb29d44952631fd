#include "platform/qt/base/FieldColors.h"

#include <algorithm>
#include <cmath>
#include <QHash>

namespace kel::qt {

namespace {

constexpr double ReadableContrast = 4.5;
constexpr int ShadingSteps = 10;
constexpr double DisabledShare = 0.5;  ///< of the background in a text that is disabled

constexpr int White = 255;  ///< each of a colour's channels

constexpr double EdgeShare = 0.25;  ///< of the text in a line on the background

/// What the classic system colours are on a desktop of Qt's, by index.
struct Role {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

constexpr Role SystemRoles[] = {
    {QPalette::Active, QPalette::Window},           // 0 scroll bar
    {QPalette::Active, QPalette::Dark},             // 1 desktop
    {QPalette::Active, QPalette::Highlight},        // 2 title of the active window
    {QPalette::Active, QPalette::Mid},              // 3 title of another window
    {QPalette::Active, QPalette::Window},           // 4 menu
    {QPalette::Active, QPalette::Base},             // 5 window background
    {QPalette::Active, QPalette::Shadow},           // 6 window frame
    {QPalette::Active, QPalette::WindowText},       // 7 menu text
    {QPalette::Active, QPalette::Text},             // 8 window text
    {QPalette::Active, QPalette::HighlightedText},  // 9 title text
    {QPalette::Active, QPalette::Window},           // 10 border of the active window
    {QPalette::Active, QPalette::Window},           // 11 border of another window
    {QPalette::Active, QPalette::Mid},              // 12 workspace
    {QPalette::Active, QPalette::Highlight},        // 13 highlight
    {QPalette::Active, QPalette::HighlightedText},  // 14 highlighted text
    {QPalette::Active, QPalette::Button},           // 15 button face
    {QPalette::Active, QPalette::Dark},             // 16 button shadow
    {QPalette::Disabled, QPalette::Text},           // 17 grey text
    {QPalette::Active, QPalette::ButtonText},       // 18 button text
    {QPalette::Disabled, QPalette::WindowText},     // 19 title text of another window
    {QPalette::Active, QPalette::Light},            // 20 button highlight
    {QPalette::Active, QPalette::Shadow},           // 21 dark shadow
    {QPalette::Active, QPalette::Midlight},         // 22 light edge
    {QPalette::Active, QPalette::ToolTipText},      // 23 tooltip text
    {QPalette::Active, QPalette::ToolTipBase},      // 24 tooltip
};

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    // A list, since minmax of two temporaries hands out references to what is gone.
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor& color, const QColor& other, double share) {
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {channel(color.red(), other.red()), channel(color.green(), other.green()),
            channel(color.blue(), other.blue())};
}

bool isDark(const QColor& color) { return contrast(Qt::black, color) < contrast(Qt::white, color); }

QColor strongestOn(const QColor& background) { return isDark(background) ? Qt::white : Qt::black; }

/// Plain text gives way altogether where it cannot be read, a colour that was meant keeps its hue.
QColor fieldText(Color fore, const QPalette& desktop, const QColor& back) {
    constexpr Color Black = 0x00000000;
    const QColor text = desktopColor(fore, desktop);
    if (contrast(text, back) >= ReadableContrast) return text;
    if (fore != colors::SystemWindowText && fore != Black) return readableOn(text, back);
    const QColor usual = desktop.color(QPalette::Active, QPalette::Text);
    return contrast(usual, back) >= ReadableContrast ? usual : strongestOn(back);
}

QPalette makePalette(const FieldColors& wanted, const QPalette& desktop) {
    QPalette palette;
    const QColor back = fieldGround(wanted.back, desktop);
    const QColor text = fieldText(wanted.fore, desktop, back);
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Disabled, QPalette::Text, fadedOn(text, back));
    return palette.resolve(desktop);
}

struct PaletteKey {
    FieldColors wanted;
    qint64 desktop = 0;
    friend bool operator==(const PaletteKey&, const PaletteKey&) = default;
};

std::size_t qHash(const PaletteKey& key, std::size_t seed = 0) {
    return qHashMulti(seed, key.wanted.back, key.wanted.fore, key.desktop);
}

/// Enough for all the fields of some desktops; more means that palettes come and go.
constexpr qsizetype CachedPalettes = 64;

}  // namespace

QColor desktopColor(Color color, const QPalette& desktop) {
    if (!isSystemColor(color)) {
        const auto channel = [color](int shift) { return static_cast<int>((color >> shift) & 0xFFU); };
        return {channel(0), channel(8), channel(16)};
    }
    const std::size_t index = color & 0xFFU;
    const Role role =
        index < std::size(SystemRoles) ? SystemRoles[index] : Role{QPalette::Active, QPalette::WindowText};
    return desktop.color(role.group, role.role);
}

QColor fieldGround(Color color, const QPalette& desktop) {
    const QColor chosen = desktopColor(color, desktop);
    if (isSystemColor(color)) return chosen;
    const QColor paper = desktop.color(QPalette::Active, QPalette::Base);
    const bool dark = isDark(paper);
    // What is no part of a tint: the ink of pale green is all in how green differs from red and blue.
    const int grey = std::min({chosen.red(), chosen.green(), chosen.blue()});
    const auto tinted = [&](int channel, int onPaper) {
        return dark ? std::min(onPaper + channel - grey, White) : onPaper * channel / White;
    };
    return {tinted(chosen.red(), paper.red()), tinted(chosen.green(), paper.green()),
            tinted(chosen.blue(), paper.blue())};
}

QColor readableOn(const QColor& wanted, const QColor& background) {
    const QColor strongest = strongestOn(background);
    QColor shade = wanted;
    for (int step = 1; step <= ShadingSteps && contrast(shade, background) < ReadableContrast; ++step)
        shade = mixed(wanted, strongest, static_cast<double>(step) / ShadingSteps);
    return shade;
}

QColor fadedOn(const QColor& text, const QColor& background) { return mixed(text, background, DisabledShare); }

QColor edgeColor(const QPalette& desktop) {
    return mixed(desktop.color(QPalette::Window), desktop.color(QPalette::WindowText), EdgeShare);
}

QColor captionColorOn(const QPalette& desktop, Color color) {
    const QColor background = desktop.color(QPalette::Active, QPalette::Window);
    if (color == colors::SystemWindowText) return desktop.color(QPalette::Active, QPalette::WindowText);
    return readableOn(desktopColor(color, desktop), background);
}

QColor disabledCaptionColor(const QPalette& desktop) {
    const QColor disabled = desktop.color(QPalette::Disabled, QPalette::WindowText);
    if (disabled != desktop.color(QPalette::Active, QPalette::WindowText)) return disabled;
    return fadedOn(disabled, desktop.color(QPalette::Active, QPalette::Window));
}

QPalette fieldPalette(const FieldColors& wanted, const QPalette& desktop) {
    if (wanted == FieldColors{}) return desktop;
    static QHash<PaletteKey, QPalette> cache;
    const PaletteKey key{wanted, desktop.cacheKey()};
    if (const auto found = cache.constFind(key); found != cache.constEnd()) return *found;
    if (cache.size() >= CachedPalettes) cache.clear();
    return *cache.insert(key, makePalette(wanted, desktop));
}

}  // namespace kel::qt
