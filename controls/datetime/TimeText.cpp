#include "controls/datetime/TimeText.h"

#include <algorithm>
#include <cmath>

#include "values/Digits.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr PartLetters TimeLetters{u"hns", StepPart::Hour};

constexpr std::int64_t secondsIn(StepPart part) {
    if (part == StepPart::Second) return 1;
    return part == StepPart::Hour ? 3600 : 60;
}

/// Texts have the layout of their format, so the caret's place in the one is its place in the other.
StepPart partAtCaret(std::size_t caret, std::u16string_view format) {
    const std::size_t position = std::max<std::size_t>(caret, 1) - 1;
    for (std::size_t at = position; at < format.size(); ++at) {
        if (const auto part = TimeLetters.partOf(format[at])) return *part;
    }
    return StepPart::Minute;
}

/// After the part's last letter in the format; past the end where that is the end.
std::size_t caretBehind(StepPart part, std::u16string_view format) {
    std::size_t position = format.size();
    while (position > 0 && TimeLetters.partOf(format[position - 1]) != part) --position;
    return position == format.size() ? position + 1 : position;
}

bool isHourBeforeMonth(std::u16string_view four) {
    return toLowerAscii(four[0]) == u'h' && four[1] == u':' && toLowerAscii(four[2]) == u'm' &&
           toLowerAscii(four[3]) == u'm';
}

}  // namespace

std::u16string correctedTimeFormat(std::u16string format) {
    constexpr std::size_t Length = 4;
    for (std::size_t at = 0; at + Length <= format.size(); ++at) {
        if (!isHourBeforeMonth(std::u16string_view(format).substr(at, Length))) continue;
        format.replace(at + 2, 2, format[at + 2] == u'm' ? u"nn" : u"NN");
        break;
    }
    return format;
}

Date timeBound(Date date) {
    constexpr double DayNoise = 1e-9;
    const double time = date.Serial - std::floor(date.Serial);
    if (!(time < 1)) return {0};  // too close below midnight for a double, or no number
    // With a day in front, a serial keeps a second only nearly, and a bound of 2:24 would refuse the 2:24 typed.
    const double second = std::round(time * SecondsPerDay) / SecondsPerDay;
    return {second < 1 && std::abs(time - second) < DayNoise ? second : time};
}

Date clockTime(double secondsSinceMidnight) {
    const double second = std::clamp(std::floor(secondsSinceMidnight), 0.0, static_cast<double>(SecondsPerDay - 1));
    return {second / SecondsPerDay};
}

FieldStep stepTime(const BoxState& box, Date now, std::int32_t delta, const FieldRules& rules) {
    const std::u16string& format = rules.format.text();
    const Date base = box.value.value_or(now);
    const bool isAsShown = box.text == rules.format.show(base, rules.region);
    const bool isWrittenInLetters = TimeLetters.writeAllOf(format, rules.region);
    StepPlace place{StepPart::Minute};
    if (isAsShown && isWrittenInLetters)
        place.part = partAtCaret(box.caret, format);
    else if (isAsShown)
        place = placeFrom(box.caret, base, rules, TimeLetters, StepPart::Minute);
    const Date next = box.value ? addSeconds(base, delta * secondsIn(place.part)).value_or(base) : base;

    FieldStep step{.value = rules.bounds.clamp(next), .isFirst = !box.value};
    step.text = rules.format.show(step.value, rules.region);
    if (isWrittenInLetters)
        step.caret = caretBehind(place.part, format);
    else if (const auto field = fieldOf(place, step.value, rules, TimeLetters))
        step.caret = field->end;
    else
        step.caret = box.caret;
    return step;
}

std::u16string savedTime(std::optional<Date> value) {
    if (!value) return {};
    const TimeParts parts = timePartsOf(*value);
    std::u16string text = u"00:00:00";
    std::size_t at = 0;
    for (const std::int32_t number : {parts.hour, parts.minute, parts.second}) {
        text[at] = static_cast<char16_t>(u'0' + number / 10);
        text[at + 1] = static_cast<char16_t>(u'0' + number % 10);
        at += 3;
    }
    return text;
}

KeyAnswer answerToTimeCharacter(char32_t character, char32_t zeroDigit) {
    constexpr char32_t FirstPrintable = 32;
    constexpr std::u32string_view Accepted = U".0123456789:AMPamp";
    if (const auto answer = answerToCommonCharacter(character)) return *answer;
    if (character < FirstPrintable) return KeyAnswer::Passes;
    const bool isDigit = character >= zeroDigit && character - zeroDigit < NoDigit;
    return isDigit || Accepted.find(character) != std::u32string_view::npos ? KeyAnswer::Writes : KeyAnswer::Refused;
}

}  // namespace kel
