#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/home/KeySender.h"
#include "platform/qt/home/PlacedQtControl.h"
#include "platform/qt/home/QtFormWindow.h"
#include "platform/qt/widgets/ComboList.h"
#include "platform/qt/widgets/QtComboBox.h"
#include "platform/qt/widgets/QtUpDown.h"

/// What a person does at a form's window.
namespace kel::qt {

namespace {

/// Lets everything happen that follows from what was done.
void settle() {
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    } while (hasKeysToSend());
}

/// Where it is seen.
FieldView* fieldOf(PlacedControl& control) {
    const FieldWidget* const shown = control.control().widgets().field;
    auto* const field = shown != nullptr ? dynamic_cast<FieldView*>(shown->view()) : nullptr;
    return field != nullptr && field->widget().isVisible() ? field : nullptr;
}

/// Qt gives the focus only for events that come from the window system.
void giveFocusByClick(QWidget& widget) {
    if (widget.isVisible() && widget.focusPolicy() & Qt::ClickFocus) widget.setFocus(Qt::MouseFocusReason);
}

void sendMouse(QWidget& area, QEvent::Type type, Qt::MouseButton button, const QPoint& place) {
    const bool held = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, area.mapToGlobal(place), button, held ? button : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &event);
}

void sendMouse(QWidget& area, QEvent::Type type, Qt::MouseButton button) {
    sendMouse(area, type, button, area.rect().center());
}

void clickLeft(QWidget& area, const QPoint& place, QEvent::Type press = QEvent::MouseButtonPress) {
    const QPointer<QWidget> pressed = &area;
    sendMouse(area, press, Qt::LeftButton, place);
    if (!pressed.isNull()) sendMouse(*pressed, QEvent::MouseButtonRelease, Qt::LeftButton, place);
}

void clickItem(ComboList& list, std::int32_t item) {
    const QModelIndex row = list.model()->index(item, 0);
    list.scrollTo(row);
    if (row.isValid()) clickLeft(*list.viewport(), list.visualRect(row).center());
}

void sendMenu(QWidget& area) {
    const QPoint place = area.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, area.mapToGlobal(place), Qt::NoModifier);
    QApplication::sendEvent(&area, &event);
}

/// Without a window manager nobody else does it.
void activateByForce(QWidget& window) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

void closePopups() {
    while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
}

}  // namespace

void QtFormWindow::activate() {
    if (Window_->isActiveWindow()) return;
    Window_->activateWindow();
    QCoreApplication::processEvents();
    if (!Window_->isActiveWindow()) activateByForce(*Window_);
    settle();
}

void QtFormWindow::press(const KeyStroke& stroke) {
    activate();
    strikeKey(stroke);
    settle();
}

void QtFormWindow::focus(PlacedControl& control) {
    activate();
    if (const FieldView* const field = static_cast<PlacedQtControl&>(control).site().activeField())
        focus::give(field->widget());
    settle();
}

/// Something at the field of a control, as long as its `area` lives, that gets the focus first.
template <class Action>
void QtFormWindow::byMouse(PlacedControl& control, Action action) {
    activate();
    const QPointer<QWidget> window = Window_.get();
    closePopups();
    if (FieldView* const field = window.isNull() ? nullptr : fieldOf(control)) {
        const QPointer<QWidget> area = &field->mouseArea();
        giveFocusByClick(field->widget());
        if (!area.isNull()) action(*field, area);
    }
    settle();
}

void QtFormWindow::click(PlacedControl& control, std::int32_t position, QEvent::Type press) {
    byMouse(control, [&](FieldView& field, const QPointer<QWidget>& area) {
        if (auto* const input = dynamic_cast<TextInput*>(&field)) input->aim(position);
        clickLeft(*area, area->rect().center(), press);
    });
}

void QtFormWindow::click(PlacedControl& control, std::int32_t position) {
    click(control, position, QEvent::MouseButtonPress);
}

void QtFormWindow::doubleClick(PlacedControl& control, std::int32_t position) {
    click(control, position);
    click(control, position, QEvent::MouseButtonDblClick);
}

void QtFormWindow::rightClick(PlacedControl& control) {
    const QPointer<QWidget> window = Window_.get();
    byMouse(control, [](const FieldView& field, const QPointer<QWidget>& area) {
        if (dynamic_cast<const TextInput*>(&field) == nullptr) return;
        sendMouse(*area, QEvent::MouseButtonPress, Qt::RightButton);
        if (!area.isNull()) sendMenu(*area);
        closePopups();
        if (!area.isNull()) sendMouse(*area, QEvent::MouseButtonRelease, Qt::RightButton);
    });
    if (!window.isNull()) activate();
}

void QtFormWindow::spin(PlacedControl& control, bool up) {
    activate();
    const UpDown* const shown = control.control().widgets().upDown;
    const QPointer<QtUpDown> spinner = shown != nullptr ? dynamic_cast<QtUpDown*>(shown->view()) : nullptr;
    closePopups();
    if (!spinner.isNull() && spinner->isVisible()) clickLeft(*spinner, spinner->half(up).center());
    settle();
}

void QtFormWindow::pick(PlacedControl& control, std::int32_t item) {
    const QPointer<QWidget> window = Window_.get();
    byMouse(control, [item](FieldView& field, const QPointer<QWidget>& area) {
        auto* const box = dynamic_cast<QtComboBox*>(&field);
        if (box == nullptr) return;
        clickLeft(*box, box->button().center());
        if (!area.isNull() && box->list() != nullptr) clickItem(*box->list(), item);
        closePopups();
    });
    if (!window.isNull()) activate();
}

void QtFormWindow::setClipboard(std::u16string_view text) { QGuiApplication::clipboard()->setText(toQString(text)); }

PlacedControl* QtFormWindow::focused() const { return focusedControl(); }

PlacedQtControl* QtFormWindow::focusedControl() const {
    for (QWidget* widget = Window_->focusWidget(); widget != nullptr; widget = widget->parentWidget())
        if (auto* const control = dynamic_cast<PlacedQtControl*>(widget)) return control;
    return nullptr;
}

std::string QtFormWindow::picture() {
    settle();
    QBuffer png;
    Window_->grab().save(&png, "PNG");
    return png.data().toStdString();
}

}  // namespace kel::qt
