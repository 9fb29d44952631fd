#pragma once

#include "platform/qt/sql/SqlConnection.h"

namespace kel::qt {

/// The tables of a database, as they are.
class SqlSchema {
public:
    explicit SqlSchema(SqlConnection& connection) : Connection_(connection) {}

    std::vector<std::u16string> tables();
    /// Nothing when there is none of this name, in any case.
    std::optional<records::Table> table(std::u16string_view name);

private:
    void readSqlite(records::Table& table);
    void readPostgres(records::Table& table);

    SqlConnection& Connection_;
};

/// By the type that a column is declared with: "VARCHAR(30)", "numeric(12,2)".
void setDeclaredType(records::Column& column, const QString& declared);

}  // namespace kel::qt
