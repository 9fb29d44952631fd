#pragma once

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "host/Keys.h"

namespace kel::win32 {

/// What comes with the message of a key that goes down, or up.
inline LPARAM keyData(std::int16_t code, bool alt, bool up) {
    constexpr LPARAM Released = static_cast<LPARAM>(0xC0000000U);
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC));
    return 1 | (scan << 16) | (alt ? LPARAM{KF_ALTDOWN} << 16 : 0) | (up ? Released : 0);
}

/// Has these modifier keys of the thread down while it lives, the others not, and perhaps one more key.
class HeldKeys {
public:
    explicit HeldKeys(Modifiers modifiers, int further = 0) : Keys_{VK_SHIFT, VK_CONTROL, VK_MENU, further} {
        BYTE state[KeyCount]{};
        GetKeyboardState(state);
        std::copy(std::begin(state), std::end(state), Before_);
        if (further != 0) state[further] = Down;
        state[VK_SHIFT] = (modifiers & ShiftKey) != 0 ? Down : 0;
        state[VK_CONTROL] = (modifiers & ControlKey) != 0 ? Down : 0;
        state[VK_MENU] = (modifiers & AltKey) != 0 ? Down : 0;
        SetKeyboardState(state);
    }
    ~HeldKeys() {
        BYTE state[KeyCount]{};
        GetKeyboardState(state);
        for (const int key : Keys_) state[key] = Before_[key];
        SetKeyboardState(state);
    }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

    /// A person presses or releases a key meanwhile: so it is afterwards.
    void pressed(BYTE key, bool down) { Before_[key] = down ? Down : 0; }

private:
    static constexpr std::size_t KeyCount = 256;
    static constexpr BYTE Down = 0x80;

    int Keys_[4];
    BYTE Before_[KeyCount]{};
};

}  // namespace kel::win32
