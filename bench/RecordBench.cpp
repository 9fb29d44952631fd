#include <unistd.h>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <random>

#include "forms/Form.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/records/RecordWindow.h"
#include "platform/qt/sql/SqlConnection.h"
#include "platform/qt/sql/SqlStore.h"
#include "records/OpenTable.h"
#include "values/Text.h"

/// What a person waits for in the window of a large table, from the command until all is painted. Run it as
///   kel_record_bench [RECORDS [DATABASE [PICTURE]]]
/// on an empty database; a file of its own is made and removed where none is named, or "-". PICTURE is a file of PNG
/// that shows the window at the end.
namespace kel::bench {
namespace {

const char* const Table =
    "CREATE TABLE customer (record_id INTEGER PRIMARY KEY, name TEXT, first_name TEXT, street TEXT, city TEXT, phone "
    "TEXT, "
    "joined DATE, credit DOUBLE PRECISION, rate DOUBLE PRECISION, branch INTEGER REFERENCES branch (id), note TEXT, "
    "record_version INTEGER NOT NULL DEFAULT 1)";
const char* const Branches = "CREATE TABLE branch (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL)";
const char* const BranchRows =
    "INSERT INTO branch SELECT i, 'Branch ' || (i * 31 % 997) FROM (WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT "
    "i + 1 FROM n WHERE i < 300) SELECT i FROM n) AS rows";
const char* const Rows =
    "INSERT INTO customer SELECT i, 'Name' || (i * 7919 % 999983), 'First' || (i % 5003), 'Street ' || (i % 777) || ' "
    "number ' || (i % 99), 'City of ' || (i * 31 % 9973), '0' || (i * 104729 % 9999999), CAST('20' || (10 + i % 15) || "
    "'-0' || (1 + i % 9) || '-1' || (i % 10) AS %1), i % 10000 / 10.0, i % 100 / 8.0, 1 + i % 300, 'some note about "
    "record "
    "' "
    "|| i || ' of many', 1 FROM (WITH RECURSIVE n (i) AS (SELECT CAST(1 AS BIGINT) UNION ALL SELECT i + 1 FROM n WHERE "
    "i < %2) SELECT i FROM n) AS rows";

void fill(const std::string& database, int records) {
    qt::SqlConnection connection(database, {});
    connection.begin();
    for (const char* const statement : {Branches, BranchRows, Table})
        connection.execute(QString::fromLatin1(statement));
    connection.execute(
        QString::fromLatin1(Rows).arg(QLatin1String(connection.isServer() ? "date" : "text")).arg(records));
    connection.commit();
    if (connection.isServer()) connection.execute(QStringLiteral("ANALYZE"));
}

std::string form() {
    std::string text =
        "VERSION 5.00\r\nBegin VB.Form frmCustomer\r\n   Caption = \"Customers\"\r\n   ClientHeight = 4500\r\n   "
        "ClientWidth = 6000\r\n";
    int top = 100;
    for (const char* const field : {"txtName", "txtFirstName", "txtStreet", "txtCity", "txtPhone", "datJoined",
                                    "numCredit", "numRate", "cboBranch", "txtNote"}) {
        const std::string name = field;
        const std::string kind = name.starts_with("txt")   ? "KelText"
                                 : name.starts_with("num") ? "KelNumber"
                                 : name.starts_with("cbo") ? "KelCombo"
                                                           : "KelDate";
        text += "   Begin KelControls8." + kind + " " + name + "\r\n      Caption = \"" + name.substr(3) +
                "\"\r\n      Left = 100\r\n      Height = 300\r\n      Width = 5000\r\n      Mandatory = 0\r\n      "
                "Top = " +
                std::to_string(top) + "\r\n" + (kind == "KelNumber" ? "      MaxValue = 99999\r\n" : "") +
                (kind == "KelCombo" ? "      DataField = \"branch:tag\"\r\n" : "") + "   End\r\n";
        top += 400;
    }
    return text + "End\r\n";
}

long residentKilobytes() {
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// The longest time for which the window does not answer: between two beats of a timer that is always due.
class Silence {
public:
    Silence() {
        QObject::connect(&Timer_, &QTimer::timeout, [this] { note(); });
        Timer_.start(0);
    }
    void begin() {
        Longest_ = 0;
        Since_.start();
    }
    double longest() {
        note();
        return Longest_;
    }

private:
    void note() {
        Longest_ = std::max(Longest_, static_cast<double>(Since_.nsecsElapsed()) / 1e6);
        Since_.start();
    }
    QTimer Timer_;
    QElapsedTimer Since_;
    double Longest_ = 0;
};

/// The window as somebody at its keys sees it.
class Bench {
public:
    Bench(const std::string& database)
        : Home_(qt::makeHome({})),
          Unseen_(headless::makeHome({})),
          Form_(*Home_, Home_->system(), Observer_, FormFile::parse(form(), "bench.frm")) {
        const auto store = [&] {
            Store_ =
                qt::openStore(database, [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
        };
        measure("opening", 20, [&] {
            store();
            const auto table =
                records::openTable(*Store_, Form_, u"customer", Home_->region(), [](const auto&) { return true; });
            Window_.emplace(Form_, *Home_, *Unseen_, *Store_, table);
            find();
        });
        waitFor("the number of records known", [&] { return !status().contains(QStringLiteral("\u2026")); });
    }

    void run(int records) {
        seekNever("a find without an index, a word that is nowhere");
        waitFor("the texts of the search written", [&] { return isQuiet(); });
        measure("showing the list for the first time", 0, [&] { press(QStringLiteral("F9")); });
        Table_ = Main_->findChild<QTableView*>();
        repeat("last", 20, [&] { press(QStringLiteral("Alt+End")); });
        repeat("previous", 20, [&] { press(QStringLiteral("Alt+PgUp")); });
        repeat("first", 20, [&] { press(QStringLiteral("Alt+Home")); });
        repeat("next", 20, [&] { press(QStringLiteral("Alt+PgDown")); });
        goTo("go to", records);
        repeat("a save", 20, [&] {
            type(QStringLiteral("Changed ") + QString::number(Random_() % 1000));
            start();
            press(QStringLiteral("Ctrl+S"));
        });
        repeat("a new record saved", 20, [&] {
            press(QStringLiteral("Ctrl+N"));
            type(QStringLiteral("New ") + QString::number(Random_() % 1000));
            start();
            press(QStringLiteral("Ctrl+S"));
        });
        scroll("the list to its middle", records);
        const std::pair<const char*, const char*> sought[] = {
            {"of one record, by its number", "about record 777123 of"},
            {"a part of a name", "me99998"},
            {"of a thousandth", "first4999"},
            {"of all records", "street"},
            {"of none", "zebra"},
            {"two letters", "zz"}};
        for (const auto& [what, word] : sought)
            repeat(std::string("a find ") + what, 100, [&, text = QString::fromLatin1(word)] {
                press(QStringLiteral("Alt+Home"));
                answer(text);
                start();
                press(QStringLiteral("Ctrl+F"));
            });
        sortBy("the city", 3, records);
        sortBy("another table's texts", 8, records);
        emit Table_->clicked(Table_->model()->index(0, 0));
        settle();
        goTo("go to, in the order of another table's texts", records);
        std::printf("%-58s %8ld MB\n", "memory", residentKilobytes() / 1024);
    }

    std::string picture() const { return Window_->picture(); }

private:
    int some(int records) { return 1 + static_cast<int>(Random_() % static_cast<unsigned>(records)); }
    void goTo(const std::string& what, int records) {
        repeat(what, 20, [&] {
            answer(some(records));
            press(QStringLiteral("Ctrl+G"));
        });
    }
    void scroll(const std::string& what, int records) {
        repeat(what, 20, [&] { Table_->verticalScrollBar()->setValue(some(records)); });
    }
    void sortBy(const std::string& what, int column, int records) {
        start();
        Table_->horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
        while (!Table_->model()->index(0, 0).data().isValid()) QCoreApplication::processEvents();
        report("sorted by " + what + " for the first time", elapsed(), 0);
        report("   the longest that the window did not answer", Silence_.longest(), 50);
        waitFor("   its places known", [&] { return isQuiet(); });
        scroll("the list to its middle, so sorted", records);
    }

    void find() {
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (auto* const window = qobject_cast<QMainWindow*>(widget)) Main_ = window;
    }
    QString status() const { return Main_->statusBar()->findChild<QLabel*>()->text(); }
    void press(const QString& key) {
        for (QAction* const action : Main_->findChildren<QAction*>())
            if (action->shortcut() == QKeySequence(key)) return action->trigger();
        throw std::runtime_error("no command has the key " + key.toStdString());
    }
    void type(const QString& text) {
        Control& control = Form_.find(u"txtName")->control();
        putMember(control, *findMember(control.model(), DefaultMemberId), text.toStdU16String(), Home_->region());
    }
    /// What is asked next is answered so; the time counts from then on.
    template <class Value>
    void answer(const Value& value) {
        QTimer::singleShot(0, Main_, [this, value] {
            auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) throw std::runtime_error("nothing is asked");
            if constexpr (std::is_same_v<Value, int>)
                dialog->setIntValue(value);
            else
                dialog->setTextValue(value);
            start();
            dialog->accept();
        });
    }

    void start() {
        Clock_.start();
        Processor_ = std::clock();
        Silence_.begin();
    }
    /// Until all that is out of date is painted.
    void paint() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    bool isQuiet() const {
        for (const QTimer* const timer : Main_->findChildren<QTimer*>())
            if (timer->isActive() && timer->isSingleShot()) return false;  // it has something to find out
        return true;
    }
    void settle() {
        while (!isQuiet()) QCoreApplication::processEvents();
    }
    struct Times {
        double waited = 0;     ///< milliseconds
        double processor = 0;  ///< of these
        friend bool operator<(const Times& left, const Times& right) { return left.waited < right.waited; }
    };

    void report(const std::string& what, double milliseconds, double most, double processor = -1) {
        std::printf("%-50s %8.1f ms", what.c_str(), milliseconds);
        if (processor >= 0) std::printf("  (%6.1f of the processor)", processor);
        if (most > 0) std::printf("   at most %3.0f%s", most, milliseconds > most ? "  OVER" : "");
        std::printf("\n");
        std::fflush(stdout);
    }
    Times elapsed() const {
        return {static_cast<double>(Clock_.nsecsElapsed()) / 1e6,
                static_cast<double>(std::clock() - Processor_) * 1e3 / CLOCKS_PER_SEC};
    }
    void report(const std::string& what, const Times& times, double most) {
        report(what, times.waited, most, times.processor);
    }

    template <class Action>
    void measure(const std::string& what, double most, Action action) {
        start();
        action();
        paint();
        report(what, elapsed(), most);
    }
    /// The worst of some, after one that warms up.
    template <class Action>
    void repeat(const std::string& what, double most, Action action) {
        std::vector<Times> times;
        for (int i = 0; i < 12; ++i) {
            start();
            action();
            paint();
            times.push_back(elapsed());
            if (most < 100) settle();
        }
        std::sort(times.begin() + 1, times.end());
        report(what + ", median", times[6], most);
        report(what + ", worst", times.back(), 0);
    }
    void waitFor(const std::string& what, const std::function<bool()>& isDone) {
        start();
        do QCoreApplication::processEvents();
        while (!isDone());
        report(what, elapsed(), 0);
        report("   the longest that the window did not answer", Silence_.longest(), 50);
    }
    void seekNever(const std::string& what) {
        answer(QStringLiteral("zebra"));
        press(QStringLiteral("Ctrl+F"));
        report(what, elapsed(), 0);
        report("   the longest that the window did not answer", Silence_.longest(), 50);
    }

    std::mt19937 Random_{3};
    Silence Silence_;
    SilentObserver Observer_;
    std::unique_ptr<Home> Home_;
    std::unique_ptr<Home> Unseen_;  ///< for the window's lists
    Form Form_;
    std::unique_ptr<records::Store> Store_;
    std::optional<qt::RecordWindow> Window_;
    QMainWindow* Main_ = nullptr;
    QTableView* Table_ = nullptr;
    QElapsedTimer Clock_;
    std::clock_t Processor_ = 0;
};

}  // namespace
}  // namespace kel::bench

int main(int argc, char** argv) {
    const int records = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const std::string own = (std::filesystem::temp_directory_path() / "kel-record-bench.sqlite").string();
    const bool isOwn = argc <= 2 || std::string(argv[2]) == "-";
    const std::string database = isOwn ? own : argv[2];
    int none = 1;
    const QApplication application(none, argv);
    try {
        if (isOwn) std::filesystem::remove(own);
        kel::bench::fill(database, records);
        kel::bench::Bench bench(database);
        bench.run(records);
        if (argc > 3) std::ofstream(argv[3], std::ios::binary) << bench.picture();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    std::filesystem::remove(own);
    return 0;
}
