#include "library/Message.h"

#include <iterator>

namespace kel {

std::u16string worded(const MessageRow& message, std::u16string_view first, std::u16string_view second) {
    std::u16string text;
    std::u16string_view rest = message.text;
    for (std::size_t at = rest.find(u'{'); at != std::u16string_view::npos; at = rest.find(u'{')) {
        text.append(rest.substr(0, at)).append(rest[at + 1] == u'1' ? first : second);
        rest.remove_prefix(at + std::size(u"{1}") - 1);
    }
    return text.append(rest);
}

}  // namespace kel
