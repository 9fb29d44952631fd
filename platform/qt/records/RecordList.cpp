#include "platform/qt/records/RecordList.h"

#include <algorithm>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

RecordList::RecordList(const records::RecordForm& form, QObject* parent)
    : QAbstractTableModel(parent), Form_(form), Order_(form.order()) {}

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
            std::vector<records::Record> rows =
                Form_.overview().places(Order_).rows(std::int64_t{page} * PageSize, PageSize);
            if (rows.empty()) return nullptr;  // known in a moment
            found = Pages_.emplace(page, std::move(rows)).first;
        } catch (const records::StoreError&) {
            return nullptr;  // what is wrong is said where the person does something
        }
    }
    const auto place = static_cast<std::size_t>(row % PageSize);
    return place < found->second.size() ? &found->second[place] : nullptr;
}

QVariant RecordList::data(const QModelIndex& index, int role) const {
    const records::Binding& binding = Form_.bindings()[static_cast<std::size_t>(index.column())];
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>((binding.showsNumber() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const records::Record* const record = recordAt(index.row());
    return record == nullptr ? QVariant() : toQString(binding.shownTextOf(record->cells[binding.column()]));
}

QVariant RecordList::headerData(int section, Qt::Orientation orientation, int role) const {
    // The headings stand where their texts do.
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return data(createIndex(0, section), Qt::TextAlignmentRole);
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
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
    const int count = known ? static_cast<int>(std::min<std::int64_t>(*known, INT32_MAX)) : Count_;
    if (count > Count_) {
        beginInsertRows({}, Count_, count - 1);
        Count_ = count;
        endInsertRows();
    } else if (count < Count_) {
        beginRemoveRows({}, count, Count_ - 1);
        Count_ = count;
        endRemoveRows();
    }
    if (Count_ > 0) emit dataChanged(index(0, 0), index(Count_ - 1, columnCount() - 1));
}

}  // namespace kel::qt
