#include "platform/qt/control/QtFocus.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "host/focus/FocusOrder.h"
#include "host/focus/TabKey.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/widgets/ComboList.h"

namespace kel::qt::focus {

namespace {

FocusOrder Order;
TabKey Tab;
bool Suspended = false;             ///< the holder's focus is away for a while: a popup, another window
const QWidget* Refusing = nullptr;  ///< a hidden field that was given the focus a moment ago

/// What code moves while Tab does is moved by Tab.
bool isByTab(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           (reason == Qt::OtherFocusReason && Tab.isHeld());
}

bool isPassing(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
}

void leave(const FieldWidget& field, const QWidget* next, Qt::FocusReason reason) {
    Suspended = false;
    const TabKey::Scope tab(Tab, isByTab(reason));
    const auto* const nextField = dynamic_cast<const FieldView*>(next);
    Order.departed(field, nextField != nullptr ? &nextField->site() : nullptr);
}

/// While a popup or another window was in front, the focus of the holder's window was moved.
void focusMoved(const QWidget* now) {
    const FieldWidget* const holder = Order.holder();
    if (!Suspended || holder == nullptr || now == nullptr) return;
    const QWidget& widget = dynamic_cast<const FieldView&>(*holder->view()).widget();
    if (now == &widget || now->window() != widget.window() || QApplication::activePopupWidget() != nullptr) return;
    leave(*holder, now, Qt::OtherFocusReason);
}

/// The focus has come to a hidden field and gone: it stays where it was.
void giveBack(QWidget* from, const QWidget* now) {
    if (Refusing == nullptr || from == Refusing) return;
    Refusing = nullptr;
    if (from != nullptr && now == nullptr) give(*from);
}

/// Where the Tab key would lead from there; nullptr when nothing else takes the focus.
QWidget* nextByTab(const QWidget& from) {
    for (QWidget* next = from.nextInFocusChain(); next != &from; next = next->nextInFocusChain()) {
        const bool stops = (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
        if (stops && !next->isWindow() && isTakenBy(*next)) return next;
    }
    return nullptr;
}

void watchApplication() {
    static QPointer<QCoreApplication> watched;
    if (watched == qApp) return;
    watched = qApp;
    QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget* old, QWidget* now) {
        focusMoved(now);
        giveBack(old, now);
    });
}

}  // namespace

/// While Qt disables or hides something it has not come to all that is in it, which does not know yet.
bool isTakenBy(const QWidget& widget) {
    for (const QWidget* around = &widget; around->isEnabled(); around = around->parentWidget()) {
        if (around->isWindow()) return true;
        if (around->isHidden()) return false;
    }
    return false;
}

void give(QWidget& widget, Qt::FocusReason reason) {
    if (!isTakenBy(widget)) return;
    // An open list would keep the keys, and its box the focus.
    auto* const list = dynamic_cast<ComboList*>(QApplication::activePopupWidget());
    if (list != nullptr && !widget.hasFocus()) list->close();
    widget.setFocus(reason);
}

void arrived(FieldView& field, Qt::FocusReason reason) {
    watchApplication();
    QWidget& widget = field.widget();
    // Qt lets code give it to what only its surroundings hide.
    if (!widget.isVisible()) {
        if (widget.hasFocus()) Refusing = &widget;
        widget.clearFocus();
        return;
    }
    Suspended = !widget.hasFocus();
    const TabKey::Scope tab(Tab, isByTab(reason));
    Order.arrived(field.shown());
}

void departed(FieldView& field, Qt::FocusReason reason) {
    if (&field.shown() != Order.target()) return;
    const QWidget* const now = QApplication::focusWidget();
    const auto* const next = dynamic_cast<const FieldView*>(now);
    const bool comesBack = next != nullptr && next != &field && !now->isVisible();
    if (comesBack || isPassing(reason)) {
        Suspended = true;
        return;
    }
    leave(field.shown(), now, reason);
    // From what stands in something that is disabled Qt takes the focus, and gives it to nobody.
    if (!field.takesFocus() && field.widget().window()->focusWidget() == nullptr) passOn(field);
}

void passOn(FieldView& field) {
    QWidget& widget = field.widget();
    FieldView* const shown = field.site().activeField();
    const bool stays = shown != nullptr && shown != &field && shown->takesFocus();
    QWidget* const heir = stays ? &shown->widget() : nextByTab(widget);
    if (heir != nullptr)
        give(*heir, stays ? Qt::OtherFocusReason : Qt::TabFocusReason);
    else
        widget.clearFocus();
}

void forget(const FieldView& field) { Order.forget(field.shown()); }

void forget(const ControlSite& site) { Order.forget(site); }

bool movesByTab() { return Tab.isHeld(); }

}  // namespace kel::qt::focus
