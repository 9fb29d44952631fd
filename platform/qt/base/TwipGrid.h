#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "host/Geometry.h"
#include "host/TwipScale.h"

class QWidget;

namespace kel::qt {

/// Where the twips of a control are among the pixels of its widget.
class TwipGrid {
public:
    TwipGrid(const TwipScale& scale) : TwipGrid(scale, scale) {}
    TwipGrid(const TwipScale& across, const TwipScale& down) : Across_(across), Down_(down) {}

    friend bool operator==(const TwipGrid&, const TwipGrid&) = default;

    const TwipScale& across() const { return Across_; }
    const TwipScale& down() const { return Down_; }

    Size twips(QSize pixels) const { return {Across_.twips(pixels.width()), Down_.twips(pixels.height())}; }

    /// `bounds` inside something that begins at `origin` (twips); the result counts from there.
    QRect pixels(const Rect& bounds, QPoint origin = {}) const {
        const QPoint zero = pixel(origin.x(), origin.y());
        const QPoint first = pixel(origin.x() + bounds.left, origin.y() + bounds.top);
        const QPoint end = pixel(origin.x() + bounds.left + bounds.width, origin.y() + bounds.top + bounds.height);
        return {first - zero, QSize(end.x() - first.x(), end.y() - first.y())};
    }

private:
    QPoint pixel(std::int32_t x, std::int32_t y) const { return {Across_.pixel(x), Down_.pixel(y)}; }

    TwipScale Across_;
    TwipScale Down_;
};

/// The grid of a control that goes by the font and the style of its widget: across as the letters grow, and a field as
/// high as the style makes a line edit.
TwipGrid gridOf(const QWidget& widget);

/// Nearest to the classic one of those on which a line in the application's font fits a caption.
TwipScale scaleOfForms();

}  // namespace kel::qt
