#pragma once

#include "values/RegionalSettings.h"
#include "values/Variant.h"

namespace kel {

enum class CoercionFault : std::uint8_t { None, TypeMismatch, Overflow };

/// Turns a variant into a wanted type as automation callers expect: "12" into 12, True into -1, 12.5 into
/// 12 (halves to even), 12 into "12". Text is read and written by `region`. `out` is untouched on a fault.
/// Null converts to nothing; Empty converts to 0, False and ""; Missing to nothing.
template <class T>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, T& out);

template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, bool&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, std::int16_t&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, std::int32_t&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, double&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, Date&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, std::u16string&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, StringArray&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, ObjectPtr&);
template <>
CoercionFault coerce(const Variant&, const RegionalSettings&, Variant&);

/// The shortest decimal text that reads back as `number`, with a point: "12.5", "1E+20".
std::u16string shortestNumber(double number);

/// Reads all of `text` (outer blanks aside) as a number with the region's decimal separator and digits or
/// ASCII ones. False when it is no number or does not fit a double.
bool readPlainNumber(std::u16string_view text, const RegionalSettings& region, double& out);

}  // namespace kel
