#include "host/focus/Mnemonic.h"

namespace kel {

char16_t mnemonicIn(std::u16string_view caption) {
    for (std::size_t at = caption.find(u'&'); at != caption.npos && at + 1 < caption.size();
         at = caption.find(u'&', at + 2))
        if (caption[at + 1] != u'&') return caption[at + 1];
    return 0;
}

}  // namespace kel
