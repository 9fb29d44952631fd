#include "apps/kelforms/MakeForm.h"

#include <filesystem>
#include <iostream>

#include "apps/kelforms/Databases.h"
#include "apps/kelforms/Homes.h"
#include "forms/file/FormStore.h"
#include "records/make/FormOfTable.h"
#include "values/Text.h"

namespace kel::app {

namespace {

[[noreturn]] void refuse(const std::string& message) {
    throw records::StoreError(records::StoreError::Kind::Wrong, message);
}

records::Table tableNamed(records::Store& store, const std::string& name) {
    const auto wanted = fromUtf8(name);
    if (!wanted) throw UsageError("make: the name of the table is not valid UTF-8");
    if (const auto table = store.table(*wanted)) return *table;
    std::u16string names;
    for (const std::u16string& each : store.tables()) names += (names.empty() ? u"" : u", ") + each;
    refuse("The database has no table " + name + ", but " + (names.empty() ? "none" : toUtf8(names)) + ".");
}

}  // namespace

ExitStatus makeForm(const Options& options) {
    const std::string& address = options.files[0];
    const std::string& path = options.files[2];
    mustBeThere(address);
    if (!options.force && std::filesystem::exists(pathOf(path)))
        refuse(path + " is there already; --force replaces it.");
    Database database(address);
    const records::Table table = tableNamed(database.store(), options.files[1]);
    const records::MadeForm made = records::formFor(database.store(), table, regionOf(options), path);
    made.file.save(path);
    std::cout << path << ": " << made.fields << " fields of the table " << toUtf8(table.name) << "\n";
    for (const std::u16string& column : made.leftOut)
        std::cout << "  left out: " << toUtf8(column) << ", which no field shows\n";
    if (!made.namesTable)
        std::cout << "  open it with --table \"" << toUtf8(table.name) << "\", which its name does not tell\n";
    return Done;
}

}  // namespace kel::app
