#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <string_view>

namespace kel::tests {

// What the clients come by of each class, under the names of the members' own tables. It is written down to show that
// nothing of a class is untested.

/// The class of an object by its type information; empty when it gives none.
std::u16string classOf(IDispatch* object);

// Each of these does nothing for a class that is not the library's.

/// A member was got, put or called, as DISPATCH_… says.
void useMember(std::u16string_view className, const wchar_t* name, WORD flags);
void useEvent(std::u16string_view className, DISPID id);
/// A property was handed over from a property bag, under the name that it is read by, or written into one.
void useLoaded(std::u16string_view className, const std::wstring& name);
void useSaved(std::u16string_view className, const std::wstring& name);

/// Writes all that to the file which the environment variable KEL_USED names, if there is one: a line each, such as
/// "KelText get Caption".
void writeUsed();

}  // namespace kel::tests
