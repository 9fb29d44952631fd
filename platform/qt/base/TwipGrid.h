#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "host/Geometry.h"
#include "host/TwipScale.h"

namespace kel::qt {

class TwipGrid : public TwipScale {
public:
    using TwipScale::twips;
    using TwipScale::TwipScale;
    TwipGrid(const TwipScale& scale) : TwipScale(scale) {}

    Size twips(QSize pixels) const { return {twips(pixels.width()), twips(pixels.height())}; }

    /// `bounds` inside something that begins at `origin` (twips); the result counts from there.
    QRect pixels(const Rect& bounds, QPoint origin = {}) const {
        const QPoint zero{pixel(origin.x()), pixel(origin.y())};
        const QPoint first{pixel(origin.x() + bounds.left), pixel(origin.y() + bounds.top)};
        const QPoint end{pixel(origin.x() + bounds.left + bounds.width),
                         pixel(origin.y() + bounds.top + bounds.height)};
        return {first - zero, QSize(end.x() - first.x(), end.y() - first.y())};
    }
};

}  // namespace kel::qt
