#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The two encodings of form files. Nothing in a file names its encoding: valid UTF-8 is UTF-8, all else is
/// Windows-1252.
namespace kel {

/// Ascii is a file that has no other characters; it reads as UTF-8 and may become either.
enum class FormEncoding : std::uint8_t { Ascii, Utf8, Windows1252 };

inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// How `bytes` will be read, the mark in front included.
FormEncoding detectEncoding(std::string_view bytes);

/// `bytes` are a piece of a file of this encoding, cut at ASCII characters.
std::u16string decode(std::string_view bytes, FormEncoding encoding);

/// Nothing when the encoding has no such character.
std::optional<std::string> encode(std::u16string_view text, FormEncoding encoding);

/// A piece of a file carried over into another encoding. Only to UTF-8 does everything fit.
std::string transcode(std::string_view bytes, FormEncoding from, FormEncoding to);

/// Text records of a resource file have the encoding of the form that names them, as far as they can.
std::u16string decodeRecord(std::string_view bytes, FormEncoding form);

/// The record that decodeRecord reads back; nothing when the encoding has no such character.
std::optional<std::string> encodeRecord(std::u16string_view text, FormEncoding form);

}  // namespace kel
