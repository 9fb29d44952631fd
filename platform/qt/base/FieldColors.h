#pragma once

#include <QColor>
#include <QPalette>

#include "values/Color.h"

namespace kel::qt {

/// A color of the library on the desktop that `desktop` describes.
QColor desktopColor(Color color, const QPalette& desktop);

/// How the ground of a field looks that has this colour. The controls choose theirs for white paper; on the desktop's
/// own each is as much of a tint, of a dark one a dark tint.
QColor fieldGround(Color color, const QPalette& desktop);

/// `wanted`, or the nearest shade of it that can be read on `background`.
QColor readableOn(const QColor& wanted, const QColor& background);

/// How a text is written there that is disabled.
QColor fadedOn(const QColor& text, const QColor& background);

/// Of thin lines on the desktop's windows.
QColor edgeColor(const QPalette& desktop);

/// How the caption is written when it has this colour.
QColor captionColorOn(const QPalette& desktop, Color color);

/// How a caption is written that is disabled, on desktops too that were made without a thought of it.
QColor disabledCaptionColor(const QPalette& desktop);

struct FieldColors {
    Color back = colors::SystemWindow;
    Color fore = colors::SystemWindowText;
    friend bool operator==(const FieldColors&, const FieldColors&) = default;
};

/// The desktop's palette with what `wanted` changes of it. All fields in these colours share it.
QPalette fieldPalette(const FieldColors& wanted, const QPalette& desktop);

}  // namespace kel::qt
