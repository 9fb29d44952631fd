#include "platform/qt/widgets/EditMenu.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>
#include <QMenu>

#include "host/widgets/TextEntry.h"

namespace kel::qt {

namespace {

struct Entry {
    const char* text;  ///< as Qt's own line edit has it translated
    const char* icon;
    QKeySequence::StandardKey key;
    EditAction action;
    bool beginsGroup;
};

constexpr Entry Entries[] = {
    {"&Undo", "edit-undo", QKeySequence::Undo, EditAction::Undo, false},
    {"&Redo", "edit-redo", QKeySequence::Redo, EditAction::Redo, false},
    {"Cu&t", "edit-cut", QKeySequence::Cut, EditAction::Cut, true},
    {"&Copy", "edit-copy", QKeySequence::Copy, EditAction::Copy, false},
    {"&Paste", "edit-paste", QKeySequence::Paste, EditAction::Paste, false},
    {"Delete", "edit-delete", QKeySequence::UnknownKey, EditAction::EraseSelection, false},
    {"Select All", "edit-select-all", QKeySequence::SelectAll, EditAction::SelectAll, true},
};

void addEntry(QMenu& menu, TextEntry& box, const Entry& entry) {
    if (entry.beginsGroup) menu.addSeparator();
    QString text = QCoreApplication::translate("QLineEdit", entry.text);
    const QString key = QKeySequence(entry.key).toString(QKeySequence::NativeText);
    if (!key.isEmpty()) text += u'\t' + key;
    QAction* const action = menu.addAction(QIcon::fromTheme(QLatin1String(entry.icon)), text);
    action->setObjectName(QLatin1String(entry.icon));
    action->setEnabled(box.offers(entry.action));
    const EditAction chosen = entry.action;
    QObject::connect(action, &QAction::triggered, menu.parent(), [&box, chosen] { box.perform(chosen); });
}

}  // namespace

void showEditMenu(TextEntry& box, QWidget& widget, const QPoint& globalPosition) {
    auto* const menu = new QMenu(&widget);
    menu->setObjectName(QStringLiteral("qt_edit_menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Entry& entry : Entries) addEntry(*menu, box, entry);
    menu->popup(globalPosition);
}

}  // namespace kel::qt
