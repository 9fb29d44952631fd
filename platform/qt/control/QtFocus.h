#pragma once

#include <QtCore/qnamespace.h>

class QWidget;

namespace kel::qt {

class FieldView;
class ControlSite;

/// What Qt says of the focus, for those who are told of it. Popups, menus and other windows in front are no change.
namespace focus {

/// In a window that is not the active one the field has the focus as soon as it is.
void arrived(FieldView& field, Qt::FocusReason reason);
void departed(FieldView& field, Qt::FocusReason reason);

/// From a field that can have it no longer: into the one that has taken its place in the same control, else on as by
/// Tab. Nowhere when nothing else takes it.
void passOn(FieldView& field);

/// The field or the control is about to go, without a word to anybody.
void forget(const FieldView& field);
void forget(const ControlSite& site);

/// Enabled and shown, with all around it: it would take the focus.
bool isTakenBy(const QWidget& widget);
/// Gives it the focus, if it takes it.
void give(QWidget& widget, Qt::FocusReason reason = Qt::OtherFocusReason);

/// The Tab key moves the focus at this moment.
bool movesByTab();

}  // namespace focus

}  // namespace kel::qt
