#include "platform/win32/home/Win32FormWindow.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "library/SharedSettings.h"
#include "platform/win32/base/Session.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/control/Win32Focus.h"
#include "platform/win32/widgets/EditInput.h"

namespace kel::win32 {

namespace {

constexpr DWORD FormStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
constexpr UINT FormResolutionChanged = 0x02E0;  // WM_DPICHANGED, younger than what the headers are asked for
constexpr UINT SentKey = WM_APP + 1;

const WindowClass& formClass() {
    static const WindowClass Class(L"KelControls8.Form");
    return Class;
}

}  // namespace

Win32FormWindow::Win32FormWindow(const WindowSpec& description, System& system, SharedSettings& settings,
                                 const RegionalSettings& region, Session& session)
    : System_(system),
      Settings_(settings),
      Region_(region),
      Session_(session),
      Grid_(system.scale()),
      ClientSize_(description.clientSize) {
    const DWORD extended = description.rightToLeft ? WS_EX_LAYOUTRTL : 0;
    Window_ = CreateWindowExW(extended, formClass().name(), wide(description.caption).c_str(), FormStyle, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, thisModule(),
                              static_cast<WindowHandler*>(this));
    if (Window_ == nullptr) throw std::runtime_error("there is no display to show a window on");
    sizeWindow();
    Session_.add(*this);
}

Win32FormWindow::~Win32FormWindow() {
    Session_.remove(*this);
    Controls_.clear();
    DestroyWindow(Window_);
}

// ---- Placing

HWND Win32FormWindow::parentOf(const Placement& placement) const {
    return placement.parent != nullptr ? static_cast<const ForeignWindow*>(placement.parent)->window() : Window_;
}

PlacedControl& Win32FormWindow::place(const ClassModel& model, const Placement& placement, ControlObserver& observer) {
    Controls_.push_back(std::make_unique<PlacedWin32Control>(
        model, placement, Controls_.size(), observer,
        PlacedWin32Control::ControlServices{System_, Settings_, Region_, Session_.clipboard(), parentOf(placement),
                                            *this}));
    PlacedWin32Control& placed = *Controls_.back();
    Order_.add(placed);
    placed.control().Initialize();
    return placed;
}

PlacedPanel* Win32FormWindow::placeForeign(const ForeignBlock& block) {
    Foreign_.push_back(std::make_unique<ForeignWindow>(block, Grid_, parentOf(block.placement)));
    if (block.kind == ForeignBlock::Kind::Label) Order_.addLabel(block.caption, block.placement.tabIndex);
    return block.kind == ForeignBlock::Kind::Panel ? Foreign_.back().get() : nullptr;
}

void Win32FormWindow::show() {
    setForeignFont();
    for (const auto& foreign : Foreign_) foreign->sendFrameBack();
    // By index: a host may place further controls meanwhile.
    for (std::size_t i = 0; i < Controls_.size(); ++i) Controls_[i]->control().Show();
    ShowWindow(Window_, SW_SHOWNORMAL);
    activate();
}

void Win32FormWindow::setForeignFont() {
    if (const auto runtime = Settings_.Runtime)
        Font_.choose({runtime->CaptionFontName(), runtime->CaptionFontSize()}, Grid_);
    for (const auto& foreign : Foreign_) foreign->setFont(Font_.handle());
}

// ---- Focus

PlacedWin32Control* Win32FormWindow::controlOf(HWND window) const {
    const auto found = std::find_if(Controls_.begin(), Controls_.end(), [window](const auto& control) {
        return window != nullptr && IsChild(control->window().handle(), window) != FALSE;
    });
    return found != Controls_.end() ? found->get() : nullptr;
}

void Win32FormWindow::giveFocus(HWND field, bool byTab) {
    const TabKey::Scope tab(Session_.tab(), byTab);
    SetFocus(field);
}

void Win32FormWindow::moveByTab(bool back) {
    PlacedWin32Control* const holder = focusedControl();
    FieldWidget* const field = holder != nullptr ? holder->control().widgets().field : nullptr;
    // Also where the focus has nowhere to go and stays.
    if (field != nullptr) field->strike({.code = keys::Tab});
    if (TabStop* const next = Order_.next(holder, back))
        giveFocus(static_cast<PlacedWin32Control*>(next)->focusWindow(), true);
}

void Win32FormWindow::passFocusOn(PlacedWin32Control& from) {
    if (TabStop* const next = Order_.afterBarred(from))
        giveFocus(static_cast<PlacedWin32Control*>(next)->focusWindow(), next != &from);
}

// ---- Resolution

void Win32FormWindow::sizeWindow() {
    RECT area = Grid_.pixels({0, 0, ClientSize_.width, ClientSize_.height});
    const auto extended = static_cast<DWORD>(GetWindowLongW(Window_, GWL_EXSTYLE));
    AdjustWindowRectEx(&area, FormStyle, FALSE, extended);
    SetWindowPos(Window_, nullptr, 0, 0, widthOf(area), heightOf(area), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// The window has come to another screen: all in it keeps its size in twips.
void Win32FormWindow::changeResolution(int dotsPerInch) {
    Grid_ = TwipScale::ofDotsPerInch(dotsPerInch);
    sizeWindow();
    for (const auto& foreign : Foreign_) foreign->place(Grid_);
    setForeignFont();
    for (const auto& control : Controls_) control->setGrid(Grid_);
}

// ---- What comes to the window

/// Without a focus the system sends plain keys as if Alt were down.
bool Win32FormWindow::takesKey(const MSG& message) {
    if (message.message == WM_SYSCHAR) {
        const Modifiers held = (HIWORD(message.lParam) & KF_ALTDOWN) != 0 ? AltKey : NoModifier;
        return Order_.pressMnemonic({0, static_cast<char16_t>(message.wParam), held}, focusedControl());
    }
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const KeyStroke stroke{static_cast<std::int16_t>(message.wParam), 0, modifiersDown()};
    if (!isKey || !leavesField(stroke)) return false;
    moveByTab((stroke.modifiers & ShiftKey) != 0);
    return true;
}

void Win32FormWindow::sendKey(std::int16_t code) { PostMessageW(Window_, SentKey, static_cast<WPARAM>(code), 0); }

/// What had the focus gets it back when the window comes in front again; nothing does where nothing had.
void Win32FormWindow::activated(WPARAM state) {
    if (LOWORD(state) == WA_INACTIVE) {
        FocusBefore_ = GetFocus();
        return;
    }
    Session_.activate(*this);
    if (HIWORD(state) != 0) return;
    if (canHaveFocusAgain(FocusBefore_)) {
        SetFocus(FocusBefore_);
        return;
    }
    SetFocus(Window_);
    if (PlacedWin32Control* const before = controlOf(FocusBefore_)) passFocusOn(*before);
}

bool Win32FormWindow::canHaveFocusAgain(HWND window) const {
    if (IsChild(Window_, window) == FALSE) return false;
    const PlacedWin32Control* const control = controlOf(window);
    return control != nullptr ? control->focusWindow() == window : IsWindowEnabled(window) != FALSE;
}

LRESULT Win32FormWindow::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case FormResolutionChanged: changeResolution(HIWORD(wide)); return 0;
        case WM_ACTIVATE: activated(wide); return 0;
        case SentKey: strikeSent(static_cast<std::int16_t>(wide)); return 0;
        case WM_TIMER: EndMenu(); return 0;
        case WM_LBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_RBUTTONDOWN: Win32Focus::pressed(Window_); return 0;
        case WM_CLOSE:
            ShowWindow(window, SW_HIDE);
            Session_.closed();
            return 0;
        default: return DefWindowProcW(window, message, wide, data);
    }
}

}  // namespace kel::win32
