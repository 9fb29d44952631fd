#include "tests/windows/ole/Hands.h"

#include <string>

#include "tests/windows/ole/Check.h"

namespace kel::tests {

namespace {

struct Search {
    const wchar_t* classPart;
    HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    wchar_t name[64];
    GetClassNameW(window, name, 64);
    if (std::wstring(name).find(search.classPart) == std::wstring::npos) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

void settle() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

HWND descendant(HWND window, const wchar_t* classPart) {
    Search search{classPart, nullptr};
    EnumChildWindows(window, &look, reinterpret_cast<LPARAM>(&search));
    EXPECT(search.found != nullptr);
    return search.found;
}

HWND widgetIn(HWND window) {
    HWND const widget = GetWindow(GetWindow(window, GW_CHILD), GW_CHILD);
    EXPECT(widget != nullptr);
    return widget;
}

void postMouse(HWND target, UINT message, WPARAM buttons, POINT place) {
    PostMessageW(target, message, buttons, MAKELPARAM(place.x, place.y));
}

void drag(HWND target, POINT from, POINT to) {
    postMouse(target, WM_LBUTTONDOWN, MK_LBUTTON, from);
    if (from.x != to.x || from.y != to.y) postMouse(target, WM_MOUSEMOVE, MK_LBUTTON, to);
    postMouse(target, WM_LBUTTONUP, 0, to);
    settle();
}

}  // namespace kel::tests
