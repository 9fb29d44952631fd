#include "platform/qt/sql/SqlConnection.h"

#include <chrono>
#include <QFileInfo>
#include <QSqlError>
#include <QUrl>
#include <thread>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

namespace {

using namespace std::chrono_literals;
using records::StoreError;
using Kind = StoreError::Kind;

constexpr auto Patience = 5s;
constexpr auto Pause = 20ms;

/// Connections of Qt have names, which are the process's.
QString nextName() {
    static int count = 0;
    return QStringLiteral("kelforms-%1").arg(++count);
}

}  // namespace

SqlAddress addressOf(const std::string& database) {
    SqlAddress address;
    const QString text = QString::fromUtf8(database.c_str());
    if (!text.startsWith(QLatin1String("postgresql://")) && !text.startsWith(QLatin1String("postgres://"))) {
        address.file = text;
        return address;
    }
    const QUrl url(text);
    if (!url.isValid() || url.path().size() < 2)
        throw StoreError(Kind::Wrong, database + ": a database is written postgresql://user@host:port/name");
    address.isServer = true;
    address.host = url.host();
    // A folder stands for a local socket: postgresql://user@/name?host=/run/postgresql
    constexpr QLatin1String Host("host=");
    for (const QString& part : url.query(QUrl::FullyDecoded).split(QLatin1Char('&')))
        if (part.startsWith(Host)) address.host = part.mid(Host.size());
    address.port = url.port(0);
    address.user = url.userName();
    address.password = url.password();
    address.name = url.path().mid(1);
    return address;
}

SqlConnection::SqlConnection(const std::string& database, Waiting waiting)
    : Address_(addressOf(database)),
      Waiting_(std::move(waiting)),
      Dialect_(Address_.isServer ? makePostgresDialect() : makeSqliteDialect()),
      Name_(nextName()) {
    const QString driver = QLatin1String(Address_.isServer ? "QPSQL" : "QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver))
        throw StoreError(Kind::Wrong, "Qt's driver " + driver.toStdString() + " is not installed on this machine.");
    QSqlDatabase base = QSqlDatabase::addDatabase(driver, Name_);
    if (Address_.isServer) {
        base.setHostName(Address_.host);
        if (Address_.port != 0) base.setPort(Address_.port);
        base.setUserName(Address_.user);
        base.setPassword(Address_.password);
        base.setDatabaseName(Address_.name);
    } else {
        base.setDatabaseName(Address_.file);
        // Waiting is done here, where the window stays alive.
        base.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    }
    try {
        open();
    } catch (...) {
        base = QSqlDatabase();
        QSqlDatabase::removeDatabase(Name_);
        throw;
    }
}

SqlConnection::~SqlConnection() {
    qDeleteAll(Queries_);
    database().close();
    QSqlDatabase::removeDatabase(Name_);
}

void SqlConnection::open() {
    QSqlDatabase base = database();
    if (!base.open()) throw Dialect_->errorOf(base.lastError());
    if (Address_.isServer) return;
    execute(QStringLiteral("PRAGMA foreign_keys = ON"));
    execute(QStringLiteral("PRAGMA synchronous = FULL"));
}

void SqlConnection::reopen() {
    qDeleteAll(Queries_);
    Queries_.clear();
    Depth_ = 0;
    database().close();
    open();
}

QSqlQuery& SqlConnection::prepared(const QString& statement) {
    QSqlQuery*& query = Queries_[statement];
    if (query != nullptr) return *query;
    auto made = std::make_unique<QSqlQuery>(database());
    made->setForwardOnly(true);
    if (!made->prepare(statement)) {
        Queries_.remove(statement);
        throw Dialect_->errorOf(made->lastError());
    }
    query = made.release();
    return *query;
}

template <class Action>
void SqlConnection::patiently(Action action) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    for (bool isSecond = false;;) {
        try {
            return action();
        } catch (const StoreError& error) {
            // Inside of a transaction what came before is gone with the connection.
            if (error.kind() == Kind::Lost && Depth_ == 0 && !isSecond) {
                isSecond = true;
                reopen();
                continue;
            }
            if (error.kind() != Kind::Busy || std::chrono::steady_clock::now() > end) throw;
        }
        if (Waiting_) Waiting_();
        std::this_thread::sleep_for(Pause);
    }
}

QSqlQuery& SqlConnection::run(const QString& statement, const QVariantList& values) {
    QSqlQuery* done = nullptr;
    patiently([&] {
        QSqlQuery& query = prepared(statement);
        for (int i = 0; i < values.size(); ++i) query.bindValue(i, values[i]);
        if (!query.exec()) {
            const StoreError error = Dialect_->errorOf(query.lastError());
            query.finish();
            throw error;
        }
        done = &query;
    });
    return *done;
}

void SqlConnection::runAlone(const QString& statement, const QVariantList& values) {
    if (Depth_ == 0 || !Dialect_->failureEndsTransaction()) return run(statement, values).finish();
    execute(QStringLiteral("SAVEPOINT alone"));
    try {
        run(statement, values).finish();
    } catch (const StoreError& error) {
        if (error.kind() != Kind::Lost) execute(QStringLiteral("ROLLBACK TO SAVEPOINT alone"));
        throw;
    }
    execute(QStringLiteral("RELEASE SAVEPOINT alone"));
}

void SqlConnection::execute(const QString& statement) {
    patiently([&] {
        QSqlQuery query(database());
        if (!query.exec(statement)) throw Dialect_->errorOf(query.lastError());
    });
}

void SqlConnection::begin() {
    if (Depth_ == 0) execute(Dialect_->beginToChange());
    ++Depth_;
}

void SqlConnection::commit() {
    if (Depth_ == 1) execute(QStringLiteral("COMMIT"));
    --Depth_;
}

void SqlConnection::rollBack() {
    if (Depth_ == 0) return;
    Depth_ = 0;
    QSqlQuery query(database());
    query.exec(QStringLiteral("ROLLBACK"));
}

SqlTransaction::~SqlTransaction() {
    if (!Done_) Connection_.rollBack();
}

void SqlTransaction::commit() {
    Connection_.commit();
    Done_ = true;
}

}  // namespace kel::qt
