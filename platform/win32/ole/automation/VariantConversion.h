#pragma once

#include "library/TypeModel.h"
#include "platform/win32/ole/com/Com.h"

/// Between the system's variants and the library's.
namespace kel::win32::ole {

/// The value of `in`, references followed; what becomes a text is written by the rules of `locale`. An object comes as
/// an `automationRuntime`. Throws AutomationError with DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW for what the library has
/// no value for: of arrays it has those of one dimension, of strings or variants.
Variant fromAutomation(const VARIANT& in, LCID locale = LOCALE_USER_DEFAULT);

/// The same where a plain value is wanted: an object gives its default property's value.
Variant valueFromAutomation(const VARIANT& in, LCID locale = LOCALE_USER_DEFAULT);

/// The same for a member of this type: an object only where one is wanted, and between texts and dates the form in
/// which the system writes dates. What does not fit is left to the member.
Variant valueFromAutomation(const VARIANT& in, TypeTag type, LCID locale = LOCALE_USER_DEFAULT);

/// `out` holds nothing before; what it is given is the caller's.
void toAutomation(const Variant& value, VARIANT& out);

/// Stores a value in the variable that `target`, a reference, points to, as that variable's own type.
/// Other variants are left alone. Throws AutomationError when the value does not fit.
void writeBack(const Variant& value, const VARIANT& target, LCID locale = LOCALE_USER_DEFAULT);

/// The type that automation gives a value of the library.
VARTYPE automationType(TypeTag type);

}  // namespace kel::win32::ole
