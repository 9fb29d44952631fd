// Writes what the component server is built from: its interface definition, the forwarding code of its dual
// interfaces, and its resources; and what installers tell the registry. All of it follows from the members' rows.

#include <algorithm>
#include <fstream>
#include <iostream>

#include "controls/Classes.h"
#include "tools/idl/ForwardWriter.h"
#include "tools/idl/IdlWriter.h"
#include "tools/idl/ManifestWriter.h"
#include "tools/idl/RegistryTableWriter.h"
#include "tools/idl/ResourceWriter.h"

namespace {

int usage() {
    std::cerr << "usage: kel-idl idl|forward|manifest|resources|registry64|registry32 FILE\n";
    return 2;
}

void write(std::string_view what, const char* file) {
    const kel::ClassRegistry& classes = kel::libraryClasses();
    if (what == "resources") return kel::idl::writeResources(file, classes);
    std::ofstream out(file);
    if (what == "idl") kel::idl::writeIdl(out, classes);
    if (what == "forward") kel::idl::writeForwarding(out, classes);
    if (what == "manifest") kel::idl::writeManifest(out, classes);
    if (what == "registry64") kel::idl::writeRegistryTable(out, classes, 64);
    if (what == "registry32") kel::idl::writeRegistryTable(out, classes, 32);
    if (!out.flush()) throw std::runtime_error(std::string("cannot write ") + file);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return usage();
    const std::string_view what = argv[1];
    constexpr std::string_view Known[] = {"idl", "forward", "manifest", "resources", "registry64", "registry32"};
    if (std::find(std::begin(Known), std::end(Known), what) == std::end(Known)) return usage();
    try {
        write(what, argv[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "kel-idl: " << error.what() << '\n';
        return 1;
    }
}
