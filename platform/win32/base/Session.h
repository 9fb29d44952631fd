#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "host/focus/TabKey.h"
#include "platform/win32/base/Clipboard.h"

namespace kel::win32 {

class Win32FormWindow;

/// What the windows of a home share of the person in front of them: one keyboard, one clipboard.
class Session {
public:
    Session() : Clipboard_(std::make_shared<Clipboard>()) {}
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void add(Win32FormWindow& window) { Windows_.push_back(&window); }
    void remove(const Win32FormWindow& window);

    /// The window that keys go to from now on.
    void activate(Win32FormWindow& window) { Active_ = &window; }
    /// nullptr while there is none.
    HWND activeWindow() const;

    const std::shared_ptr<Clipboard>& clipboard() const { return Clipboard_; }

    /// Presses a key on the active window, after what is under way.
    void send(std::int16_t keyCode);

    TabKey& tab() { return Tab_; }
    bool tabHeld() const { return Tab_.isHeld(); }

    /// Serves what has come in so far and what follows from it. The keys that hands press bring their
    /// characters with them; `byHand` has them made of nothing else.
    void settle(bool byHand);
    /// Serves the windows until the last one is closed.
    void run();
    /// The window is closed.
    void closed();

private:
    Win32FormWindow* windowOf(HWND window) const;
    void serve(MSG& message, bool translate) const;

    std::shared_ptr<Clipboard> Clipboard_;
    std::vector<Win32FormWindow*> Windows_;
    Win32FormWindow* Active_ = nullptr;
    TabKey Tab_;
};

}  // namespace kel::win32
