#include "values/FormatExpressionNames.h"

#include <cstdint>

#include "values/Text.h"

namespace kel {

namespace {

constexpr NamedFormat NamedFormats[] = {
    {u"General Number", u""},
    {u"Fixed", u"0.00"},
    {u"Standard", u"#,##0.00"},
    {u"Currency", u"#,##0.00;(#,##0.00)"},
    {u"Percent", u"0.00%"},
    {u"Scientific", u"0.00E+00"},
    {u"Yes/No", u"\"Yes\";\"Yes\";\"No\""},
    {u"True/False", u"\"True\";\"True\";\"False\""},
    {u"On/Off", u"\"On\";\"On\";\"Off\""},
    {u"General Date", u"c", true},
    {u"Long Date", u"dddddd", true},
    {u"Medium Date", u"dd-mmm-yy", true},
    {u"Short Date", u"ddddd", true},
    {u"Long Time", u"ttttt", true},
    {u"Medium Time", u"hh:nn AM/PM", true},
    {u"Short Time", u"hh:nn", true},
};

constexpr std::uint32_t letterBit(char16_t letter) { return 1U << (toLowerAscii(letter) - u'a'); }

/// Whether a name begins with the same letter, which few other expressions do.
bool mayBeName(std::u16string_view expression) {
    constexpr std::uint32_t FirstLetters = [] {
        std::uint32_t letters = 0;
        for (const NamedFormat& format : NamedFormats) letters |= letterBit(format.name.front());
        return letters;
    }();
    if (expression.empty()) return false;
    const char16_t first = toLowerAscii(expression.front());
    return first >= u'a' && first <= u'z' && (FirstLetters & letterBit(first)) != 0;
}

}  // namespace

const NamedFormat* findNamedFormat(std::u16string_view expression) {
    if (!mayBeName(expression)) return nullptr;
    for (const NamedFormat& format : NamedFormats) {
        if (format.name.size() == expression.size() && equalsIgnoringCase(format.name, expression)) return &format;
    }
    return nullptr;
}

}  // namespace kel
