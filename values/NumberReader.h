#pragma once

#include <cstdint>
#include <string_view>

#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// Numbers as people write them in their region.
///
/// - Digits are the region's or ASCII ones; the decimal separator is the region's. ".5" and "5." are numbers.
/// - Group separators stand in front of the decimal separator, each with a digit before it and exactly as
///   many digits after it as the region groups; there need not be any. Blanks (also no-break, narrow and
///   thin ones) are equal to one another, and so are straight and curly apostrophes.
/// - One sign in front or after: "+", "-", U+2212 or the region's own. Parentheses mean negative, a minus
///   beside or inside them means no more: "-(5.00)" is -5.
/// - An exponent may follow: "1E+20".
/// - Blanks, line ends and writing direction marks around all of this, and blanks beside signs and
///   parentheses, are passed over.
namespace kel {

enum class NumberReading : std::uint8_t {
    None,  ///< no number
    Number,
    TooLarge,  ///< a number, beyond the largest double
};

/// Reads all of `text`. `out` is untouched when it is no number, and the largest double of its sign when it
/// is too large. Never gives a negative zero. The time taken grows with the length of the text.
NumberReading readNumber(std::u16string_view text, const RegionalSettings& region, double& out);

/// The text of a field that is being edited. Where it is no number, what is left in it of a display form is passed
/// over, wherever it stands: "1,23.00" is 123, where there was 1,235.00 and the 5 has been deleted. Of parentheses only
/// both together mean negative.
NumberReading readEditedNumber(std::u16string_view text, const RegionalSettings& region, double& out);

/// Whether `value` is a finite number, a boolean, Empty, or text that reads as a number that a double holds.
/// Dates are not.
bool isNumeric(const Variant& value, const RegionalSettings& region);

/// What `value` is as a number: text is read as a field's, True is -1, a date is its serial. All that is no number is
/// 0; what is too large is the largest double of its sign.
double numberFrom(const Variant& value, const RegionalSettings& region);

}  // namespace kel
