#pragma once

#include <functional>
#include <memory>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <utility>

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
    QString options;  ///< ";sslmode=require": whatever else the address says
};

SqlAddress addressOf(const std::string& database);

/// One connection, whose statements are prepared once each. Waits for other programs, and for a server that is started
/// anew, up to five seconds each time; who asks it for something meanwhile, from the window that is kept alive, hears
/// that it is busy. Throws StoreError.
class SqlConnection {
public:
    SqlConnection(const std::string& database, Waiting waiting);
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;
    ~SqlConnection();

    const Dialect& dialect() const { return *Dialect_; }
    bool isServer() const { return Address_.isServer; }
    QSqlDatabase database() const { return QSqlDatabase::database(Name_, false); }

    /// Runs a statement with its values. The query is the connection's, and good until the same statement is run again.
    QSqlQuery& run(const QString& statement, const QVariantList& values = {});

    /// The number that a statement reads, or 0.
    std::int64_t number(const QString& statement, const QVariantList& values);

    /// The same as `run` for a statement that reads nothing; returns how many records it has changed. When it fails,
    /// what came before it in its transaction stays.
    int runAlone(const QString& statement, const QVariantList& values);

    /// A statement that reads nothing and is run seldom, such as one that makes a table.
    void execute(const QString& statement);
    /// What takes long: on a thread and a connection of its own, which `work` is given, while the window is served.
    void beside(const std::function<void(SqlConnection&)>& work);

    /// Runs `work` as one transaction: all of it is stored when this returns, or nothing. It is run again from its
    /// start where another program was in the way, or the connection was gone. Where the connection goes at the moment
    /// of storing, nobody is told whether that was done: `isStored` looks it up on the next one.
    void transact(const std::function<void()>& work, const std::function<bool()>& isStored);

    /// All between is stored together. Inside of another one it is that one's part.
    void begin();
    void commit();
    void rollBack();
    /// How often that was done: what a database counts of its changes does not go back with them.
    std::int64_t rollBacks() const { return RollBacks_; }

    /// Whether it waits at all. What can as well be done later is not waited for. Returns whether it did.
    bool setPatient(bool patient) { return std::exchange(IsPatient_, patient); }

private:
    void setUp();
    void open();
    void close();
    QSqlQuery& prepared(const QString& statement);
    void runOnce(const QString& statement);
    /// Runs `action` again and again while another program holds the database or the connection is gone. One that is
    /// `undone` when it fails may be tried again in the midst of a transaction.
    template <class Action>
    void patiently(Action action, bool isUndone = false);
    /// Whether what has failed may be tried again by itself.
    bool isWorthAnotherTry(const records::StoreError& error, bool isUndone) const;

    std::string Database_;
    SqlAddress Address_;
    Waiting Waiting_;
    std::unique_ptr<Dialect> Dialect_;
    QString Name_;  ///< of Qt's connection
    QHash<QString, QSqlQuery*> Queries_;
    int Depth_ = 0;  ///< of transactions
    std::int64_t RollBacks_ = 0;
    bool IsPatient_ = true;
    bool IsWaiting_ = false;
    bool IsRepeated_ = false;  ///< what is being run is tried again as a whole
};

}  // namespace kel::qt
