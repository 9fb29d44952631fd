#pragma once

#include <memory>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>

#include "platform/qt/sql/Dialect.h"
#include "platform/qt/sql/SqlStore.h"

namespace kel::qt {

/// Where a database is, and who serves it.
struct SqlAddress {
    bool isServer = false;
    QString file;
    QString host;
    int port = 0;  ///< 0: the usual one
    QString user;
    QString password;
    QString name;
};

SqlAddress addressOf(const std::string& database);

/// One connection, whose statements are prepared once each. Throws StoreError.
class SqlConnection {
public:
    SqlConnection(const std::string& database, Waiting waiting);
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;
    ~SqlConnection();

    const Dialect& dialect() const { return *Dialect_; }
    bool isServer() const { return Address_.isServer; }
    QSqlDatabase database() const { return QSqlDatabase::database(Name_, false); }

    /// Runs a statement with its values; waits for other programs. The query is the connection's, and good until the
    /// same statement is run again.
    QSqlQuery& run(const QString& statement, const QVariantList& values = {});

    /// The same for a statement that reads nothing. When it fails, what came before it in its transaction stays.
    void runAlone(const QString& statement, const QVariantList& values);

    /// A statement that reads nothing and is run seldom, such as one that makes a table.
    void execute(const QString& statement);

    /// All between is stored together. Inside of another one it is that one's part.
    void begin();
    void commit();
    void rollBack();

private:
    void open();
    void reopen();
    QSqlQuery& prepared(const QString& statement);
    /// Runs `action` again and again while another program holds the database, and once more on a new connection.
    template <class Action>
    void patiently(Action action);

    SqlAddress Address_;
    Waiting Waiting_;
    std::unique_ptr<Dialect> Dialect_;
    QString Name_;  ///< of Qt's connection
    QHash<QString, QSqlQuery*> Queries_;
    int Depth_ = 0;  ///< of transactions
};

/// A transaction that is given up unless it is committed.
class SqlTransaction {
public:
    explicit SqlTransaction(SqlConnection& connection) : Connection_(connection) { Connection_.begin(); }
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;
    ~SqlTransaction();
    void commit();

private:
    SqlConnection& Connection_;
    bool Done_ = false;
};

}  // namespace kel::qt
