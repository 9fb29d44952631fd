#include "records/make/Words.h"

#include <algorithm>

#include "values/Text.h"

namespace kel::records {

namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool isLetter(char16_t unit) { return isUpperAscii(unit) || isLowerAscii(unit); }
char16_t toUpper(char16_t unit) { return isLowerAscii(unit) ? static_cast<char16_t>(unit - 32) : unit; }

bool isGap(char16_t unit) { return unit == u' ' || unit == u'_' || unit == u'-' || unit == u'.'; }

/// In "OrderDate" at the D, in "VATRate" at the R.
bool beginsWord(std::u16string_view name, std::size_t place) {
    if (place == 0 || !isUpperAscii(name[place])) return false;
    const bool isFollowedByLower = place + 1 < name.size() && isLowerAscii(name[place + 1]);
    return isLowerAscii(name[place - 1]) || isDigit(name[place - 1]) ||
           (isUpperAscii(name[place - 1]) && isFollowedByLower);
}

bool isInitials(std::u16string_view word) {
    static constexpr std::u16string_view Known[] = {u"id",  u"vat", u"sku", u"url", u"iban", u"isbn",
                                                    u"ean", u"gps", u"usd", u"eur", u"bic",  u"upc"};
    return std::find(std::begin(Known), std::end(Known), word) != std::end(Known);
}

std::u16string capitals(std::u16string_view word) {
    std::u16string upper(word);
    std::transform(upper.begin(), upper.end(), upper.begin(), &toUpper);
    return upper;
}

}  // namespace

std::vector<std::u16string> wordsOf(std::u16string_view name) {
    std::vector<std::u16string> words(1);
    for (std::size_t i = 0; i < name.size(); ++i) {
        if ((isGap(name[i]) || beginsWord(name, i)) && !words.back().empty()) words.emplace_back();
        if (!isGap(name[i])) words.back() += toLowerAscii(name[i]);
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

std::u16string captionOf(const std::vector<std::u16string>& words) {
    std::u16string caption;
    for (const std::u16string& word : words) {
        if (!caption.empty()) caption += u' ';
        for (const char16_t unit : isInitials(word) ? capitals(word) : word) {
            caption += caption.empty() ? toUpper(unit) : unit;
            if (unit == u'&') caption += unit;
        }
    }
    return caption;
}

std::u16string nameOf(const std::vector<std::u16string>& words) {
    std::u16string name;
    for (const std::u16string& word : words) {
        bool isFirst = true;
        for (const char16_t unit : word) {
            if (!isLetter(unit) && !isDigit(unit)) continue;
            name += isFirst ? toUpper(unit) : unit;
            isFirst = false;
        }
    }
    return name;
}

std::vector<std::u16string> withMnemonics(std::vector<std::u16string> captions, std::set<char16_t> taken) {
    const auto isFirst = [](std::u16string_view, std::size_t i) { return i == 0; };
    const auto isFirstOfWord = [](std::u16string_view text, std::size_t i) { return i > 0 && text[i - 1] == u' '; };
    const auto isConsonant = [](std::u16string_view text, std::size_t i) {
        return std::u16string_view(u"aeiou").find(text[i]) == std::u16string_view::npos;
    };
    const auto isAny = [](std::u16string_view, std::size_t) { return true; };
    // Each has its first letter, if nobody else has; what is left over the others share out in order.
    std::vector<bool> isMarked(captions.size());
    const auto mark = [&](std::size_t caption, auto fits) {
        std::u16string& text = captions[caption];
        for (std::size_t i = 0; i < text.size() && !isMarked[caption]; ++i) {
            if (!isLetter(text[i]) || !fits(text, i) || !taken.insert(toLowerAscii(text[i])).second) continue;
            text.insert(i, 1, u'&');
            isMarked[caption] = true;
        }
    };
    for (std::size_t i = 0; i < captions.size(); ++i) mark(i, isFirst);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        mark(i, isFirstOfWord);
        mark(i, isConsonant);
        mark(i, isAny);
    }
    return captions;
}

}  // namespace kel::records
