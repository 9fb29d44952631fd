#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "values/Decimal.h"
#include "values/RegionalSettings.h"

namespace kel {

class FormatScanner;
class DecimalDigits;

/// One section of a number's format expression as the steps that print it.
class NumberSection {
public:
    /// An empty section.
    NumberSection() = default;
    explicit NumberSection(std::u16string_view section);

    bool isEmpty() const { return Steps_.empty(); }

    /// Whether it has places for digits.
    bool hasPlaces() const { return WholePlaces_ + FractionPlaces_ != 0; }

    /// Whether the number is shown, and shown as zero.
    bool showsZero(const Decimal& number) const;

    /// Appends `number`, with the region's minus in front when it is negative.
    void print(const Decimal& number, const RegionalSettings& region, std::u16string& out) const;

private:
    enum class StepKind : std::uint8_t { Literal, WholePlace, Point, FractionPlace, Exponent };
    struct Step {
        StepKind kind;
        std::uint32_t count;  ///< units of the literal, places in a row
    };
    /// The digits to print and the power of ten that goes with them.
    struct Scaled {
        Decimal number;
        std::int32_t exponent = 0;
    };
    class Compiler;
    class Printer;

    Scaled scaled(Decimal number) const;

    std::vector<Step> Steps_;
    std::u16string Literals_;  ///< of all steps, in order
    std::uint32_t WholePlaces_ = 0;
    std::uint32_t LeastWhole_ = 0;  ///< digits always shown in front of the point
    std::uint32_t FractionPlaces_ = 0;
    std::uint32_t LeastFraction_ = 0;  ///< and after it
    std::uint32_t LeastExponent_ = 1;
    std::int32_t Scale_ = 0;       ///< power of ten
    char16_t ExponentLetter_ = 0;  ///< 0: no exponent
    bool ExponentPlus_ = false;
    bool Groups_ = false;
};

}  // namespace kel
