#include "tests/windows/widgets/Stage.h"

#include <utility>

#include "platform/win32/base/WideText.h"
#include "platform/win32/home/Win32Services.h"

namespace kel::tests {

namespace {

constexpr int Width = 300;
constexpr int Height = 60;

struct Search {
    const wchar_t* className;
    HWND found;
};

BOOL CALLBACK findByClass(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    wchar_t name[64];
    GetClassNameW(window, name, 64);
    if (std::wstring(name).find(search.className) == std::wstring::npos) return TRUE;
    search.found = window;
    return FALSE;
}

HWND childOfClass(HWND parent, const wchar_t* className) {
    Search search{className, nullptr};
    EnumChildWindows(parent, &findByClass, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

System& machine() {
    static win32::Win32System Machine;
    return Machine;
}

HostWindow::HostWindow()
    : Window_(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 2 * Width + 40,
                              2 * Height + 40, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)),
      Button_(CreateWindowExW(0, L"BUTTON", L"own", WS_CHILD | WS_VISIBLE, 0, Height + 10, 80, 24, Window_, nullptr,
                              GetModuleHandleW(nullptr), nullptr)) {
    SetActiveWindow(Window_);
    settle();
}

HostWindow::~HostWindow() { DestroyWindow(Window_); }

Stage::Stage(bool multiLine) {
    win32::ControlWindowOwner& owner = *this;
    TextBoxListener& listener = *this;
    Window_ = win32::makeControlWindow(owner, machine());
    Label_ = std::make_unique<Label>(Window_->widgets());
    Box_ = std::make_unique<TextBox>(Window_->widgets(), listener, multiLine);
    UpDownListener& spinning = *this;
    UpDown_ = std::make_unique<UpDown>(Window_->widgets(), spinning);
    const std::int32_t twips = machine().twipsPerPixel();
    Label_->move({0, 0, Width / 3 * twips, 195});
    Box_->move({Width / 3 * twips, 0, Width * 2 / 3 * twips, (multiLine ? Height : 20) * twips});
    UpDown_->move({(Width - 16) * twips, 30 * twips, 16 * twips, 20 * twips});
}

Stage::~Stage() {
    UpDown_.reset();
    Box_.reset();
    Label_.reset();
    Window_.reset();
}

void Stage::placeOn(HWND host, int column) {
    const LONG left = column * (Width + 10);
    const RECT place{left, 0, left + Width, Height};
    Window_->setParent(host);
    Window_->place(place, place);
    Window_->setVisible(true);
    settle();
}

HWND Stage::edit() const { return childOfClass(Window_->handle(), L"Edit"); }

HWND Stage::spinnerWindow() const { return childOfClass(Window_->handle(), L"UpDown"); }

std::wstring Stage::takeLog() { return std::exchange(Log_, {}); }

void Stage::tell(const std::wstring& what) { Log_ += (Log_.empty() ? L"" : L" ") + what; }

void Stage::Text1_KeyDown(std::int16_t& KeyCode, Modifiers /*Shift*/) {
    tell(L"down:" + std::to_wstring(KeyCode));
    if (onKeyDown) onKeyDown();
    if (swallowKeys) KeyCode = 0;
}

void Stage::Text1_KeyPress(char32_t& KeyAscii) { tell(L"key:" + std::to_wstring(static_cast<unsigned>(KeyAscii))); }

bool Stage::Text1_Paste(std::u16string& Text) {
    tell(L"paste:" + win32::wide(Text));
    return !onPaste || onPaste(Text);
}

void Stage::Text1_Wheel(std::int32_t Notches) { tell(L"wheel:" + std::to_wstring(Notches)); }

void Stage::UpDown1_Change() {
    tell(L"step:" + std::to_wstring(UpDown_->value()));
    if (onStep) onStep();
    if (UpDown_) UpDown_->setValue(UpDown::Rest);
}

void Stage::Text1_MouseDown(MouseButton Button) { tell(L"press:" + std::to_wstring(static_cast<int>(Button))); }

void Stage::Text1_LostFocus() {
    tell(L"lost");
    if (onLost) onLost();
}

void settle() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

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

void postMouse(HWND target, UINT message, WPARAM buttons, POINT place) {
    PostMessageW(target, message, buttons, MAKELPARAM(place.x, place.y));
}

void drag(HWND target, POINT from, POINT to) {
    postMouse(target, WM_LBUTTONDOWN, MK_LBUTTON, from);
    if (from.x != to.x || from.y != to.y) postMouse(target, WM_MOUSEMOVE, MK_LBUTTON, to);
    postMouse(target, WM_LBUTTONUP, 0, to);
    settle();
}

std::wstring drawn(std::u16string_view text, std::int32_t start, std::int32_t length) {
    std::wstring drawing = win32::wide(text);
    const auto from = static_cast<std::size_t>(start);
    if (length == 0) return drawing.insert(from, L"|");
    return drawing.insert(from + static_cast<std::size_t>(length), L"]").insert(from, L"[");
}

}  // namespace kel::tests
