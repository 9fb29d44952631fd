#include "bench/windows/Peers.h"

#include <commctrl.h>

#include "platform/win32/base/WindowClass.h"

namespace kel::bench {

namespace {

constexpr RECT Place{10, 20, 210, 40};  ///< where the hosted controls stand, too
constexpr LONG SpinnerWidth = 16;
constexpr LONG CaptionWidth = 80;

/// Lets what comes from the widgets in it fall.
class Pane final : public win32::WindowHandler {
public:
    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override {
        return DefWindowProcW(window, message, wide, data);
    }
};

}  // namespace

HWND makeWidget(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle, const RECT& place) {
    HWND const made = CreateWindowExW(extendedStyle, windowClass, L"", WS_CHILD | WS_VISIBLE | style, place.left,
                                      place.top, place.right - place.left, place.bottom - place.top, parent, nullptr,
                                      win32::thisModule(), nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return made;
}

HWND makeEdit(HWND parent, const RECT& place) {
    return makeWidget(parent, L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE, place);
}

void settle(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
}

void liveAsEdit(HWND parent) {
    HWND const edit = makeEdit(parent, Place);
    settle(parent);
    DestroyWindow(edit);
}

namespace {

void liveInPane(HWND parent, bool captioned) {
    static const win32::WindowClass PaneClass(L"KelBench.Pane");
    static Pane handler;
    HWND const pane =
        CreateWindowExW(WS_EX_CONTROLPARENT, PaneClass.name(), L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, Place.left,
                        Place.top, Place.right - Place.left, Place.bottom - Place.top, parent, nullptr,
                        win32::thisModule(), static_cast<win32::WindowHandler*>(&handler));
    const RECT inside{0, 0, Place.right - Place.left, Place.bottom - Place.top};
    if (captioned) makeWidget(pane, L"STATIC", SS_LEFT, 0, {0, 0, CaptionWidth, inside.bottom});
    makeEdit(pane, {captioned ? CaptionWidth : 0, 0, inside.right, inside.bottom});
    settle(parent);
    DestroyWindow(pane);
}

}  // namespace

void liveAsEditInPane(HWND parent) { liveInPane(parent, false); }

void liveAsCaptionedEdit(HWND parent) { liveInPane(parent, true); }

void liveAsSpinner(HWND parent) {
    HWND const edit = makeEdit(parent, {Place.left, Place.top, Place.right - SpinnerWidth, Place.bottom});
    HWND const spinner =
        makeWidget(parent, UPDOWN_CLASSW, 0, 0, {Place.right - SpinnerWidth, Place.top, Place.right, Place.bottom});
    SendMessageW(spinner, UDM_SETRANGE32, 0, 100);
    settle(parent);
    DestroyWindow(spinner);
    DestroyWindow(edit);
}

void liveAsComboBox(HWND parent) {
    constexpr LONG ListHeight = 160;
    HWND const box = makeWidget(parent, L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, 0,
                                {Place.left, Place.top, Place.right, Place.bottom + ListHeight});
    settle(parent);
    DestroyWindow(box);
}

void liveAsCheckBox(HWND parent) {
    HWND const box = makeWidget(parent, L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX, 0, Place);
    settle(parent);
    DestroyWindow(box);
}

void liveAsProgressBar(HWND parent) {
    HWND const bar = makeWidget(parent, PROGRESS_CLASSW, 0, 0, Place);
    settle(parent);
    DestroyWindow(bar);
}

}  // namespace kel::bench
