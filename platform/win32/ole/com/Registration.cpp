#include "platform/win32/ole/com/Registration.h"

#include "library/AutomationError.h"
#include "platform/win32/base/Procedure.h"

namespace kel::win32::ole {

namespace {

void checkWin32(LSTATUS status, const char* what) { check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), what); }

constexpr bool Is64 = sizeof(void*) == 8;

HKEY rootOf(Scope scope) { return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

constexpr std::size_t LongestPath = 160;  ///< of the keys that are looked for

bool isThere(HKEY root, const wchar_t* path, REGSAM view) {
    HKEY found = nullptr;
    if (RegOpenKeyExW(root, path, 0, KEY_READ | view, &found) != ERROR_SUCCESS) return false;
    RegCloseKey(found);
    return true;
}

/// An open key that entries are written under.
class Key {
public:
    static Key classes(Scope scope) { return Key(rootOf(scope), L"Software\\Classes"); }

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

    LSTATUS removeTree(const std::wstring& path) const { return RegDeleteTreeW(Key_, path.c_str()); }

    LSTATUS removeIfEmpty(const std::wstring& path) const {
        return sub(path).isEmpty() ? RegDeleteKeyW(Key_, path.c_str()) : ERROR_SUCCESS;
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

HRESULT removeTypeLibrary(Scope scope) {
    auto* const unregisterTypes = scope == Scope::Machine
                                      ? &UnRegisterTypeLib
                                      : automationFunction<decltype(UnRegisterTypeLib)>("UnRegisterTypeLibForUser");
    const GUID types = toGuid(identities::TypeLibrary);
    const HRESULT removed = unregisterTypes(types, identities::MajorVersion, identities::MinorVersion, LOCALE_NEUTRAL,
                                            Is64 ? SYS_WIN64 : SYS_WIN32);
    // It says the same of one that was not there.
    wchar_t path[LongestPath];
    wsprintfW(path, L"Software\\Classes\\TypeLib\\%s\\%x.%x\\0\\win%d", textOf(types).c_str(), identities::MajorVersion,
              identities::MinorVersion, Is64 ? 64 : 32);
    return isThere(rootOf(scope), path, 0) ? removed : S_OK;
}

/// Whether the server of the other bitness has the class too. Windows keeps the classes of the two apart, but not their
/// names; one of 32 bits alone shows what is here.
bool isServedElsewhere(Scope scope, const RegisteredClass& entry) {
    wchar_t path[LongestPath];
    wsprintfW(path, L"Software\\Classes\\%s\\InprocServer32", wide(classKey(entry)).c_str());
    return isThere(rootOf(scope), path, Is64 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY);
}

/// All that can be removed; the first failure. What is not there is none.
HRESULT remove(const LibraryEntry& library, Scope scope) {
    HRESULT first = S_OK;
    const auto tried = [&first](HRESULT result) {
        if (FAILED(result) && SUCCEEDED(first) && result != HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND)) first = result;
    };
    const Key classes = Key::classes(scope);
    const auto removeTree = [&](const std::u16string& key) {
        tried(HRESULT_FROM_WIN32(static_cast<DWORD>(classes.removeTree(wide(key)))));
    };
    for (const RegisteredClass& entry : library.classes) {
        removeTree(classKey(entry));
        if (isServedElsewhere(scope, entry)) continue;
        for (const std::u16string& key : programIdKeys(entry)) removeTree(key);
    }
    // Of a user who had no classes before.
    tried(HRESULT_FROM_WIN32(static_cast<DWORD>(classes.removeIfEmpty(L"CLSID"))));
    if (library.hasTypeLibrary) tried(removeTypeLibrary(scope));
    return first;
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
        remove(library, scope);
        throw;
    }
}

void unregisterLibrary(const LibraryEntry& library, Scope scope) {
    check(remove(library, scope), "the registry keeps some of the entries");
}

}  // namespace kel::win32::ole
