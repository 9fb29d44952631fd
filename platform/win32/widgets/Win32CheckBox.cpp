#include "platform/win32/widgets/Win32CheckBox.h"

#include <commctrl.h>
#include <vssym32.h>

#include <algorithm>

#include "host/focus/Mnemonic.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/drawing/CanvasText.h"
#include "platform/win32/drawing/Symbols.h"
#include "platform/win32/widgets/EditInput.h"
#include "values/Text.h"

namespace kel::win32 {

namespace {

constexpr std::int32_t BoxSize = 195;    ///< twips
constexpr std::int32_t CaptionGap = 60;  ///< between box and caption, twips

const WindowClass& buttonClass() {
    static const WindowClass Class(L"KelControls8.CheckBox", L"BUTTON");
    return Class;
}

/// Messages in whose course the system's button paints itself, or should look another.
bool changesLook(UINT message) {
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
        case WM_MOUSELEAVE:
        case WM_CANCELMODE:
        case WM_CAPTURECHANGED:
        case WM_UPDATEUISTATE:
        case WM_THEMECHANGED:
        case BM_SETSTATE: return true;
        default: return false;
    }
}

UINT frameState(std::int32_t value) {
    switch (value) {
        case CheckBox::Unchecked: return DFCS_BUTTONCHECK;
        case CheckBox::Checked: return DFCS_BUTTONCHECK | DFCS_CHECKED;
        default: return DFCS_BUTTON3STATE | DFCS_CHECKED;
    }
}

/// The visual styles count four looks of each value.
int themeState(std::int32_t value, int look) {
    const int first = value == CheckBox::Unchecked ? CBS_UNCHECKEDNORMAL
                      : value == CheckBox::Checked ? CBS_CHECKEDNORMAL
                                                   : CBS_MIXEDNORMAL;
    return first + look - CBS_UNCHECKEDNORMAL;
}

/// A tick looks the same in windows that count from the right: turns the context around for as long as it is saved,
/// and returns where `area` is then.
RECT turned(HDC context, const RECT& area) {
    if ((GetLayout(context) & LAYOUT_RTL) == 0) return area;
    POINT corners[] = {{area.left, area.top}, {area.right, area.bottom}};
    LPtoDP(context, corners, 2);
    SetLayout(context, 0);
    DPtoLP(context, corners, 2);
    // What is counted from the right names the pixel, and its other edge.
    return {corners[1].x + 1, corners[0].y, corners[0].x + 1, corners[1].y};
}

}  // namespace

Win32CheckBox::Win32CheckBox(ControlFrame& frame, CheckBox& box)
    : WindowedField(box), PaintedWindow(frame, box), Box_(box) {
    frame.add(*this);
}

Win32CheckBox::~Win32CheckBox() {
    frame().remove(*this);
    destroy();
}

// ---- The window

void Win32CheckBox::makeWindow() {
    const DWORD state = (Box_.visible() ? WS_VISIBLE : 0U) | (Box_.enabled() ? 0U : WS_DISABLED);
    if (create(buttonClass(), WS_TABSTOP | BS_3STATE | state, wide(Box_.caption()).c_str()))
        show(Change::Font | Change::Value | Change::ToolTip);
}

void Win32CheckBox::outOfDate() {
    const Changes changes = Box_.takeChanges();
    if (changes.has(Change::Font)) Font_.choose(Box_.font(), frame().grid());
    if (window() != nullptr) show(changes);
    if (changes.has(Change::Visible)) frame().captionChanged();
    paintAgain();
    if (changes.has(Change::Mnemonic)) frame().mnemonicChanged();
}

void Win32CheckBox::show(Changes changes) {
    if (changes.has(Change::Place)) place();
    if (changes.has(Change::Font)) base(WM_SETFONT, reinterpret_cast<WPARAM>(Font_.handle()));
    if (changes.has(Change::Caption)) base(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide(Box_.caption()).c_str()));
    if (changes.has(Change::Value)) base(BM_SETCHECK, static_cast<WPARAM>(Box_.value()));
    if (changes.has(Change::Enabled)) EnableWindow(window(), Box_.enabled());
    if (changes.has(Change::ToolTip)) frame().setToolTip(window(), wide(Box_.toolTip()).c_str());
    if (changes.has(Change::Visible)) ShowWindow(window(), Box_.visible() ? SW_SHOWNA : SW_HIDE);
}

void Win32CheckBox::rescale() {
    Font_.rescale(frame().grid());
    if (window() != nullptr) show(Change::Font | Change::Place);
    paintAgain();
}

void Win32CheckBox::paintAgain() {
    invalidate();
    frame().viewChanged();
}

// ---- Picture

bool Win32CheckBox::isIn(UINT buttonState) const {
    return window() != nullptr && (static_cast<UINT>(base(BM_GETSTATE)) & buttonState) != 0;
}

bool Win32CheckBox::hides(UINT interfaceState) const {
    return window() != nullptr && (static_cast<UINT>(base(WM_QUERYUISTATE)) & interfaceState) != 0;
}

int Win32CheckBox::baseline(const Canvas& canvas) const {
    const RECT area = canvas.area(Box_.bounds());
    const CanvasText text(canvas, Font_);
    return static_cast<int>(area.top) + (heightOf(area) - text.height()) / 2 + text.ascent();
}

void Win32CheckBox::draw(const Canvas& canvas) const {
    const SavedContext saved(canvas.context());
    const RECT area = canvas.area(Box_.bounds());
    canvas.fill(area, colorOf(Box_.backColor()));
    canvas.clip(area);
    const SIZE size = canvas.size({BoxSize, BoxSize});
    const LONG top = area.top + (heightOf(area) - size.cy) / 2;
    const RECT box{area.left, top, area.left + size.cx, top + size.cy};
    if (canvas.isWindow())
        paintBox(canvas.context(), box);
    else
        drawCheck(canvas.upright(), canvas.seen(box), Box_.value(), Box_.enabled());
    drawCaption(canvas, {box.right + canvas.size({CaptionGap, 0}).cx, area.top, area.right, area.bottom});
}

/// A control that takes no input leaves the caption as it is.
HBRUSH Win32CheckBox::colors(HDC context) const { return setColors(context, Box_, Box_.enabled()); }

/// The button itself knows whether it has a visual style.
void Win32CheckBox::paintBox(HDC context, const RECT& place) const {
    const SavedContext saved(context);
    RECT box = turned(context, place);
    if (HTHEME const theme = GetWindowTheme(window())) {
        const int look = !Box_.enabled()    ? CBS_UNCHECKEDDISABLED
                         : isIn(BST_PUSHED) ? CBS_UNCHECKEDPRESSED
                         : isIn(BST_HOT)    ? CBS_UNCHECKEDHOT
                                            : CBS_UNCHECKEDNORMAL;
        DrawThemeBackground(theme, context, BP_CHECKBOX, themeState(Box_.value(), look), &box, nullptr);
        return;
    }
    const UINT look = (isIn(BST_PUSHED) ? DFCS_PUSHED : 0U) | (Box_.enabled() ? 0U : DFCS_INACTIVE);
    DrawFrameControl(context, &box, DFC_BUTTON, frameState(Box_.value()) | look);
}

void Win32CheckBox::drawCaption(const Canvas& canvas, const RECT& room) const {
    const CanvasText text(canvas, Font_);
    RECT place = room;
    place.top += (heightOf(room) - text.height()) / 2;
    place.bottom = place.top + text.height();
    text.caption(place, Box_.caption(), inkOf(Box_, Box_.enabled()), false, !hides(UISF_HIDEACCEL));
    if (!canvas.isWindow() || GetFocus() != window() || hides(UISF_HIDEFOCUS)) return;
    place.right = place.left + text.width(wide(readCaption(Box_.caption()).text));
    paintFocus(canvas.context(), place, room);
}

void Win32CheckBox::paintFocus(HDC context, RECT caption, const RECT& room) const {
    // Around nothing the frame would not be seen.
    if (Box_.caption().empty()) caption = room;
    InflateRect(&caption, 1, 1);
    const RECT seen{room.left - 1, room.top, room.right, room.bottom};
    IntersectRect(&caption, &caption, &seen);
    SetTextColor(context, RGB(0, 0, 0));
    SetBkColor(context, RGB(255, 255, 255));
    DrawFocusRect(context, &caption);
}

// ---- What comes to the window

LRESULT Win32CheckBox::handle(UINT message, WPARAM wide, LPARAM data) {
    LRESULT result = 0;
    switch (message) {
        case WM_SETFOCUS:
            result = native(message, wide, data);
            frame().arrived(*this);
            return result;
        case WM_KILLFOCUS:
            result = native(message, wide, data);
            frame().departed(reinterpret_cast<HWND>(wide));
            return result;
        case WM_GETDLGCODE: return dialogCode(reinterpret_cast<const MSG*>(data));
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN: return Box_.takePress() ? native(message, wide, data) : 0;
        case WM_KEYDOWN: return keyDown(message, wide, data);
        case WM_LBUTTONUP:
        case WM_KEYUP: return released(message, wide, data);
        case WM_CHAR: typed(static_cast<char16_t>(wide)); return 0;
        case BM_CLICK: Box_.press(); return 0;
        case BM_SETCHECK: Box_.setValue(static_cast<std::int32_t>(std::min<WPARAM>(wide, CheckBox::Grey))); return 0;
        case WM_SETTEXT: Box_.setCaption(textIn(data)); return TRUE;
        default: return native(message, wide, data);
    }
}

/// What the system's button does, and our picture behind its own.
LRESULT Win32CheckBox::native(UINT message, WPARAM wide, LPARAM data) {
    const LRESULT result = PaintedWindow::handle(message, wide, data);
    if (changesLook(message) || (message == WM_MOUSEMOVE && GetCapture() == window())) invalidate();
    return result;
}

LRESULT Win32CheckBox::notified(UINT notification, LPARAM /*details*/) {
    if (notification == BN_CLICKED) Clicked_ = true;
    return 0;
}

/// The listener may do away with the window, which the system's button would not survive in the middle of its work:
/// it is told afterwards.
LRESULT Win32CheckBox::released(UINT message, WPARAM wide, LPARAM data) {
    const LRESULT result = native(message, wide, data);
    if (std::exchange(Clicked_, false)) Box_.release();
    return result;
}

// ---- Keys

bool Win32CheckBox::wantsKey(const KeyStroke& stroke) const {
    if ((stroke.modifiers & (AltKey | ControlKey)) != 0) return false;
    const bool isArrow = stroke.code >= keys::Left && stroke.code <= keys::Down;
    return isArrow || stroke.code == keys::Space || stroke.code == keys::Enter;
}

LRESULT Win32CheckBox::dialogCode(const MSG* asked) const {
    const LRESULT always = base(WM_GETDLGCODE) | DLGC_WANTARROWS | DLGC_WANTCHARS;
    return asked != nullptr && asked->wParam == VK_RETURN ? always | DLGC_WANTMESSAGE : always;
}

/// The key together with what it types, so that a message box that the listener opens does not find the character in
/// the queue.
LRESULT Win32CheckBox::keyDown(UINT message, WPARAM wide, LPARAM data) {
    const std::u16string units = takeCharacters(window(), data);
    const LRESULT result = native(message, wide, data);
    for (const char16_t unit : units) typed(unit);
    return result;
}

/// The space bar has pressed the button by now, and toggles when it goes up; a character that came without a key
/// toggles at once.
void Win32CheckBox::typed(char16_t unit) {
    if (!canBeStruck(unit)) return;
    const bool presses = Box_.typed(unit) == CheckBox::Key::Presses;
    if (window() == nullptr) return;
    const bool isPressed = isIn(BST_PUSHED);
    if (presses && !isPressed)
        Box_.release();
    else if (!presses && isPressed)
        ReleaseCapture();
}

}  // namespace kel::win32
