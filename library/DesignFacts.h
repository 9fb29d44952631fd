#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// What a designer wants to know of a property beyond its type.
namespace kel {

/// The headings that a designer lists properties under.
enum class Category : std::uint8_t { Misc, Appearance, Behavior, Data, List, Format };

inline constexpr std::array<std::u16string_view, 6> CategoryNames{u"Misc", u"Appearance", u"Behavior",
                                                                  u"Data", u"List",       u"Format"};

/// The page of a property dialog that a property is edited on.
enum class DesignPage : std::uint8_t { General, List, Format, Numbers };

inline constexpr std::array<std::u16string_view, 4> DesignPageTitles{u"General", u"List", u"Format", u"Numbers"};

struct DesignFacts {
    Category category = Category::Misc;
    DesignPage page = DesignPage::General;
    /// For a text, usual ones to pick from; for an enumeration, the names of its values from 0 on.
    std::span<const std::u16string_view> choices{};
    /// The switch that lets a text have several lines; none where it has one line always.
    std::u16string_view linesWhere{};
    /// Data can be bound to it: listeners are asked before it changes and told after, whoever changes it.
    bool isBound = false;
};

}  // namespace kel
