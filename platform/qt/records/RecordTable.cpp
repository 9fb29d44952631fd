#include "platform/qt/records/RecordTable.h"

#include <algorithm>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

namespace kel::qt {

namespace {

constexpr int WidestColumn = 220;  ///< pixels
constexpr int RowsMeasured = 50;   ///< that a column is made wide enough for

}  // namespace

RecordTable::RecordTable(RecordList& list, QWidget* parent) : QTableView(parent), List_(list) {
    setModel(&list);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAutoScroll(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    horizontalHeader()->setMaximumSectionSize(WidestColumn);
    horizontalHeader()->setResizeContentsPrecision(RowsMeasured);
}

int RecordTable::wholeRows() const {
    return std::max(viewport()->height() / verticalHeader()->defaultSectionSize(), 1);
}

void RecordTable::refresh() {
    List_.refresh();
    updateGeometries();
    fill();
}

/// Hands the list the rows that are seen now, and marks the one that is marked if it is among them.
void RecordTable::fill() {
    if (IsFilling_) return;
    IsFilling_ = true;
    List_.look(verticalScrollBar()->value(), wholeRows() + 1);
    const std::int64_t row = Marked_ ? *Marked_ - List_.top() : -1;
    if (row >= 0 && row < List_.rowCount())
        selectionModel()->setCurrentIndex(List_.index(static_cast<int>(row), std::max(currentIndex().column(), 0)),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else
        selectionModel()->clear();
    IsFilling_ = false;
}

void RecordTable::mark(const std::optional<std::int64_t>& row) {
    Marked_ = row;
    if (row) bringIntoView(*row);
    fill();
}

void RecordTable::bringIntoView(std::int64_t row) {
    const std::int64_t top = verticalScrollBar()->value();
    const std::int64_t shown = std::clamp(top, row - wholeRows() + 1, row);
    verticalScrollBar()->setValue(static_cast<int>(shown));
}

/// Qt reckons with the rows that it knows.
void RecordTable::updateGeometries() {
    QScrollBar& bar = *verticalScrollBar();
    const int value = bar.value();
    {
        const QSignalBlocker blocker(bar);
        QTableView::updateGeometries();
        bar.setRange(0, static_cast<int>(std::max<std::int64_t>(List_.count() - wholeRows(), 0)));
        bar.setPageStep(wholeRows());
        bar.setSingleStep(1);
        bar.setValue(value);
    }
    verticalHeader()->setOffset(0);
}

void RecordTable::scrollContentsBy(int dx, int dy) {
    if (dx != 0) QTableView::scrollContentsBy(dx, 0);
    if (dy == 0) return;
    fill();
    viewport()->update();
}

void RecordTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    fill();
}

/// One row is marked, whichever key is held: Qt would take the mark away from the one that Ctrl+End leads to.
QItemSelectionModel::SelectionFlags RecordTable::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* /*event*/) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

QModelIndex RecordTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const std::int64_t last = List_.count() - 1;
    const bool isFar = modifiers.testFlag(Qt::ControlModifier);
    std::int64_t row = Marked_.value_or(0);
    switch (action) {
        case MoveUp: --row; break;
        case MoveDown: ++row; break;
        case MovePageUp: row -= wholeRows(); break;
        case MovePageDown: row += wholeRows(); break;
        case MoveHome: row = isFar ? 0 : row; break;
        case MoveEnd: row = isFar ? last : row; break;
        default: break;
    }
    const QModelIndex moved = QTableView::moveCursor(action, modifiers);
    const int column = moved.isValid() ? moved.column() : 0;
    if (last < 0) return {};
    Marked_ = std::clamp<std::int64_t>(row, 0, last);
    bringIntoView(*Marked_);
    fill();
    return List_.index(static_cast<int>(*Marked_ - List_.top()), column);
}

}  // namespace kel::qt
