#pragma once

#include <string>
#include <string_view>

namespace kel {

/// What a control tells the person who works it. Its classes list theirs, so that pages and translators have them all.
struct MessageRow {
    std::u16string_view title;  ///< of the message box; empty for words that the control shows itself
    std::u16string_view text;   ///< with "{1}" and "{2}" for what differs from case to case
    std::u16string_view when;   ///< it is told
};

/// The message with these in the places of "{1}" and "{2}".
std::u16string worded(const MessageRow& message, std::u16string_view first = {}, std::u16string_view second = {});

}  // namespace kel
