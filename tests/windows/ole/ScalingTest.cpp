// Screens of other resolutions. Without KEL_DPI the machine's is 96 dots per inch, where there is little to see.

#include <cstdlib>

#include "platform/win32/base/Procedure.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel::tests;

namespace {

constexpr UINT ResolutionChanged = 0x02E3;  // WM_DPICHANGED_AFTERPARENT

/// What this thread makes from now on knows of the machine's resolution, or is told 96 dots per inch.
class Awareness {
public:
    enum Kind { Unaware = -1, Aware = -2 };

    explicit Awareness(Kind kind) : Before_(set(kind)) {}
    ~Awareness() { set(Before_); }
    Awareness(const Awareness&) = delete;
    Awareness& operator=(const Awareness&) = delete;

private:
    static INT_PTR set(INT_PTR kind) {
        auto* const set =
            kel::win32::procedureOf<INT_PTR WINAPI(INT_PTR)>(L"user32.dll", "SetThreadDpiAwarenessContext");
        EXPECT(set != nullptr);
        return set(kind);
    }

    INT_PTR Before_;
};

int resolution() {
    HDC const screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dots;
}

SIZE sizeOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {area.right - area.left, area.bottom - area.top};
}

HWND fieldOf(Host& host) {
    const HWND window = GetWindow(host.window(), GW_CHILD);
    EXPECT(window != nullptr);
    return window;
}

LONG fontHeight(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return std::abs(font.lfHeight);
}

/// As hosts count what a control says of its size.
LONG pixels(LONG himetric, int dots) { return MulDiv(static_cast<int>(himetric), dots, 2540); }

}  // namespace

TEST(scaling_sizes_stay_put_over_many_activations) {
    const Awareness aware(Awareness::Aware);
    const int dots = resolution();
    if (const char* const wanted = std::getenv("KEL_DPI")) EXPECT_EQ(dots, std::atoi(wanted));
    for (const LONG width : {7056L, 5291L, 10386L, 3001L}) {
        Host host;
        const auto field = host.place();
        SIZEL size{width, 529};
        EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
        EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
        for (int showing = 0; showing < 6; ++showing) {
            const SIZEL now = extentOf(host);
            host.Bounds = {10, 10, 10 + pixels(now.cx, dots), 10 + pixels(now.cy, dots)};
            host.Calls.clear();
            EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
            EXPECT(!host.called("OnPosRectChange"));
            const SIZE shown = sizeOf(fieldOf(host));
            EXPECT_EQ(shown.cx, pixels(width, dots));
            EXPECT_EQ(shown.cy, LONG{MulDiv(300, dots, 1440)});
            EXPECT_CODE(host.inPlace()->InPlaceDeactivate(), S_OK);
            EXPECT_EQ(extentOf(host).cx, width);
            EXPECT_EQ(extentOf(host).cy, 529L);
        }
    }
}

TEST(scaling_follows_the_window_to_another_screen) {
    const Awareness unaware(Awareness::Unaware);
    Host host;
    const auto field = host.placeNew();
    EXPECT_CODE(field->put_CaptionWidth(1200), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
    const HWND window = fieldOf(host);
    const HWND box = descendant(window, L"Edit");
    const SIZEL extent = extentOf(host);
    const SIZE small = sizeOf(box);
    const LONG letters = fontHeight(box);
    const Awareness aware(Awareness::Aware);
    const int dots = resolution();
    const HWND other = CreateWindowExW(0, L"STATIC", L"Finer", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 300,
                                       nullptr, nullptr, nullptr, nullptr);
    SetParent(window, other);
    SendMessageW(window, ResolutionChanged, 0, 0);
    const auto finer = [&](LONG length) { return LONG{MulDiv(static_cast<int>(length), dots, 96)}; };
    EXPECT_EQ(sizeOf(window).cx, finer(200));
    EXPECT_EQ(sizeOf(window).cy, finer(20));
    EXPECT_EQ(host.Bounds.bottom - host.Bounds.top, finer(20));
    EXPECT_EQ(sizeOf(box).cx, finer(small.cx));
    EXPECT(std::abs(fontHeight(box) - finer(letters)) <= dots / 96);
    EXPECT_EQ(extentOf(host).cx, extent.cx);
    // Its host may place it before it is told.
    SetParent(window, host.window());
    host.Bounds = {10, 20, 210, 40};
    EXPECT_CODE(host.inPlace()->SetObjectRects(&host.Bounds, &host.Bounds), S_OK);
    EXPECT_EQ(sizeOf(box).cx, small.cx);
    EXPECT_EQ(fontHeight(box), letters);
    EXPECT_EQ(extentOf(host).cx, extent.cx);
    DestroyWindow(other);
}
