#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What stands on a form that is made from names of a database.
namespace kel::records {

/// "order_date", "OrderDate" and "ORDER-DATE" are order, date.
std::vector<std::u16string> wordsOf(std::u16string_view name);

/// "Order date"; initials that everybody knows are capitals: "VAT rate". "&" is doubled, as captions have it.
std::u16string captionOf(const std::vector<std::u16string>& words);

/// "OrderDate", of what a name in a program may hold; empty where there is none of it.
std::u16string nameOf(const std::vector<std::u16string>& words);

/// Captions with "&" before the letter that leads there by Alt, which no other has and none of the `taken`, in small
/// letters. Where the letters are used up, without.
std::vector<std::u16string> withMnemonics(std::vector<std::u16string> captions, std::set<char16_t> taken);

}  // namespace kel::records
