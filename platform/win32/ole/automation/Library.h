#pragma once

#include "library/SharedSettings.h"
#include "platform/win32/home/Win32Services.h"
#include "platform/win32/ole/automation/DualPart.h"

namespace kel::win32::ole {

/// What all objects of the loaded library share: one of it a process.
class Library final : public TypeDescriptions {
public:
    static Library& instance();

    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    Module& module() { return Module_; }
    SharedSettings& settings() { return Settings_; }

    /// The type library that the file itself holds.
    ITypeLib& typeLibrary();
    HRESULT typeInfo(REFGUID guid, ITypeInfo** out) override;

    /// True when no object is alive. The run-time object is let go then: nobody is there to use it, and
    /// when the file is unloaded it is too late.
    bool releaseIfIdle();

private:
    Library();

    Module Module_;
    Win32RuntimeServices Services_;
    SharedSettings Settings_;
    ComPtr<ITypeLib> TypeLibrary_;
};

}  // namespace kel::win32::ole
