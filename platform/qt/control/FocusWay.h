#pragma once

#include <QtCore/qnamespace.h>

class QWidget;

/// Where the focus goes on a desktop, where widgets of anybody's stand between the controls'.
namespace kel::qt {

/// Enabled and shown, with all around it: it would take the focus.
bool takesFocus(const QWidget& widget);

/// Gives it the focus, if it takes it.
void focusWidget(QWidget& widget, Qt::FocusReason reason = Qt::OtherFocusReason);

/// Where the Tab key would lead from there; nullptr when nothing else takes the focus.
QWidget* nextByTab(const QWidget& from);

}  // namespace kel::qt
