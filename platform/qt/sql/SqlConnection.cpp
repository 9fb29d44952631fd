#include "platform/qt/sql/SqlConnection.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <QScopedValueRollback>
#include <QSqlError>
#include <QUrl>
#include <thread>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/sql/SqliteFile.h"

namespace kel::qt {

namespace {

using namespace std::chrono_literals;
using records::StoreError;
using Kind = StoreError::Kind;

constexpr auto Patience = 5s;
constexpr auto ShortestPause = 1ms;  ///< most locks are held for the time of a save
constexpr auto LongestPause = 20ms;
constexpr auto Beside = 4ms;  ///< between two looks at the window while another thread works

/// What the server's own library takes from an address.
const QStringList& passedOn() {
    static const QStringList Names{QStringLiteral("sslmode"), QStringLiteral("sslrootcert"),
                                   QStringLiteral("sslcert"), QStringLiteral("sslkey"),
                                   QStringLiteral("options"), QStringLiteral("application_name")};
    return Names;
}

/// As that library reads one with a blank in it.
QString quotedValue(QString value) {
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}

/// Connections of Qt have names, which are the process's.
QString nextName() {
    static std::atomic<int> count = 0;
    return QStringLiteral("kelforms-%1").arg(++count);
}

}  // namespace

SqlAddress addressOf(const std::string& database) {
    SqlAddress address;
    const QString text = QString::fromUtf8(database.c_str());
    if (!text.startsWith(QLatin1String("postgresql://")) && !text.startsWith(QLatin1String("postgres://"))) {
        if (text.contains(QLatin1String("://")))
            throw StoreError(Kind::Wrong,
                             database + ": a database is a file, or is written postgresql://user@host:port/name");
        address.file = text;
        return address;
    }
    const QUrl url(text);
    if (!url.isValid() || url.path().size() < 2)
        throw StoreError(Kind::Wrong, database + ": a database is written postgresql://user@host:port/name");
    address.isServer = true;
    address.host = url.host();
    // A folder stands for a local socket: postgresql://user@/name?host=/run/postgresql. What else is said there, such
    // as sslmode=require, the driver must hear or the person: a connection is not to be less safe than it was asked
    // for.
    const QStringList query = url.query().split(QLatin1Char('&'), Qt::SkipEmptyParts);
    for (const QString& part : query) {
        const QString name = part.section(QLatin1Char('='), 0, 0);
        const QString value = QUrl::fromPercentEncoding(part.section(QLatin1Char('='), 1).toUtf8());
        if (name == QLatin1String("host"))
            address.host = value;
        else if (value.contains(QLatin1Char(';')) || !passedOn().contains(name))
            throw StoreError(Kind::Wrong, database + ": \"" + part.toStdString() + "\" is not understood.");
        else
            address.options += QLatin1Char(';') + name + QLatin1Char('=') + quotedValue(value);
    }
    address.port = url.port(0);
    address.user = url.userName();
    address.password = url.password();
    address.name = url.path().mid(1);
    return address;
}

SqlConnection::SqlConnection(const std::string& database, Waiting waiting)
    : Database_(database),
      Address_(addressOf(database)),
      Waiting_(std::move(waiting)),
      Dialect_(Address_.isServer ? makePostgresDialect() : makeSqliteDialect()),
      Name_(nextName()) {
    const QString driver = QLatin1String(Address_.isServer ? "QPSQL" : "QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver))
        throw StoreError(Kind::Wrong, "Qt's driver " + driver.toStdString() + " is not installed on this machine.");
    QSqlDatabase::addDatabase(driver, Name_);
    try {
        if (!Address_.isServer) checkFile(Address_.file);
        setUp();
        patiently([] {});  // which opens it
    } catch (const StoreError& error) {
        close();
        QSqlDatabase::removeDatabase(Name_);
        const QString name = Address_.isServer ? Address_.name : Address_.file;
        throw StoreError(error.kind(), name.toStdString() + ": " + error.what());
    }
}

SqlConnection::~SqlConnection() {
    close();
    QSqlDatabase::removeDatabase(Name_);
}

void SqlConnection::setUp() {
    QSqlDatabase base = database();
    if (!Address_.isServer) {
        base.setDatabaseName(Address_.file);
        // Waiting is done here, where the window stays alive.
        base.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
        return;
    }
    base.setHostName(Address_.host);
    if (Address_.port != 0) base.setPort(Address_.port);
    base.setUserName(Address_.user);
    base.setPassword(Address_.password);
    base.setDatabaseName(Address_.name);
    base.setConnectOptions(QStringLiteral("connect_timeout=5;tcp_user_timeout=10000") + Address_.options);
}

void SqlConnection::open() {
    QSqlDatabase base = database();
    if (!base.open()) throw Dialect_->errorOf(base.lastError());
    try {
        for (const QString& statement : Dialect_->setUp()) runOnce(statement);
    } catch (const StoreError&) {
        close();  // one that is half set up is none
        throw;
    }
}

void SqlConnection::close() {
    qDeleteAll(Queries_);
    Queries_.clear();
    database().close();
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

bool SqlConnection::isWorthAnotherTry(const StoreError& error, bool isUndone) const {
    if (!IsPatient_ || IsRepeated_) return false;
    if (Depth_ == 0) return error.kind() == Kind::Busy || error.kind() == Kind::Lost;
    // A server has given up the whole transaction otherwise, and with a connection goes what came before.
    return error.kind() == Kind::Busy && (isUndone || !Dialect_->failureEndsTransaction());
}

template <class Action>
void SqlConnection::patiently(Action action, bool isUndone) {
    if (IsWaiting_) throw StoreError(Kind::Busy, "The database is still being waited for.");
    const auto start = std::chrono::steady_clock::now();
    for (;;) {
        try {
            if (!database().isOpen() && Depth_ == 0) {
                // Connecting itself may take long.
                if (!IsPatient_) throw StoreError(Kind::Lost, "There is no connection just now.");
                open();
            }
            return action();
        } catch (const StoreError& error) {
            if (error.kind() == Kind::Lost && Depth_ == 0) close();
            if (!isWorthAnotherTry(error, isUndone) || std::chrono::steady_clock::now() > start + Patience) throw;
        }
        {
            const QScopedValueRollback waiting(IsWaiting_, true);
            if (Waiting_) Waiting_();
        }
        const auto waited = std::chrono::steady_clock::now() - start;
        std::this_thread::sleep_for(std::clamp<std::chrono::nanoseconds>(waited / 8, ShortestPause, LongestPause));
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

std::int64_t SqlConnection::number(const QString& statement, const QVariantList& values) {
    QSqlQuery& query = run(statement, values);
    const std::int64_t number = query.next() ? query.value(0).toLongLong() : 0;
    query.finish();
    return number;
}

int SqlConnection::runAlone(const QString& statement, const QVariantList& values) {
    const auto changed = [&] {
        QSqlQuery& query = run(statement, values);
        const int count = query.numRowsAffected();
        query.finish();
        return count;
    };
    if (Depth_ == 0 || !Dialect_->failureEndsTransaction()) return changed();
    int count = 0;
    const auto alone = [&] {
        runOnce(QStringLiteral("SAVEPOINT alone"));
        try {
            count = changed();
        } catch (const StoreError& error) {
            if (error.kind() != Kind::Lost) runOnce(QStringLiteral("ROLLBACK TO SAVEPOINT alone"));
            throw;
        }
        runOnce(QStringLiteral("RELEASE SAVEPOINT alone"));
    };
    patiently(alone, true);
    return count;
}

void SqlConnection::runOnce(const QString& statement) {
    QSqlQuery query(database());
    if (!query.exec(statement)) throw Dialect_->errorOf(query.lastError());
}

void SqlConnection::execute(const QString& statement) {
    patiently([&] { runOnce(statement); });
}

void SqlConnection::beside(const std::function<void(SqlConnection&)>& work) {
    std::exception_ptr fault;
    std::atomic<bool> isDone = false;
    std::jthread worker([&] {
        try {
            SqlConnection own(Database_, {});
            work(own);
        } catch (const StoreError&) {
            fault = std::current_exception();
        }
        isDone = true;
    });
    {
        const QScopedValueRollback waiting(IsWaiting_, true);
        while (!isDone) {
            if (Waiting_) Waiting_();
            std::this_thread::sleep_for(Beside);
        }
    }
    worker.join();
    if (fault) std::rethrow_exception(fault);
}

void SqlConnection::transact(const std::function<void()>& work, const std::function<bool()>& isStored) {
    if (Depth_ > 0) return work();
    bool isInDoubt = false;
    patiently([&] {
        if (isInDoubt && isStored()) return;
        isInDoubt = false;
        runOnce(Dialect_->beginToChange());
        Depth_ = 1;
        IsRepeated_ = true;
        try {
            work();
            IsRepeated_ = false;
            isInDoubt = true;
            commit();
        } catch (const StoreError& error) {
            isInDoubt = isInDoubt && error.kind() == Kind::Lost;
            IsRepeated_ = false;
            rollBack();
            throw;
        }
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
    ++RollBacks_;
    if (!database().isOpen()) return;
    QSqlQuery query(database());
    query.exec(QStringLiteral("ROLLBACK"));
}

}  // namespace kel::qt
