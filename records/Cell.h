#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "values/Variant.h"

namespace kel::records {

/// Bytes that no field shows.
struct Bytes {
    std::vector<std::uint8_t> bytes;
    friend bool operator==(const Bytes&, const Bytes&) = default;
};

/// What one column of one record holds, exactly: days, times and decimal numbers are the texts that databases write,
/// 2013-03-15, 10:15:30.25, 12.50, so that nothing is rounded on its way. Which of them a text is, the column says.
using Cell = std::variant<Null, std::int64_t, double, std::u16string, Bytes>;

/// Doubles tell whole numbers apart up to here.
inline constexpr double LargestExactWhole = 9007199254740992.0;

inline bool isNull(const Cell& cell) { return std::holds_alternative<Null>(cell); }

/// The columns of one record, in the table's order, or those of a key in the key's order.
using Cells = std::vector<Cell>;

/// For lists, messages and files: numbers with a point, nothing as "".
std::u16string textOf(const Cell& cell);

}  // namespace kel::records
