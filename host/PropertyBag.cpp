#include "host/PropertyBag.h"

namespace kel {

Variant toVariant(const PropertyDefault& byDefault) {
    return std::visit(
        [](const auto& value) -> Variant {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, std::u16string_view>)
                return std::u16string(value);
            else
                return value;
        },
        byDefault);
}

bool equalsDefault(const Variant& value, const PropertyDefault& byDefault) {
    return std::visit(
        [&value](const auto& wanted) {
            using Wanted = std::remove_cvref_t<decltype(wanted)>;
            if constexpr (std::is_same_v<Wanted, std::u16string_view>) {
                const auto* text = std::get_if<std::u16string>(&value);
                return text != nullptr && *text == wanted;
            } else {
                const auto* plain = std::get_if<Wanted>(&value);
                return plain != nullptr && *plain == wanted;
            }
        },
        byDefault);
}

}  // namespace kel
