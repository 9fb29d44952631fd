#include "platform/qt/control/FocusTracker.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <utility>

#include "library/Control.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/FocusWay.h"
#include "platform/qt/widgets/ChildField.h"

namespace kel::qt::focus {

namespace {

ChildField* Holder = nullptr;
ControlSite* Entered = nullptr;  ///< whose control has been entered and not yet left
bool Suspended = false;          ///< the holder's focus is away for a while: a popup, another window
bool ByTab = false;
int Changing = 0;
const QWidget* Refusing = nullptr;  ///< a hidden field that was given the focus a moment ago

bool isTab(Qt::FocusReason reason) { return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason; }

bool isPassing(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
}

/// While somebody is told of a change that `reason` makes.
class Telling {
public:
    explicit Telling(Qt::FocusReason reason) : Before_(std::exchange(ByTab, isTab(reason))) { ++Changing; }
    ~Telling() {
        --Changing;
        ByTab = Before_;
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

private:
    bool Before_;
};

/// `next` is where the focus goes, nullptr when it is none of the controls'.
void leaveHolder(const ControlSite* next) {
    Suspended = false;
    if (Holder != nullptr) std::exchange(Holder, nullptr)->shown().lostFocus();
    if (Entered != nullptr && Entered != next) std::exchange(Entered, nullptr)->control().ExitFocus();
}

const ControlSite* siteOf(const QWidget* widget) {
    if (Entered == nullptr || widget == nullptr) return nullptr;
    return Entered->owns(*widget) ? Entered : nullptr;
}

/// While a popup or another window was in front, the focus of the holder's window was moved.
void focusMoved(const QWidget* now) {
    if (!Suspended || Holder == nullptr || now == nullptr || now == &Holder->widget()) return;
    if (now->window() != Holder->widget().window() || QApplication::activePopupWidget() != nullptr) return;
    const Telling telling(Qt::OtherFocusReason);
    leaveHolder(siteOf(now));
}

/// The focus has come to a hidden field and gone: it stays where it was.
void giveBack(QWidget* from, const QWidget* now) {
    if (Refusing == nullptr || from == Refusing) return;
    Refusing = nullptr;
    if (from != nullptr && now == nullptr) focusWidget(*from, Qt::OtherFocusReason);
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

void arrived(ChildField& field, Qt::FocusReason reason) {
    watchApplication();
    QWidget& widget = field.widget();
    // Qt lets code give it to what only its surroundings hide.
    if (!widget.isVisible()) {
        if (widget.hasFocus()) Refusing = &widget;
        widget.clearFocus();
        return;
    }
    if (&field == Holder) {
        Suspended = !widget.hasFocus();
        return;
    }
    const Telling telling(reason);
    leaveHolder(&field.site());
    if (widget.window()->focusWidget() != &widget) return;  // a handler has moved it on
    Holder = &field;
    Suspended = !widget.hasFocus();
    if (Entered == nullptr) {
        Entered = &field.site();
        Entered->control().EnterFocus();
    }
    if (Holder == &field) field.shown().gotFocus();
}

void departed(ChildField& field, Qt::FocusReason reason) {
    if (&field != Holder) return;
    if (isPassing(reason)) {
        Suspended = true;
        return;
    }
    {
        const Telling telling(reason);
        leaveHolder(siteOf(QApplication::focusWidget()));
    }
    // From what stands in something that is disabled Qt takes the focus, and gives it to nobody.
    if (!field.takesFocus() && field.widget().window()->focusWidget() == nullptr) passOn(field);
}

void passOn(ChildField& field) {
    QWidget& widget = field.widget();
    ChildField* const shown = field.site().activeField();
    const bool stays = shown != nullptr && shown != &field && shown->takesFocus();
    QWidget* const heir = stays ? &shown->widget() : nextByTab(widget);
    if (heir == nullptr || isChanging()) widget.clearFocus();
    if (heir != nullptr) focusWidget(*heir, stays ? Qt::OtherFocusReason : Qt::TabFocusReason);
}

void forget(const ChildField& field) {
    if (Holder == &field) Holder = nullptr;
}

void forget(const ControlSite& site) {
    if (Entered == &site) Entered = nullptr;
}

bool isHeldBy(const ChildField& field) { return Holder == &field; }

bool movesByTab() { return ByTab; }

bool isChanging() { return Changing > 0; }

}  // namespace kel::qt::focus
