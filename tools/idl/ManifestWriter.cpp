#include "tools/idl/ManifestWriter.h"

#include <ostream>

#include "library/ControlStatus.h"
#include "tools/idl/TypeNames.h"

namespace kel::idl {

namespace {

std::string braced(const Guid& guid) { return '{' + textOf(guid) + '}'; }

std::string statusWords(const ClassModel& model) {
    std::string words;
    for (const ControlStatus& status : ControlStatuses)
        if (hasStatus(model, status)) words.append(words.empty() ? "" : ",").append(status.word);
    return words;
}

/// Both stand in every system and make proxies by a type library: the one of interfaces with a function table that
/// automation knows, the other of those that are called late only.
constexpr Guid ByFunctionTable = guid("00020424-0000-0000-C000-000000000046");
constexpr Guid ByDispatch = guid("00020420-0000-0000-C000-000000000046");
constexpr Guid Dispatch = guid("00020400-0000-0000-C000-000000000046");

/// With this a host may call the interface from another apartment, as where a registry says the same.
void writeInterface(std::ostream& out, const std::string& name, const Guid& iid, const Guid& proxies) {
    out << "  <comInterfaceExternalProxyStub name=\"" << name << "\" iid=\"" << braced(iid) << "\"\n    tlbid=\""
        << braced(identities::TypeLibrary) << "\" baseInterface=\"" << braced(Dispatch) << "\" proxyStubClsid32=\""
        << braced(proxies) << "\"/>\n";
}

void writeInterfaces(std::ostream& out, const ClassModel& model) {
    const ClassIdentity& identity = identityOf(model);
    const std::string name = narrow(model.name);
    writeInterface(out, '_' + name, identity.dispatch, ByFunctionTable);
    if (identity.hasEvents()) writeInterface(out, "__" + name, identity.events, ByDispatch);
}

/// `model` is none for a class that is not in the type library.
void writeClass(std::ostream& out, const Guid& clsid, const std::string& programId, const ClassModel* model) {
    out << "    <comClass clsid=\"" << braced(clsid) << "\" progid=\"" << programId
        << "\" threadingModel=\"Apartment\"";
    if (model != nullptr) out << "\n      tlbid=\"" << braced(identities::TypeLibrary) << '"';
    if (model != nullptr && model->isControl()) out << "\n      miscStatusContent=\"" << statusWords(*model) << '"';
    out << ">\n      <progid>" << programId << ".1</progid>\n    </comClass>\n";
}

}  // namespace

void writeManifest(std::ostream& out, const ClassRegistry& classes) {
    const std::string library = narrow(LibraryName);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
           "  <assemblyIdentity type=\"win32\" name=\""
        << library << "\" version=\"" KEL_VERSION "\"/>\n  <file name=\"" << library << ".ocx\">\n    <typelib tlbid=\""
        << braced(identities::TypeLibrary) << "\" version=\"" << identities::MajorVersion << '.'
        << identities::MinorVersion << "\" helpdir=\"\" flags=\"control\"/>\n";
    for (const ClassModel* model : classes.all())
        writeClass(out, identityOf(*model).coclass, library + '.' + narrow(model->name), model);
    for (const PageIdentity& page : identities::Pages)
        out << "    <comClass clsid=\"" << braced(page.coclass) << "\" threadingModel=\"Apartment\"/>\n";
    out << "  </file>\n  <file name=\"KelRuntime8.dll\">\n";
    writeClass(out, identities::Runtime, "KelRuntime8.Runtime", nullptr);
    out << "  </file>\n";
    for (const ClassModel* model : classes.all()) writeInterfaces(out, *model);
    out << "</assembly>\n";
}

}  // namespace kel::idl
