#include "platform/qt/QtSystem.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>
#include <QPointer>

#include "platform/qt/FocusTracker.h"
#include "platform/qt/TextBridge.h"

namespace kel::qt {

namespace {

constexpr double MillisecondsPerSecond = 1000;

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
void giveBack(const QPointer<QWidget>& holder) {
    if (holder.isNull() || QApplication::focusWidget() == holder) return;
    holder->window()->activateWindow();
    holder->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace

Date QtSystem::today() const {
    const QDate dayZero(1899, 12, 30);
    return {static_cast<double>(dayZero.daysTo(QDate::currentDate()))};
}

double QtSystem::timer() const { return QTime::currentTime().msecsSinceStartOfDay() / MillisecondsPerSecond; }

void QtSystem::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    const QPointer<QWidget> holder = QApplication::focusWidget();
    QMessageBox box(iconOf(style), toQString(title), toQString(prompt), QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
    giveBack(holder);
}

void QtSystem::beep() { QApplication::beep(); }

bool QtSystem::tabKeyDown() const { return focus::movesByTab(); }

}  // namespace kel::qt
