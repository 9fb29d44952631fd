#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/Identities.h"
#include "library/TypeModel.h"

/// What the system's registry is told of the component servers. Self-registration writes it when it is asked to, the
/// installers hold it as a table.
namespace kel {

/// A class that programs can make objects of.
struct RegisteredClass {
    Guid clsid;
    /// Without a version; the versioned one is made from it. Empty for a class that is made by its identifier alone.
    std::u16string programId;
    std::u16string description;
    bool isInTypeLibrary = false;
    bool isControl = false;
    std::uint32_t miscStatus = 0;
    int toolboxPicture = 0;  ///< its number among the server's resources
};

/// Of a class of the type library. Throws std::logic_error for a class without an identity.
RegisteredClass registered(const ClassModel& model);

/// A page of property dialogs.
RegisteredClass registered(const PageIdentity& page);

/// The default run-time object, which has a server of its own.
RegisteredClass registeredRuntime();

/// An interface of a class, as a host may call it from another apartment.
struct CalledInterface {
    std::u16string name;
    Guid id;
    Guid proxies;  ///< whose proxies the system makes by the type library
};

/// The class's own, with a function table, and that of its events, if it has any, which are called late only.
std::vector<CalledInterface> interfacesOf(const ClassIdentity& identity);

struct RegistryEntry {
    std::u16string key;                  ///< under "Software\Classes"
    std::u16string name;                 ///< of the value; empty for the key's own
    std::optional<std::u16string> text;  ///< none where there is only the key
};

/// Under the names that programs have for the class, which servers of both bitnesses share.
std::vector<RegistryEntry> programIdEntries(const RegisteredClass& entry);

/// Under the identifier of the class, which each bitness has for itself. `file` is the server's.
std::vector<RegistryEntry> classEntries(const RegisteredClass& entry, const std::u16string& file);

/// The keys that all entries of its names are under, and the one that those of its identifier are.
std::vector<std::u16string> programIdKeys(const RegisteredClass& entry);
std::u16string classKey(const RegisteredClass& entry);

/// Of the type library, which servers of both bitnesses share. Self-registration leaves the type library to the system,
/// which writes the same.
std::vector<RegistryEntry> typeLibraryEntries();

/// Where a bitness, 64 or 32, finds it, and its interfaces for calls between processes.
std::vector<RegistryEntry> typeLibraryEntries(int bits, const std::u16string& file);

}  // namespace kel
