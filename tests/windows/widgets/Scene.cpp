#include "tests/windows/widgets/Scene.h"

#include <utility>

#include "platform/win32/drawing/Canvas.h"
#include "platform/win32/home/Win32Services.h"

namespace kel::tests {

System& machine() {
    static win32::Win32System Machine;
    return Machine;
}

Rect twipsOf(const Rect& pixels) {
    const TwipScale scale = machine().scale();
    return {scale.twips(pixels.left), scale.twips(pixels.top), scale.twips(pixels.width), scale.twips(pixels.height)};
}

HostWindow::HostWindow()
    : Window_(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 660, 160, nullptr, nullptr,
                              GetModuleHandleW(nullptr), nullptr)),
      Button_(CreateWindowExW(0, L"BUTTON", L"own", WS_CHILD | WS_VISIBLE, 0, 80, 80, 24, Window_, nullptr,
                              GetModuleHandleW(nullptr), nullptr)) {
    SetActiveWindow(Window_);
    settle();
}

HostWindow::~HostWindow() { DestroyWindow(Window_); }

Scene::Scene(int width, int height) : Size_{width, height} {
    win32::ControlWindowOwner& owner = *this;
    Window_ = std::make_unique<win32::ControlWindow>(owner, machine());
}

void Scene::placeOn(HWND host, int column) {
    const LONG left = 10 + column * (Size_.cx + 10);
    const RECT place{left, 10, left + Size_.cx, 10 + Size_.cy};
    Window_->setParent(host);
    Window_->place(place, place);
    Window_->setVisible(true);
    settle();
}

void Scene::changeHost() {
    loseHost();
    Host_ = std::make_unique<HostWindow>();
    placeOn(Host_->window());
}

void Scene::drawInto(HDC context) {
    const Rect size = whole();
    Window_->draw(win32::PictureCanvas(context, {0, 0, Size_.cx, Size_.cy}, nullptr, {size.width, size.height},
                                       Window_->ground(), Window_->grid(), Window_->mirrored()));
}

win32::ole::Module& Scene::readersModule() {
    static win32::ole::Module Program;
    return Program;
}

std::wstring Scene::takeLog() { return std::exchange(Log_, {}); }

Rect Scene::whole() const {
    return twipsOf({0, 0, static_cast<std::int32_t>(Size_.cx), static_cast<std::int32_t>(Size_.cy)});
}

void Scene::tell(const std::wstring& what) { Log_ += (Log_.empty() ? L"" : L" ") + what; }

void settleFor(DWORD time) {
    const DWORD start = GetTickCount();
    for (DWORD passed = 0; passed < time; passed = GetTickCount() - start) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, time - passed, QS_ALLINPUT);
        settle();
    }
}

void strike(HWND target, WPARAM code) {
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC));
    PostMessageW(target, WM_KEYDOWN, code, 1 | (scan << 16));
    PostMessageW(target, WM_KEYUP, code, static_cast<LPARAM>(1 | (scan << 16) | 0xC0000000));
    settle();
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

std::wstring shownLine(HWND edit, int line) {
    wchar_t units[256]{};
    units[0] = 255;
    const LRESULT count = SendMessageW(edit, EM_GETLINE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(units));
    return {units, static_cast<std::size_t>(count)};
}

}  // namespace kel::tests
