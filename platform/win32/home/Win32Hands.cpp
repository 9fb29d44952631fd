#include <algorithm>

#include "platform/win32/base/AtEnd.h"
#include "platform/win32/base/HeldKeys.h"
#include "platform/win32/base/Picture.h"
#include "platform/win32/base/Session.h"
#include "platform/win32/home/Win32FormWindow.h"
#include "platform/win32/widgets/Win32ComboBox.h"
#include "platform/win32/widgets/Win32UpDown.h"

/// What a person does at a form's window. Keys and mouse come through the thread's own queue, so that nothing
/// goes astray when another program is in front.
namespace kel::win32 {

namespace {

/// What an unshifted key types.
char32_t characterOf(std::int16_t code) {
    const UINT unit = MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_CHAR) & 0xFFFFU;
    return unit >= U' ' ? static_cast<char32_t>(LOWORD(CharLowerW(reinterpret_cast<LPWSTR>(UINT_PTR{unit})))) : 0;
}

void postCharacter(HWND target, UINT message, char32_t character, LPARAM data) {
    if (character > 0xFFFF) {
        PostMessageW(target, message, WPARAM{0xD7C0} + (character >> 10), data);
        PostMessageW(target, message, WPARAM{0xDC00} + (character & 0x3FF), data);
    } else if (character != 0) {
        PostMessageW(target, message, static_cast<WPARAM>(character), data);
    }
}

void postMouse(HWND target, UINT message, WPARAM buttons, POINT place) {
    PostMessageW(target, message, buttons, MAKELPARAM(place.x, place.y));
}

void postLeftClick(HWND target, POINT place, UINT press = WM_LBUTTONDOWN) {
    postMouse(target, press, MK_LBUTTON, place);
    postMouse(target, WM_LBUTTONUP, 0, place);
}

POINT centerOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

/// What takes the mouse there: the window itself, or one in it.
HWND seenAtCenter(HWND window) {
    HWND const seen = ChildWindowFromPointEx(window, centerOf(window), CWP_SKIPDISABLED | CWP_SKIPINVISIBLE);
    return seen != nullptr ? seen : window;
}

/// Within the window, and a little below the upper end of the caret.
POINT aimedAt(HWND window, POINT caret) {
    RECT area{};
    GetClientRect(window, &area);
    const auto within = [](LONG place, LONG end) { return std::clamp<LONG>(place, 0, std::max<LONG>(end - 1, 0)); };
    constexpr LONG BelowTop = 3;
    return {within(caret.x, area.right), within(caret.y + BelowTop, area.bottom)};
}

}  // namespace

void Win32FormWindow::activate() {
    if (GetActiveWindow() != Window_) {
        SetForegroundWindow(Window_);
        SetActiveWindow(Window_);
    }
    Session_.activate(*this);
    Session_.settle(true);
}

HWND Win32FormWindow::keyTarget() const {
    HWND const focus = GetFocus();
    return focus != nullptr && IsChild(Window_, focus) != FALSE ? focus : Window_;
}

void Win32FormWindow::postKey(const KeyStroke& stroke) {
    const bool alt = (stroke.modifiers & AltKey) != 0 && (stroke.modifiers & ControlKey) == 0;
    const LPARAM data = keyData(stroke.code, alt, false);
    HWND const target = keyTarget();
    if (stroke.code != 0)
        PostMessageW(target, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(stroke.code), data);
    postCharacter(target, alt ? WM_SYSCHAR : WM_CHAR, alt ? stroke.character : keyPressCharacter(stroke), data);
}

void Win32FormWindow::press(const KeyStroke& stroke) {
    activate();
    const HeldKeys held(stroke.modifiers);
    postKey(stroke);
    Session_.settle(true);
    if (stroke.code == 0) return;
    const bool alt = (stroke.modifiers & AltKey) != 0;
    PostMessageW(keyTarget(), alt ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(stroke.code),
                 keyData(stroke.code, alt, true));
    Session_.settle(true);
}

void Win32FormWindow::strikeSent(std::int16_t code) {
    const HeldKeys held(NoModifier);
    if (code == keys::Tab) {
        moveByTab(false);
        return;
    }
    postKey({code, characterOf(code), NoModifier});
    Session_.settle(true);
}

void Win32FormWindow::focus(PlacedControl& control) {
    activate();
    if (HWND const field = static_cast<PlacedWin32Control&>(control).focusWindow()) giveFocus(field, false);
    Session_.settle(true);
}

void Win32FormWindow::click(PlacedControl& control, std::int32_t position, UINT press) {
    focus(control);
    auto& placed = static_cast<PlacedWin32Control&>(control);
    HWND const field = placed.focusWindow();
    auto* const entry = viewOf<Win32TextEntry>(control.control().widgets().entry);
    if (field == nullptr)
        postLeftClick(placed.window().enabled() ? seenAtCenter(placed.window().handle()) : Window_, {}, press);
    else
        postLeftClick(field, entry != nullptr ? aimedAt(field, entry->showPosition(position)) : centerOf(field), press);
    Session_.settle(true);
}

void Win32FormWindow::click(PlacedControl& control, std::int32_t position) { click(control, position, WM_LBUTTONDOWN); }

void Win32FormWindow::doubleClick(PlacedControl& control, std::int32_t position) {
    click(control, position);
    click(control, position, WM_LBUTTONDBLCLK);
}

void Win32FormWindow::rightClick(PlacedControl& control) {
    focus(control);
    HWND const field = static_cast<PlacedWin32Control&>(control).focusWindow();
    if (field == nullptr) return;
    // Closes the menu as soon as it opens: it ticks within the menu's own loop.
    constexpr UINT_PTR Timer = 1;
    constexpr UINT Period = 10;  // milliseconds
    SetTimer(Window_, Timer, Period, nullptr);
    const AtEnd stop([&] { KillTimer(Window_, Timer); });
    const POINT place = centerOf(field);
    postMouse(field, WM_RBUTTONDOWN, MK_RBUTTON, place);
    postMouse(field, WM_RBUTTONUP, 0, place);
    Session_.settle(true);
}

void Win32FormWindow::spin(PlacedControl& control, bool up) {
    activate();
    const UpDown* const spinner = control.control().widgets().upDown;
    if (spinner == nullptr || !spinner->takesInput()) return;
    HWND const window = viewOf<Win32UpDown>(spinner)->window();
    RECT area{};
    GetClientRect(window, &area);
    const LONG quarter = area.bottom / 4;
    postLeftClick(window, {area.right / 2, up ? quarter : area.bottom - quarter});
    Session_.settle(true);
}

void Win32FormWindow::pick(PlacedControl& control, std::int32_t item) {
    activate();
    const ComboBox* const box = control.control().widgets().comboBox;
    if (box == nullptr || !box->takesInput()) return;
    const auto* const seen = viewOf<Win32ComboBox>(box);
    if (!box->isDropped()) postLeftClick(seen->wholeWindow(), seen->buttonCenter());
    Session_.settle(true);
    POINT row{};
    if (!box->isDropped() || !seen->showRow(item, row)) return;
    postMouse(seen->listWindow(), WM_MOUSEMOVE, 0, row);
    postLeftClick(seen->listWindow(), row);
    Session_.settle(true);
}

void Win32FormWindow::setClipboard(std::u16string_view text) { Session_.clipboard()->setText(Window_, text); }

PlacedControl* Win32FormWindow::focused() const { return focusedControl(); }

std::string Win32FormWindow::picture() {
    activate();
    return pictureOf(Window_);
}

}  // namespace kel::win32
