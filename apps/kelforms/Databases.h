#pragma once

#include <memory>
#include <string>

#include "apps/kelforms/Options.h"
#include "forms/Form.h"
#include "records/Store.h"

namespace kel::app {

/// Opens a database, and whatever its driver needs. Throws UsageError where this program has no databases, and
/// records::StoreError.
class Database {
public:
    explicit Database(const std::string& address);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    records::Store& store() { return *Store_; }

private:
    struct Driver;
    std::unique_ptr<Driver> Driver_;
    std::unique_ptr<records::Store> Store_;
};

/// For what only reads: opening a file that is not there would make one. Throws records::StoreError.
void mustBeThere(const std::string& address);

/// What `--table` names; empty where it is left to the form. Throws UsageError.
std::u16string tableOf(const Options& options);

/// Throws UsageError where no window of this home shows records: before a database is made for one.
void mustShowRecords(const std::string& home);

/// A window around a form with its records, which shows itself.
class RecordsWindow {
public:
    virtual ~RecordsWindow() = default;
    /// As the bytes of a PNG file.
    virtual std::string picture() const = 0;
};

/// All of it outlives the window. Throws UsageError where this home has no such window, and records::StoreError.
std::unique_ptr<RecordsWindow> openRecords(Form& form, Home& home, records::Store& store,
                                           const std::u16string& tableName);

}  // namespace kel::app
