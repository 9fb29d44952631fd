#include "platform/qt/records/RecordList.h"

#include <algorithm>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

RecordList::RecordList(const records::RecordForm& form, QObject* parent)
    : QAbstractTableModel(parent), Form_(form), Order_(form.order()) {
    refresh();
}

int RecordList::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count_; }

int RecordList::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Form_.bindings().size());
}

const records::Record* RecordList::recordAt(int row) const {
    const int page = row / PageSize;
    auto found = Pages_.find(page);
    if (found == Pages_.end()) {
        if (Pages_.size() >= MostPages) Pages_.clear();
        try {
            found = Pages_.emplace(page, Form_.store().rows(std::int64_t{page} * PageSize, PageSize, Order_)).first;
        } catch (const records::StoreError&) {
            return nullptr;  // what is wrong is said where the person does something
        }
    }
    const auto place = static_cast<std::size_t>(row % PageSize);
    return place < found->second.size() ? &found->second[place] : nullptr;
}

QVariant RecordList::data(const QModelIndex& index, int role) const {
    const records::Binding& binding = Form_.bindings()[static_cast<std::size_t>(index.column())];
    const records::ColumnType type = Form_.table().columns[binding.column()].type;
    const bool isNumber = type == records::ColumnType::Integer || type == records::ColumnType::Real ||
                          type == records::ColumnType::Decimal;
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const records::Record* const record = recordAt(index.row());
    return record == nullptr ? QVariant() : toQString(binding.textOf(record->cells[binding.column()]));
}

QVariant RecordList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return toQString(Form_.bindings()[static_cast<std::size_t>(section)].caption());
}

void RecordList::sort(int column, Qt::SortOrder order) {
    Order_.column =
        column < 0 ? std::nullopt : std::optional(Form_.bindings()[static_cast<std::size_t>(column)].column());
    Order_.descending = order == Qt::DescendingOrder;
    refresh();
}

void RecordList::refresh() {
    beginResetModel();
    Pages_.clear();
    try {
        Count_ = static_cast<int>(std::min<std::int64_t>(Form_.count(), INT32_MAX));
    } catch (const records::StoreError&) {
        Count_ = 0;
    }
    endResetModel();
}

}  // namespace kel::qt
