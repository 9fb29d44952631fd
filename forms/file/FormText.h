#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

/// The grammar of a form file's lines, over their bytes: all that has a meaning here is ASCII, so a line is taken
/// apart before anybody knows its encoding. Views point into what was handed over. Mistakes are thrown as FormFault.
namespace kel {

/// One line without its line end.
struct FormLine {
    /// An Object line reads as a property until it is known to stand outside all blocks.
    enum class Kind : std::uint8_t { Blank, Version, Object, Begin, End, BeginGroup, EndGroup, Property };
    Kind kind = Kind::Blank;
    std::string_view name;    ///< of a property or group; the class of a block
    std::string_view detail;  ///< a property's value with what follows it; a block's name; a group's GUID; a version
};

FormLine scanFormLine(std::string_view line);

/// True for the line that every form file begins with.
bool isVersionLine(std::string_view line);

/// Between quotes, inner quotes still doubled.
struct QuotedBytes {
    std::string_view inner;
};

/// `"FILE.frx":OFFSET`, with a $ in front when a text stands there.
struct ReferenceBytes {
    QuotedBytes file;
    std::uint32_t offset = 0;
    bool isText = false;
};

/// Anything else: `{GUID}`, `^W`; kept and not understood.
struct RawBytes {
    std::string_view bytes;
};

using ScannedValue = std::variant<std::int32_t, double, QuotedBytes, ReferenceBytes, RawBytes>;

/// A property's value; a comment may follow it, and nothing else may.
ScannedValue scanFormValue(std::string_view detail);

/// The library and the file of `Object = "{GUID}#1.4#0"; "FILE.ocx"`; the file is empty when it is left out.
std::pair<QuotedBytes, QuotedBytes> scanObjectValue(std::string_view detail);

/// With doubled quotes made single.
std::string withoutDoubledQuotes(QuotedBytes quoted);

bool equalsIgnoringAsciiCase(std::string_view left, std::string_view right);

/// The order of names, case ignored.
struct NameOrder {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
    bool operator()(std::u16string_view left, std::u16string_view right) const;
};

/// The beginning of foreign bytes as a message may show it: ASCII, nothing unprintable, not long.
std::string excerptOf(std::string_view bytes);

}  // namespace kel
