#pragma once

#include <algorithm>
#include <cmath>
#include <QColor>
#include <QImage>
#include <QPalette>
#include <QRect>

namespace kel::test {

/// A dark desktop, on which nothing looks different where it is disabled.
inline QPalette darkDesktop() {
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(20, 60, 120));
    return palette;
}

inline double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// What surrounds the pixels of a part of the picture that are meant.
template <class IsMeant>
QRect where(const QImage& picture, const QRect& part, IsMeant isMeant) {
    QRect found;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (isMeant(picture.pixelColor(x, y))) found |= QRect(x, y, 1, 1);
    return found;
}

inline QRect inkIn(const QImage& picture, const QRect& part, const QColor& paper) {
    return where(picture, part, [&paper](const QColor& pixel) { return pixel != paper; });
}

}  // namespace kel::test
