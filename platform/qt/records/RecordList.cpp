#include "platform/qt/records/RecordList.h"

#include <algorithm>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

RecordList::RecordList(const records::RecordForm& form, QObject* parent)
    : QAbstractTableModel(parent), Form_(form), Order_(form.order()) {}

int RecordList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::clamp<std::int64_t>(Count_ - Top_, 0, Rows_));
}

int RecordList::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Form_.bindings().size());
}

const records::Record* RecordList::recordAt(int row) const {
    const std::int64_t page = (Top_ + row) / PageSize;
    auto found = Pages_.find(page);
    if (found == Pages_.end()) {
        if (Pages_.size() >= MostPages) Pages_.clear();
        std::vector<records::Record> rows = Form_.overview().places(Order_).rows(page * PageSize, PageSize);
        if (rows.empty()) return nullptr;  // known in a moment
        found = Pages_.emplace(page, std::move(rows)).first;
    }
    const auto place = static_cast<std::size_t>((Top_ + row) % PageSize);
    return place < found->second.size() ? &found->second[place] : nullptr;
}

QVariant RecordList::data(const QModelIndex& index, int role) const {
    const records::Binding& binding = Form_.bindings()[static_cast<std::size_t>(index.column())];
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>((binding.showsNumber() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    // Nobody waits for a list that is painted; what is wrong is said where the person does something.
    const records::Impatience impatience(Form_.store());
    try {
        const records::Record* const record = recordAt(index.row());
        return record == nullptr ? QVariant() : toQString(binding.shownTextOf(record->cells[binding.column()]));
    } catch (const records::StoreError&) {
        return {};
    }
}

QVariant RecordList::headerData(int section, Qt::Orientation orientation, int role) const {
    // The headings stand where their texts do.
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return data(createIndex(0, section), Qt::TextAlignmentRole);
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return QVariant::fromValue(Top_ + section + 1);
    return toQString(Form_.bindings()[static_cast<std::size_t>(section)].caption());
}

void RecordList::setOrder(const records::Order& order) {
    Order_ = order;
    refresh();
}

void RecordList::refresh() {
    Pages_.clear();
    std::optional<std::int64_t> known;
    try {
        known = Form_.overview().places(Order_).count();
    } catch (const records::StoreError&) {
        known.reset();  // what is wrong is said where the person does something
    }
    // The scroll bar counts in whole numbers of this size.
    show(std::min<std::int64_t>(known.value_or(Count_), INT32_MAX), Top_, Rows_);
}

void RecordList::look(std::int64_t top, int rows) {
    if (top != Top_ || rows != Rows_) show(Count_, top, rows);
}

void RecordList::show(std::int64_t count, std::int64_t top, int rows) {
    const int before = rowCount();
    const int after = static_cast<int>(std::clamp<std::int64_t>(count - top, 0, rows));
    if (after > before) beginInsertRows({}, before, after - 1);
    if (after < before) beginRemoveRows({}, after, before - 1);
    Count_ = count;
    Top_ = top;
    Rows_ = rows;
    if (after > before) endInsertRows();
    if (after < before) endRemoveRows();
    if (after == 0) return;
    emit dataChanged(index(0, 0), index(after - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Vertical, 0, after - 1);
}

}  // namespace kel::qt
