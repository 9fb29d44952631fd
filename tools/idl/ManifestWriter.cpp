#include "tools/idl/ManifestWriter.h"

#include <ostream>

#include "library/ControlStatus.h"
#include "library/Registration.h"
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

constexpr Guid Dispatch = guid("00020400-0000-0000-C000-000000000046");

/// With this a host may call the interface from another apartment, as where a registry says the same.
void writeInterface(std::ostream& out, const CalledInterface& called) {
    out << "  <comInterfaceExternalProxyStub name=\"" << narrow(called.name) << "\" iid=\"" << braced(called.id)
        << "\"\n    tlbid=\"" << braced(identities::TypeLibrary) << "\" baseInterface=\"" << braced(Dispatch)
        << "\" proxyStubClsid32=\"" << braced(called.proxies) << "\"/>\n";
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
    for (const ClassModel* model : classes.all())
        for (const CalledInterface& called : interfacesOf(identityOf(*model))) writeInterface(out, called);
    out << "</assembly>\n";
}

}  // namespace kel::idl
