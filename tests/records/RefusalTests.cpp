#include <sys/mount.h>
#include <sys/resource.h>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <QSqlError>
#include <sstream>
#include <thread>

#include "records/exchange/Importer.h"
#include "tests/records/OnDatabase.h"

/// A database that cannot be opened, or cannot be written just now: what the person is told, and that nothing is lost.
namespace kel::test {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

// ---- Opening

void writeAt(const fs::path& file, std::streamoff place, const std::string& bytes) {
    std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(place);
    stream << bytes;
}

TEST_F(OnDatabase, SaysWhyItIsNotOpened) {
    const std::string& there = databaseAddress();
    const std::string folder = fs::temp_directory_path().string();
    const std::string newer = "was written by a newer version";
    const struct {
        const char* what;
        std::string database;
        std::function<void()> spoil;
        std::string said;
        std::string named = "kel-";
    } rows[] = {
        {"a text", there, [&] { writeAt(there, 0, "Dear Anna,\n"); }, "is no database"},
        {"a short text", there, [&] { std::ofstream(there) << "Dear Anna,\n"; }, "is no database"},
        {"a format of the future to read", there, [&] { writeAt(there, 19, "\3"); }, newer},
        {"one to write", there, [&] { writeAt(there, 18, "\3"); }, newer},
        {"tables of the future", there, [&] { writeAt(there, 47, "\5"); }, newer},
        {"a later version of this program", there, [&] { writeAt(there, 60, std::string("\0\0\0\2", 4)); }, newer},
        {"no folder", folder + "/kel-no-folder/a.sqlite", [] {}, "There is no folder"},
        {"a folder", folder, [] {}, "is a folder", folder},
        {"another kind of address", "mysql://a@b/c", [] {}, "a database is a file, or is written postgresql://",
         "mysql"},
        {"nothing that is passed over", "postgresql://nobody@/nothing?sslmod=require", [] {},
         "\"sslmod=require\" is not", "nothing"},
        {"no server of that safety", "postgresql://nobody@/nothing?host=" + folder + "&sslmode=never", [] {},
         "No connection to the server. Please try again in a moment; what is on the screen stays. invalid sslmode",
         "nothing"},
    };
    if (isServer()) GTEST_SKIP() << "this is about files";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        fs::remove(there);
        const std::string form = formOf({{"txtName", "KelText", ""}});
        { const Person person(form, *qt::openStore(there, {}), u"member"); }
        row.spoil();
        try {
            const auto store = qt::openStore(row.database, {});
            const Person person(form, *store, u"member");
            ADD_FAILURE() << "it is opened";
        } catch (const StoreError& error) {
            const std::string said = error.what();
            EXPECT_NE(said.find(row.said), std::string::npos) << said;
            EXPECT_NE(said.find(row.named), std::string::npos) << "which one? " << said;
        }
    }
    fs::remove(there);
}

/// Servers and their library speak the language of the machine; only what a server answers has a state.
TEST(PostgresErrors, AreToldByTheirStatesInAnyLanguage) {
    const auto dialect = qt::makePostgresDialect();
    const struct {
        const char* text;
        const char* state;
        QSqlError::ErrorType type;
        StoreError::Kind kind;
    } rows[] = {
        {"server closed the connection unexpectedly\n", "", QSqlError::StatementError, StoreError::Kind::Lost},
        {"Verbindung zum Server wurde unerwartet geschlossen\n", "", QSqlError::StatementError, StoreError::Kind::Lost},
        {"keine Verbindung mit dem Server\n", "", QSqlError::StatementError, StoreError::Kind::Lost},
        {"", "", QSqlError::StatementError, StoreError::Kind::Wrong},  // what Qt itself finds wrong
        {"FATAL:  Verbindung wird abgebrochen\n(57P01)", "57P01", QSqlError::StatementError, StoreError::Kind::Lost},
        {"FEHLER:  Syntaxfehler\n(42601)", "42601", QSqlError::StatementError, StoreError::Kind::Wrong},
        {"connection failed: FATAL:  role \"x\" does not exist\n", "", QSqlError::ConnectionError,
         StoreError::Kind::Wrong},
        {"connection failed: FATAL:  database system is starting up\n", "", QSqlError::ConnectionError,
         StoreError::Kind::Lost},
        {"Verbindung fehlgeschlagen: FATAL:  das Datenbanksystem startet\n", "", QSqlError::ConnectionError,
         StoreError::Kind::Lost},
    };
    for (const auto& row : rows) {
        const QSqlError error(QStringLiteral("QPSQL"), QString::fromUtf8(row.text), row.type,
                              QString::fromLatin1(row.state));
        EXPECT_EQ(dialect->errorOf(error).kind(), row.kind) << row.text;
    }
}

/// A server that is not there is waited for; one that says no is not.
TEST_F(OnDatabase, SaysAtOnceWhomAServerRefuses) {
    if (!isServer()) GTEST_SKIP() << "this is about servers";
    std::string stranger = databaseAddress();
    constexpr std::string_view Keeper = "keeper@";
    stranger.replace(stranger.find(Keeper), Keeper.size(), "stranger@");
    const auto start = std::chrono::steady_clock::now();
    try {
        const auto store = qt::openStore(stranger, {});
        static_cast<void>(store->tables());
        ADD_FAILURE() << "it is opened";
    } catch (const StoreError& error) {
        EXPECT_NE(std::string(error.what()).find("refuses the connection: "), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("\"stranger\""), std::string::npos) << error.what();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

// ---- Saving

/// Whether what cannot be saved stays as it was typed, with the reason in words, and is saved later.
void expectToStay(Person& person, const std::function<void()>& hinder, const std::function<void()>& allow,
                  const std::string& said) {
    const std::u16string typed(40'000, u'x');
    person.put(u"txtName", typed);
    hinder();
    const bool saved = person.records().save();
    allow();
    EXPECT_FALSE(saved);
    EXPECT_EQ(person.heard, said + "\n");
    EXPECT_TRUE(person.records().isChanged());
    EXPECT_EQ(person.text(u"txtName"), typed);
    person.heard.clear();
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_FALSE(person.records().isChanged());
}

/// A folder with as little room as is asked for, if this machine lets somebody make one.
class SmallDisk {
public:
    SmallDisk() : Folder_(fs::temp_directory_path() / ("kel-disk-" + std::to_string(getpid()))) {
        fs::create_directories(Folder_);
        IsThere_ = mount("none", Folder_.c_str(), "tmpfs", 0, "size=256k") == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (IsThere_) umount(Folder_.c_str());
        fs::remove_all(Folder_);
    }
    bool isThere() const { return IsThere_; }
    std::string file(const char* name) const { return (Folder_ / name).string(); }
    void fill() const { std::ofstream(file("filler")) << std::string(1U << 20U, 'x') << std::flush; }
    void empty() const { fs::remove(file("filler")); }

private:
    fs::path Folder_;
    bool IsThere_ = false;
};

const std::string Full = "The disk is full. Please make room and save again; what is on the screen stays.";
const std::string ReadOnly =
    "The database may not be written. Please have it allowed and save again; what is on the screen stays.";

TEST_F(OnDatabase, FileThatMayNotGrow) {
    if (isServer()) GTEST_SKIP() << "this is about files";
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    person.put(u"txtName", std::u16string(u"Anna"));
    ASSERT_TRUE(person.records().save());
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    expectToStay(
        person,
        [&] {
            const rlimit small{fs::file_size(databaseAddress()), before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
        },
        [&] { setrlimit(RLIMIT_FSIZE, &before); },
        "The disk takes no more, or does not answer. Please look after it and save again; what is on the screen "
        "stays.");
    std::signal(SIGXFSZ, handler);
}

TEST_F(OnDatabase, DiskThatIsFull) {
    if (isServer()) GTEST_SKIP() << "this is about files";
    const SmallDisk disk;
    if (!disk.isThere()) GTEST_SKIP() << "no disk may be made on this machine";
    const auto store = qt::openStore(disk.file("a.sqlite"), {});
    Person person(MemberForm, *store, u"member");
    expectToStay(
        person, [&] { disk.fill(); }, [&] { disk.empty(); }, Full);
}

TEST_F(OnDatabase, FolderThatMayNotBeWrittenAnyMore) {
    if (isServer()) GTEST_SKIP() << "this is about files";
    const fs::path folder = fs::temp_directory_path() / ("kel-folder-" + std::to_string(getpid()));
    fs::create_directories(folder);
    const uid_t before = geteuid();
    constexpr uid_t Nobody = 65534;  // for whoever may do anything, nothing is forbidden
    if (before == 0) {
        ASSERT_EQ(chown(folder.c_str(), Nobody, Nobody), 0);
        ASSERT_EQ(seteuid(Nobody), 0);
    }
    {
        const auto store = qt::openStore((folder / "a.sqlite").string(), {});
        Person person(MemberForm, *store, u"member");
        expectToStay(
            person, [&] { fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec); },
            [&] { fs::permissions(folder, fs::perms::owner_all); }, ReadOnly);
    }
    ASSERT_EQ(seteuid(before), 0);
    fs::remove_all(folder);
}

TEST_F(OnDatabase, ServerThatTurnsReadOnly) {
    if (!isServer()) GTEST_SKIP() << "this is about a server";
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    const auto set = [&](const char* how) {
        execute("SET default_transaction_read_only = off");
        execute(how);
        execute("SELECT pg_reload_conf()");
        std::this_thread::sleep_for(200ms);  // the server's processes hear of it one by one
    };
    expectToStay(
        person, [&] { set("ALTER SYSTEM SET default_transaction_read_only = on"); },
        [&] { set("ALTER SYSTEM RESET default_transaction_read_only"); }, ReadOnly);
    execute("RESET default_transaction_read_only");
}

// ---- Another program, and a connection that drops

/// Takes the record, or the whole file, for itself.
void lock(qt::SqlConnection& other) {
    other.execute(QString::fromLatin1(other.isServer() ? "BEGIN" : "BEGIN IMMEDIATE"));
    other.execute(QStringLiteral("UPDATE member SET fee = 7"));
}

TEST_F(OnDatabase, WaitsForAnotherProgram) {
    qt::SqlConnection other(databaseAddress(), {});
    int served = 0;
    std::function<void()> serve;
    const auto store = qt::openStore(databaseAddress(), [&] {
        ++served;
        if (serve) serve();
    });
    Person person(MemberForm, *store, u"member");
    person.put(u"txtName", std::u16string(u"Anna"));
    ASSERT_TRUE(person.records().save());

    lock(other);
    const auto start = std::chrono::steady_clock::now();
    expectToStay(
        person, [&] {}, [&] { other.execute(QStringLiteral("ROLLBACK")); },
        isServer() ? "Another program holds the record. Please save again in a moment; what is on the screen stays."
                   : "Another program holds the database. Please save again in a moment; what is on the screen stays.");
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GT(waited, 4900ms);
    EXPECT_LT(waited, 6s);
    EXPECT_GT(served, 50) << "the window is served ten times a second and more";

    // One that is let go in time is not noticed.
    lock(other);
    serve = [&, let = std::chrono::steady_clock::now() + 300ms]() {
        if (!serve || std::chrono::steady_clock::now() < let) return;
        other.execute(QStringLiteral("ROLLBACK"));
        serve = {};
    };
    person.put(u"txtName", std::u16string(u"Berta"));
    EXPECT_TRUE(person.records().save()) << person.heard;
    EXPECT_EQ(value("SELECT name FROM member"), "Berta");
}

/// A list that is taken in waits for a record as a person's does, and keeps what it has stored before.
TEST_F(OnDatabase, ListWaitsForAnotherProgram) {
    execute("CREATE TABLE member (name VARCHAR(9) PRIMARY KEY, fee DOUBLE PRECISION, joined DATE)");
    qt::SqlConnection other(databaseAddress(), {});
    std::function<void()> serve = [] {};
    const auto store = qt::openStore(databaseAddress(), [&] { serve(); });
    const auto records = store->open(store->table(u"member").value());
    const auto home = headless::makeHome({.region = &defaultRegion()});
    Importer importer(*home, FormFile::parse(MemberForm, "member.frm"), *records, nullptr);
    other.execute(QString::fromLatin1(other.isServer() ? "BEGIN" : "BEGIN IMMEDIATE"));
    other.execute(QStringLiteral("INSERT INTO member VALUES ('Bea', 7, NULL)"));
    serve = [&, let = std::chrono::steady_clock::now() + 300ms] {
        if (std::chrono::steady_clock::now() < let) return;
        other.execute(QStringLiteral("COMMIT"));
        serve = [] {};
    };
    std::istringstream list("Ann,1\nBea,2\nCid,3\n");
    std::string rejects;
    const auto result = importer.run(
        list, {.separator = ',', .hasHeader = false}, false, [&](std::string_view line) { rejects += line; },
        [](std::int64_t) { return true; });
    EXPECT_EQ(result.failure, "");
    EXPECT_EQ(result.stored, 2);
    EXPECT_NE(rejects.find("2,txtName: another record has the same value already."), std::string::npos) << rejects;
}

/// Ends the connections of all others.
const char* const DropOthers =
    "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE pid <> pg_backend_pid() AND backend_type = 'client "
    "backend'";

TEST_F(OnDatabase, ConnectionThatDropsIsMadeAgain) {
    if (!isServer()) GTEST_SKIP() << "this is about a server";
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    const auto drop = [&] {
        execute(DropOthers);
        std::this_thread::sleep_for(50ms);
    };
    for (const char16_t* const name : {u"Anna", u"Berta"}) {
        person.put(u"txtName", std::u16string(name));
        drop();
        EXPECT_TRUE(person.records().save()) << person.heard;
    }
    EXPECT_EQ(value("SELECT string_agg(name, ',') FROM member"), "Berta");
    drop();
    EXPECT_TRUE(person.records().toFirst()) << person.heard;
    drop();
    EXPECT_TRUE(person.records().remove()) << person.heard;
    EXPECT_EQ(value("SELECT count(*) FROM member"), "0");
}

/// The server ends the connection in the midst of storing: once before it is stored, once after.
TEST_F(OnDatabase, SaveWhoseAnswerIsLostIsNeitherLostNorDoubled) {
    if (!isServer()) GTEST_SKIP() << "this is about a server";
    const auto store = open();
    Person person(MemberForm, *store, u"member");
    execute(
        "CREATE FUNCTION die() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN IF nextval(''deaths'') = 1 THEN PERFORM "
        "pg_terminate_backend(pg_backend_pid()); END IF; RETURN NULL; END'");
    execute("CREATE SEQUENCE deaths");
    execute(
        "CREATE CONSTRAINT TRIGGER t AFTER INSERT OR UPDATE OR DELETE ON member DEFERRABLE INITIALLY DEFERRED FOR "
        "EACH ROW EXECUTE FUNCTION die()");
    const auto beforeStored = [&](auto action) {
        execute("ALTER SEQUENCE deaths RESTART");
        action();
        EXPECT_EQ(value("SELECT last_value > 1 FROM deaths"), "true") << "it did not drop";
    };
    // It waits for a second server, which there is not, when all is stored.
    const auto whenStored = [&](auto action) {
        execute("ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
        execute("SELECT pg_reload_conf()");
        std::this_thread::sleep_for(200ms);
        std::thread other([] {
            std::this_thread::sleep_for(300ms);
            qt::SqlConnection connection(databaseAddress(), {});
            connection.execute(QString::fromLatin1(DropOthers));
            connection.execute(QStringLiteral("ALTER SYSTEM RESET synchronous_standby_names"));
            connection.execute(QStringLiteral("SELECT pg_reload_conf()"));
        });
        const auto start = std::chrono::steady_clock::now();
        action();
        EXPECT_GT(std::chrono::steady_clock::now() - start, 250ms) << "it did not drop";
        other.join();
        static_cast<void>(value("SELECT 1"));  // this connection has gone, too
    };
    const auto save = [&](const char16_t* name, int version) {
        return [&, name, version] {
            person.put(u"txtName", std::u16string(name));
            EXPECT_TRUE(person.records().save()) << person.heard;
            EXPECT_EQ(
                value("SELECT count(*) || ' ' || string_agg(name, ',') || ' ' || max(record_version) FROM member"),
                "1 " + toUtf8(name) + " " + std::to_string(version));
        };
    };
    const auto remove = [&] {
        EXPECT_TRUE(person.records().remove()) << person.heard;
        EXPECT_EQ(value("SELECT count(*) FROM member"), "0");
    };
    beforeStored(save(u"Anna", 1));
    beforeStored(save(u"Berta", 2));
    beforeStored(remove);
    whenStored(save(u"Carla", 1));
    whenStored(save(u"Dora", 2));
    whenStored(remove);
    EXPECT_EQ(person.heard, "");
    execute("DROP TABLE member");
    execute("DROP FUNCTION die");
    execute("DROP SEQUENCE deaths");
}

}  // namespace
}  // namespace kel::test
