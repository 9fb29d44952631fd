#include "platform/win32/home/Win32Services.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/MessageBox.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/home/SentKey.h"
#include "values/Calendar.h"

namespace kel::win32 {

namespace {

constexpr int PointsPerInch = 72;

/// A measure of the screen.
int measure(int what) { return GetDeviceCaps(WindowContext(nullptr).get(), what); }

/// The same as long as the process lives.
int dotsPerInch() {
    static const int Dots = std::max(1, measure(LOGPIXELSY));
    return Dots;
}

SYSTEMTIME now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    return time;
}

INPUT keyInput(std::int16_t keyCode, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(keyCode);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(keyCode), MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

}  // namespace

Date Win32System::today() const {
    const SYSTEMTIME time = now();
    return dateOf({time.wYear, time.wMonth, time.wDay}).value_or(Date{});
}

double Win32System::timer() const {
    const SYSTEMTIME time = now();
    return time.wHour * 3600.0 + time.wMinute * 60.0 + time.wSecond + time.wMilliseconds / 1000.0;
}

void Win32System::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    showMessageBox(nullptr, prompt, style, title);
}

void Win32System::beep() { MessageBeep(MB_OK); }

bool Win32System::tabKeyDown() const { return GetKeyState(VK_TAB) < 0; }

TwipScale Win32System::scale() const { return TwipScale::ofDotsPerInch(dotsPerInch()); }

std::int32_t Win32RuntimeServices::colorDepth() const { return measure(BITSPIXEL) * measure(PLANES); }

FontChoice Win32RuntimeServices::messageFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) == FALSE) return {u"Tahoma", 8};
    const double points = std::abs(metrics.lfMessageFont.lfHeight) * static_cast<double>(PointsPerInch) / dotsPerInch();
    return {unwiden(metrics.lfMessageFont.lfFaceName), std::round(points * 4) / 4};
}

void Win32RuntimeServices::sendKey(std::int16_t keyCode) {
    if (sendKeyAhead(keyCode)) return;
    std::array<INPUT, 2> inputs{keyInput(keyCode, 0), keyInput(keyCode, KEYEVENTF_KEYUP)};
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

}  // namespace kel::win32
