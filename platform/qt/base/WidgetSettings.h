#pragma once

#include <QFont>
#include <string_view>

#include "host/widgets/Widget.h"

class QWidget;

/// Looks that the controls give their widgets. None of these costs anything where nothing changes.
namespace kel::qt {

/// `base` in another family and size (points).
QFont fontLike(const QFont& base, std::u16string_view family, double size);

/// `base` with what is chosen of `face`. The captions of a form, which are alike, share it.
QFont fontOf(const QFont& base, const FontFace& face);

void setWidgetFont(QWidget& widget, const QFont& font);
void setWidgetToolTip(QWidget& widget, std::u16string_view text);

}  // namespace kel::qt
