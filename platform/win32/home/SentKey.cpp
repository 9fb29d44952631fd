#include "platform/win32/home/SentKey.h"

#include <optional>
#include <utility>
#include <vector>

#include "platform/win32/base/HeldKeys.h"

namespace kel::win32 {

namespace {

/// The keys on their way through a thread's queue. Messages that are posted come in front of the keyboard's, but say
/// nothing of the state of keys: the first key is down from when its press is taken off the queue until its release is.
class SentKeys {
public:
    /// False when the system lets nobody see the queue.
    static bool add(HWND target, WPARAM code);

private:
    struct Key {
        HWND target;
        WPARAM code;
    };

    static LRESULT CALLBACK taken(int code, WPARAM removed, LPARAM message);
    void see(const MSG& message);
    /// What the message does is the first key's own press or release.
    bool isFirst(const MSG& message) const {
        return message.hwnd == Keys_.front().target && message.wParam == Keys_.front().code;
    }

    HHOOK Hook_ = nullptr;
    std::vector<Key> Keys_;
    std::optional<HeldKeys> Held_;
};

thread_local SentKeys* Sent = nullptr;  ///< of this thread, while there are any

bool SentKeys::add(HWND target, WPARAM code) {
    if (Sent == nullptr) {
        // A host may let go of the server while its code still looks at the queue.
        HMODULE stays = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                           reinterpret_cast<LPCWSTR>(&taken), &stays);
        HHOOK const hook = SetWindowsHookExW(WH_GETMESSAGE, &taken, nullptr, GetCurrentThreadId());
        if (hook == nullptr) return false;
        Sent = new SentKeys;
        Sent->Hook_ = hook;
    }
    Sent->Keys_.push_back({target, code});
    const auto key = static_cast<std::int16_t>(code);
    PostMessageW(target, WM_KEYDOWN, code, keyData(key, false, false));
    PostMessageW(target, WM_KEYUP, code, keyData(key, false, true));
    return true;
}

LRESULT CALLBACK SentKeys::taken(int code, WPARAM removed, LPARAM message) {
    if (code == HC_ACTION && removed == PM_REMOVE && Sent != nullptr) Sent->see(*reinterpret_cast<const MSG*>(message));
    return CallNextHookEx(nullptr, code, removed, message);
}

void SentKeys::see(const MSG& message) {
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const bool up = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
    if (down && !Held_ && isFirst(message)) {
        Held_.emplace(NoModifier, static_cast<int>(message.wParam));
        return;
    }
    // A window that is gone is sent nothing more.
    if ((up && isFirst(message)) || IsWindow(Keys_.front().target) == FALSE) {
        Held_.reset();
        Keys_.erase(Keys_.begin());
    } else if (Held_ && (down || up)) {
        Held_->pressed(static_cast<BYTE>(message.wParam), down);
    }
    if (!Keys_.empty()) return;
    UnhookWindowsHookEx(Hook_);
    delete std::exchange(Sent, nullptr);
}

}  // namespace

bool sendKeyAhead(std::int16_t code) {
    HWND const focus = GetFocus();
    return focus != nullptr && SentKeys::add(focus, static_cast<WPARAM>(code));
}

}  // namespace kel::win32
