#include "values/Words.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "values/CaseFolding.h"
#include "values/Digits.h"

namespace kel {

namespace {

struct UnitRange {
    char16_t first;
    char16_t last;
};

/// Blanks, punctuation and symbols beyond ASCII, in order.
constexpr UnitRange NoWords[] = {
    {0x0080, 0x00A9}, {0x00AB, 0x00B4}, {0x00B6, 0x00B9}, {0x00BB, 0x00BF}, {0x00D7, 0x00D7},  // Latin
    {0x00F7, 0x00F7}, {0x02C2, 0x02C5}, {0x02D2, 0x02DF}, {0x037E, 0x037E}, {0x0387, 0x0387},  // and Greek
    {0x055A, 0x055F}, {0x0589, 0x058F}, {0x05BE, 0x05BE}, {0x05C0, 0x05C0}, {0x05C3, 0x05C3},  // Armenian, Hebrew
    {0x05C6, 0x05C6}, {0x05F3, 0x05F4}, {0x0600, 0x060F}, {0x061B, 0x061F}, {0x066A, 0x066D},  // Arabic
    {0x06D4, 0x06D4}, {0x06DD, 0x06DE}, {0x06E9, 0x06E9}, {0x0700, 0x070F}, {0x0964, 0x0965},  // Syriac, Indic
    {0x0970, 0x0970}, {0x0AF0, 0x0AF1}, {0x0B70, 0x0B70}, {0x0BF0, 0x0BFA}, {0x0C77, 0x0C7F},  //
    {0x0D70, 0x0D79}, {0x0DF4, 0x0DF4}, {0x0E3F, 0x0E3F}, {0x0E4F, 0x0E4F}, {0x0E5A, 0x0E5B},  // and Thai
    {0x0F01, 0x0F17}, {0x0F1A, 0x0F1F}, {0x104A, 0x104F}, {0x10FB, 0x10FB}, {0x1360, 0x1368},  // Tibetan, Burmese
    {0x1680, 0x1680}, {0x17D4, 0x17D6}, {0x17D8, 0x17DB}, {0x1800, 0x180A}, {0x2000, 0x200B},  // dashes, quotes,
    {0x200E, 0x2070}, {0x2072, 0x207E}, {0x2080, 0x208F}, {0x20A0, 0x20CF}, {0x2190, 0x2BFF},  // currencies, signs
    {0x2E00, 0x2E7F}, {0x3000, 0x3004}, {0x3008, 0x3020}, {0x3030, 0x3030}, {0x303D, 0x303F},  // East Asian
    {0x30A0, 0x30A0}, {0x30FB, 0x30FB}, {0xFD3E, 0xFD3F}, {0xFE10, 0xFE19}, {0xFE30, 0xFE6B},  //
    {0xFEFF, 0xFEFF}, {0xFF00, 0xFF0F}, {0xFF1A, 0xFF20}, {0xFF3B, 0xFF40}, {0xFF5B, 0xFF65},  // wide forms
    {0xFFE0, 0xFFFF},
};

/// Letters without their accents, from U+00E0 and from U+03AC on.
constexpr char16_t FirstLatin = 0x00E0;
constexpr std::u16string_view PlainLatin =
    u"aaaaaaæceeeeiiiiðnooooo÷ouuuuyþy"
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiĳĳjjkkĸllllllŀŀllnnnnnnŉŋŋoooooo"
    u"œœrrrrrrssssssssttttŧŧuuuuuuuuuuuuwwyyyzzzzzzſ";
constexpr char16_t FirstGreek = 0x03AC;
constexpr std::u16string_view PlainGreek = u"αεηιυαβγδεζηθικλμνξοπρσστυφχψωιυουω";
constexpr char16_t Io = 0x0451, Ie = 0x0435;

static_assert(FirstLatin + PlainLatin.size() == 0x0180 && FirstGreek + PlainGreek.size() == 0x03CF);

}  // namespace

bool isWordUnitBeyondAscii(char16_t unit) {
    const auto after = std::upper_bound(std::begin(NoWords), std::end(NoWords), unit,
                                        [](char16_t code, const UnitRange& range) { return code < range.first; });
    return unit > std::prev(after)->last;
}

char16_t plainLetterBeyondAscii(char16_t unit) {
    const auto folded = static_cast<char16_t>(foldCase(unit));
    const auto inTable = [folded](char16_t first, std::u16string_view table) {
        return folded >= first && folded < first + table.size();
    };
    if (inTable(FirstLatin, PlainLatin)) return PlainLatin[folded - FirstLatin];
    if (inTable(FirstGreek, PlainGreek)) return PlainGreek[folded - FirstGreek];
    return folded == Io ? Ie : folded;
}

void takeRegionalDigits(std::u16string_view& text, char32_t zero, std::size_t most, DigitGroup& group) {
    std::size_t units = 0;
    for (unsigned digit = digitIn(text, zero, units); digit != NoDigit && group.digits < most;
         digit = digitIn(text, zero, units)) {
        group.add(digit);
        text.remove_prefix(units);
    }
}

bool beginsWithLetters(std::u16string_view text, std::u16string_view wanted) {
    return text.size() >= wanted.size() &&
           std::equal(wanted.begin(), wanted.end(), text.begin(),
                      [](char16_t left, char16_t right) { return plainLetter(left) == plainLetter(right); });
}

}  // namespace kel
