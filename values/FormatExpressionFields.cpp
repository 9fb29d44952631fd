#include "values/FormatExpressionFields.h"

#include "values/Text.h"

namespace kel {

namespace {

bool beginsWith(std::u16string_view text, std::u16string_view word) {
    return text.size() >= word.size() && equalsIgnoringCase(text.substr(0, word.size()), word);
}

}  // namespace

DateField DateFieldScanner::nextField() const {
    DateFieldScanner ahead = *this;
    DateToken token;
    ahead.next(token);
    return token.field;
}

bool DateFieldScanner::nextLiteral(DateToken& token) {
    token = {DateField::Literal, Scanner_.next().text};
    return true;
}

bool DateFieldScanner::nextWord(DateToken& token) {
    const std::u16string_view rest = Scanner_.rest();
    const Run run = wordAt(rest);
    token.text = rest.substr(0, run.length);
    return take(run.field, run.length, token);
}

/// What begins with a letter that alone is no field.
DateFieldScanner::Run DateFieldScanner::wordAt(std::u16string_view text) const {
    constexpr Run Itself{DateField::Literal};
    const bool isOwn = Source_ == Source::Expression;
    switch (toLowerAscii(text.front())) {
        case u't': return isOwn && beginsWith(text, u"ttttt") ? Run{DateField::LongTime, 5} : Itself;
        case u'c': return isOwn ? Run{DateField::General} : Itself;
        case u'o': return beginsWith(text, u"oooo") ? Run{DateField::MonthName, 4} : Itself;
        case u'a':
            if (beginsWith(text, u"am/pm")) return {DateField::HalfDay, 5};
            if (beginsWith(text, u"a/p")) return {DateField::HalfDay, 3};
            if (beginsWith(text, u"ampm")) return {DateField::RegionalHalfDay, 4};
            return beginsWith(text, u"aaaa") ? Run{DateField::Weekday, 4} : Itself;
        default: return Itself;
    }
}

}  // namespace kel
