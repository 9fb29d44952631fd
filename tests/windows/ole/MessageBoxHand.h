#pragma once

#include <windows.h>

#include <functional>

namespace kel::tests {

/// While it lives: as soon as a message box of this thread is up, does something to it, once, and then answers it
/// with OK if it is still there.
class MessageBoxHand {
public:
    explicit MessageBoxHand(std::function<void(HWND box)> deed = {});
    ~MessageBoxHand();
    MessageBoxHand(const MessageBoxHand&) = delete;
    MessageBoxHand& operator=(const MessageBoxHand&) = delete;

    /// Boxes that came up.
    int seen() const { return Seen_; }

private:
    static void CALLBACK look(HWND window, UINT message, UINT_PTR timer, DWORD time);

    std::function<void(HWND)> Deed_;
    UINT_PTR Timer_;
    HWND Answered_ = nullptr;
    int Seen_ = 0;
};

}  // namespace kel::tests
