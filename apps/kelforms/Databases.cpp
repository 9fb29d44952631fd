#include "apps/kelforms/Databases.h"

#include <filesystem>

#include "forms/file/FormStore.h"
#include "values/Text.h"

#ifdef KEL_HAS_QT
#include <QCoreApplication>

#include "platform/headless/HeadlessHome.h"
#include "platform/qt/records/RecordWindow.h"
#include "platform/qt/sql/SqlStore.h"
#include "records/OpenTable.h"
#endif

namespace kel::app {

#ifdef KEL_HAS_QT

namespace {

/// The window stays alive while another program holds the database.
void serveWindow() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace

/// Drivers are found by the application object, which a session without a window does not have.
struct Database::Driver {
    char Name[9] = "kelforms";
    char* Arguments[2] = {Name, nullptr};
    int Count = 1;
    std::unique_ptr<QCoreApplication> Application;
};

Database::Database(const std::string& address) : Driver_(std::make_unique<Driver>()) {
    if (QCoreApplication::instance() == nullptr)
        Driver_->Application = std::make_unique<QCoreApplication>(Driver_->Count, Driver_->Arguments);
    Store_ = qt::openStore(address, &serveWindow);
}

namespace {

class QtRecordsWindow final : public RecordsWindow {
public:
    QtRecordsWindow(Form& form, Home& home, records::Store& store, const records::Table& table)
        : Unseen_(headless::makeHome({.region = &home.region()})), Window_(form, home, *Unseen_, store, table) {}
    std::string picture() const override { return Window_.picture(); }

private:
    std::unique_ptr<Home> Unseen_;
    qt::RecordWindow Window_;
};

bool askToAdd(const std::vector<records::Column>& columns) {
    std::u16string names;
    for (const records::Column& column : columns) names += (names.empty() ? u"" : u", ") + column.name;
    return qt::askToAddColumns(names);
}

}  // namespace

void mustShowRecords(const std::string& home) {
    if (home != "qt") throw UsageError("--on " + home + ": records are shown by the home qt alone");
}

std::unique_ptr<RecordsWindow> openRecords(Form& form, Home& home, records::Store& store,
                                           const std::u16string& tableName) {
    const records::Table table = records::openTable(store, form, tableName, home.region(), &askToAdd);
    return std::make_unique<QtRecordsWindow>(form, home, store, table);
}

#else

void mustShowRecords(const std::string&) { throw UsageError("--data: this program was built without databases"); }

std::unique_ptr<RecordsWindow> openRecords(Form&, Home&, records::Store&, const std::u16string&) { return {}; }

struct Database::Driver {};

Database::Database(const std::string& address) {
    throw UsageError(address + ": this program was built without databases");
}

#endif

Database::~Database() = default;

std::u16string tableOf(const Options& options) {
    const auto name = fromUtf8(options.table);
    if (!name) throw UsageError("--table: the name is not valid UTF-8");
    return *name;
}

void mustBeThere(const std::string& address) {
    const bool isServer = address.find("://") != std::string::npos;
    if (!isServer && !std::filesystem::exists(pathOf(address)))
        throw records::StoreError(records::StoreError::Kind::Wrong, "There is no database " + address + ".");
}

}  // namespace kel::app
