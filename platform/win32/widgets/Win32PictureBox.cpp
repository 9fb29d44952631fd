#include "platform/win32/widgets/Win32PictureBox.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/base/WideText.h"
#include "platform/win32/drawing/CanvasText.h"

namespace kel::win32 {

namespace {

constexpr int WholeBar = 100;

const WindowClass& progressClass() {
    static const WindowClass Class(L"KelControls8.PictureBox", PROGRESS_CLASSW);
    return Class;
}

LRESULT rangeOfBar(bool lowest, PBRANGE* range) {
    if (range != nullptr) *range = {0, WholeBar};
    return lowest ? 0 : WholeBar;
}

}  // namespace

Win32PictureBox::Win32PictureBox(ControlFrame& frame, PictureBox& box) : PaintedWindow(frame, box), Box_(box) {
    frame.add(*this);
}

Win32PictureBox::~Win32PictureBox() {
    frame().remove(*this);
    destroy();
}

// ---- The window

void Win32PictureBox::makeWindow() {
    if (create(progressClass(), WS_VISIBLE | (Box_.enabled() ? 0U : WS_DISABLED))) showToolTip();
}

void Win32PictureBox::outOfDate() {
    const Changes changes = Box_.takeChanges();
    if (changes.has(Change::Place)) place();
    if (changes.has(Change::Enabled) && window() != nullptr) EnableWindow(window(), Box_.enabled());
    if (changes.has(Change::Font)) Font_.choose(Box_.font(), frame().grid());
    if (changes.has(Change::ToolTip)) showToolTip();
    paintAgain();
    if (changes.has(Change::Percent) && window() != nullptr)
        NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window(), OBJID_CLIENT, CHILDID_SELF);
}

void Win32PictureBox::rescale() {
    Font_.rescale(frame().grid());
    place();
    paintAgain();
}

void Win32PictureBox::showToolTip() {
    if (window() != nullptr) frame().setToolTip(window(), wide(Box_.toolTip()).c_str());
}

// ---- Picture

Size Win32PictureBox::extentOf(std::u16string_view text) const {
    const WindowContext context(window());
    const SavedContext saved(context.get());
    SelectObject(context.get(), Font_.handle());
    const std::wstring units = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(context.get(), units.c_str(), static_cast<int>(units.size()), &size);
    const TwipGrid& grid = frame().grid();
    return {grid.twips(static_cast<int>(size.cx)), grid.twips(static_cast<int>(size.cy))};
}

void Win32PictureBox::paintAgain() {
    invalidate();
    frame().viewChanged();
}

void Win32PictureBox::paintNow() {
    if (window() != nullptr) UpdateWindow(window());
}

void Win32PictureBox::draw(const Canvas& canvas) const {
    const SavedContext saved(canvas.context());
    const BarPicture& picture = Box_.picture();
    const Rect bounds = Box_.bounds();
    const RECT area = canvas.area(bounds);
    const LONG end = canvas.area({bounds.left, bounds.top, picture.barWidth, 0}).right;
    const RECT bar{area.left, area.top, std::clamp(end, area.left, area.right), area.bottom};
    const RECT rest{bar.right, area.top, area.right, area.bottom};

    const CanvasText text(canvas, Font_);
    const std::wstring units = wide(picture.text);
    const POINT place = placeOf(text, canvas, units);
    const COLORREF fore = colorOf(Box_.foreColor());
    const COLORREF ground = GetSysColor(COLOR_BTNFACE);
    canvas.fill(bar, fore);
    canvas.fill(rest, ground);
    text.line(place, units, ground, &bar);
    text.line(place, units, fore, &rest);
}

/// The middle of the text is where it is on the screen: letters elsewhere are a little narrower or wider.
POINT Win32PictureBox::placeOf(const CanvasText& text, const Canvas& canvas, std::wstring_view units) const {
    const BarPicture& picture = Box_.picture();
    const Rect bounds = Box_.bounds();
    Rect place{bounds.left + picture.textLeft, bounds.top + picture.textTop, 0, 0};
    if (!canvas.isWindow()) {
        const Size size = extentOf(picture.text);
        place.width = size.width;
        place.height = size.height;
    }
    RECT area = canvas.area(place);
    if (!canvas.isWindow()) {
        area.left += (widthOf(area) - text.width(units)) / 2;
        area.top += (heightOf(area) - text.height()) / 2;
    }
    return {area.left, area.top};
}

// ---- What comes to the window

LRESULT Win32PictureBox::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        // The system's bar would have a border.
        case WM_NCCALCSIZE:
        case WM_NCPAINT: return 0;
        // Pressed, it is as the control around it.
        case WM_LBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_RBUTTONDOWN: return SendMessageW(GetParent(window()), message, wide, data);
        case PBM_GETPOS: return Box_.picture().percent;
        case PBM_GETRANGE: return rangeOfBar(wide != FALSE, reinterpret_cast<PBRANGE*>(data));
        case WM_GETTEXTLENGTH: return static_cast<LRESULT>(Box_.picture().text.size());
        case WM_GETTEXT:
            return static_cast<LRESULT>(copyText(Box_.picture().text, wide, reinterpret_cast<wchar_t*>(data)));
        default: return PaintedWindow::handle(message, wide, data);
    }
}

}  // namespace kel::win32
