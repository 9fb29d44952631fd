#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/KeyAnswer.h"
#include "library/Message.h"
#include "values/Color.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// What the number field shows and makes of texts and keys, as pure functions.
namespace kel {

// ---- Numbers as text

/// With the focus elsewhere: fixed decimals, grouped on demand, negative numbers in parentheses.
std::u16string displayText(double value, std::int16_t decimals, bool groupDigits, const RegionalSettings& region);

/// While the field is edited: what the keys could have typed, without grouping and superfluous zeros. Zero is
/// the empty text, 0.5 is ".5".
std::u16string editText(double value, std::int16_t decimals, const RegionalSettings& region);

/// Of a number that is not below zero, and of each while it is edited.
inline constexpr Color PlainNumberColor = 0x00000000;

/// Red below zero.
Color numberColor(double value);

// ---- Ranges and steps

/// The lower bound is looked at first.
double clampNumber(double value, double minimum, double maximum);

/// The number that a step leads to, before the run-time object rounds it and the bounds stop it.
double steppedNumber(double value, double delta);

inline constexpr MessageRow ValueMissing{u"Invalid Value", u"Please enter a non-zero value in this field.",
                                         u"The field is mandatory and its value is 0"};
inline constexpr MessageRow ValueOutOfRange{u"Invalid Value", u"This field only accepts values from {1} to {2}.",
                                            u"The value is below MinValue or above MaxValue"};

/// `ValueOutOfRange` in words. The lower bound is grouped whatever `groupDigits` says.
std::u16string rangeMessage(double minimum, double maximum, std::int16_t decimals, bool groupDigits,
                            const RegionalSettings& region);

// ---- Keys and pasting

/// Units of the text, as a text box counts them.
struct TextSpan {
    std::size_t start = 0;
    std::size_t length = 0;
    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/// What a key does to a text box. An edit puts `inserted` in the place of `replaced`, as typing would; then,
/// also without an edit, `selection` is selected.
struct KeyEffect {
    KeyAnswer answer = KeyAnswer::Passes;
    std::optional<TextSpan> replaced{};
    char16_t inserted = 0;
    std::optional<TextSpan> selection{};  ///< nothing: stays as it is
};

/// How a field takes keys.
struct KeyRules {
    std::int16_t decimals = 0;  ///< 0: no decimal separator can be typed
    char16_t decimalCharacter = u'.';
    char32_t zeroDigit = U'0';  ///< the region's digits are taken beside the ASCII ones
    bool insertMode = false;    ///< else a digit or decimal character replaces the next character
    bool locked = false;
};

/// What the character `key` does in a box that holds `text` with `selection`.
KeyEffect filterKey(char32_t key, std::u16string_view text, TextSpan selection, const KeyRules& rules);

/// The text that takes the place of `selection` when `pasted` is pasted: digits as they are, any other number
/// in its editing form. Nothing when it is no number, would make `text` none, or makes it another one as it is than in
/// that form: "0.5" after "1" looks like 10.5, and its form ".5" makes 1.5.
std::optional<std::u16string> filterPaste(std::u16string_view pasted, std::u16string_view text, TextSpan selection,
                                          std::int16_t decimals, const RegionalSettings& region);

}  // namespace kel
