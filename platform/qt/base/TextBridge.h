#pragma once

#include <QString>
#include <string_view>

/// Text between Qt and the controls. Both count UTF-16 units, so nothing is converted, only looked at or copied.
namespace kel::qt {

inline std::u16string_view viewOf(QStringView text) { return {text.utf16(), static_cast<std::size_t>(text.size())}; }

inline QStringView qtViewOf(std::u16string_view text) { return {text.data(), static_cast<qsizetype>(text.size())}; }

inline QString toQString(std::u16string_view text) { return qtViewOf(text).toString(); }

/// Qt counts positions in a text as int.
inline int toInt(std::size_t position) { return static_cast<int>(position); }

}  // namespace kel::qt
