#include "tools/idl/RegistryTableWriter.h"

#include <ostream>

#include "library/Registration.h"
#include "tools/idl/TypeNames.h"

namespace kel::idl {

namespace {

/// Lines end as the table's format has it.
class RegistryTable {
public:
    explicit RegistryTable(std::ostream& out) : Out_(out) {
        Out_ << "Registry\tRoot\tKey\tName\tValue\tComponent_\r\n"
                "s72\ti2\tl255\tL255\tL0\ts72\r\n"
                "Registry\tRegistry\r\n";
    }

    /// A row is named by its number, so the first one is `Names1`.
    void write(std::string_view component, const std::vector<RegistryEntry>& entries) {
        constexpr int MachineOrUser = -1;           // as the installation is
        constexpr std::string_view KeyAlone = "*";  // made when installed, gone when removed
        for (const RegistryEntry& entry : entries) {
            Out_ << component << ++Rows_ << '\t' << MachineOrUser << "\tSoftware\\Classes\\" << narrow(entry.key)
                 << '\t' << (entry.text ? narrow(entry.name) : std::string(KeyAlone)) << '\t'
                 << narrow(entry.text.value_or(u"")) << '\t' << component << "\r\n";
        }
    }

private:
    std::ostream& Out_;
    int Rows_ = 0;
};

}  // namespace

void writeRegistryTable(std::ostream& out, const ClassRegistry& classes, int bits) {
    const std::u16string controls = u"[#Controls]";
    RegistryTable table(out);
    table.write("Names", typeLibraryEntries());
    table.write("Controls", typeLibraryEntries(bits, controls));
    for (const ClassModel* model : classes.all()) {
        const RegisteredClass entry = registered(*model);
        table.write("Names", programIdEntries(entry));
        table.write("Controls", classEntries(entry, controls));
    }
    for (const PageIdentity& page : identities::Pages)
        table.write("Controls", classEntries(registered(page), controls));
    table.write("Names", programIdEntries(registeredRuntime()));
    table.write("Runtime", classEntries(registeredRuntime(), u"[#Runtime]"));
}

}  // namespace kel::idl
