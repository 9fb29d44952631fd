#include "platform/win32/base/Session.h"

#include <algorithm>

#include "platform/win32/home/Win32FormWindow.h"

namespace kel::win32 {

void Session::remove(const Win32FormWindow& window) {
    std::erase(Windows_, &window);
    if (Active_ == &window) Active_ = nullptr;
}

HWND Session::activeWindow() const { return Active_ != nullptr ? Active_->window() : nullptr; }

void Session::send(std::int16_t keyCode) {
    if (Active_ != nullptr) Active_->sendKey(keyCode);
}

Win32FormWindow* Session::windowOf(HWND window) const {
    const HWND root = GetAncestor(window, GA_ROOT);
    const auto found = std::find_if(Windows_.begin(), Windows_.end(),
                                    [root](const Win32FormWindow* form) { return form->window() == root; });
    return found != Windows_.end() ? *found : nullptr;
}

void Session::serve(MSG& message, bool translate) const {
    Win32FormWindow* const form = message.hwnd != nullptr ? windowOf(message.hwnd) : nullptr;
    if (form != nullptr && form->takesKey(message)) return;
    if (translate) TranslateMessage(&message);
    DispatchMessageW(&message);
}

void Session::settle(bool byHand) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        // Not for here: it ends `run`.
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        serve(message, !byHand);
    }
}

void Session::run() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) serve(message, true);
}

void Session::closed() {
    const bool last = std::none_of(Windows_.begin(), Windows_.end(), [](const Win32FormWindow* form) {
        return IsWindowVisible(form->window()) != FALSE;
    });
    if (last) PostQuitMessage(0);
}

}  // namespace kel::win32
