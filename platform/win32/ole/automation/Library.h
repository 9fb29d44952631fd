#pragma once

#include <map>

#include "platform/win32/ole/automation/Apartment.h"
#include "platform/win32/ole/automation/DualPart.h"

namespace kel::win32::ole {

/// What all objects of the loaded library share: one of it a process.
class Library final : public TypeDescriptions {
public:
    static Library& instance();

    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    Module& module() { return Module_; }

    /// That of the calling thread.
    std::shared_ptr<Apartment> apartment();

    HRESULT typeInfo(REFGUID guid, ITypeInfo** out) override;

    /// True when no object is alive and no host has a run-time object here: settings outlive the controls of a form
    /// that is closed, for the next one.
    bool releaseIfIdle();

private:
    Library() = default;

    /// The type library that the file itself holds.
    ComPtr<ITypeLib> typeLibrary();
    static void apartmentEnds();
    std::shared_ptr<Apartment> takeApartment(bool handedOverToo);
    void endApartment(bool handedOverToo);

    Module Module_;
    SRWLOCK Lock_ = SRWLOCK_INIT;  ///< for what follows
    std::map<DWORD, std::shared_ptr<Apartment>> Apartments_;
    int EndedApartments_ = 0;  ///< that hold the file of this code still
    ComPtr<ITypeLib> TypeLibrary_;
};

}  // namespace kel::win32::ole
