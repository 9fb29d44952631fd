#include "platform/win32/ole/automation/Library.h"

#include <new>

#include "platform/win32/base/Locked.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32::ole {

namespace {

/// As long as the system may call into this code, whoever has loaded its file cannot take it away.
void holdModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&thisModule), &module);
}

}  // namespace

Library& Library::instance() {
    // Never destroyed: when a process ends, the objects it would let go may be gone already.
    alignas(Library) static std::byte place[sizeof(Library)];
    static Library* const Instance = new (place) Library;
    return *Instance;
}

// ---- Apartments

std::shared_ptr<Apartment> Library::apartment() {
    {
        const Locked locked(Lock_);
        const auto known = Apartments_.find(GetCurrentThreadId());
        if (known != Apartments_.end()) return known->second;
    }
    // Nobody else makes that of this thread meanwhile.
    auto made = std::make_shared<Apartment>(&Library::apartmentEnds);
    holdModule();
    const Locked locked(Lock_);
    Apartments_.emplace(GetCurrentThreadId(), made);
    return made;
}

std::shared_ptr<Apartment> Library::takeApartment(bool handedOverToo) {
    const Locked locked(Lock_);
    const auto known = Apartments_.find(GetCurrentThreadId());
    if (known == Apartments_.end() || (known->second->settings().HandedOver && !handedOverToo)) return nullptr;
    std::shared_ptr<Apartment> taken = std::move(known->second);
    Apartments_.erase(known);
    return taken;
}

void Library::endApartment(bool handedOverToo) {
    const std::shared_ptr<Apartment> ended = takeApartment(handedOverToo);
    if (!ended) return;
    ended->end();
    const Locked locked(Lock_);
    ++EndedApartments_;
}

void Library::apartmentEnds() { instance().endApartment(true); }

bool Library::releaseIfIdle() {
    if (!Module_.idle()) return false;
    endApartment(false);
    ComPtr<ITypeLib> types;
    const Locked locked(Lock_);
    std::swap(types, TypeLibrary_);
    // Who asks holds the file by itself; when a thread ended, nobody else might have.
    for (; EndedApartments_ > 0; --EndedApartments_) FreeLibrary(thisModule());
    return Apartments_.empty();
}

// ---- Types

ComPtr<ITypeLib> Library::typeLibrary() {
    {
        const Locked locked(Lock_);
        if (TypeLibrary_) return TypeLibrary_;
    }
    ComPtr<ITypeLib> loaded;
    check(LoadTypeLibEx(moduleFile().c_str(), REGKIND_NONE, loaded.receive()), "the type library is missing");
    const Locked locked(Lock_);
    return TypeLibrary_ = loaded;
}

HRESULT Library::typeInfo(REFGUID guid, ITypeInfo** out) { return typeLibrary()->GetTypeInfoOfGuid(guid, out); }

}  // namespace kel::win32::ole
