#include "values/FormatExpressionNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "values/DecimalDigits.h"
#include "values/FormatExpressionScanner.h"
#include "values/NumberFormat.h"

namespace kel {

namespace {

constexpr bool isPlace(char16_t unit) { return unit == u'0' || unit == u'#'; }

}  // namespace

/// Reads a section from left to right.
class NumberSection::Compiler {
public:
    Compiler(NumberSection& section, std::u16string_view text) : Section_(section), Scanner_(text) {}

    void run() {
        while (!Scanner_.atEnd()) {
            const FormatScanner::Token token = Scanner_.next();
            if (token.isLiteral || !takeSymbol(token.text.front())) addLiteral(token.text);
        }
        endWholePart();
    }

private:
    bool hasExponent() const { return Section_.ExponentLetter_ != 0; }

    /// False when the symbol stands for itself.
    bool takeSymbol(char16_t symbol) {
        if (symbol == u'%') Section_.Scale_ += 2;
        if (hasExponent()) return false;
        switch (symbol) {
            case u'0':
            case u'#': addPlace(symbol == u'0'); return true;
            case u'.': return takePoint();
            case u',': return takeComma();
            case u'E':
            case u'e': return takeExponent(symbol);
            default: return false;
        }
    }

    void addStep(StepKind kind, std::size_t count) {
        if (!Section_.Steps_.empty() && Section_.Steps_.back().kind == kind)
            Section_.Steps_.back().count += static_cast<std::uint32_t>(count);
        else
            Section_.Steps_.push_back({kind, static_cast<std::uint32_t>(count)});
    }

    void addLiteral(std::u16string_view text) {
        Section_.Literals_ += text;
        addStep(StepKind::Literal, text.size());
    }

    void addPlace(bool isForced) {
        if (HasPoint_) {
            ++Section_.FractionPlaces_;
            if (isForced) Section_.LeastFraction_ = Section_.FractionPlaces_;
            addStep(StepKind::FractionPlace, 1);
            return;
        }
        Section_.Groups_ |= PendingCommas_ != 0;
        PendingCommas_ = 0;
        ++Section_.WholePlaces_;
        if (isForced || Section_.LeastWhole_ != 0) ++Section_.LeastWhole_;
        addStep(StepKind::WholePlace, 1);
    }

    bool takePoint() {
        if (HasPoint_) return false;
        endWholePart();
        HasPoint_ = true;
        addStep(StepKind::Point, 1);
        return true;
    }

    bool takeComma() {
        if (HasPoint_ || Section_.WholePlaces_ == 0) return false;
        ++PendingCommas_;
        return true;
    }

    void endWholePart() {
        Section_.Scale_ -= 3 * PendingCommas_;
        PendingCommas_ = 0;
    }

    bool takeExponent(char16_t letter) {
        const std::u16string_view rest = Scanner_.rest();
        const bool isExponent = Section_.hasPlaces() && rest.size() > 1 &&
                                (rest.front() == u'+' || rest.front() == u'-') && isPlace(rest[1]);
        if (!isExponent) return false;
        endWholePart();
        Section_.ExponentLetter_ = letter;
        Section_.ExponentPlus_ = rest.front() == u'+';
        const std::size_t end = std::min(rest.find_first_not_of(u"0#", 1), rest.size());
        const std::size_t firstForced = std::min(rest.find(u'0', 1), end);
        Section_.LeastExponent_ = static_cast<std::uint32_t>(std::max<std::size_t>(end - firstForced, 1));
        Scanner_.skip(end);
        addStep(StepKind::Exponent, 1);
        return true;
    }

    NumberSection& Section_;
    FormatScanner Scanner_;
    std::int32_t PendingCommas_ = 0;
    bool HasPoint_ = false;
};

class NumberSection::Printer {
public:
    Printer(const NumberSection& section, const Scaled& scaled, const RegionalSettings& region, std::u16string& out)
        : Section_(section),
          Digits_(scaled.number, false),
          Exponent_(scaled.exponent),
          Region_(region),
          Out_(out),
          Grouping_(section.Groups_ ? DigitGrouping(region) : DigitGrouping()) {
        ShownWhole_ = std::max<std::size_t>(Digits_.wholeDigits(), section.LeastWhole_);
        ShownFraction_ = std::max<std::size_t>(Digits_.fractionDigits(), section.LeastFraction_);
        WholeLeft_ = std::max<std::size_t>(ShownWhole_, section.WholePlaces_);
        Separators_ = Grouping_.countIn(ShownWhole_);
    }

    void run() {
        if (Digits_.isNegative()) Out_ += negativeSignOf(Region_);
        std::u16string_view literals = Section_.Literals_;
        for (const Step& step : Section_.Steps_) {
            switch (step.kind) {
                case StepKind::Literal:
                    Out_ += literals.substr(0, step.count);
                    literals.remove_prefix(step.count);
                    break;
                case StepKind::WholePlace: printWhole(step.count); break;
                case StepKind::Point: printPoint(); break;
                case StepKind::FractionPlace: printFraction(step.count); break;
                case StepKind::Exponent: printExponent(); break;
            }
        }
    }

private:
    void printDigit(unsigned digit) {
        std::array<char16_t, 2> units;
        char16_t* const end = putDigit(units.data(), Region_.ZeroDigit, digit);
        Out_.append(units.data(), end);
    }

    /// The digits of so many places, and before the first place those that have none.
    void printWhole(std::size_t places) {
        PlacesLeft_ -= std::min(places, PlacesLeft_);
        for (; WholeLeft_ > PlacesLeft_; --WholeLeft_) {
            if (WholeLeft_ > ShownWhole_) continue;
            const std::size_t lead = WholeLeft_ - std::min(WholeLeft_, Digits_.wholeDigits());
            printDigit(lead != 0 ? 0 : Digits_.wholeDigit(Digits_.wholeDigits() - WholeLeft_));
            if (Separators_ != 0 && WholeLeft_ - 1 == Grouping_.digitsBehind(Separators_)) {
                Out_ += Grouping_.separator();
                --Separators_;
            }
        }
    }

    void printPoint() {
        printWhole(0);
        Out_ += decimalSeparatorOf(Region_);
    }

    void printFraction(std::size_t places) {
        for (std::size_t end = FractionAt_ + places; FractionAt_ < end; ++FractionAt_) {
            if (FractionAt_ < ShownFraction_) printDigit(Digits_.fractionDigit(FractionAt_));
        }
    }

    void printExponent() {
        Out_ += Section_.ExponentLetter_;
        if (Exponent_ < 0)
            Out_ += negativeSignOf(Region_);
        else if (Section_.ExponentPlus_)
            Out_ += u'+';
        std::array<char, 12> text;
        const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::abs(Exponent_)).ptr;
        const auto count = static_cast<std::size_t>(end - text.data());
        for (std::size_t at = count; at < Section_.LeastExponent_; ++at) printDigit(0);
        for (std::size_t at = 0; at < count; ++at) printDigit(static_cast<unsigned>(text[at] - '0'));
    }

    const NumberSection& Section_;
    const DecimalDigits Digits_;
    const std::int32_t Exponent_;
    const RegionalSettings& Region_;
    std::u16string& Out_;
    DigitGrouping Grouping_;
    std::size_t Separators_ = 0;  ///< still to print
    std::size_t ShownWhole_ = 0;
    std::size_t ShownFraction_ = 0;
    std::size_t WholeLeft_ = 0;  ///< whole digits still to print, places for missing ones included
    std::size_t PlacesLeft_ = Section_.WholePlaces_;
    std::size_t FractionAt_ = 0;
};

NumberSection::NumberSection(std::u16string_view section) { Compiler(*this, section).run(); }

NumberSection::Scaled NumberSection::scaled(Decimal number) const {
    number.Exponent += Scale_;
    const auto places = static_cast<std::int32_t>(FractionPlaces_);
    if (ExponentLetter_ == 0 || number.Digits == 0) return {hasPlaces() ? rounded(number, places) : number};
    const auto wanted = static_cast<std::int32_t>(WholePlaces_);
    const auto wholeDigits = [](const Decimal& decimal) { return DecimalDigits(decimal, true).pointAt(); };
    Scaled result;
    result.exponent = wholeDigits(number) - wanted;
    // Rounding up may add a digit, which the power of ten takes in.
    for (const std::int32_t more : {0, 1}) {
        result.exponent += more;
        result.number = number;
        result.number.Exponent -= result.exponent;
        result.number = rounded(result.number, places);
        if (wholeDigits(result.number) <= wanted) break;
    }
    return result;
}

bool NumberSection::showsZero(const Decimal& number) const { return hasPlaces() && scaled(number).number.Digits == 0; }

void NumberSection::print(const Decimal& number, const RegionalSettings& region, std::u16string& out) const {
    Printer(*this, scaled(number), region, out).run();
}

}  // namespace kel
