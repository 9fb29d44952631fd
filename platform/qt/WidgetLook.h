#pragma once

#include <QFont>
#include <string_view>

#include "host/widgets/Widget.h"
#include "platform/qt/FieldColors.h"

class QWidget;

/// Looks that the controls give their widgets. None of these costs anything where nothing changes.
namespace kel::qt {

/// `base` in another family and size (points).
QFont fontLike(const QFont& base, std::u16string_view family, double size);

void setWidgetFont(QWidget& widget, const QFont& font);
/// What is chosen of it; the rest stays as it is.
void setWidgetFont(QWidget& widget, const FontFace& font);
void setWidgetToolTip(QWidget& widget, std::u16string_view text);
void colorWidget(QWidget& widget, const FieldColors& colors);

}  // namespace kel::qt
