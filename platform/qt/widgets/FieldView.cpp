#include "platform/qt/widgets/FieldView.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/QtFocus.h"

namespace kel::qt {

FieldView::FieldView(ControlSite& site, QWidget& widget, FieldWidget& shown)
    : PlacedView(site, widget, shown), Shown_(shown) {
    site.fieldMade(*this);
}

FieldView::~FieldView() {
    focus::forget(*this);
    site().fieldGoes(*this);
}

bool FieldView::takesFocus() const { return focus::isTakenBy(widget()); }

void FieldView::giveUpFocus() {
    if (widget().window()->focusWidget() == &widget()) focus::passOn(*this);
    focus::departed(*this, Qt::OtherFocusReason);
}

/// Qt hands an event that a widget ignores to the one around it.
bool FieldView::goesToControl(QEvent& event) const {
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::ContextMenu:
            if (&event == Given_) return false;
            event.ignore();
            return true;
        default: return false;
    }
}

void FieldView::give(QEvent& event) {
    const QScopedValueRollback<const QEvent*> given(Given_, &event);
    static_cast<QObject&>(widget()).event(&event);
}

void FieldView::tellFocus(QEvent& event) {
    switch (event.type()) {
        case QEvent::FocusIn:
            if (QAccessible::isActive()) prepareSpeech();
            focus::arrived(*this, static_cast<QFocusEvent&>(event).reason());
            return site().tellFocus(static_cast<QFocusEvent&>(event));
        case QEvent::FocusOut:
            focus::departed(*this, static_cast<QFocusEvent&>(event).reason());
            return site().tellFocus(static_cast<QFocusEvent&>(event));
        case QEvent::EnabledChange:
            if (!widget().isEnabled()) giveUpFocus();
            return;
        default: return;
    }
}

void FieldView::showState(Changes changes) {
    if (changes.has(Change::Place)) placeAgain();
    if (changes.has(Change::Enabled)) {
        widget().setEnabled(Shown_.enabled());
        site().fieldEnabled(*this, Shown_.enabled());
    }
    if (changes.has(Change::Visible)) {
        widget().setVisible(Shown_.visible());
        if (Shown_.visible()) site().fieldShown(*this);
    }
    if (changes.has(Change::Font)) fontAgain();
    if (changes.has(Change::ToolTip)) setWidgetToolTip(widget(), Shown_.toolTip());
}

Accessible FieldView::described() const {
    if (!site().hasControl()) return {};
    Accessible now = describe(site().control());
    const QString given = site().widget().accessibleDescription();
    if (!given.isEmpty()) now.help = viewOf(given);
    return now;
}

void FieldView::takeNameOfLabel() {
    const QAccessibleInterface* const composite = QAccessible::queryAccessibleInterface(&site().widget());
    if (composite == nullptr || !widget().accessibleName().isEmpty()) return;
    const QString name = composite->text(QAccessible::Name);
    if (!name.isEmpty()) widget().setAccessibleName(name);
}

void FieldView::fontAgain() { setWidgetFont(widget(), fontOf(site().widget().font(), Shown_.font())); }

int FieldView::widthFor(int characters) const { return characters * widget().fontMetrics().horizontalAdvance(u'x'); }

}  // namespace kel::qt
