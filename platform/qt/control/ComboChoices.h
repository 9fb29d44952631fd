#pragma once

#include <QStringList>
#include <QVariant>

namespace kel {

class Control;

namespace qt {

/// The list of a combo field as Qt's own boxes have theirs, counted from 0. Each takes the `control` of a KelCombo.
namespace choices {

QStringList items(const Control& control);
void setItems(Control& control, const QStringList& items);
/// -1 where the text is no item.
int currentIndex(const Control& control);
/// -1, or what is no item, leaves no text.
void setCurrentIndex(Control& control, int index);
/// The tag of the item that the text is; invalid where it is none.
QVariant currentData(const Control& control);
/// The first item with this tag becomes the text; none where no item has it.
void setCurrentData(Control& control, const QVariant& tag);

}  // namespace choices

}  // namespace qt
}  // namespace kel
