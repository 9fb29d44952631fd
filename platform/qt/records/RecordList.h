#pragma once

#include <map>
#include <QAbstractTableModel>

#include "records/RecordForm.h"

namespace kel::qt {

/// Some rows of the list of all records of a table: those that are looked at.
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
    /// From now on the rows from `top` on are looked at, which counts from 0 among all of them.
    void look(std::int64_t top, int rows);
    /// Of all records; 0 until that is known.
    std::int64_t count() const { return Count_; }
    std::int64_t top() const { return Top_; }
    /// By a row of those that are looked at; nullptr where it is not known yet. Throws StoreError.
    const records::Record* recordAt(int row) const;
    const records::Order& order() const { return Order_; }

private:
    /// The records around a row, which stay in memory until others are looked at.
    static constexpr int PageSize = 50;
    static constexpr std::size_t MostPages = 16;

    const records::RecordForm& Form_;
    records::Order Order_;
    void show(std::int64_t count, std::int64_t top, int rows);

    mutable std::map<std::int64_t, std::vector<records::Record>> Pages_;
    std::int64_t Count_ = 0;
    std::int64_t Top_ = 0;
    int Rows_ = 0;
};

}  // namespace kel::qt
