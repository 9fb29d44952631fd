#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include "records/Store.h"

class QSqlError;

namespace kel::qt {

/// In what the databases differ.
class Dialect {
public:
    Dialect() = default;
    Dialect(const Dialect&) = delete;
    Dialect& operator=(const Dialect&) = delete;
    virtual ~Dialect() = default;

    /// What is said to a connection before anything else.
    virtual QStringList setUp() const = 0;
    /// What is said to a database that this program has just made, so that it is known for that.
    virtual QStringList mark() const = 0;

    /// A type as a new column is declared with it.
    QString typeName(const records::Column& column) const;
    /// Declares the key of a new table, whose values the database gives.
    virtual QString keyDeclaration(const QString& quotedName) const = 0;
    /// After a query that reads what is to be changed at once.
    virtual QString forUpdate() const = 0;
    /// Before that, so that nobody comes between.
    virtual QString beginToChange() const = 0;
    /// Whether a statement that fails takes with it what came before it in its transaction.
    virtual bool failureEndsTransaction() const = 0;

    /// Reads what changes when another program changes one of some tables, and counts the changes of this one.
    /// It is given the tables' quoted names, with the character 1 between them.
    virtual QString versionQuery() const = 0;
    /// Finds an index by which a table is read in the order of a column; is given both names.
    virtual QString indexQuery() const = 0;
    /// What stands after a column in an index, so that a record without a value comes first.
    virtual QString indexSuffix() const = 0;

    /// Compares with a pattern without regard to case: "%" is anything, and "\\" comes before what means itself.
    virtual QString like() const = 0;
    /// What stands after some records of another table, to read for each of them in turn, by an index, the rows of a
    /// table that meet a condition.
    virtual QString rowsForEach(const QString& table, const QString& condition, const QString& orderBy) const = 0;
    /// Whether that wants a value: how many rows of each are wanted at most.
    virtual bool wantsMostForEach() const = 0;

    /// The column in a query's list of what it reads.
    virtual QString readExpression(const records::Column& column) const { return quoted(column.name); }
    /// A value as this database keeps it in such a column, and back.
    virtual QVariant toSql(const records::Cell& cell, const records::Column& column) const = 0;
    virtual records::Cell fromSql(const QVariant& value, const records::Column& column) const = 0;

    virtual records::StoreError errorOf(const QSqlError& error) const = 0;

    /// A name as it stands in a statement, whatever is in it.
    static QString quoted(std::u16string_view name);

protected:
    /// One of 64 bits: the databases give their names for it different sizes.
    virtual QString wholeNumberType() const = 0;

    // What every database refuses, in the same words.
    static records::StoreError valueMissing(const QString& column);
    static records::StoreError valueTaken(const QString& column);
    static records::StoreError referenceBroken();
    static records::StoreError ruleBroken(const QString& text);
    static records::StoreError readOnly();
};

std::unique_ptr<Dialect> makeSqliteDialect();
std::unique_ptr<Dialect> makePostgresDialect();

}  // namespace kel::qt
