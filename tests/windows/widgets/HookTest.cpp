#include <windows.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "platform/win32/widgets/ComboHook.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Scene.h"

/// The hook in front of a window's procedure, and what it draws.
namespace kel::tests {

namespace {

constexpr int WindowWidth = 120;
constexpr int WindowHeight = 40;
constexpr LRESULT PaintResult = 4711;
constexpr std::int16_t ButtonWidth = 16;

/// What a procedure of the tests has been sent.
std::vector<UINT> heard;

LRESULT CALLBACK ownProcedure(HWND window, UINT message, WPARAM wide, LPARAM data) {
    heard.push_back(message);
    if (message != WM_PAINT) return DefWindowProcA(window, message, wide, data);
    PAINTSTRUCT paint{};
    HDC const context = BeginPaint(window, &paint);
    const RECT all{0, 0, WindowWidth, WindowHeight};
    FillRect(context, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    EndPaint(window, &paint);
    return PaintResult;
}

WNDPROC procedureOf(HWND window) { return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC)); }

void setProcedure(HWND window, WNDPROC procedure) {
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

HANDLE propertyOf(HWND window) { return GetPropA(window, "KelControlsProc"); }

/// What the hook has left behind in the window that goes.
struct Remains {
    HANDLE property;
    WNDPROC procedure;
};
std::vector<Remains> leftBehind;

/// Somebody else's hook.
WNDPROC belowStranger = nullptr;
bool strangerRestores = false;
LRESULT CALLBACK strangersProcedure(HWND window, UINT message, WPARAM wide, LPARAM data) {
    const LRESULT result = CallWindowProcA(belowStranger, window, message, wide, data);
    if (message == WM_NCDESTROY) leftBehind.push_back({propertyOf(window), procedureOf(window)});
    if (message == WM_NCDESTROY && strangerRestores) {
        setProcedure(window, belowStranger);
        // A window that is going may still be asked something.
        EXPECT_EQ(SendMessageA(window, WM_APP, 0, 0), 0);
    }
    return result;
}
void hookStranger(HWND window) {
    belowStranger = procedureOf(window);
    setProcedure(window, &strangersProcedure);
}

/// A window of a class of the tests' own.
class PlainWindow {
public:
    PlainWindow() {
        constexpr const char* Class = "HookTest";
        WNDCLASSA description{};
        description.lpfnWndProc = &ownProcedure;
        description.hInstance = GetModuleHandleA(nullptr);
        description.lpszClassName = Class;
        RegisterClassA(&description);
        Window_ = CreateWindowA(Class, "", WS_POPUP | WS_VISIBLE, 20, 20, WindowWidth, WindowHeight, nullptr, nullptr,
                                GetModuleHandleA(nullptr), nullptr);
        settle();
        heard.clear();
    }
    ~PlainWindow() { destroy(); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    HWND window() const { return Window_; }
    void destroy() {
        if (Window_ != nullptr) DestroyWindow(std::exchange(Window_, nullptr));
    }

    LRESULT paint() const {
        InvalidateRect(Window_, nullptr, TRUE);
        return SendMessageA(Window_, WM_PAINT, 0, 0);
    }
    COLORREF pixel(int x, int y) const {
        HDC const context = GetDC(Window_);
        const COLORREF color = GetPixel(context, x, y);
        ReleaseDC(Window_, context);
        return color;
    }

private:
    HWND Window_ = nullptr;
};

}  // namespace

TEST(hook_stands_once_in_front_of_the_procedure) {
    const PlainWindow plain;
    HWND const window = plain.window();
    win32::SubclassWindow(window);
    EXPECT(procedureOf(window) == &win32::KelControlsWindowProc);
    EXPECT(propertyOf(window) == reinterpret_cast<HANDLE>(&ownProcedure));
    win32::SubclassWindow(window);
    EXPECT(propertyOf(window) == reinterpret_cast<HANDLE>(&ownProcedure));
    EXPECT_EQ(SendMessageA(window, WM_APP, 0, 0), 0);
    EXPECT_EQ(heard.size(), std::size_t{1});
    EXPECT_EQ(plain.paint(), PaintResult);
}

TEST(hook_goes_with_its_window) {
    PlainWindow plain;
    win32::SubclassWindow(plain.window());
    hookStranger(plain.window());
    leftBehind.clear();
    plain.destroy();
    EXPECT_EQ(leftBehind.size(), std::size_t{1});
    EXPECT(leftBehind[0].property == nullptr);
    EXPECT(leftBehind[0].procedure == &ownProcedure);
    EXPECT_EQ(heard.back(), UINT{WM_NCDESTROY});
}

TEST(hook_survives_others_that_come_and_go) {
    {
        // On top, and gone again.
        const PlainWindow plain;
        win32::SubclassWindow(plain.window());
        hookStranger(plain.window());
        win32::SubclassWindow(plain.window());
        EXPECT_EQ(plain.paint(), PaintResult);
        setProcedure(plain.window(), belowStranger);
        EXPECT_EQ(plain.paint(), PaintResult);
    }
    {
        // Below, and taken away from under the hook.
        const PlainWindow plain;
        hookStranger(plain.window());
        win32::SubclassWindow(plain.window());
        setProcedure(plain.window(), &ownProcedure);
        EXPECT_EQ(plain.paint(), PaintResult);
        win32::SubclassWindow(plain.window());
        EXPECT(procedureOf(plain.window()) == &ownProcedure);
    }
    {
        // On top to the end, where it puts the hook back, which has gone by then.
        PlainWindow plain;
        win32::SubclassWindow(plain.window());
        hookStranger(plain.window());
        strangerRestores = true;
        plain.destroy();
        strangerRestores = false;
    }
}

TEST(hook_without_a_procedure_leaves_it_to_the_system) {
    const PlainWindow plain;
    EXPECT_EQ(win32::KelControlsWindowProc(plain.window(), WM_APP, 0, 0), 0);
    EXPECT_EQ(win32::KelControlsWindowProc(plain.window(), WM_NCHITTEST, 0, MAKELPARAM(30, 30)), HTCLIENT);
    EXPECT(heard.empty());
    setProcedure(plain.window(), &win32::KelControlsWindowProc);
    win32::SubclassWindow(plain.window());
    EXPECT(propertyOf(plain.window()) == nullptr);
}

TEST(hook_draws_a_sunken_frame_and_in_it_a_raised_button) {
    const COLORREF white = RGB(255, 255, 255);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF face = GetSysColor(COLOR_3DLIGHT);
    const COLORREF darkest = GetSysColor(COLOR_3DDKSHADOW);
    std::int16_t width = ButtonWidth;
    const PlainWindow plain;
    win32::SubclassWindow(plain.window());
    win32::setFrameButtonWidth(plain.window(), width);
    plain.paint();
    const int middle = WindowHeight / 2;
    EXPECT_EQ(plain.pixel(0, middle), shadow);
    EXPECT_EQ(plain.pixel(1, middle), darkest);
    EXPECT_EQ(plain.pixel(middle, 0), shadow);
    // A pixel is left below.
    EXPECT_EQ(plain.pixel(middle, WindowHeight - 1), white);
    EXPECT_EQ(plain.pixel(middle, WindowHeight - 3), face);
    const int right = WindowWidth - 2;
    const int left = right - ButtonWidth;
    EXPECT_EQ(plain.pixel(left - 1, middle), white);
    EXPECT_EQ(plain.pixel(left, middle), face);
    EXPECT_EQ(plain.pixel(right - 2, middle), shadow);
    EXPECT_EQ(plain.pixel(right - 1, middle), darkest);
    EXPECT_EQ(plain.pixel(left + 4, middle), white);

    // The width is read at each painting; without one there is no button.
    width = 0;
    plain.paint();
    for (int x = 2; x < right; ++x) EXPECT_EQ(plain.pixel(x, middle), white);
}

}  // namespace kel::tests
