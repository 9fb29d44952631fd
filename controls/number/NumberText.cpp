#include "controls/number/NumberText.h"

#include <algorithm>

#include "host/Keys.h"
#include "values/Decimal.h"
#include "values/NumberFormat.h"
#include "values/NumberReader.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr Color Red = 0x000000FF;
constexpr char16_t Minus = u'-';

constexpr bool isAsciiDigit(char32_t unit) { return unit >= U'0' && unit <= U'9'; }

bool isDigit(char32_t key, char32_t zero) { return isAsciiDigit(key) || (key >= zero && key - zero < 10); }

TextSpan toEnd(std::size_t start, std::size_t textLength) { return {start, textLength - start}; }

/// The character after the caret, a pair as a whole; nothing at the end.
TextSpan nextCharacter(std::u16string_view text, std::size_t caret) {
    const std::size_t units = std::min<std::size_t>(text.size() - caret, 1);
    return {caret, units + (splitsPair(text, caret + units) ? 1 : 0)};
}

/// A sign in front, unless there is one, and everything after it selected.
KeyEffect typeMinus(std::u16string_view text) {
    KeyEffect effect{.answer = KeyAnswer::Refused};
    std::size_t length = text.size();
    if (!text.starts_with(Minus)) {
        effect.replaced = TextSpan{0, 0};
        effect.inserted = Minus;
        ++length;
    }
    effect.selection = toEnd(1, length);
    return effect;
}

/// Where the decimal character goes. One that is there already moves to the caret, and what lies between is
/// dropped.
TextSpan decimalPlace(std::u16string_view text, TextSpan selection, const KeyRules& rules) {
    const std::size_t caret = selection.start;
    const std::size_t present = text.find(rules.decimalCharacter);
    if (present == std::u16string_view::npos) return rules.insertMode ? selection : nextCharacter(text, caret);
    if (present < caret) return {present, caret - present};
    return {caret, present + 1 - caret};
}

KeyEffect typeDecimal(std::u16string_view text, TextSpan selection, const KeyRules& rules) {
    KeyEffect effect{.answer = KeyAnswer::Refused};
    if (rules.decimals <= 0) return effect;
    effect.replaced = decimalPlace(text, selection, rules);
    effect.inserted = rules.decimalCharacter;
    effect.selection = toEnd(effect.replaced->start + 1, text.size() - effect.replaced->length + 1);
    return effect;
}

KeyEffect typeDigit(std::u16string_view text, TextSpan selection, const KeyRules& rules) {
    KeyEffect effect;
    if (!rules.locked && !rules.insertMode && selection.length == 0)
        effect.selection = nextCharacter(text, selection.start);
    return effect;
}

TextSpan insideOf(std::u16string_view text, TextSpan span) {
    const std::size_t start = std::min(span.start, text.size());
    return {start, std::min(span.length, text.size() - start)};
}

/// What surrounds a number where it was copied.
std::u16string_view withoutPadding(std::u16string_view text) {
    constexpr std::u16string_view Padding = u" \t\v\f\r\n\u00A0\u2007\u2009\u202F\u200E\u200F\u061C";
    const std::size_t first = std::min(text.find_first_not_of(Padding), text.size());
    const std::size_t end = text.find_last_not_of(Padding) + 1;
    return text.substr(first, std::max(first, end) - first);
}

/// The plain form of a pasted number. Digits alone are plain, with their leading zeros: after a decimal
/// separator these count.
std::u16string plainForm(std::u16string_view pasted, double number, std::int16_t decimals,
                         const RegionalSettings& region) {
    if (std::all_of(pasted.begin(), pasted.end(), isAsciiDigit)) return std::u16string(pasted);
    std::u16string plain = editText(number, decimals, region);
    if (plain.empty()) plain = u'0';
    return plain;
}

/// The number that `text` is with `inserted` in the place of `selection`, as the field will round it.
std::optional<double> numberWith(std::u16string_view inserted, std::u16string_view text, TextSpan selection,
                                 std::int16_t decimals, const RegionalSettings& region) {
    std::u16string result(text);
    result.replace(selection.start, selection.length, inserted);
    double number = 0;
    if (readNumber(result, region, number) != NumberReading::Number) return std::nullopt;
    return roundDecimally(number, decimals);
}

}  // namespace

std::u16string displayText(double value, std::int16_t decimals, bool groupDigits, const RegionalSettings& region) {
    return formatNumber(value, {.decimals = decimals, .group = groupDigits, .parentheses = true}, region);
}

std::u16string editText(double value, std::int16_t decimals, const RegionalSettings& region) {
    return formatNumber(
        value, {.decimals = decimals, .leadingZero = false, .trailingZeros = false, .typedSymbols = true}, region);
}

Color numberColor(double value) { return value < 0 ? Red : PlainNumberColor; }

double clampNumber(double value, double minimum, double maximum) {
    if (value < minimum) return minimum;
    return value <= maximum ? value : maximum;
}

double steppedNumber(double value, double delta) { return addDecimally(value, delta); }

std::u16string rangeMessage(double minimum, double maximum, std::int16_t decimals, bool groupDigits,
                            const RegionalSettings& region) {
    return worded(ValueOutOfRange, displayText(minimum, decimals, true, region),
                  displayText(maximum, decimals, groupDigits, region));
}

KeyEffect filterKey(char32_t key, std::u16string_view text, TextSpan selection, const KeyRules& rules) {
    constexpr char32_t FirstPrintable = 32;
    selection = insideOf(text, selection);
    if (const auto answer = answerToControlCharacter(key)) return {.answer = *answer};
    if (key < FirstPrintable) return {};
    if (key == Minus) return rules.locked ? KeyEffect{} : typeMinus(text);
    if (key == rules.decimalCharacter) return rules.locked ? KeyEffect{} : typeDecimal(text, selection, rules);
    if (isDigit(key, rules.zeroDigit)) return typeDigit(text, selection, rules);
    return {.answer = KeyAnswer::Beeps};
}

std::optional<std::u16string> filterPaste(std::u16string_view pasted, std::u16string_view text, TextSpan selection,
                                          std::int16_t decimals, const RegionalSettings& region) {
    double number = 0;
    pasted = withoutPadding(pasted);
    if (readNumber(pasted, region, number) != NumberReading::Number) return std::nullopt;
    std::u16string plain = plainForm(pasted, number, decimals, region);
    selection = insideOf(text, selection);
    const auto asPasted = numberWith(pasted, text, selection, decimals, region);
    if (!asPasted || asPasted != numberWith(plain, text, selection, decimals, region)) return std::nullopt;
    return plain;
}

}  // namespace kel
