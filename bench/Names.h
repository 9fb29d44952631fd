#pragma once

#include <cstdint>
#include <QStringList>
#include <string>
#include <vector>

/// Long lists, ours and Qt's.
namespace kel::bench {

/// Names of which many begin alike, in no order.
inline std::vector<std::u16string> names(int count) {
    constexpr std::u16string_view Beginnings[] = {u"Brook", u"Ash", u"Long", u"Fair", u"Stone", u"Hill", u"Kings"};
    constexpr std::u16string_view Ends[] = {u"ford", u"field", u" Green", u"bury", u"ton"};
    std::vector<std::u16string> names;
    for (int i = 0; i < count; ++i) {
        const auto mixed = static_cast<std::uint32_t>(i) * 2654435761U;
        const std::string number = std::to_string(i);
        names.emplace_back(Beginnings[mixed % 7]).append(Ends[mixed / 7 % 5]).append(u" ");
        names.back().append(number.begin(), number.end());
    }
    return names;
}

inline QStringList qtNames(int count) {
    QStringList list;
    for (const std::u16string& name : names(count)) list += QString::fromStdU16String(name);
    return list;
}

}  // namespace kel::bench
