#include "platform/win32/widgets/Win32TextBox.h"

#include <algorithm>

namespace kel::win32 {

Win32TextBox::Win32TextBox(ControlFrame& frame, TextBox& box) : Win32TextEntry(frame, box), Box_(box) {
    frame.add(*this);
}

bool Win32TextBox::createWindow() {
    View_.create(frame().window(), pixels(), *this);
    return window() != nullptr;
}

std::ptrdiff_t Win32TextBox::linesOfPage() const {
    return std::max(
        1, (heightOf(pixels()) - 2 * (EdgeWidth + TextGap)) / std::max(1, static_cast<int>(textMetrics().tmHeight)));
}

LRESULT Win32TextBox::notified(UINT notification, LPARAM /*details*/) {
    if (notification == EN_CHANGE) View_.readText();
    return 0;
}

LRESULT Win32TextBox::handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == WM_NCCREATE) View_.adopt(window);
    if (message != EM_SETPASSWORDCHAR) return Input_.handle(message, wide, data);
    Box_.setPasswordChar(static_cast<char16_t>(wide));
    return 0;
}

// ---- Picture

int Win32TextBox::baseline() const {
    const int top = EdgeWidth + (window() != nullptr ? View_.textTop() : TextGap);
    return static_cast<int>(pixels().top) + top + static_cast<int>(textMetrics().tmAscent);
}

void Win32TextBox::draw(HDC context, POINT origin) const {
    const SavedContext saved(context);
    RECT area = drawGround(context, origin);
    DrawEdge(context, &area, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    IntersectClipRect(context, area.left, area.top, area.right, area.bottom);
    InflateRect(&area, -TextGap, -TextGap);
    drawText(context, area, Box_.multiLine() ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE);
}

}  // namespace kel::win32
