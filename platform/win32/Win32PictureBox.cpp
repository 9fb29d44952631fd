#include "platform/win32/Win32PictureBox.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/WideText.h"

namespace kel::win32 {

namespace {

constexpr int WholeBar = 100;

/// The system registers the base class at the latest when it is asked to.
const WindowClass& progressClass() {
    static const WindowClass Class = [] {
        const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_PROGRESS_CLASS};
        InitCommonControlsEx(&wanted);
        return WindowClass(L"KelControls8.PictureBox", PROGRESS_CLASSW);
    }();
    return Class;
}

/// A part of the picture with what there is of the text in it.
void paintPart(HDC context, const RECT& part, COLORREF ground, COLORREF ink, POINT place, const std::wstring& text) {
    FillRect(context, &part, brushFor(context, ground));
    SetTextColor(context, ink);
    ExtTextOutW(context, static_cast<int>(place.x), static_cast<int>(place.y), ETO_CLIPPED, &part, text.c_str(),
                static_cast<UINT>(text.size()), nullptr);
}

LRESULT rangeOfBar(bool lowest, PBRANGE* range) {
    if (range != nullptr) *range = {0, WholeBar};
    return lowest ? 0 : WholeBar;
}

}  // namespace

Win32PictureBox::Win32PictureBox(ControlFrame& frame)
    : Win32TextualWidget(frame, colors::SystemWindowText), PaintedWindow(frame) {
    frame.add(*this);
}

Win32PictureBox::~Win32PictureBox() {
    frame().remove(*this);
    destroy();
}

// ---- The window

void Win32PictureBox::makeWindow() {
    if (!create(progressClass(), frame().window(), 0, pixels())) return;
    EnableWindow(window(), enabled());
    showToolTip();
    ShowWindow(window(), SW_SHOWNA);
}

void Win32PictureBox::placeChanged() {
    placeWindow(window());
    refresh();
}

void Win32PictureBox::enabledChanged() {
    if (window() != nullptr) EnableWindow(window(), enabled());
}

void Win32PictureBox::rescale() {
    rescaleFont();
    placeChanged();
}

void Win32PictureBox::refresh() {
    invalidate();
    frame().viewChanged();
}

void Win32PictureBox::setToolTip(std::u16string_view text) {
    if (text == ToolTip_) return;
    ToolTip_.assign(text);
    showToolTip();
}

void Win32PictureBox::showToolTip() {
    if (window() != nullptr) frame().setToolTip(window(), wide(ToolTip_).c_str());
}

// ---- Picture

SIZE Win32PictureBox::pixelsOf(std::u16string_view text) const {
    const WindowContext context(window());
    const Selected selected(context.get(), font().handle());
    const std::wstring units = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(context.get(), units.c_str(), static_cast<int>(units.size()), &size);
    return size;
}

std::int32_t Win32PictureBox::textWidth(std::u16string_view text) const {
    return frame().grid().twips(static_cast<int>(pixelsOf(text).cx));
}

std::int32_t Win32PictureBox::textHeight(std::u16string_view text) const {
    return frame().grid().twips(static_cast<int>(pixelsOf(text).cy));
}

void Win32PictureBox::draw(const BarPicture& picture) {
    const std::int32_t before = Picture_.percent;
    Picture_ = picture;
    refresh();
    if (window() == nullptr) return;
    UpdateWindow(window());
    if (Picture_.percent != before) NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window(), OBJID_CLIENT, CHILDID_SELF);
}

void Win32PictureBox::draw(HDC context, POINT origin) const {
    RECT area = pixels();
    OffsetRect(&area, origin.x, origin.y);
    paint(context, area);
}

void Win32PictureBox::paint(HDC context, const RECT& area) const {
    const SavedContext saved(context);
    const TwipGrid& grid = frame().grid();
    const RECT inControl = pixels();
    const Rect place = bounds();
    const POINT text{area.left - inControl.left + grid.pixel(place.left + Picture_.textLeft),
                     area.top - inControl.top + grid.pixel(place.top + Picture_.textTop)};
    const LONG end = area.left - inControl.left + grid.pixel(place.left + Picture_.barWidth);
    const RECT bar{area.left, area.top, std::clamp(end, area.left, area.right), area.bottom};

    SelectObject(context, font().handle());
    SetBkMode(context, TRANSPARENT);
    SetTextAlign(context, TA_LEFT | TA_TOP | TA_NOUPDATECP);
    const std::wstring units = wide(Picture_.text);
    const COLORREF fore = colorOf(foreColor());
    const COLORREF ground = GetSysColor(COLOR_BTNFACE);
    paintPart(context, bar, fore, ground, text, units);
    paintPart(context, {bar.right, area.top, area.right, area.bottom}, ground, fore, text, units);
}

// ---- What comes to the window

LRESULT Win32PictureBox::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        // The system's bar would have a border.
        case WM_NCCALCSIZE:
        case WM_NCPAINT: return 0;
        case PBM_GETPOS: return Picture_.percent;
        case PBM_GETRANGE: return rangeOfBar(wide != FALSE, reinterpret_cast<PBRANGE*>(data));
        case WM_GETTEXTLENGTH: return static_cast<LRESULT>(Picture_.text.size());
        case WM_GETTEXT: return static_cast<LRESULT>(copyText(Picture_.text, wide, reinterpret_cast<wchar_t*>(data)));
        default: return PaintedWindow::handle(message, wide, data);
    }
}

}  // namespace kel::win32
