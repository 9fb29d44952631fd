#include "apps/kelforms/Lists.h"

#include <csignal>
#include <cstdio>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "apps/kelforms/Databases.h"
#include "apps/kelforms/Homes.h"
#include "controls/progress/KelProgressBar.h"
#include "forms/file/FormStore.h"
#include "platform/headless/HeadlessHome.h"
#include "records/exchange/ListFiles.h"
#include "records/OpenTable.h"
#include "values/Text.h"

namespace kel::app {

namespace {

bool isTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

/// A progress bar on a terminal: its text, which says how long it will take. Ctrl+C stops it.
class TerminalProgress {
public:
    explicit TerminalProgress(Home& home)
        : Window_(home.makeWindow({}, home.system())),
          Bar_(dynamic_cast<KelProgressBar&>(
              Window_->place(KelProgressBarModel, {.name = u"bar", .bounds = {0, 0, WidthInTwips, 300}}, Observer_)
                  .control())),
          Before_(std::signal(SIGINT, stop)) {
        Stopped_ = 0;
        Window_->show();
        Bar_.put_Min(0);
        Bar_.put_Max(Whole);
        Bar_.Start();
    }
    ~TerminalProgress() {
        std::signal(SIGINT, Before_);
        if (!Shown_.empty()) std::cerr << "\r" << std::string(Shown_.size(), ' ') << "\r" << std::flush;
    }
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    bool operator()(double share) {
        Bar_.put_Value(static_cast<std::int32_t>(share * Whole));
        if (IsTerminal_) show(toUtf8(Bar_.widgets().picture->picture().text));
        return Stopped_ == 0;
    }

private:
    static constexpr std::int32_t Whole = 10'000;
    static constexpr std::int32_t WidthInTwips = 1500;  ///< a hundredth of it is seen to grow

    static void stop(int) { Stopped_ = 1; }

    void show(std::string text) {
        if (text == Shown_) return;
        // What was longer before is wiped.
        std::cerr << "\r" << text << std::string(Shown_.size() > text.size() ? Shown_.size() - text.size() : 0, ' ')
                  << std::flush;
        Shown_ = std::move(text);
    }

    static inline volatile std::sig_atomic_t Stopped_ = 0;
    const bool IsTerminal_ = isTerminal();
    SilentObserver Observer_;
    std::unique_ptr<FormWindow> Window_;
    KelProgressBar& Bar_;
    void (*Before_)(int);
    std::string Shown_;
};

/// A form on a home that shows nothing, with the records of its table.
struct ListSession {
    ListSession(const Options& options, bool mayMake)
        : region(regionOf(options)),
          home(headless::makeHome({.region = &region})),
          file(readFormFile(options.files[0])),
          form(*home, home->system(), observer, file),
          database(options.data) {
        const std::u16string table = tableOf(options);
        records::Store& store = database.store();
        if (!mayMake && !(table.empty() ? records::tableOfForm(store, file.block(0).name) : store.table(table)))
            throw records::StoreError(
                records::StoreError::Kind::Wrong,
                "The database has no table " + (table.empty() ? "for the form" : options.table) + ".");
        records = store.open(records::openTable(store, form, table, home->region(), {}));
    }

    RegionalSettings region;
    std::unique_ptr<Home> home;
    SilentObserver observer;
    FormFile file;
    Form form;
    Database database;
    std::unique_ptr<records::RecordStore> records;
};

void wantDatabase(const Options& options) {
    if (options.data.empty()) throw UsageError(options.command + ": --data DATABASE is missing");
}

}  // namespace

ExitStatus importList(const Options& options) {
    wantDatabase(options);
    ListSession session(options, true);
    records::Importer importer(*session.home, session.file, *session.records, &session.database.store());
    records::ImportReport report;
    {
        TerminalProgress progress(*session.home);
        report = records::importFile(importer, pathOf(options.files[1]), options.list, options.allOrNothing,
                                     std::ref(progress));
    }
    std::cout << toUtf8(report.inWords()) << "\n";
    if (!report.result.failure.empty()) return Wrong;
    return report.result.rejected > 0 || report.result.isStopped ? Differed : Done;
}

ExitStatus exportList(const Options& options) {
    wantDatabase(options);
    mustBeThere(options.data);
    ListSession session(options, false);
    const std::vector<records::Binding> fields =
        records::bind(session.form, session.records->table(), session.home->region(), nullptr);
    records::Exporter exporter(fields, *session.records, {}, session.home->region());
    const std::string& name = options.files[1] == "-" ? "/dev/stdout" : options.files[1];
    const bool isWhole = [&] {
        TerminalProgress progress(*session.home);
        return records::exportFile(exporter, session.records->count(), pathOf(name), options.list, std::ref(progress))
            .has_value();
    }();
    if (isWhole) return Done;
    std::cerr << "Stopped. " << options.files[1] << " is not written.\n";
    return Differed;
}

}  // namespace kel::app
