#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <vector>

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

    bool tabHeld() const { return TabHeld_; }

    /// Serves what has come in so far and what follows from it. The keys that hands press bring their
    /// characters with them; `byHand` has them made of nothing else.
    void settle(bool byHand);
    /// Serves the windows until the last one is closed.
    void run();
    /// The window is closed.
    void closed();

    /// Says while it lives whether the Tab key moves the focus.
    class TabKey {
    public:
        TabKey(Session& session, bool held) : Session_(session), Before_(session.TabHeld_) { session.TabHeld_ = held; }
        ~TabKey() { Session_.TabHeld_ = Before_; }
        TabKey(const TabKey&) = delete;
        TabKey& operator=(const TabKey&) = delete;

    private:
        Session& Session_;
        bool Before_;
    };

private:
    Win32FormWindow* windowOf(HWND window) const;
    void serve(MSG& message, bool translate) const;

    std::shared_ptr<Clipboard> Clipboard_;
    std::vector<Win32FormWindow*> Windows_;
    Win32FormWindow* Active_ = nullptr;
    bool TabHeld_ = false;
};

}  // namespace kel::win32
