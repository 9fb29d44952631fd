#pragma once

#include <optional>
#include <QTableView>

#include "platform/qt/records/RecordList.h"

namespace kel::qt {

/// The list of the records as it is seen. It knows no more rows than fit into it, and its scroll bar is that of the
/// whole table: a million records take no more memory than a hundred.
class RecordTable final : public QTableView {
    Q_OBJECT

public:
    /// The list outlives it.
    explicit RecordTable(RecordList& list, QWidget* parent = nullptr);

    /// Something in the table may have changed, or is known now.
    void refresh();
    /// Shows and marks the row, counted from 0 among all; none where it is nothing.
    void mark(const std::optional<std::int64_t>& row);

protected:
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    int wholeRows() const;
    void bringIntoView(std::int64_t row);
    void fill();

    RecordList& List_;
    std::optional<std::int64_t> Marked_;
    bool IsFilling_ = false;
};

}  // namespace kel::qt
