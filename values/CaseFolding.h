#pragma once

#include <string_view>

/// Comparison without regard to case, for every script that has cases, the same in all regions.
namespace kel {

/// The one form that stands for a character in either case. What has no case stays; a character never becomes
/// several, so "ß" is not "ss".
char32_t foldCase(char32_t point);

/// Below 0, 0 or above 0 as `left` comes before `right`, equals it or comes after it, by folded code points.
int compareFolded(std::u16string_view left, std::u16string_view right);

/// As far as `beginning` goes; 0 when `text` begins with it.
int compareFoldedBeginning(std::u16string_view text, std::u16string_view beginning);

}  // namespace kel
