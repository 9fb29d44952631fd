#pragma once

#include <map>
#include <QAbstractTableModel>

#include "records/RecordForm.h"

namespace kel::qt {

/// All records of a table as a list, of which only the part that is seen is read.
class RecordList final : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The records outlive it.
    explicit RecordList(const records::RecordForm& form, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Changes nothing but what the list shows; the records follow the form's own order.
    void setOrder(const records::Order& order);
    /// Something in the table may have changed, or is known now.
    void refresh();
    const records::Record* recordAt(int row) const;
    const records::Order& order() const { return Order_; }

private:
    /// The records around a row, which stay in memory until others are looked at.
    static constexpr int PageSize = 200;
    static constexpr std::size_t MostPages = 16;

    const records::RecordForm& Form_;
    records::Order Order_;
    mutable std::map<int, std::vector<records::Record>> Pages_;
    int Count_ = 0;
};

}  // namespace kel::qt
