#include "common/FieldState.h"

namespace kel {

BackChange backOnGotFocus(const SharedSettings& settings, bool locked) {
    return {locked ? settings.FieldBackFocusLocked : settings.FieldBackFocus, false};
}

BackChange backOnExitFocus(const SharedSettings& settings, bool locked) {
    return {locked ? settings.FieldBackLocked : settings.FieldBackNormal, true};
}

BackChange backOnStateChange(const SharedSettings& settings, bool barred, Color current) {
    if (barred) {
        if (current == settings.FieldBackFocus) return {settings.FieldBackFocusLocked, false};
        return {settings.FieldBackLocked, true};
    }
    if (current == settings.FieldBackFocusLocked) return {settings.FieldBackFocus, false};
    return {settings.FieldBackNormal, true};
}

void selectOnFocus(TextEntry& box, bool tabKeyDown) {
    if (!tabKeyDown) {
        box.setSelLength(0);
        return;
    }
    box.setSelStart(0);
    box.setSelLength(box.textLength());
}

void selectOverwritten(TextEntry& box) {
    const bool isAtEnd = box.selStart() == box.textLength();
    if (box.selLength() != 0 || isAtEnd) return;
    box.setSelLength(1);
    if (box.selLength() != 0) return;
    // A box selects no half characters: either a pair stands there, which goes whole, or a line break, which
    // stays.
    box.setSelLength(2);
    if (box.selText().starts_with(u'\r')) box.setSelLength(0);
}

}  // namespace kel
