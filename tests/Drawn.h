#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "values/Text.h"

/// Texts with their caret or selection drawn in: "12.|34", "1[2.3]4".
namespace kel::test {

struct Drawing {
    explicit Drawing(std::string_view drawn) : text(fromUtf8(drawn).value()) {
        start = text.find_first_of(u"|[");
        const bool selects = text[start] == u'[';
        text.erase(start, 1);
        if (!selects) return;
        length = text.find(u']', start) - start;
        text.erase(start + length, 1);
    }

    std::u16string text;
    std::size_t start = 0;
    std::size_t length = 0;
};

inline std::u16string drawnText(std::u16string text, std::size_t start, std::size_t length = 0) {
    if (length == 0) return text.insert(start, u"|");
    return text.insert(start + length, u"]").insert(start, u"[");
}

}  // namespace kel::test
