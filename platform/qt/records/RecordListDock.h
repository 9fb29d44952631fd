#pragma once

#include <QDockWidget>

#include "platform/qt/records/RecordTable.h"
#include "records/Questions.h"

class QMainWindow;

namespace kel::qt {

/// The list of the records beside the form, which is sorted by a click on a heading and leads to each record.
class RecordListDock final : public QDockWidget {
    Q_OBJECT

public:
    /// All of it outlives the dock.
    RecordListDock(records::RecordForm& form, records::Questions& questions, QMainWindow& window);

    /// Which is not always the form's.
    const records::Order& order() const { return List_.order(); }
    /// Something in the table may have changed, or is known now.
    void refresh() { Table_->refresh(); }
    /// Marks the record of the form, by its place in the form's order if that is known.
    void mark(const std::optional<std::int64_t>& place);
    /// Columns as wide as what they show, the first time; from then on they are as wide as the person makes them.
    void measure();

signals:
    void chosen(const records::Record& record);
    void sorted();

private:
    void choose(const QModelIndex& index);
    void sort(int section, Qt::SortOrder direction);
    /// False where an index is wanted and may not be made.
    bool makeQuick(const records::Order& order, int section);
    void showOrder();

    records::RecordForm& Form_;
    records::Questions& Questions_;
    QMainWindow& Window_;
    RecordList List_;
    RecordTable* Table_;
    int Section_ = -1;  ///< by which the list is sorted
    bool IsMeasured_ = false;
};

}  // namespace kel::qt
