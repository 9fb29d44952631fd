#include "tools/idl/ManifestWriter.h"

#include <ostream>

#include "tools/idl/TypeNames.h"

namespace kel::idl {

namespace {

constexpr std::string_view ControlStatus =
    "recomposeonresize,cantlinkinside,insideout,activatewhenvisible,setclientsitefirst";

std::string braced(const Guid& guid) { return '{' + textOf(guid) + '}'; }

void writeClass(std::ostream& out, const Guid& clsid, const std::string& programId, bool inTypeLibrary,
                bool isControl) {
    out << "    <comClass clsid=\"" << braced(clsid) << "\" progid=\"" << programId
        << "\" threadingModel=\"Apartment\"";
    if (inTypeLibrary) out << "\n      tlbid=\"" << braced(identities::TypeLibrary) << '"';
    if (isControl) out << "\n      miscStatusContent=\"" << ControlStatus << '"';
    out << ">\n      <progid>" << programId << ".1</progid>\n    </comClass>\n";
}

}  // namespace

void writeManifest(std::ostream& out, const ClassRegistry& classes) {
    const std::string library = narrow(LibraryName);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
           "  <assemblyIdentity type=\"win32\" name=\""
        << library << "\" version=\"8.0.0.20\"/>\n  <file name=\"" << library << ".ocx\">\n    <typelib tlbid=\""
        << braced(identities::TypeLibrary) << "\" version=\"" << identities::MajorVersion << '.'
        << identities::MinorVersion << "\" helpdir=\"\" flags=\"control\"/>\n";
    for (const ClassModel* model : classes.all())
        writeClass(out, identityOf(*model).coclass, library + '.' + narrow(model->name), true, model->isControl());
    out << "  </file>\n  <file name=\"KelRuntime8.dll\">\n";
    writeClass(out, identities::Runtime, "KelRuntime8.Runtime", false, false);
    out << "  </file>\n</assembly>\n";
}

}  // namespace kel::idl
