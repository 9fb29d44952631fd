#include "platform/qt/home/QtSystem.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/control/RetiredControls.h"

namespace kel::qt {

namespace {

QMessageBox::Icon iconOf(std::int32_t style) {
    constexpr std::int32_t IconBits = 0x70;
    switch (style & IconBits) {
        case 16: return QMessageBox::Critical;
        case 32: return QMessageBox::Question;
        case 48: return QMessageBox::Warning;
        case 64: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

/// Some platforms leave the window behind a closed box inactive, and its field without the focus.
void bringBack(QWidget& window) {
    if (window.isVisible() && !window.isActiveWindow()) window.activateWindow();
}

}  // namespace

void QtSystem::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    const ForeignCode running;
    const QPointer<QWidget> window = QApplication::activeWindow();
    // Not on the stack: should its window be destroyed, it goes with it.
    const QPointer<QMessageBox> box =
        new QMessageBox(iconOf(style), toQString(title), toQString(prompt), QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
    if (!window.isNull()) bringBack(*window);
}

void QtSystem::beep() { QApplication::beep(); }

bool QtSystem::tabKeyDown() const { return focus::movesByTab(); }

}  // namespace kel::qt
