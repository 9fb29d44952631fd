#include "platform/win32/ole/com/EntryPoints.h"

#include <cstdlib>
#include <cwchar>
#include <exception>

namespace __gnu_cxx {

/// In place of the standard library's own: what that would write to a console, of which a server has none, takes fifty
/// kilobytes with all that it needs.
void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx

namespace {

using namespace kel::win32::ole;

/// Makes objects of one class.
class ClassFactory final : public ComObject, public Part<IClassFactory> {
public:
    ClassFactory(Module& module, Maker maker)
        : ComObject(module, nullptr), Part(static_cast<ComObject&>(*this)), Module_(module), Maker_(std::move(maker)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        // A larger object asks for the object itself, through which it reaches all else.
        if (outer != nullptr && !IsEqualGUID(iid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
        return guarded([&] { return giveNew(Maker_(outer), iid, out); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
        if (lock != FALSE) {
            Module_.add();
        } else {
            Module_.remove();
        }
        return S_OK;
    }

protected:
    void* find(REFIID iid) override { return asOneOf<IClassFactory>(iid, *this); }

private:
    Module& Module_;
    Maker Maker_;
};

HRESULT install(bool wanted, Scope scope) {
    return atEdge([&] {
        if (wanted) {
            registerLibrary(libraryEntry(), scope);
        } else {
            unregisterLibrary(libraryEntry(), scope);
        }
    });
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return atEdge([&] {
        Maker maker = makerOf(clsid);
        if (!maker) return CLASS_E_CLASSNOTAVAILABLE;
        return giveNew(new ClassFactory(serverModule(), std::move(maker)), iid, out);
    });
}

STDAPI DllCanUnloadNow() {
    return atEdge([] { return releaseIfIdle() ? S_OK : S_FALSE; });
}

STDAPI DllRegisterServer() { return install(true, Scope::Machine); }

STDAPI DllUnregisterServer() { return install(false, Scope::Machine); }

/// "user" installs for the user alone; anything else for the machine.
STDAPI DllInstall(BOOL wanted, LPCWSTR options) {
    const bool forUser = options != nullptr && _wcsicmp(options, L"user") == 0;
    return install(wanted != FALSE, forUser ? Scope::User : Scope::Machine);
}
