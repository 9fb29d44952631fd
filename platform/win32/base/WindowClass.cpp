#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

namespace {

/// After all that the system itself keeps with a window.
int placeOfHandler(HWND window) {
    return static_cast<int>(GetClassLongW(window, GCL_CBWNDEXTRA)) - static_cast<int>(sizeof(WindowHandler*));
}

WindowHandler* handlerIn(LPARAM creation) {
    return static_cast<WindowHandler*>(reinterpret_cast<const CREATESTRUCTW*>(creation)->lpCreateParams);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM data) {
    const int place = placeOfHandler(window);
    if (message == WM_NCCREATE) SetWindowLongPtrW(window, place, reinterpret_cast<LONG_PTR>(handlerIn(data)));
    auto* const handler = reinterpret_cast<WindowHandler*>(GetWindowLongPtrW(window, place));
    if (message == WM_NCDESTROY) SetWindowLongPtrW(window, place, 0);
    if (handler == nullptr) return DefWindowProcW(window, message, wide, data);
    return atEdge([&] { return handler->handleMessage(window, message, wide, data); });
}

/// The parts of the system's own widgets leave the place for it to their program, and it is found at once.
LRESULT CALLBACK frontProcedure(HWND window, UINT message, WPARAM wide, LPARAM data) {
    auto* const handler = reinterpret_cast<WindowHandler*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCDESTROY) SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    if (handler == nullptr) return DefWindowProcW(window, message, wide, data);
    return atEdge([&] { return handler->handleMessage(window, message, wide, data); });
}

}  // namespace

HINSTANCE thisModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&thisModule), &module);
    return module;
}

WindowClass::WindowClass(const wchar_t* name) : Name_(name) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &procedure;
    description.cbWndExtra = sizeof(WindowHandler*);
    description.hInstance = thisModule();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR{COLOR_BTNFACE + 1});
    description.lpszClassName = name;
    RegisterClassExW(&description);
}

WindowClass::WindowClass(const wchar_t* name, const wchar_t* base) : Name_(name) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    if (GetClassInfoExW(nullptr, base, &description) == FALSE) description.lpfnWndProc = &DefWindowProcW;
    Base_ = std::exchange(description.lpfnWndProc, &procedure);
    description.cbWndExtra += static_cast<int>(sizeof(WindowHandler*));
    description.hInstance = thisModule();
    description.lpszClassName = name;
    description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    RegisterClassExW(&description);
}

WNDPROC putInFront(HWND window, WindowHandler& handler) {
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&handler));
    return reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&frontProcedure)));
}

void placeWindow(HWND window, const RECT& place) {
    RECT now{};
    GetWindowRect(window, &now);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&now), 2);
    if (EqualRect(&now, &place) != FALSE) return;
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

WindowClass::~WindowClass() { UnregisterClassW(Name_, thisModule()); }

}  // namespace kel::win32
