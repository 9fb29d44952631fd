#include "platform/win32/home/SystemPicture.h"

#include <algorithm>
#include <utility>

namespace kel::win32 {

namespace {

/// Turns a date or time picture of the system into a format expression.
class PictureReader {
public:
    PictureReader(std::u16string_view picture, std::u16string_view separator, char16_t separatorField, bool isTime)
        : Rest_(picture), Separator_(separator), SeparatorField_(separatorField), IsTime_(isTime) {}

    std::u16string read() {
        while (!Rest_.empty()) step();
        flush();
        return std::move(Out_);
    }

private:
    void step() {
        const char16_t unit = Rest_.front();
        if (unit == u'\'') return quoted();
        if (isField(unit)) return field(unit);
        if (!Separator_.empty() && Rest_.substr(0, Separator_.size()) == Separator_) {
            flush();
            Out_ += SeparatorField_;
            Rest_.remove_prefix(Separator_.size());
            return;
        }
        Literal_ += unit;
        Rest_.remove_prefix(1);
    }

    bool isField(char16_t unit) const {
        return (IsTime_ ? std::u16string_view(u"hHmst") : std::u16string_view(u"dMyg")).find(unit) !=
               std::u16string_view::npos;
    }

    void field(char16_t unit) {
        const std::size_t past = Rest_.find_first_not_of(unit);
        const std::size_t count = past == std::u16string_view::npos ? Rest_.size() : past;
        Rest_.remove_prefix(count);
        if (unit == u'g') return;  // eras are not written
        flush();
        Out_ += expression(unit, count);
    }

    std::u16string expression(char16_t unit, std::size_t count) const {
        switch (unit) {
            case u'y': return std::u16string(count > 2 ? 4 : 2, u'y');
            case u'M': return std::u16string(count, u'm');
            case u'H': return std::u16string(count, u'h');
            case u'm': return std::u16string(count, u'n');
            case u't': return u"AMPM";
            default: return std::u16string(count, unit);
        }
    }

    /// Text between single quotes, of which two in a row are one.
    void quoted() {
        Rest_.remove_prefix(1);
        while (!Rest_.empty()) {
            const bool isQuote = Rest_.front() == u'\'';
            if (isQuote && (Rest_.size() < 2 || Rest_[1] != u'\'')) break;
            Literal_ += Rest_.front();
            Rest_.remove_prefix(isQuote ? 2 : 1);
        }
        if (!Rest_.empty()) Rest_.remove_prefix(1);
    }

    void flush() {
        for (const char16_t unit : Literal_) {
            if (unit != u' ' && unit != u',') Out_ += u'\\';
            Out_ += unit;
        }
        Literal_.clear();
    }

    std::u16string_view Rest_;
    std::u16string_view Separator_;
    char16_t SeparatorField_;
    bool IsTime_;
    std::u16string Literal_;
    std::u16string Out_;
};

}  // namespace

std::u16string formatOfDatePicture(std::u16string_view picture, std::u16string_view separator) {
    return PictureReader(picture, separator, u'/', false).read();
}

std::u16string formatOfTimePicture(std::u16string_view picture, std::u16string_view separator) {
    return PictureReader(picture, separator, u':', true).read();
}

void readGrouping(std::u16string_view sizes, RegionalSettings& region) {
    const auto digit = [sizes](std::size_t at) {
        return static_cast<std::uint8_t>(at < sizes.size() && sizes[at] >= u'0' && sizes[at] <= u'9' ? sizes[at] - u'0'
                                                                                                     : 0);
    };
    region.PrimaryGroup = digit(0);
    region.SecondaryGroup = digit(2) != 0 ? digit(2) : region.PrimaryGroup;
    region.MinimumGroupingDigits = 1;
}

char32_t zeroOfDigits(std::u16string_view digits) {
    const auto breaks = [](char16_t left, char16_t right) { return right != left + 1; };
    const bool isRow = digits.size() == 10 && std::adjacent_find(digits.begin(), digits.end(), breaks) == digits.end();
    return isRow ? zeroOfTenDigits(digits.front()) : U'0';
}

}  // namespace kel::win32
