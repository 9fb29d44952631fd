#include "platform/win32/control/ControlWindow.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/win32/drawing/Canvas.h"
#include "platform/win32/widgets/Win32CheckBox.h"
#include "platform/win32/widgets/Win32ComboBox.h"
#include "platform/win32/widgets/Win32PictureBox.h"
#include "platform/win32/widgets/Win32TextBox.h"
#include "platform/win32/widgets/Win32UpDown.h"

namespace kel::win32 {

namespace {

constexpr UINT ResolutionChanged = 0x02E3;  // WM_DPICHANGED_AFTERPARENT, younger than what the headers are asked for

/// Some widgets in its windows stand on classes that the system registers at the latest when it is asked to.
const WindowClass& controlClass() {
    static const WindowClass Class = [] {
        const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS};
        InitCommonControlsEx(&wanted);
        return WindowClass(L"KelControls8.Control");
    }();
    return Class;
}

bool isIn(HWND window, HWND other) { return other != nullptr && (other == window || IsChild(window, other) != FALSE); }

/// The stroke that a key press offered by the host makes.
KeyStroke strokeOf(const MSG& message) {
    const auto code = static_cast<std::int16_t>(message.wParam);
    const bool types =
        message.wParam == VK_PACKET || MapVirtualKeyW(static_cast<UINT>(message.wParam), MAPVK_VK_TO_CHAR) >= U' ';
    return {code, types ? U' ' : U'\0', modifiersDown()};
}

}  // namespace

ControlWindow::~ControlWindow() {
    if (Focus_) Focus_->forget(static_cast<const WidgetHost&>(*this));
    if (Window_ != nullptr) DestroyWindow(Window_);
    if (Parking_ != nullptr) DestroyWindow(Parking_);
}

// ---- Widgets

template <class Seen, class Shown>
std::unique_ptr<Seen> ControlWindow::make(Shown& shown) {
    ControlFrame& frame = *this;
    return std::make_unique<Seen>(frame, shown);
}

std::unique_ptr<PictureView> ControlWindow::makeView(PictureBox& box) { return make<Win32PictureBox>(box); }

std::unique_ptr<View> ControlWindow::makeView(CheckBox& box) { return make<Win32CheckBox>(box); }

std::unique_ptr<View> ControlWindow::makeView(UpDown& spinner) { return make<Win32UpDown>(spinner); }

std::unique_ptr<View> ControlWindow::makeView(Label& label) { return make<Win32Label>(label); }

std::unique_ptr<TextView> ControlWindow::makeView(TextBox& box) { return make<Win32TextBox>(box); }

std::unique_ptr<TextView> ControlWindow::makeView(ComboBox& box) { return make<Win32ComboBox>(box); }

void ControlWindow::setLabel(Win32Label* label) {
    Label_ = label;
    if (Label_ != nullptr) Label_->makeWindow(height());
}

void ControlWindow::add(WindowedView& widget) {
    Widgets_.push_back(&widget);
    if (Window_ != nullptr) widget.makeWindow();
}

void ControlWindow::remove(WindowedView& widget) {
    std::erase(Widgets_, &widget);
    const WindowedField* const field = widget.asField();
    if (Focus_ && field != nullptr) Focus_->forget(field->widget());
}

WindowedView* ControlWindow::widgetOf(HWND window) const {
    const auto found =
        std::find_if(Widgets_.begin(), Widgets_.end(), [window](WindowedView* widget) { return widget->has(window); });
    return found != Widgets_.end() ? *found : nullptr;
}

WindowedField* ControlWindow::fieldOf(HWND window) const {
    WindowedView* const widget = widgetOf(window);
    return widget != nullptr ? widget->asField() : nullptr;
}

WindowedField* ControlWindow::shownField() const {
    const auto found = std::find_if(Widgets_.begin(), Widgets_.end(), [](WindowedView* widget) {
        return widget->asField() != nullptr && widget->shown();
    });
    return found != Widgets_.end() ? (*found)->asField() : nullptr;
}

// ---- The window

HWND ControlWindow::handle() {
    if (Window_ == nullptr) makeWindow(parkingWindow());
    return Window_;
}

HWND ControlWindow::parkingWindow() {
    if (Parking_ == nullptr)
        Parking_ = CreateWindowExW(WS_EX_TOOLWINDOW, controlClass().name(), L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                   thisModule(), nullptr);
    return Parking_;
}

void ControlWindow::makeWindow(HWND parent) {
    if (parent == nullptr) return;
    const DWORD layout = Mirrored_ ? WS_EX_LAYOUTRTL : 0;
    Window_ = CreateWindowExW(WS_EX_CONTROLPARENT | layout, controlClass().name(), L"",
                              WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, Bounds_.left, Bounds_.top, widthOf(Bounds_),
                              height(), parent, nullptr, thisModule(), static_cast<WindowHandler*>(this));
    if (Window_ == nullptr) return;
    Clipped_ = false;
    if (!Enabled_) EnableWindow(Window_, FALSE);
    if (Label_ != nullptr) Label_->makeWindow(height());
    for (WindowedView* const widget : Widgets_) widget->makeWindow();
}

void ControlWindow::setParent(HWND parent) {
    if (Window_ == nullptr) {
        makeWindow(parent);
    } else if (GetAncestor(Window_, GA_PARENT) != parent) {
        SetParent(Window_, parent);
        // The system puts it first; one that is made there comes last, where its host made it in the order of Tab.
        SetWindowPos(Window_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    if (Parking_ != nullptr) DestroyWindow(std::exchange(Parking_, nullptr));
    if (Window_ != nullptr && Visible_) ShowWindow(Window_, SW_SHOWNA);
}

void ControlWindow::abandon() {
    Visible_ = false;
    if (Window_ == nullptr) return;
    dropInputOf(Window_);
    if (Window_ != nullptr) DestroyWindow(Window_);
}

void ControlWindow::place(const RECT& bounds, const RECT& clip) {
    const bool differs = heightOf(bounds) != height();
    Bounds_ = bounds;
    Clip_ = clip;
    if (Window_ == nullptr) return;
    placeWindow(Window_, bounds);
    if (Label_ != nullptr && differs) Label_->place(height());
    RECT seen{};
    IntersectRect(&seen, &bounds, &clip);
    const bool whole = EqualRect(&seen, &bounds) != FALSE;
    if (whole && !Clipped_) return;
    Clipped_ = !whole;
    OffsetRect(&seen, -static_cast<int>(bounds.left), -static_cast<int>(bounds.top));
    SetWindowRgn(Window_, whole ? nullptr : CreateRectRgnIndirect(&seen), TRUE);
}

void ControlWindow::setVisible(bool visible) {
    Visible_ = visible;
    if (!visible) dropInputOf(Window_);
    if (Window_ != nullptr) ShowWindow(Window_, visible ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::setEnabled(bool enabled) {
    if (enabled == Enabled_) return;
    Enabled_ = enabled;
    if (!enabled) takeInputFrom(Window_);
    if (enabled != Enabled_) return;  // a handler has put it again
    for (WindowedView* const widget : Widgets_) widget->frameEnabledChanged();
    if (Access_) Access_->changed();
    if (Window_ == nullptr) return;
    EnableWindow(Window_, enabled);
    RedrawWindow(Window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void ControlWindow::setInert(bool inert) {
    if (inert == Inert_) return;
    Inert_ = inert;
    WindowedField* const field = shownField();
    if (field == nullptr) return;
    if (inert)
        field->widget().pressedAnywhere();  // no list stays open
    else if (field->window() != nullptr && GetFocus() == field->window())
        arrived(*field);
}

/// The system's widgets keep the layout that they are made in: the windows are made anew, at the same place.
void ControlWindow::setMirrored(bool mirrored) {
    if (mirrored == Mirrored_) return;
    Mirrored_ = mirrored;
    if (Window_ == nullptr) return;
    HWND const parent = GetAncestor(Window_, GA_PARENT);
    HWND const before = GetWindow(Window_, GW_HWNDPREV);
    dropInput();
    DestroyWindow(Window_);
    if (Window_ != nullptr) return;  // a handler has seen to it
    makeWindow(parent);
    if (Window_ == nullptr) return;
    SetWindowPos(Window_, before != nullptr ? before : HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    place(Bounds_, Clip_);
    if (Visible_) ShowWindow(Window_, SW_SHOWNA);
}

void ControlWindow::setGround(Color ground) {
    if (ground == Ground_) return;
    Ground_ = ground;
    captionChanged();
    if (Window_ != nullptr) InvalidateRect(Window_, nullptr, TRUE);
}

void ControlWindow::setToolTip(HWND field, const wchar_t* text) {
    if (ToolTips_ == nullptr) {
        if (*text == L'\0') return;
        // Nobody owns it: it would go with the top-level window of today, which the control may outlive in another.
        ToolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                    CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                                    thisModule(), nullptr);
    }
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = Window_;
    tool.uId = reinterpret_cast<UINT_PTR>(field);
    SendMessageW(ToolTips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (*text == L'\0') return;
    tool.lpszText = const_cast<wchar_t*>(text);
    SendMessageW(ToolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// ---- Focus and keys

void ControlWindow::setFocus() {
    if (const WindowedField* const field = shownField()) field->widget().setFocus();
}

void ControlWindow::moveFocusTo(FieldWidget& field) {
    const auto* const seen = viewOf<WindowedField>(&field);
    if (seen != nullptr && seen->window() != nullptr) SetFocus(seen->window());
}

void ControlWindow::arrived(WindowedField& field) {
    if (Inert_) return;
    const std::shared_ptr<Win32Focus> around = Win32Focus::around(Window_);
    if (around != Focus_) leave();
    Focus_ = around;
    around->arrived(Window_, field);
    if (Access_) Access_->focused();
}

void ControlWindow::departed(HWND next) {
    if (const std::shared_ptr<Win32Focus> around = Focus_; around && !isIn(Window_, next))
        around->departed(*this, next);
}

void ControlWindow::leave() {
    if (const std::shared_ptr<Win32Focus> around = Focus_) around->leave(*this);
}

void ControlWindow::takeInputFrom(HWND window) {
    if (window == nullptr) return;
    if (isIn(window, GetFocus())) Owner_.passFocusOn();
    dropInputOf(window);
}

/// Where its host takes the control away, the host knows where the focus goes.
void ControlWindow::dropInputOf(HWND window) const {
    if (window == nullptr) return;
    if (isIn(window, GetCapture())) ReleaseCapture();
    if (isIn(window, GetFocus())) SetFocus(nullptr);
}

bool ControlWindow::translateAccelerator(MSG& message) {
    const WindowedField* const field = fieldOf(message.hwnd);
    if (field == nullptr || Inert_ || message.message != WM_KEYDOWN || !field->wantsKey(strokeOf(message)))
        return false;
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
}

// ---- Picture

void ControlWindow::captionChanged() {
    if (Label_ != nullptr) Label_->place(height());
    viewChanged();
}

void ControlWindow::viewChanged() {
    if (Access_) Access_->changed();
    Owner_.viewChanged();
}

void ControlWindow::drawCaption(const Canvas& canvas, LONG bottom) const {
    if (Label_ == nullptr) return;
    const WindowedField* const field = shownField();
    Label_->draw(canvas, bottom, field != nullptr ? field->baseline(canvas) : static_cast<int>(bottom), Enabled_);
}

void ControlWindow::draw(const PictureCanvas& picture) const {
    drawCaption(picture.canvas(), picture.bottom());
    for (const WindowedView* const widget : Widgets_)
        if (widget->shown()) widget->draw(picture.canvas());
}

/// The label's window is the part of the control that its caption may take.
void ControlWindow::drawLabelWindow(const DRAWITEMSTRUCT& item) const {
    const LONG left = Grid_.pixels(Label_->shown().bounds()).left;
    const Canvas canvas(item.hDC, Grid_, {-left, 0});
    canvas.fill(item.rcItem, ground());
    drawCaption(canvas, height());
}

void ControlWindow::followScreen(HWND parent) {
    HWND const window = parent != nullptr ? parent : Window_;
    if (window != nullptr) setGrid(screenScale(window));
}

void ControlWindow::setGrid(const TwipGrid& grid) {
    if (grid == Grid_) return;
    Grid_ = grid;
    if (Label_ != nullptr) Label_->rescale();
    for (WindowedView* const widget : Widgets_) widget->rescale();
    captionChanged();
}

// ---- Readers

HWND ControlWindow::speakingWindow() const {
    if (const WindowedField* const field = shownField()) return field->window();
    return !Widgets_.empty() ? Widgets_.front()->window() : Window_;
}

std::vector<HWND> ControlWindow::parts() const {
    std::vector<HWND> parts;
    for (WindowedView* const widget : Widgets_) {
        const bool isPart = widget->asField() == nullptr && widget->window() != speakingWindow();
        if (isPart && widget->shown() && widget->window() != nullptr) parts.push_back(widget->window());
    }
    return parts;
}

std::optional<LRESULT> ControlWindow::answerReader(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (!ControlAccess::isAsked(message, data) || Owner_.accessibleControl() == nullptr) return std::nullopt;
    AccessibleSource& source = *this;
    if (!Access_) Access_ = std::make_unique<ControlAccess>(source, Owner_.readersModule());
    return Access_->answer(window, wide, data);
}

// ---- What comes to the window

LRESULT ControlWindow::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    return heldOpen(Owner_, [&] { return handle(window, message, wide, data); });
}

LRESULT ControlWindow::handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == Win32Focus::leaveMessage()) {
        leave();
        return 0;
    }
    if (message == ControlAccess::restMessage()) {
        if (Access_) Access_->rested();
        return 0;
    }
    if (const auto answered = answerReader(window, message, wide, data)) return *answered;
    switch (message) {
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(data);
            if (Label_ == nullptr || item.hwndItem != Label_->window()) break;
            drawLabelWindow(item);
            return TRUE;
        }
        case WM_ERASEBKGND: {
            RECT area{};
            GetClientRect(window, &area);
            Canvas(reinterpret_cast<HDC>(wide), Grid_, {}).fill(area, ground());
            return TRUE;
        }
        case WM_SETFOCUS: setFocus(); return 0;
        case WM_LBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_RBUTTONDOWN: Win32Focus::pressed(Window_); break;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
            if (const WindowedField* const field = fieldOf(reinterpret_cast<HWND>(data)))
                return reinterpret_cast<LRESULT>(field->colors(reinterpret_cast<HDC>(wide)));
            break;
        case WM_COMMAND:
            if (WindowedView* const widget = widgetOf(reinterpret_cast<HWND>(data))) widget->notified(HIWORD(wide), 0);
            return 0;
        case WM_NOTIFY: {
            const auto& header = *reinterpret_cast<const NMHDR*>(data);
            if (WindowedView* const widget = widgetOf(header.hwndFrom)) return widget->notified(header.code, data);
            break;
        }
        case ResolutionChanged: Owner_.resolutionChanged(); return 0;
        case WM_DESTROY:
            Access_.reset();
            if (ToolTips_ != nullptr) DestroyWindow(std::exchange(ToolTips_, nullptr));
            break;
        case WM_NCDESTROY:
            Access_.reset();
            Window_ = nullptr;
            if (Label_ != nullptr) Label_->forgetWindow();
            leave();
            break;
        default: break;
    }
    return DefWindowProcW(window, message, wide, data);
}

}  // namespace kel::win32
