#include "platform/qt/sql/SqlStore.h"

#include <QStringList>

#include "platform/qt/sql/SqlRecords.h"
#include "platform/qt/sql/SqlSchema.h"
#include "records/VersionColumn.h"

namespace kel::qt {

namespace {

using records::Column;
using records::ColumnType;
using records::Table;

class SqlStore final : public records::Store {
public:
    SqlStore(const std::string& database, Waiting waiting)
        : Connection_(database, std::move(waiting)), Schema_(Connection_) {
        static_cast<void>(Schema_.tables());  // what is no database is found out here
    }

    std::vector<std::u16string> tables() override { return Schema_.tables(); }
    std::optional<Table> table(std::u16string_view name) override { return Schema_.table(name); }

    Table makeTable(Table table) override {
        if (Schema_.tables().empty())
            for (const QString& statement : Connection_.dialect().mark()) Connection_.execute(statement);
        QStringList columns{Connection_.dialect().keyDeclaration(Dialect::quoted(records::KeyColumn))};
        for (const Column& column : table.columns) columns.append(declared(column));
        columns.append(Dialect::quoted(records::VersionColumn) + QLatin1Char(' ') +
                       Connection_.dialect().typeName({.name = {}, .type = ColumnType::Integer}) +
                       QLatin1String(" NOT NULL DEFAULT 1"));
        Connection_.execute(
            QStringLiteral("CREATE TABLE %1 (%2)").arg(Dialect::quoted(table.name), columns.join(QLatin1String(", "))));
        return Schema_.table(table.name).value();
    }

    void addColumn(const Table& table, const Column& column) override {
        Connection_.execute(
            QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(Dialect::quoted(table.name), declared(column)));
    }

    std::unique_ptr<records::RecordStore> open(const Table& table) override {
        return std::make_unique<SqlRecords>(Connection_, table);
    }

private:
    QString declared(const Column& column) const {
        return Dialect::quoted(column.name) + QLatin1Char(' ') + Connection_.dialect().typeName(column);
    }

    SqlConnection Connection_;
    SqlSchema Schema_;
};

}  // namespace

std::unique_ptr<records::Store> openStore(const std::string& database, Waiting waiting) {
    return std::make_unique<SqlStore>(database, std::move(waiting));
}

}  // namespace kel::qt
