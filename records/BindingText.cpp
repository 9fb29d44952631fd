#include <initializer_list>

#include "host/Widgets.h"
#include "library/Dispatch.h"
#include "records/Binding.h"
#include "records/Moments.h"
#include "values/CaseFolding.h"
#include "values/NumberReader.h"
#include "values/Text.h"

/// Texts from elsewhere, read as the fields read what is typed.
namespace kel::records {

namespace {

constexpr std::size_t LongestShown = 40;

std::u16string quoted(std::u16string_view text) {
    const std::u16string_view shown = headOf(text, LongestShown);
    return u'"' + std::u16string(shown) + (shown.size() < text.size() ? u"\u2026\"" : u"\"");
}

std::u16string count(std::size_t number, std::u16string_view things) {
    return widen(std::to_string(number)) + u" " + std::u16string(things);
}

/// A line break is a carriage return and a line feed in every field.
std::u16string withFieldBreaks(std::u16string_view text) {
    std::u16string broken;
    for (const char16_t unit : text) {
        const bool follows = broken.ends_with(u'\r');
        if (unit == u'\n' && !follows) broken += u'\r';
        if (unit != u'\n' && follows) broken += u'\n';
        broken += unit;
    }
    if (broken.ends_with(u'\r')) broken += u'\n';
    return broken;
}

bool isOneOf(std::u16string_view text, std::initializer_list<std::u16string_view> words) {
    for (const std::u16string_view word : words)
        if (compareFolded(text, word) == 0) return true;
    return false;
}

}  // namespace

std::optional<std::u16string> Binding::take(std::u16string_view text, const RegionalSettings& numbers) {
    switch (Kind_) {
        case Kind::Number: return takeNumber(text, numbers);
        case Kind::Date:
        case Kind::Time: return takeMoment(text);
        case Kind::Check: return takeTruth(text);
        default: return takeText(text);
    }
}

std::u16string Binding::notInList(std::u16string_view text) {
    return u"is " + quoted(text) + u", which is not in the list";
}

std::optional<std::u16string> Binding::takeText(std::u16string_view text) {
    if (Lookup_ && Lookup_->take(std::u16string(text))) return std::nullopt;
    const TextEntry& entry = *Control_->control().widgets().entry;
    std::u16string wanted = withFieldBreaks(text);
    if (!entry.multiLine() && wanted.find(u'\r') != std::u16string::npos)
        return u"has several lines, and the field takes one";
    const auto most = static_cast<std::size_t>(entry.maxLength());
    if (most > 0 && wanted.size() > most)
        return u"has " + count(wanted.size(), u"characters") + u", and the field takes " + widen(std::to_string(most));
    // A tag as a list that this program has written has it, or the text that people see.
    if (ByTag_ && !Lookup_)
        if (std::u16string item = textWithTag(wanted); !item.empty()) wanted = std::move(item);
    put(valueMember().name, wanted);
    if (compareFolded(entry.text(), wanted) == 0 && !isWithoutTag()) return std::nullopt;
    return Kind_ == Kind::Combo ? notInList(text) : u"is " + quoted(text) + u", which the field does not take";
}

std::optional<std::u16string> Binding::takeNumber(std::u16string_view text, const RegionalSettings& numbers) {
    double number = 0;
    if (!text.empty() && readNumber(text, numbers, number) != NumberReading::Number)
        return u"is " + quoted(text) + u", which is no number";
    put(valueMember().name, number);
    const Variant held = get(valueMember().name);
    const auto* const value = std::get_if<double>(&held);
    if (value == nullptr || *value != number)
        return u"is " + quoted(text) + u", which the field does not keep as it is";
    return std::nullopt;
}

std::optional<std::u16string> Binding::takeMoment(std::u16string_view text) {
    const bool isTime = Kind_ == Kind::Time;
    const auto iso = dayOrTimeIn(text);
    Variant value = iso ? Variant(*iso) : Variant(std::u16string(text));
    if (text.empty()) value = Null{};
    put(valueMember().name, value);
    if (!text.empty() && !std::holds_alternative<Date>(get(valueMember().name)))
        return u"is " + quoted(text) + (isTime ? u", which is no time" : u", which is no date");
    return std::nullopt;
}

std::optional<std::u16string> Binding::takeTruth(std::u16string_view text) {
    const bool yes = isOneOf(text, {u"1", u"yes", u"true", u"x"});
    if (!yes && !isOneOf(text, {u"", u"0", u"no", u"false"}))
        return u"is " + quoted(text) + u", which is neither yes nor no";
    put(valueMember().name, yes);
    return std::nullopt;
}

}  // namespace kel::records
