#include "platform/win32/base/Clipboard.h"

#include <algorithm>

namespace kel::win32 {

namespace {

/// Open while it lives, if it can be had.
class OpenClipboardScope {
public:
    explicit OpenClipboardScope(HWND window) {
        constexpr int Attempts = 5;
        constexpr DWORD Pause = 10;  // milliseconds
        for (int attempt = 0; attempt < Attempts && !Open_; ++attempt) {
            if (attempt > 0) Sleep(Pause);
            Open_ = OpenClipboard(window) != FALSE;
        }
    }
    ~OpenClipboardScope() {
        if (Open_) CloseClipboard();
    }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;

    explicit operator bool() const { return Open_; }

private:
    bool Open_ = false;
};

/// Text as a block of memory to be handed over; nullptr when there is none to be had.
HGLOBAL memoryOf(std::u16string_view text) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t));
    if (memory == nullptr) return nullptr;
    auto* const units = static_cast<char16_t*>(GlobalLock(memory));
    *std::copy(text.begin(), text.end(), units) = u'\0';
    GlobalUnlock(memory);
    return memory;
}

std::u16string textIn(HGLOBAL memory) {
    const auto* const units = static_cast<const char16_t*>(GlobalLock(memory));
    if (units == nullptr) return {};
    const char16_t* const end = units + GlobalSize(memory) / sizeof(char16_t);
    std::u16string text(units, std::find(units, end, u'\0'));
    GlobalUnlock(memory);
    return text;
}

}  // namespace

std::u16string Clipboard::text(HWND window) const {
    if (!Kept_.empty() && KeptAt_ == GetClipboardSequenceNumber()) return Kept_;
    const OpenClipboardScope clipboard(window);
    if (!clipboard) return {};
    HANDLE const data = GetClipboardData(CF_UNICODETEXT);
    return data != nullptr ? textIn(data) : std::u16string();
}

void Clipboard::setText(HWND window, std::u16string_view text) {
    Kept_.clear();
    const OpenClipboardScope clipboard(window);
    HGLOBAL memory = clipboard ? memoryOf(text) : nullptr;
    if (memory != nullptr) {
        EmptyClipboard();
        if (SetClipboardData(CF_UNICODETEXT, memory) != nullptr) return;
        GlobalFree(memory);
    }
    Kept_.assign(text);
    KeptAt_ = GetClipboardSequenceNumber();
}

}  // namespace kel::win32
