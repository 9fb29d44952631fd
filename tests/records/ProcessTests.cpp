#include <poll.h>
#include <sys/wait.h>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <random>

#include "tests/records/OnDatabase.h"

/// Programs that save, side by side, or until they are killed.
namespace kel::test {
namespace {

/// Another program: `work` in a process of its own, which reports numbers.
class Program {
public:
    using Report = std::function<void(int)>;

    explicit Program(const std::function<void(const Report&)>& work) {
        int ends[2];
        if (pipe(ends) != 0) throw std::runtime_error("no pipe");
        Id_ = fork();
        if (Id_ != 0) {
            close(ends[1]);
            Reports_ = ends[0];
            return;
        }
        close(ends[0]);
        int status = 0;
        try {
            work([&](int number) {
                if (write(ends[1], &number, sizeof number) != sizeof number) _exit(2);
            });
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            status = 1;
        }
        _exit(status);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() { close(Reports_); }

    void awaitReport() const {
        pollfd poll{Reports_, POLLIN, 0};
        ::poll(&poll, 1, 10'000);
    }
    void end(int signal) const { kill(Id_, signal); }
    /// What it has reported until its end, and how it ended.
    std::pair<std::vector<int>, int> outcome() const {
        std::vector<int> numbers;
        for (int number = 0; ::read(Reports_, &number, sizeof number) == sizeof number;) numbers.push_back(number);
        int status = 0;
        waitpid(Id_, &status, 0);
        return {std::move(numbers), status};
    }

private:
    pid_t Id_ = 0;
    int Reports_ = -1;
};

/// A database that no program has open while others are started.
class Programs : public ::testing::Test {
protected:
    Programs() { fresh(); }
    ~Programs() override {
        fresh();
        if (std::getenv("KEL_POSTGRES") == nullptr) std::filesystem::remove(databaseAddress());
    }

    static void execute(const std::string& statement) {
        const Application application;
        qt::SqlConnection(databaseAddress(), {}).execute(QString::fromStdString(statement));
    }
    static std::vector<std::string> values(const std::vector<std::string>& queries) {
        const Application application;
        qt::SqlConnection connection(databaseAddress(), {});
        std::vector<std::string> values;
        for (const std::string& query : queries) {
            QSqlQuery& result = connection.run(QString::fromStdString(query));
            values.push_back(result.next() ? result.value(0).toString().toStdString() : "no row");
            result.finish();
        }
        return values;
    }

private:
    static void fresh() { execute("DROP TABLE IF EXISTS member"); }
};

const std::string Large = "      MaxValue = 9999999\r\n      Decimals = 0\r\n";
const std::string NumbersForm = formOf({{"txtName", "KelText", ""},
                                        {"numN", "KelNumber", Large},
                                        {"numA", "KelNumber", Large},
                                        {"numB", "KelNumber", Large},
                                        {"numC", "KelNumber", Large}});

/// How often something is done: as a variable of the environment says, for a long look, or else as usual.
int timesWanted(const char* variable, int usual) {
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

// ---- Killed while it saves

constexpr int Changed = 1'000'000;  ///< is added to what stands in a record when it is changed

/// Stores and changes records whose columns belong together, and reports each as soon as it is saved: new ones by
/// their number, changed ones by its negative.
void keepStoring(int from, const Program::Report& report) {
    const Application application;
    const auto store = qt::openStore(databaseAddress(), {});
    Person person(NumbersForm, *store, u"member");
    const auto fill = [&](int number) {
        person.put(u"txtName", u"Member " + widen(std::to_string(number)));
        person.put(u"numA", static_cast<double>(number));
        person.put(u"numB", 2.0 * number);
        person.put(u"numC", 3.0 * number);
    };
    for (int number = from;; ++number) {
        person.records().startNew();
        person.put(u"numN", static_cast<double>(number));
        fill(number);
        if (!person.records().save()) throw std::runtime_error(person.heard);
        report(number);
        fill(number + Changed);
        if (!person.records().save()) throw std::runtime_error(person.heard);
        report(-number);
    }
}

TEST_F(Programs, WhatIsSavedSurvivesAKill) {
    std::mt19937 random(11);
    std::uniform_int_distribution<useconds_t> moment(0, 20'000);
    const std::string broken =
        "SELECT count(*) FROM member WHERE b <> 2 * a OR c <> 3 * a OR a NOT IN (n, n + 1000000) OR "
        "name <> 'Member ' || CAST(CAST(a AS INTEGER) AS TEXT)";
    int from = 1;
    std::size_t saved = 0;
    const int kills = timesWanted("KEL_KILLS", 50);
    for (int i = 0; i < kills; ++i) {
        const Program program([&](const Program::Report& report) { keepStoring(from, report); });
        program.awaitReport();
        usleep(moment(random));
        program.end(SIGKILL);
        const auto [reported, status] = program.outcome();
        ASSERT_TRUE(WIFSIGNALED(status)) << "it ended by itself";
        ASSERT_FALSE(reported.empty());
        saved += reported.size();
        const int last = std::abs(reported.back());
        const auto isSince = " FROM member WHERE n BETWEEN " + std::to_string(from) + " AND " + std::to_string(last);
        const int wholly = reported.back() < 0 ? last : last - 1;
        const std::vector<std::string> found =
            values({broken, "SELECT count(*)" + isSince, "SELECT count(*)" + isSince + " AND a <> n"});
        ASSERT_EQ(found[0], "0") << "a record is not whole";
        ASSERT_EQ(found[1], std::to_string(last - from + 1)) << "a record is lost";
        ASSERT_GE(std::stoi(found[2]), wholly - from + 1) << "a change is lost";
        from = last + 10;
    }
    if (std::getenv("KEL_POSTGRES") == nullptr) {
        EXPECT_EQ(values({"PRAGMA integrity_check"}).front(), "ok");
    }
    std::printf("%zu saves reported before %d kills\n", saved, kills);
}

// ---- Two programs on the same records

/// Adds 1 to a field of its own and to one that both count in, in records by chance; reports how often it was asked.
void keepAdding(std::u16string_view own, unsigned seed, int changes, const Program::Report& report) {
    const Application application;
    const auto store = qt::openStore(databaseAddress(), {});
    Person person(NumbersForm, *store, u"member");
    const std::vector<Record> records = person.records().store().walk(nullptr, Way::Forward, 100, {});
    const auto addTo = [&](std::u16string_view field) {
        const std::size_t column = person.records().table().find(field.substr(3)).value();
        person.put(field, std::get<double>(person.records().shown()->cells[column]) + 1);
    };
    // Whoever is told that the other is at it for too long tries again.
    const auto isDone = [&](bool done) {
        if (!done && person.heard.find("Another program holds") == std::string::npos)
            throw std::runtime_error(person.heard);
        return done;
    };
    person.choices = {Choice::Theirs, Choice::Theirs};  // their count, and their own field
    std::mt19937 random(seed);
    for (int i = 0; i < changes; ++i) {
        const Record& record = records[random() % records.size()];
        while (!isDone(person.records().toRecord(record)))
            ;
        addTo(own);
        addTo(u"numC");
        // Whoever is asked about the count takes theirs, and counts on top of it.
        for (bool isCounted = false; !isCounted;) {
            person.heard.clear();
            const bool isSaved = isDone(person.records().save());
            const bool isTheirs = person.heard.find("numC: ") != std::string::npos;
            if (isTheirs) addTo(u"numC");
            isCounted = isSaved && !isTheirs;
        }
    }
    report(person.asked);
}

TEST_F(Programs, NoChangeIsLostBetweenTwo) {
    execute(
        "CREATE TABLE member (id INTEGER PRIMARY KEY, name TEXT, n INTEGER, a DOUBLE PRECISION, b DOUBLE PRECISION, c "
        "DOUBLE PRECISION)");
    execute(
        "WITH RECURSIVE row (id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM row WHERE id < 100) "
        "INSERT INTO member SELECT id, 'x', id, 0, 0, 0 FROM row");
    const int each = timesWanted("KEL_CHANGES", 2'000) / 2;
    const Program one([&](const Program::Report& report) { keepAdding(u"numA", 1, each, report); });
    const Program two([&](const Program::Report& report) { keepAdding(u"numB", 2, each, report); });
    int asked = 0;
    for (const Program* const program : {&one, &two}) {
        const auto [reported, status] = program->outcome();
        EXPECT_EQ(status, 0);
        ASSERT_EQ(reported.size(), 1U);
        asked += reported.front();
    }
    const std::string sum = std::to_string(each);
    EXPECT_EQ(values({"SELECT CAST(sum(a) AS INTEGER) FROM member", "SELECT CAST(sum(b) AS INTEGER) FROM member",
                      "SELECT CAST(sum(c) AS INTEGER) FROM member"}),
              (std::vector<std::string>{sum, sum, std::to_string(2 * each)}));
    EXPECT_GT(asked, 0) << "they were never on the same record at once";
    std::printf("%d changes, asked %d times\n", 2 * each, asked);
}

}  // namespace
}  // namespace kel::test
