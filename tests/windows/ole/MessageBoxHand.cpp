#include "tests/windows/ole/MessageBoxHand.h"

#include <cwchar>

namespace kel::tests {

namespace {

MessageBoxHand* Hand = nullptr;

BOOL CALLBACK findBox(HWND window, LPARAM found) {
    wchar_t name[16];
    GetClassNameW(window, name, 16);
    if (std::wcscmp(name, L"#32770") != 0 || IsWindowVisible(window) == FALSE || GetDlgItem(window, IDOK) == nullptr)
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

MessageBoxHand::MessageBoxHand(std::function<void(HWND)> deed) : Deed_(std::move(deed)) {
    Hand = this;
    Timer_ = SetTimer(nullptr, 0, 20, &look);
}

MessageBoxHand::~MessageBoxHand() {
    KillTimer(nullptr, Timer_);
    Hand = nullptr;
}

void CALLBACK MessageBoxHand::look(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &findBox, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr || box == Hand->Answered_) return;
    Hand->Answered_ = box;
    ++Hand->Seen_;
    if (Hand->Deed_) Hand->Deed_(box);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

}  // namespace kel::tests
