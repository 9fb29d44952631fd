#pragma once

#include <string_view>

namespace kel {

/// A format that has a name of its own, and what it stands for.
struct NamedFormat {
    std::u16string_view name;
    std::u16string_view expression;
    bool isDate = false;
};

/// By name, in any case of letters; nullptr for every other expression.
const NamedFormat* findNamedFormat(std::u16string_view expression);

}  // namespace kel
