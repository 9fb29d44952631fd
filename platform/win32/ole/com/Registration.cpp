#include "platform/win32/ole/com/Registration.h"

#include "library/AutomationError.h"
#include "platform/win32/base/Procedure.h"

namespace kel::win32::ole {

namespace {

void checkWin32(LSTATUS status, const char* what) { check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), what); }

/// An open key that entries are written under.
class Key {
public:
    static Key classes(Scope scope) {
        return Key(scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, L"Software\\Classes");
    }

    Key(HKEY parent, const std::wstring& path) {
        checkWin32(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &Key_, nullptr),
                   "the registry cannot be written");
    }
    Key(Key&& other) noexcept : Key_(std::exchange(other.Key_, nullptr)) {}
    ~Key() {
        if (Key_ != nullptr) RegCloseKey(Key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    Key sub(const std::wstring& path) const { return Key(Key_, path); }

    /// No name is the key's own value.
    void set(const wchar_t* name, const std::wstring& text) const {
        const auto* const bytes = reinterpret_cast<const BYTE*>(text.c_str());
        checkWin32(
            RegSetValueExW(Key_, name, 0, REG_SZ, bytes, static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
            "the registry cannot be written");
    }

    void removeTree(const std::wstring& path) const { RegDeleteTreeW(Key_, path.c_str()); }

    void removeIfEmpty(const std::wstring& path) const {
        if (sub(path).isEmpty()) RegDeleteKeyW(Key_, path.c_str());
    }

private:
    bool isEmpty() const {
        DWORD keys = 0;
        DWORD values = 0;
        const LSTATUS status = RegQueryInfoKeyW(Key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                                nullptr, nullptr, nullptr, nullptr);
        return status == ERROR_SUCCESS && keys == 0 && values == 0;
    }

    HKEY Key_ = nullptr;
};

void write(const Key& classes, const std::vector<RegistryEntry>& entries) {
    for (const RegistryEntry& entry : entries) {
        const Key key = classes.sub(wide(entry.key));
        if (entry.text) key.set(entry.name.empty() ? nullptr : wide(entry.name).c_str(), wide(*entry.text));
    }
}

/// Folder of the file, which is where help would be.
std::wstring folderOf(const std::wstring& file) { return file.substr(0, file.find_last_of(L"\\/")); }

/// A function of the automation library that older import libraries do not know.
template <class Function>
Function* automationFunction(const char* name) {
    auto* const found = procedureOf<Function>(L"oleaut32.dll", name);
    if (found == nullptr) throw AutomationError(E_NOTIMPL, "this system has no type libraries of one user");
    return found;
}

void writeTypeLibrary(Scope scope) {
    std::wstring file = moduleFile();
    ComPtr<ITypeLib> types;
    check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, types.receive()), "the type library cannot be read");
    std::wstring folder = folderOf(file);
    auto* const registerTypes = scope == Scope::Machine
                                    ? &RegisterTypeLib
                                    : automationFunction<decltype(RegisterTypeLib)>("RegisterTypeLibForUser");
    check(registerTypes(types.get(), file.data(), folder.data()), "the type library cannot be registered");
}

void removeTypeLibrary(Scope scope) {
    constexpr SYSKIND Kind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    auto* const unregisterTypes = scope == Scope::Machine
                                      ? &UnRegisterTypeLib
                                      : automationFunction<decltype(UnRegisterTypeLib)>("UnRegisterTypeLibForUser");
    unregisterTypes(toGuid(identities::TypeLibrary), identities::MajorVersion, identities::MinorVersion, LOCALE_NEUTRAL,
                    Kind);
}

}  // namespace

void registerLibrary(const LibraryEntry& library, Scope scope) {
    try {
        const Key classes = Key::classes(scope);
        const std::u16string file = unwiden(moduleFile());
        for (const RegisteredClass& entry : library.classes) {
            write(classes, programIdEntries(entry));
            write(classes, classEntries(entry, file));
        }
        if (library.hasTypeLibrary) writeTypeLibrary(scope);
    } catch (...) {
        unregisterLibrary(library, scope);
        throw;
    }
}

void unregisterLibrary(const LibraryEntry& library, Scope scope) {
    const Key classes = Key::classes(scope);
    for (const RegisteredClass& entry : library.classes)
        for (const std::u16string& key : keysOf(entry)) classes.removeTree(wide(key));
    classes.removeIfEmpty(L"CLSID");  // of a user who had no classes before
    if (library.hasTypeLibrary) removeTypeLibrary(scope);
}

}  // namespace kel::win32::ole
