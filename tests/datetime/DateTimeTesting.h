#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "controls/datetime/DateTimeText.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel::testing {

inline Date day(std::int32_t year, std::int32_t month, std::int32_t dayOfMonth) {
    return dateOf({year, month, dayOfMonth}).value();
}

inline Date clock(std::int32_t hour, std::int32_t minute, std::int32_t second = 0) {
    return timeOf({hour, minute, second}).value();
}

/// A text with its caret drawn in: "15/0|3/2013".
struct DrawnBox {
    std::u16string text;
    std::size_t caret;

    explicit DrawnBox(std::string_view drawn) : text(*fromUtf8(drawn)), caret(text.find(u'|')) { text.erase(caret, 1); }

    BoxState holding(std::optional<Date> value) const { return {text, caret, value}; }
};

/// As it stands in the box afterwards.
inline std::string draw(const FieldStep& step) {
    std::u16string text = step.text;
    return toUtf8(text.insert(std::min(step.caret, text.size()), u"|"));
}

}  // namespace kel::testing
