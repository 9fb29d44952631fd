#include "platform/qt/records/RecordListDock.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QSignalBlocker>
#include <QStatusBar>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/records/RecordDialogs.h"

namespace kel::qt {

RecordListDock::RecordListDock(records::RecordForm& form, records::Questions& questions, QMainWindow& window)
    : QDockWidget(QStringLiteral("Records"), &window),
      Form_(form),
      Questions_(questions),
      Window_(window),
      List_(form),
      Table_(new RecordTable(List_, this)) {
    QHeaderView* const header = Table_->horizontalHeader();
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    QObject::connect(header, &QHeaderView::sortIndicatorChanged, this, &RecordListDock::sort);
    QObject::connect(Table_, &QTableView::activated, this, &RecordListDock::choose);
    QObject::connect(Table_, &QTableView::clicked, this, &RecordListDock::choose);
    setWidget(Table_);
}

void RecordListDock::mark(const std::optional<std::int64_t>& place) {
    Table_->mark(List_.order() == Form_.order() ? place : std::nullopt);
}

void RecordListDock::measure() {
    if (!IsMeasured_) Table_->resizeColumnsToContents();
    IsMeasured_ = true;
}

void RecordListDock::choose(const QModelIndex& index) {
    try {
        if (const records::Record* const record = List_.recordAt(index.row())) emit chosen(records::Record(*record));
    } catch (const records::StoreError& error) {
        Questions_.say(error.words());
    }
}

/// A table of many records is sorted by an index. In one that others have made it is not made without asking.
bool RecordListDock::makeQuick(const records::Order& order, int section) {
    const auto count = Form_.overview().places(Form_.order()).count();
    if (section < 0 || count.value_or(records::Many) < records::Many) return true;
    const QString name = toQString(Form_.bindings()[static_cast<std::size_t>(section)].caption());
    if (!Form_.store().isQuick(order) && !Form_.table().version && !mayMakeIndex(Window_, name)) return false;
    Window_.statusBar()->showMessage(QStringLiteral("Sorting by %1\u2026").arg(name));
    Form_.store().makeQuick(order);
    Window_.statusBar()->clearMessage();
    return true;
}

void RecordListDock::sort(int section, Qt::SortOrder direction) {
    records::Order order{std::nullopt, direction == Qt::DescendingOrder};
    if (section >= 0) order.column = Form_.bindings()[static_cast<std::size_t>(section)].column();
    try {
        if (!makeQuick(order, section)) return showOrder();
        Form_.overview().places(order);
    } catch (const records::StoreError& error) {
        Window_.statusBar()->clearMessage();
        Questions_.say(error.words());
        return showOrder();
    }
    List_.setOrder(order);
    Table_->refresh();
    Section_ = section;
    emit sorted();
}

/// By which column the list is sorted, once more.
void RecordListDock::showOrder() {
    const QSignalBlocker blocker(Table_->horizontalHeader());
    Table_->horizontalHeader()->setSortIndicator(Section_,
                                                 order().descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

}  // namespace kel::qt
