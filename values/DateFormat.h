#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "values/FormatExpressionFields.h"

namespace kel {

/// The format of a date field, taken apart once to read many texts by it.
class DateFormat {
public:
    /// A part of the format, or what stands between parts.
    struct Step {
        DateField field = DateField::Literal;
        bool isBeforeDigit = false;  ///< a number, whose digits may touch those of the next part
        std::uint32_t textStart = 0;
        std::uint32_t textUnits = 0;
    };

    /// No format, by which texts are read as the region writes dates.
    DateFormat() = default;
    /// A format expression, or the name of one.
    explicit DateFormat(std::u16string_view given);

    /// As it was given.
    const std::u16string& given() const { return Given_; }
    std::u16string_view expression() const { return Expression_; }
    std::span<const Step> steps() const { return Steps_; }
    /// Valid as long as the format.
    DateToken token(const Step& step) const {
        return {step.field, std::u16string_view(Texts_).substr(step.textStart, step.textUnits)};
    }

private:
    std::u16string Given_;
    std::u16string Expression_;
    std::u16string Texts_;  ///< of all steps
    std::vector<Step> Steps_;
};

}  // namespace kel
