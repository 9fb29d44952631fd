#include "host/focus/Mnemonic.h"

#include "values/CaseFolding.h"

namespace kel {

char16_t mnemonicIn(std::u16string_view caption) {
    for (std::size_t at = caption.find(u'&'); at != caption.npos && at + 1 < caption.size();
         at = caption.find(u'&', at + 2))
        if (caption[at + 1] != u'&') return caption[at + 1];
    return 0;
}

ReadCaption readCaption(std::u16string_view caption) {
    ReadCaption read;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        const bool marks = caption[at] == u'&' && at + 1 < caption.size();
        if (marks) ++at;
        if (marks && caption[at] != u'&' && read.mnemonic == read.text.npos) read.mnemonic = read.text.size();
        read.text += caption[at];
    }
    return read;
}

bool isKeyOf(char16_t mnemonic, char32_t letter) { return mnemonic != 0 && foldCase(mnemonic) == foldCase(letter); }

}  // namespace kel
