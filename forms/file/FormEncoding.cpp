#include "forms/file/FormEncoding.h"

#include <algorithm>

#include "values/Text.h"

namespace kel {

namespace {

bool isAscii(std::string_view bytes) {
    return std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & '\x80') != 0; });
}

/// Line by line, because a large file is nearly all ASCII and need not be decoded for this.
bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        if (!isAscii(line) && !fromUtf8(line)) return false;
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
    }
    return true;
}

}  // namespace

FormEncoding detectEncoding(std::string_view bytes) {
    if (isAscii(bytes)) return FormEncoding::Ascii;
    return isUtf8(bytes) ? FormEncoding::Utf8 : FormEncoding::Windows1252;
}

std::u16string decode(std::string_view bytes, FormEncoding encoding) {
    if (encoding == FormEncoding::Windows1252) return fromWindows1252(bytes);
    return fromUtf8(bytes).value_or(std::u16string());
}

std::optional<std::string> encode(std::u16string_view text, FormEncoding encoding) {
    if (encoding == FormEncoding::Utf8) return toUtf8(text);
    return toWindows1252(text);
}

std::string transcode(std::string_view bytes, FormEncoding from, FormEncoding to) {
    if (from == FormEncoding::Windows1252 && to == FormEncoding::Utf8) return toUtf8(fromWindows1252(bytes));
    return std::string(bytes);
}

std::u16string decodeRecord(std::string_view bytes, FormEncoding form) {
    if (form != FormEncoding::Windows1252) {
        if (auto text = fromUtf8(bytes, HalfPairs::Kept)) return *std::move(text);
    }
    return fromWindows1252(bytes);
}

std::optional<std::string> encodeRecord(std::u16string_view text, FormEncoding form) {
    std::optional<std::string> classic = toWindows1252(text);
    if (form == FormEncoding::Windows1252) return classic;
    const bool readsBack = classic && form == FormEncoding::Ascii && decodeRecord(*classic, form) == text;
    return readsBack ? classic : toUtf8(text, HalfPairs::Kept);
}

}  // namespace kel
