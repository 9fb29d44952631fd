#include "values/TimeReader.h"

#include <algorithm>
#include <array>

#include "values/Calendar.h"
#include "values/Digits.h"
#include "values/Words.h"

namespace kel {

namespace {

enum class HalfDay : std::uint8_t { None, Morning, Afternoon };

constexpr bool isBlank(char16_t unit) {
    return unit == u' ' || (unit >= 0x09 && unit <= 0x0D) || unit == 0x00A0 || unit == 0x2009 || unit == 0x202F;
}

/// Marks for the direction of writing, which have no shape.
constexpr bool isDirectionMark(char16_t unit) { return unit == 0x200E || unit == 0x200F || unit == 0x061C; }

void skipBlanks(std::u16string_view& text) {
    while (!text.empty() && (isBlank(text.front()) || isDirectionMark(text.front()))) text.remove_prefix(1);
}

void trim(std::u16string_view& text) {
    skipBlanks(text);
    while (!text.empty() && (isBlank(text.back()) || isDirectionMark(text.back()))) text.remove_suffix(1);
}

/// What may be left out of a marker: "p.m." is "pm".
constexpr bool isFiller(char16_t unit) { return isBlank(unit) || isDirectionMark(unit) || unit == u'.'; }

/// Equality of markers, case and fillers aside.
bool isSameMarker(std::u16string_view written, std::u16string_view marker) {
    const auto skipFillers = [](std::u16string_view& text) {
        while (!text.empty() && isFiller(text.front())) text.remove_prefix(1);
    };
    for (skipFillers(written), skipFillers(marker); !written.empty() && !marker.empty();
         skipFillers(written), skipFillers(marker)) {
        if (plainLetter(written.front()) != plainLetter(marker.front())) return false;
        written.remove_prefix(1);
        marker.remove_prefix(1);
    }
    return written.empty() && marker.empty();
}

class Reader {
public:
    Reader(std::u16string_view text, const RegionalSettings& region) : Text_(text), Region_(region) {}

    std::optional<Date> read() {
        trim(Text_);
        if (!takeMarkers() || !takeParts()) return std::nullopt;
        return timeOf({fullHour(Parts_[0].value), Parts_[1].value, Parts_[2].value});
    }

private:
    bool isDigitAt(std::size_t position) const { return beginsWithDigit(Text_.substr(position), Region_.ZeroDigit); }

    /// Takes what stands in front of the first digit and behind the last one off the text. False when it is no
    /// marker, or there are two.
    bool takeMarkers() {
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
        trim(front);
        trim(back);
        if (!front.empty() && !back.empty()) return false;
        const std::u16string_view marker = front.empty() ? back : front;
        return marker.empty() || takeMarker(marker);
    }

    bool takeMarker(std::u16string_view marker) {
        if (isFiller(marker.front())) return false;
        const auto isAny = [marker](std::initializer_list<std::u16string_view> markers) {
            return std::any_of(markers.begin(), markers.end(),
                               [marker](std::u16string_view known) { return isSameMarker(marker, known); });
        };
        if (isAny({Region_.AmMarker, u"am", u"a"}))
            Half_ = HalfDay::Morning;
        else if (isAny({Region_.PmMarker, u"pm", u"p"}))
            Half_ = HalfDay::Afternoon;
        return Half_ != HalfDay::None;
    }

    bool takeParts() {
        std::size_t count = 0;
        do {
            if (count == Parts_.size()) return false;
            Parts_[count++] = takeDigits(Text_, Region_.ZeroDigit);
        } while (takeSeparator());
        if (!Text_.empty()) return false;
        if (count == 1) return splitDigits();
        return std::all_of(Parts_.begin(), Parts_.begin() + static_cast<std::ptrdiff_t>(count),
                           [](const DigitGroup& part) { return part.digits == 1 || part.digits == 2; });
    }

    bool takeSeparator() {
        const std::size_t before = Text_.size();
        skipBlanks(Text_);
        if (Text_.starts_with(u':') || Text_.starts_with(u'.'))
            Text_.remove_prefix(1);
        else if (!Region_.TimeSeparator.empty() && Text_.starts_with(Region_.TimeSeparator))
            Text_.remove_prefix(Region_.TimeSeparator.size());
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
};

}  // namespace

std::optional<Date> readTime(std::u16string_view text, const RegionalSettings& region) {
    return Reader(text, region).read();
}

}  // namespace kel
