#include "platform/qt/widgets/ComboList.h"

#include <algorithm>
#include <QAbstractListModel>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/base/KeyMap.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

/// The items where they are: nothing is kept of them.
class ItemsModel final : public QAbstractListModel {
public:
    ItemsModel(const ListItems& items, QObject* parent) : QAbstractListModel(parent), Items_(items) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : Items_.size(); }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !Items_.contains(index.row())) return {};
        // Each row is one line high.
        return toQString(Items_.item(index.row())).replace(u'\n', u' ');
    }

private:
    const ListItems& Items_;
};

}  // namespace

ComboList::ComboList(QtComboBox& box, ComboBox& combo) : QListView(&box), Box_(box), Combo_(combo) {
    setWindowFlag(Qt::Popup);
    setFocusPolicy(Qt::NoFocus);
    setModel(new ItemsModel(combo.items(), this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    // A window takes neither from its parent.
    setFont(box.font());
    setPalette(box.look());
    setLayoutDirection(box.layoutDirection());
    setAccessibleName(box.accessibleName());
    viewport()->setMouseTracking(true);
}

// ---- Place

int ComboList::heightOf(int rows) const {
    const int row = model()->rowCount() > 0 ? sizeHintForRow(0) : fontMetrics().lineSpacing();
    return rows * row + 2 * frameWidth();
}

QRect ComboList::place() const {
    const QRect screen = Box_.screen()->availableGeometry();
    const QRect box(Box_.mapToGlobal(QPoint()), Box_.size());
    int rows = std::clamp(model()->rowCount(), 1, int{ComboBox::RowsOfList});
    const int below = screen.bottom() - box.bottom();
    const int above = box.top() - screen.top();
    const bool opensUp = heightOf(rows) > below && above > below;
    while (rows > 1 && heightOf(rows) > std::max(above, below)) --rows;

    QRect list(
        box.left(), box.bottom() + 1,
        std::clamp(Box_.site().ownPixels(Combo_.droppedWidth()), box.width(), std::max(screen.width(), box.width())),
        heightOf(rows));
    if (opensUp) list.moveBottom(box.top() - 1);
    if (Box_.isRightToLeft()) list.moveRight(box.right());
    list.moveLeft(std::max(std::min(list.left(), screen.right() - list.width() + 1), screen.left()));
    return list;
}

void ComboList::drop() {
    const QRect bounds = place();
    if (bounds != geometry()) setGeometry(bounds);
    setCurrentIndex(model()->index(Combo_.highlighted(), 0));
    show();
}

void ComboList::hideEvent(QHideEvent* event) {
    QListView::hideEvent(event);
    // Qt closes popups too.
    Combo_.showDropDown(false);
}

// ---- Keys and mouse

bool ComboList::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease: return keyPassed(static_cast<QKeyEvent&>(*event));
        case QEvent::MouseButtonPress:
            pressedOutside(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
            return true;
        default: return QListView::event(event);
    }
}

bool ComboList::viewportEvent(QEvent* event) {
    return atEdge([&] { return QListView::viewportEvent(event); });
}

bool ComboList::keyPassed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    // So that the box has the focus back when it loses it.
    const bool leaves = event.type() == QEvent::KeyPress && leavesField(stroke);
    // Shortcuts are of the window, and no list may lie in front.
    const bool isShortcut = event.type() == QEvent::ShortcutOverride && Box_.site().isAmongOthers();
    if (leaves || (isShortcut && seeksMnemonic(stroke))) Combo_.showDropDown(false);
    return QCoreApplication::sendEvent(&Box_, &event);
}

/// All presses come here while the list is open; those on the frame mean nothing.
void ComboList::pressedOutside(const QPoint& globalPosition) {
    if (geometry().contains(globalPosition)) return;
    // One on the button would fall through and open it again.
    setAttribute(Qt::WA_NoMouseReplay, Box_.button().contains(Box_.mapFromGlobal(globalPosition)));
    Combo_.showDropDown(false);
}

void ComboList::mousePressEvent(QMouseEvent* event) { mouseMoveEvent(event); }

void ComboList::mouseMoveEvent(QMouseEvent* event) {
    const QModelIndex row = indexAt(event->position().toPoint());
    if (row.isValid()) Combo_.highlight(row.row());
}

void ComboList::mouseReleaseEvent(QMouseEvent* event) {
    const QModelIndex row = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row.isValid()) Combo_.pick(row.row());
}

}  // namespace kel::qt
