#pragma once

#include <vector>

#include "platform/win32/ole/automation/Library.h"

namespace kel::win32::ole {

/// One creatable class: what it is, who it is, and how an object of it is made, with one reference.
struct CreatableClass {
    const ClassModel& model;
    const ClassIdentity& identity;
    ComObject* (*make)(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer);
};

const std::vector<CreatableClass>& creatableClasses();

/// nullptr when the library has no class of this identifier.
const CreatableClass* findClass(REFCLSID clsid);

}  // namespace kel::win32::ole
