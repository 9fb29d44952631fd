#include "library/Registration.h"

#include <stdexcept>

#include "library/ClassRegistry.h"
#include "library/ControlStatus.h"
#include "library/DesignFacts.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr int FirstToolboxPicture = 101;

// Both stand in every system.
constexpr Guid ByFunctionTable = guid("00020424-0000-0000-C000-000000000046");
constexpr Guid ByDispatch = guid("00020420-0000-0000-C000-000000000046");

std::u16string braced(const Guid& guid) { return u'{' + widen(textOf(guid)) + u'}'; }

std::u16string versioned(const RegisteredClass& entry) { return entry.programId + u".1"; }

std::u16string typeLibraryVersion() {
    return widen(std::to_string(identities::MajorVersion) + '.' + std::to_string(identities::MinorVersion));
}

std::u16string typeLibraryKey() {
    return u"TypeLib\\" + braced(identities::TypeLibrary) + u'\\' + typeLibraryVersion();
}

}  // namespace

RegisteredClass registered(const ClassModel& model) {
    const ClassIdentity* identity = findIdentity(model.name);
    if (identity == nullptr) throw std::logic_error("no identity for class " + toUtf8(model.name));
    RegisteredClass entry;
    entry.clsid = identity->coclass;
    entry.programId = std::u16string(LibraryName) + u'.' + std::u16string(model.name);
    entry.description = model.name;
    entry.isInTypeLibrary = true;
    entry.isControl = model.isControl();
    entry.miscStatus = statusBitsOf(model);
    entry.toolboxPicture = FirstToolboxPicture + static_cast<int>(identity - identities::Classes.data());
    return entry;
}

RegisteredClass registered(const PageIdentity& page) {
    RegisteredClass entry;
    entry.clsid = page.coclass;
    entry.description = std::u16string(LibraryName) + u" property page " +
                        std::u16string(DesignPageTitles[static_cast<std::size_t>(page.page)]);
    return entry;
}

RegisteredClass registeredRuntime() {
    RegisteredClass entry;
    entry.clsid = identities::Runtime;
    entry.programId = u"KelRuntime8.Runtime";
    entry.description = u"KelRuntime8 run-time object";
    return entry;
}

std::vector<CalledInterface> interfacesOf(const ClassIdentity& identity) {
    const std::u16string name(identity.name);
    std::vector<CalledInterface> interfaces{{u"_" + name, identity.dispatch, ByFunctionTable}};
    if (identity.hasEvents()) interfaces.push_back({u"__" + name, identity.events, ByDispatch});
    return interfaces;
}

std::vector<RegistryEntry> programIdEntries(const RegisteredClass& entry) {
    if (entry.programId.empty()) return {};
    const std::u16string clsid = braced(entry.clsid);
    return {{versioned(entry), {}, entry.description},
            {versioned(entry) + u"\\CLSID", {}, clsid},
            {entry.programId, {}, entry.description},
            {entry.programId + u"\\CLSID", {}, clsid},
            {entry.programId + u"\\CurVer", {}, versioned(entry)}};
}

std::vector<RegistryEntry> classEntries(const RegisteredClass& entry, const std::u16string& file) {
    std::vector<RegistryEntry> entries;
    const auto add = [&, key = classKey(entry)](std::u16string_view path, std::optional<std::u16string> text = {},
                                                std::u16string_view name = {}) {
        entries.push_back({key + std::u16string(path), std::u16string(name), std::move(text)});
    };
    add(u"", entry.description);
    add(u"\\InprocServer32", file);
    add(u"\\InprocServer32", u"Apartment", u"ThreadingModel");
    if (entry.programId.empty()) return entries;
    add(u"\\ProgID", versioned(entry));
    add(u"\\VersionIndependentProgID", entry.programId);
    add(u"\\Programmable");
    add(u"\\Implemented Categories\\{40FC6ED5-2438-11CF-A3DB-080036F12502}");  // can be automated
    if (entry.isControl) {
        add(u"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}");
        add(u"\\Implemented Categories\\{7DD95801-9882-11CF-9FA9-00AA006C42C4}");  // safe to be scripted
        add(u"\\Implemented Categories\\{7DD95802-9882-11CF-9FA9-00AA006C42C4}");  // safe to be loaded with data
        add(u"\\Control");
        add(u"\\MiscStatus", u"0");
        add(u"\\MiscStatus\\1", widen(std::to_string(entry.miscStatus)));
        add(u"\\ToolboxBitmap32", file + u", " + widen(std::to_string(entry.toolboxPicture)));
    }
    if (entry.isInTypeLibrary) {
        add(u"\\TypeLib", braced(identities::TypeLibrary));
        add(u"\\Version", typeLibraryVersion());
    }
    return entries;
}

std::vector<std::u16string> programIdKeys(const RegisteredClass& entry) {
    if (entry.programId.empty()) return {};
    return {versioned(entry), entry.programId};
}

std::u16string classKey(const RegisteredClass& entry) { return u"CLSID\\" + braced(entry.clsid); }

std::vector<RegistryEntry> typeLibraryEntries() {
    const std::u16string key = typeLibraryKey();
    // Its flags say that it is one of controls.
    return {{key, {}, std::u16string(LibraryName) + u" data-entry controls"}, {key + u"\\FLAGS", {}, u"2"}};
}

std::vector<RegistryEntry> typeLibraryEntries(int bits, const std::u16string& file) {
    std::vector<RegistryEntry> entries{{typeLibraryKey() + u"\\0\\win" + widen(std::to_string(bits)), {}, file}};
    for (const ClassIdentity& identity : identities::Classes)
        for (const CalledInterface& called : interfacesOf(identity)) {
            const std::u16string key = u"Interface\\" + braced(called.id);
            entries.push_back({key, {}, called.name});
            entries.push_back({key + u"\\ProxyStubClsid32", {}, braced(called.proxies)});
            entries.push_back({key + u"\\TypeLib", {}, braced(identities::TypeLibrary)});
            entries.push_back({key + u"\\TypeLib", u"Version", typeLibraryVersion()});
        }
    return entries;
}

}  // namespace kel
