#include "values/TimeReader.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "values/Calendar.h"
#include "values/DateReader.h"
#include "values/DateWords.h"
#include "values/Digits.h"
#include "values/Words.h"

namespace kel {

namespace {

enum class HalfDay : std::uint8_t { None, Morning, Afternoon };

constexpr bool isTimeBlank(char16_t unit) {
    return unit == u' ' || (unit >= 0x09 && unit <= 0x0D) || unit == 0x00A0 || unit == 0x2009 || unit == 0x202F;
}

/// Marks for the direction of writing have no shape.
constexpr bool isUnseen(char16_t unit) {
    if (unit > u' ' && unit < 0x0080) return false;
    return isTimeBlank(unit) || unit == 0x200E || unit == 0x200F || unit == 0x061C;
}

void skipBlanks(std::u16string_view& text) {
    while (!text.empty() && isUnseen(text.front())) text.remove_prefix(1);
}

void trimUnseen(std::u16string_view& text) {
    skipBlanks(text);
    while (!text.empty() && isUnseen(text.back())) text.remove_suffix(1);
}

/// What may be left out of a marker: "p.m." is "pm".
constexpr bool isFiller(char16_t unit) { return isUnseen(unit) || unit == u'.'; }

/// What may stand between hours, minutes and seconds, beside the region's own separator.
constexpr bool isTimeSeparator(char16_t unit) {
    switch (unit) {
        case u':':
        case u'.':
        case u'-':
        case u'h':
        case u'H': return true;
        default: return false;
    }
}

void skipFillers(std::u16string_view& text) {
    while (!text.empty() && isFiller(text.front())) text.remove_prefix(1);
}

/// Words that stand around a time, and the blanks in a date in front of one: more than are ever written, which keeps
/// long texts cheap.
constexpr int MostWords = 16;

/// What is left after the marker, case and fillers aside; all of `text` when it does not begin with it.
std::u16string_view afterMarker(std::u16string_view text, std::u16string_view marker) {
    std::u16string_view rest = text;
    for (skipFillers(marker); !marker.empty(); skipFillers(marker)) {
        skipFillers(rest);
        if (rest.empty() || plainLetter(rest.front()) != plainLetter(marker.front())) return text;
        rest.remove_prefix(1);
        marker.remove_prefix(1);
    }
    return rest.empty() || !isWordUnit(rest.front()) ? rest : text;
}

class Reader {
public:
    Reader(std::u16string_view text, const RegionalSettings& region) : Text_(text), Region_(region) {}

    std::optional<Date> read() {
        if (!takeWords() || !takeParts()) return std::nullopt;
        return timeOf({fullHour(Parts_[0].value), Parts_[1].value, Parts_[2].value});
    }

    /// Whether it is written as times alone are: not with blanks between the parts, not an hour and no more.
    bool isUnmistakable() const { return !HasBlankBetween_ && (IsMany_ || Parts_[0].digits > 2); }

private:
    bool isDigitAt(std::size_t position) const { return beginsWithDigit(Text_.substr(position), Region_.ZeroDigit); }

    /// Takes what stands in front of the first digit and after the last one off the text. False when there is
    /// something else than words after it and one marker.
    bool takeWords() {
        std::size_t first = 0;
        while (first < Text_.size() && !isDigitAt(first)) ++first;
        if (first == Text_.size()) return false;
        std::u16string_view front = Text_.substr(0, first);
        Text_.remove_prefix(first);
        std::size_t last = Text_.size() - 1;
        while (!isDigitAt(last)) --last;
        std::size_t units = 0;
        digitIn(Text_.substr(last), Region_.ZeroDigit, units);
        std::u16string_view back = Text_.substr(last + units);
        Text_ = Text_.substr(0, last + units);
        return takeFront(front) && takeBack(back);
    }

    bool takeFront(std::u16string_view front) {
        if (front.empty()) return true;
        if (isFiller(front.front()) || !takeMarker(front)) return false;
        skipFillers(front);
        return front.empty();
    }

    bool takeBack(std::u16string_view back) {
        skipBlanks(back);
        if (!back.empty() && !isWordUnit(back.front())) return false;
        for (int words = 0; !back.empty(); skipSeparators(back)) {
            if (++words > MostWords) return false;
            const HalfDay before = Half_;
            if (takeMarker(back)) {
                if (before != HalfDay::None) return false;
            } else if (!passWord(back)) {
                return false;
            }
        }
        return true;
    }

    /// A month makes a day of the number in front.
    bool passWord(std::u16string_view& text) const {
        const auto end = std::find_if_not(text.begin(), text.end(), isWordUnit);
        const auto length = static_cast<std::size_t>(end - text.begin());
        const bool isMonth = monthNamed(text.substr(0, length), Region_) != NoMonth;
        text.remove_prefix(length);
        return !isMonth;
    }

    /// The longest marker that `text` begins with.
    bool takeMarker(std::u16string_view& text) {
        std::u16string_view rest = text;
        const auto look = [&](HalfDay half, std::initializer_list<std::u16string_view> markers) {
            for (const std::u16string_view marker : markers) {
                const std::u16string_view after = afterMarker(text, marker);
                if (after.size() >= rest.size()) continue;
                rest = after;
                Half_ = half;
            }
        };
        look(HalfDay::Morning, {Region_.AmMarker});
        look(HalfDay::Afternoon, {Region_.PmMarker});
        if (rest.size() == text.size()) {
            look(HalfDay::Morning, {u"am", u"a"});
            look(HalfDay::Afternoon, {u"pm", u"p"});
        }
        const bool isTaken = rest.size() < text.size();
        text = rest;
        return isTaken;
    }

    bool takeParts() {
        std::size_t count = 0;
        do {
            if (count == Parts_.size()) return false;
            Parts_[count++] = takeDigits(Text_, Region_.ZeroDigit);
        } while (takeSeparator());
        if (!Text_.empty()) return false;
        IsMany_ = count > 1;
        if (!IsMany_) return splitDigits();
        return std::all_of(Parts_.begin(), Parts_.begin() + static_cast<std::ptrdiff_t>(count),
                           [](const DigitGroup& part) { return part.digits == 1 || part.digits == 2; });
    }

    bool takeSeparator() {
        const std::size_t before = Text_.size();
        skipBlanks(Text_);
        const std::size_t blanks = before - Text_.size();
        if (!Text_.empty() && isTimeSeparator(Text_.front()))
            Text_.remove_prefix(1);
        else if (!Region_.TimeSeparator.empty() && Text_.starts_with(Region_.TimeSeparator))
            Text_.remove_prefix(Region_.TimeSeparator.size());
        else if (blanks != 0)
            HasBlankBetween_ = true;
        skipBlanks(Text_);
        return Text_.size() != before;
    }

    bool splitDigits() {
        const DigitGroup whole = Parts_[0];
        switch (whole.digits) {
            case 1:
            case 2: return true;
            case 3:
            case 4:
                Parts_[0].value = whole.value / 100;
                Parts_[1].value = whole.value % 100;
                return true;
            case 6:
                Parts_[0].value = whole.value / 10000;
                Parts_[1].value = whole.value / 100 % 100;
                Parts_[2].value = whole.value % 100;
                return true;
            default: return false;
        }
    }

    std::int32_t fullHour(std::int32_t hour) const {
        if (Half_ == HalfDay::Morning && hour == 12) return 0;
        return Half_ == HalfDay::Afternoon && hour < 12 ? hour + 12 : hour;
    }

    std::u16string_view Text_;
    const RegionalSettings& Region_;
    HalfDay Half_ = HalfDay::None;
    std::array<DigitGroup, 3> Parts_{};
    bool IsMany_ = false;
    bool HasBlankBetween_ = false;
};

/// Whether `text`, which stands in front of what may be a time, is a date and not one of its numbers.
bool isDateInFront(std::u16string_view text, const RegionalSettings& region) {
    if (text.find(u':') != std::u16string_view::npos) return false;
    std::u16string_view rest = text;
    const bool isWholeInDigits = takeDigits(rest, region.ZeroDigit).digits == 8 && rest.empty();
    for (std::size_t before = 0; before != rest.size();) {
        before = rest.size();
        takeDigits(rest, region.ZeroDigit);
        skipBlanks(rest);
    }
    return (isWholeInDigits || !rest.empty()) && isDateInAnyOrder(text, region);
}

/// The time begins as far in front as it can, "15/03 9 20" being 9:20, but an unmistakable one leaves as much as it can
/// to the date: "15 mar 13 9:30" is 9:30.
std::optional<Date> readBehindDate(std::u16string_view text, const RegionalSettings& region) {
    std::optional<Date> found;
    std::u16string_view rest = text;
    for (int words = 0; words < MostWords; ++words) {
        rest.remove_prefix(
            static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), isTimeBlank) - rest.begin()));
        const std::u16string_view front = text.substr(0, text.size() - rest.size());
        skipBlanks(rest);
        if (rest.empty()) break;
        Reader reader(rest, region);
        const std::optional<Date> time = reader.read();
        if (time && (!found || reader.isUnmistakable()) && isDateInFront(front, region)) found = time;
    }
    return found;
}

}  // namespace

std::optional<Date> readTime(std::u16string_view text, const RegionalSettings& region) {
    trimUnseen(text);
    std::optional<Date> time = Reader(text, region).read();
    if (!time) time = readBehindDate(text, region);
    return time;
}

}  // namespace kel
