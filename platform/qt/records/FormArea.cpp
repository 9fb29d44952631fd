#include "platform/qt/records/FormArea.h"

#include <QApplication>

namespace kel::qt {

FormArea::FormArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FormArea::follow(QWidget* focused) {
    if (focused == nullptr || widget() == nullptr || focused == widget() || !widget()->isAncestorOf(focused)) return;
    // The box stands in its field, beside the caption.
    const QWidget* field = focused->parentWidget();
    const QSize room = viewport()->size();
    if (field == widget() || field->width() > room.width() || field->height() > room.height()) field = focused;
    const QRect place(field->mapTo(widget(), QPoint(0, 0)), field->size());
    const QPoint middle = place.center();
    ensureVisible(middle.x(), middle.y(), place.width() / 2 + 1, place.height() / 2 + 1);
}

}  // namespace kel::qt
