#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "controls/datetime/DateTimeText.h"
#include "tests/Drawn.h"
#include "values/Calendar.h"

namespace kel::test {

inline Date day(std::int32_t year, std::int32_t month, std::int32_t dayOfMonth) {
    return dateOf({year, month, dayOfMonth}).value();
}

inline Date clock(std::int32_t hour, std::int32_t minute, std::int32_t second = 0) {
    return timeOf({hour, minute, second}).value();
}

/// A box with its caret drawn in: "15/0|3/2013".
inline BoxState box(std::string_view drawn, std::optional<Date> value) {
    const Drawing drawing(drawn);
    return {drawing.text, drawing.start, value};
}

/// As it stands in the box afterwards.
inline std::string draw(const FieldStep& step) {
    return toUtf8(drawnText(step.text, std::min(step.caret, step.text.size())));
}

}  // namespace kel::test
