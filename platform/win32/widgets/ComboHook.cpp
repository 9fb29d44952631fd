#include "platform/win32/widgets/ComboHook.h"

#include "platform/win32/base/Gdi.h"

namespace kel::win32 {

namespace {

/// The name of a window's property as the number that the system knows it by: it is asked for with every message.
const char* numbered(const char* name) {
    const ATOM number = GlobalAddAtomA(name);
    return number != 0 ? reinterpret_cast<const char*>(ULONG_PTR{number}) : name;
}

const char* const ProcedureProperty = numbered("KelControlsProc");
const char* const ButtonWidthProperty = numbered("KelControls8.ButtonWidth");
const char* const UnicodeProperty = numbered("KelControls8.Unicode");

/// nullptr while the window is not hooked.
WNDPROC previousOf(HWND window) { return reinterpret_cast<WNDPROC>(GetPropA(window, ProcedureProperty)); }

/// Of the kind that the window was when it was hooked: others may hook it in their kind since.
bool isUnicode(HWND window) { return GetPropA(window, UnicodeProperty) != nullptr; }

void setProcedure(HWND window, WNDPROC procedure, bool unicode) {
    const auto value = reinterpret_cast<LONG_PTR>(procedure);
    if (unicode)
        SetWindowLongPtrW(window, GWLP_WNDPROC, value);
    else
        SetWindowLongPtrA(window, GWLP_WNDPROC, value);
}

int buttonWidthOf(HWND window) {
    const auto* const pixels = static_cast<const std::int16_t*>(GetPropA(window, ButtonWidthProperty));
    return pixels != nullptr ? onScreenOf(window, *pixels) : 0;
}

void paintFrame(HWND window) {
    HDC const context = GetWindowDC(window);
    RECT client{};
    GetClientRect(window, &client);
    drawComboFrame(context, client, buttonWidthOf(window));
    ReleaseDC(window, context);
}

void unhook(HWND window, WNDPROC previous) {
    setProcedure(window, previous, isUnicode(window));
    RemovePropA(window, ProcedureProperty);
    RemovePropA(window, UnicodeProperty);
    RemovePropA(window, ButtonWidthProperty);
}

}  // namespace

void setFrameButtonWidth(HWND window, const std::int16_t& pixels) {
    SetPropA(window, ButtonWidthProperty, const_cast<std::int16_t*>(&pixels));
}

void SubclassWindow(HWND window) {
    if (previousOf(window) != nullptr) return;
    // A procedure of the other kind makes the window one of that kind, in which texts lose what it cannot hold.
    const bool unicode = IsWindowUnicode(window) != FALSE;
    const LONG_PTR current =
        unicode ? GetWindowLongPtrW(window, GWLP_WNDPROC) : GetWindowLongPtrA(window, GWLP_WNDPROC);
    if (current == 0 || current == reinterpret_cast<LONG_PTR>(&KelControlsWindowProc)) return;
    // In this order, for the first message that comes to the new procedure.
    SetPropA(window, ProcedureProperty, reinterpret_cast<HANDLE>(current));
    if (unicode) SetPropA(window, UnicodeProperty, reinterpret_cast<HANDLE>(INT_PTR{1}));
    setProcedure(window, &KelControlsWindowProc, unicode);
}

LRESULT CALLBACK KelControlsWindowProc(HWND window, UINT message, WPARAM wide, LPARAM data) {
    const WNDPROC previous = previousOf(window);
    // Somebody who was hooked on top may have put us back after we went.
    if (previous == nullptr)
        return IsWindowUnicode(window) != FALSE ? DefWindowProcW(window, message, wide, data)
                                                : DefWindowProcA(window, message, wide, data);
    const LRESULT result = isUnicode(window) ? CallWindowProcW(previous, window, message, wide, data)
                                             : CallWindowProcA(previous, window, message, wide, data);
    switch (message) {
        case WM_PAINT: paintFrame(window); break;
        case WM_NCDESTROY: unhook(window, previous); break;
        default: break;
    }
    return result;
}

void drawComboFrame(HDC context, RECT client, int buttonWidth) {
    client.bottom -= 1;
    DrawEdge(context, &client, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    if (buttonWidth <= 0) return;
    client.left = client.right - buttonWidth;
    DrawEdge(context, &client, EDGE_RAISED, BF_RECT);
}

}  // namespace kel::win32
