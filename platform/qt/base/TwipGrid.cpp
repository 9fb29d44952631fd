#include "platform/qt/base/TwipGrid.h"

#include <algorithm>
#include <cmath>
#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QWidget>

#include "common/FieldLayout.h"

namespace kel::qt {

namespace {

constexpr int PointsPerInch = 72;
constexpr int ClassicPoints = 8;
constexpr int ClassicDots = 96;  ///< to the inch

/// A font may be given in either.
double pointsByDots(const QFont& font, int dots) {
    return font.pixelSize() > 0 ? font.pixelSize() * PointsPerInch : font.pointSizeF() * dots;
}

TwipScale acrossFor(const QFont& font, int dots) {
    constexpr int Parts = 64;  // of a point by a dot
    return TwipScale(ClassicTwipsPerPixel * ClassicPoints * ClassicDots * Parts,
                     static_cast<std::int32_t>(std::lround(pointsByDots(font, dots) * Parts)));
}

/// What `QLineEdit` asks for. Without the widget, whose style sheet would have a say in its frame as well.
int heightOfLine(const QWidget& widget) {
    constexpr int LowestText = 14;
    constexpr int Margin = 1;
    const QStyle& style = *widget.style();
    QStyleOptionFrame option;
    option.initFrom(&widget);
    option.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
    option.state |= QStyle::State_Sunken;
    const int text = std::max(option.fontMetrics.height(), LowestText) + 2 * Margin;
    return style.sizeFromContents(QStyle::CT_LineEdit, &option, {text, text}).height();
}

TwipGrid makeGrid(const QWidget& widget) {
    return {acrossFor(widget.font(), widget.logicalDpiY()), TwipScale(FieldHeight, heightOfLine(widget))};
}

/// The fields of a window are alike: the style is asked once for all of them.
struct Known {
    QFont font;
    QPointer<QStyle> style;
    int dots = 0;
    TwipGrid grid = TwipScale(ClassicTwipsPerPixel);
};

}  // namespace

TwipGrid gridOf(const QWidget& widget) {
    static Known Last;
    const int dots = widget.logicalDpiY();
    if (Last.style != widget.style() || Last.dots != dots || Last.font != widget.font())
        Last = {widget.font(), widget.style(), dots, makeGrid(widget)};
    return Last.grid;
}

TwipScale scaleOfForms() {
    const TwipScale classic(ClassicTwipsPerPixel);
    const int line = QFontMetrics(QApplication::font()).height();
    return line <= classic.pixel(CaptionHeight) ? classic : TwipScale(CaptionHeight, line);
}

}  // namespace kel::qt
