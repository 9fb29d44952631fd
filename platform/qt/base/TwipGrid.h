#pragma once

#include <cstdint>
#include <QPoint>
#include <QRect>
#include <QSize>

#include "host/Geometry.h"

namespace kel::qt {

/// Twips as pixels. Edges are rounded, not lengths, so that what touches in twips touches on the screen.
class TwipGrid {
public:
    explicit TwipGrid(std::int32_t twipsPerPixel) : TwipsPerPixel_(twipsPerPixel) {}

    int pixel(std::int32_t twips) const {
        const std::int32_t shifted = twips + TwipsPerPixel_ / 2;
        const std::int32_t below = shifted < 0 ? TwipsPerPixel_ - 1 : 0;
        return (shifted - below) / TwipsPerPixel_;
    }
    std::int32_t twips(int pixels) const { return pixels * TwipsPerPixel_; }
    Size twips(QSize pixels) const { return {twips(pixels.width()), twips(pixels.height())}; }

    /// `bounds` inside something that begins at `origin` (twips); the result counts from there.
    QRect pixels(const Rect& bounds, QPoint origin = {}) const {
        const QPoint zero{pixel(origin.x()), pixel(origin.y())};
        const QPoint first{pixel(origin.x() + bounds.left), pixel(origin.y() + bounds.top)};
        const QPoint end{pixel(origin.x() + bounds.left + bounds.width),
                         pixel(origin.y() + bounds.top + bounds.height)};
        return {first - zero, QSize(end.x() - first.x(), end.y() - first.y())};
    }

private:
    std::int32_t TwipsPerPixel_;
};

}  // namespace kel::qt
