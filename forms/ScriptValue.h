#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/Variant.h"

/// Values as play scripts write them: "text" with escapes, numbers, True, False, #2013-03-15#, #10:15:30#,
/// #2013-03-15 10:15:30#, Empty, Null, ["a", "b"].
namespace kel {

/// What stands between the words of a script.
constexpr std::u16string_view ScriptBlanks = u" \t";

/// Takes one value off the front of `rest`, leading blanks too. On a mistake nothing, and `error` says what
/// is wrong.
std::optional<Variant> takeScriptValue(std::u16string_view& rest, std::string& error);

/// As a script would write it. With `dateAsTime` a date shows its time of day alone. Arrays and objects
/// give "".
std::u16string writeScriptValue(const Variant& value, bool dateAsTime = false);

/// In quotes, with escapes.
std::u16string quoteScriptText(std::u16string_view text);

/// In quotes, with escapes, the caret drawn as | and a selection as [ and ]; these marks in the text itself
/// are escaped.
std::u16string drawScriptText(std::u16string_view text, std::size_t selStart, std::size_t selLength);

/// "2013-03-15"; nothing when it is no date.
std::optional<Date> readScriptDate(std::u16string_view text);

/// "10:15:30"; nothing when it is no time of day.
std::optional<Date> readScriptTime(std::u16string_view text);

}  // namespace kel
