#include "platform/qt/designer/ListDialog.h"

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "runtime/TaggedList.h"

namespace kel::qt::designer {

namespace {

enum Column : int { Item, Tag, ColumnCount };

TaggedList listOf(const QTableWidget& table) {
    TaggedList list;
    for (int row = 0; row < table.rowCount(); ++row)
        list.push_back({table.item(row, Item)->text().toStdU16String(), table.item(row, Tag)->text().toStdU16String()});
    return list;
}

}  // namespace

ListDialog::ListDialog(const QString& items, const QString& tags, QWidget* parent)
    : QDialog(parent), Table_(new QTableWidget(0, ColumnCount)) {
    setWindowTitle(tr("Edit Items and Tags"));
    Table_->setHorizontalHeaderLabels({tr("Item"), tr("Tag")});
    Table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    Table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    Table_->setSelectionMode(QAbstractItemView::SingleSelection);
    for (const TaggedItem& entry : taggedListOf(items.toStdU16String(), tags.toStdU16String()))
        insert(Table_->rowCount(), QString::fromStdU16String(entry.item), QString::fromStdU16String(entry.tag));

    auto* const keys = new QVBoxLayout;
    const auto button = [&](QAction* action) {
        auto* const shown = new QToolButton;
        shown->setDefaultAction(action);
        shown->setToolButtonStyle(Qt::ToolButtonTextOnly);
        shown->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        keys->addWidget(shown);
        return action;
    };
    button(addAction(tr("&Add"), Qt::Key_Insert, &ListDialog::addItem));
    Remove_ = button(addAction(tr("&Remove"), QKeyCombination(Qt::CTRL, Qt::Key_Delete), &ListDialog::removeItem));
    Up_ = button(addAction(tr("Move &Up"), QKeyCombination(Qt::CTRL, Qt::Key_Up), &ListDialog::moveUp));
    Down_ = button(addAction(tr("Move &Down"), QKeyCombination(Qt::CTRL, Qt::Key_Down), &ListDialog::moveDown));
    button(addAction(tr("&Paste"), QKeySequence::Paste, &ListDialog::paste));
    keys->addStretch();
    connect(Table_, &QTableWidget::currentCellChanged, this, &ListDialog::showActions);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const upper = new QHBoxLayout;
    upper->addWidget(Table_, 1);
    upper->addLayout(keys);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addWidget(new QLabel(tr("Paste takes one item a line, with a tab in front of its tag.")));
    layout->addWidget(buttons);
    if (Table_->rowCount() > 0) Table_->setCurrentCell(0, Item);
    showActions();
}

QString ListDialog::items() const { return QString::fromStdU16String(itemsOf(listOf(*Table_))); }

QString ListDialog::tags() const { return QString::fromStdU16String(tagsOf(listOf(*Table_))); }

/// Enter is done with a cell before it is done with the list.
void ListDialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && Table_->hasFocus()) {
        Table_->editItem(Table_->currentItem());
        return;
    }
    QDialog::keyPressEvent(event);
}

QAction* ListDialog::addAction(const QString& title, const QKeySequence& keys, void (ListDialog::*deed)()) {
    auto* const action = new QAction(title, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setToolTip(keys.toString(QKeySequence::NativeText));
    connect(action, &QAction::triggered, this, deed);
    Table_->addAction(action);
    return action;
}

void ListDialog::insert(int row, const QString& item, const QString& tag) {
    Table_->insertRow(row);
    Table_->setItem(row, Item, new QTableWidgetItem(item));
    Table_->setItem(row, Tag, new QTableWidgetItem(tag));
}

void ListDialog::addItem() {
    const int row = Table_->currentRow() + 1;
    insert(row, QString(), QString());
    Table_->setCurrentCell(row, Item);
    Table_->editItem(Table_->item(row, Item));
    showActions();
}

void ListDialog::removeItem() {
    Table_->removeRow(Table_->currentRow());
    showActions();
}

void ListDialog::move(int by) {
    const int row = Table_->currentRow();
    const int to = row + by;
    if (row < 0 || to < 0 || to >= Table_->rowCount()) return;
    for (const Column column : {Item, Tag}) {
        QTableWidgetItem* const moved = Table_->takeItem(row, column);
        Table_->setItem(row, column, Table_->takeItem(to, column));
        Table_->setItem(to, column, moved);
    }
    Table_->setCurrentCell(to, Table_->currentColumn());
}

void ListDialog::paste() {
    int row = Table_->currentRow() + 1;
    for (const TaggedItem& entry : taggedLines(QGuiApplication::clipboard()->text().toStdU16String()))
        insert(row++, QString::fromStdU16String(entry.item), QString::fromStdU16String(entry.tag));
    showActions();
}

void ListDialog::showActions() {
    const int row = Table_->currentRow();
    Remove_->setEnabled(row >= 0);
    Up_->setEnabled(row > 0);
    Down_->setEnabled(row >= 0 && row + 1 < Table_->rowCount());
}

}  // namespace kel::qt::designer
