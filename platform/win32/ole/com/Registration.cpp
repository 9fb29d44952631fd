#include "platform/win32/ole/com/Registration.h"

#include "library/AutomationError.h"

namespace kel::win32::ole {

namespace {

constexpr wchar_t ControlCategory[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t AutomationCategory[] = L"{40FC6ED5-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t SafeForScriptingCategory[] = L"{7DD95801-9882-11CF-9FA9-00AA006C42C4}";
constexpr wchar_t SafeForInitializingCategory[] = L"{7DD95802-9882-11CF-9FA9-00AA006C42C4}";

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

    /// An empty name is the key's own value.
    const Key& set(const wchar_t* name, const std::wstring& text) const {
        const auto* const bytes = reinterpret_cast<const BYTE*>(text.c_str());
        checkWin32(
            RegSetValueExW(Key_, name, 0, REG_SZ, bytes, static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
            "the registry cannot be written");
        return *this;
    }
    const Key& set(const std::wstring& text) const { return set(nullptr, text); }

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

std::wstring versioned(const ClassEntry& entry) { return entry.programId + L".1"; }

void writeProgramIds(const Key& classes, const ClassEntry& entry) {
    const std::wstring clsid = textOf(entry.clsid);
    const Key current = classes.sub(versioned(entry));
    current.set(entry.description).sub(L"CLSID").set(clsid);
    const Key independent = classes.sub(entry.programId);
    independent.set(entry.description).sub(L"CLSID").set(clsid);
    independent.sub(L"CurVer").set(versioned(entry));
}

void writeControl(const Key& key, const ClassEntry& entry) {
    key.sub(L"Control");
    key.sub(L"MiscStatus").set(L"0").sub(L"1").set(std::to_wstring(entry.miscStatus));
    key.sub(L"ToolboxBitmap32").set(moduleFile() + L", " + std::to_wstring(entry.toolboxPicture));
    const Key categories = key.sub(L"Implemented Categories");
    for (const wchar_t* const category : {ControlCategory, SafeForScriptingCategory, SafeForInitializingCategory})
        categories.sub(category);
}

void writeClass(const Key& classes, const ClassEntry& entry, const LibraryEntry& library) {
    writeProgramIds(classes, entry);
    const Key key = classes.sub(L"CLSID\\" + textOf(entry.clsid));
    key.set(entry.description);
    key.sub(L"InprocServer32").set(moduleFile()).set(L"ThreadingModel", L"Apartment");
    key.sub(L"ProgID").set(versioned(entry));
    key.sub(L"VersionIndependentProgID").set(entry.programId);
    key.sub(L"Programmable");
    key.sub(L"Implemented Categories").sub(AutomationCategory);
    if (entry.isControl) writeControl(key, entry);
    if (!library.hasTypeLibrary) return;
    key.sub(L"TypeLib").set(textOf(library.typeLibrary));
    key.sub(L"Version").set(std::to_wstring(library.major) + L"." + std::to_wstring(library.minor));
}

/// Folder of the file, which is where help would be.
std::wstring folderOf(const std::wstring& file) { return file.substr(0, file.find_last_of(L"\\/")); }

/// A function of the automation library that older import libraries do not know.
template <class Function>
Function* automationFunction(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), name);
    if (found == nullptr) throw AutomationError(E_NOTIMPL, "this system has no type libraries of one user");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
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

void removeTypeLibrary(const LibraryEntry& library, Scope scope) {
    constexpr SYSKIND Kind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    auto* const unregisterTypes = scope == Scope::Machine
                                      ? &UnRegisterTypeLib
                                      : automationFunction<decltype(UnRegisterTypeLib)>("UnRegisterTypeLibForUser");
    unregisterTypes(library.typeLibrary, library.major, library.minor, LOCALE_NEUTRAL, Kind);
}

}  // namespace

void registerLibrary(const LibraryEntry& library, Scope scope) {
    try {
        const Key classes = Key::classes(scope);
        for (const ClassEntry& entry : library.classes) writeClass(classes, entry, library);
        if (library.hasTypeLibrary) writeTypeLibrary(scope);
    } catch (...) {
        unregisterLibrary(library, scope);
        throw;
    }
}

void unregisterLibrary(const LibraryEntry& library, Scope scope) {
    const Key classes = Key::classes(scope);
    for (const ClassEntry& entry : library.classes) {
        classes.removeTree(versioned(entry));
        classes.removeTree(entry.programId);
        classes.removeTree(L"CLSID\\" + textOf(entry.clsid));
    }
    classes.removeIfEmpty(L"CLSID");  // of a user who had no classes before
    if (library.hasTypeLibrary) removeTypeLibrary(library, scope);
}

}  // namespace kel::win32::ole
