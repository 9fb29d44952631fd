#include "platform/win32/widgets/Win32TextBox.h"

#include <algorithm>

#include "platform/win32/drawing/Canvas.h"

namespace kel::win32 {

Win32TextBox::Win32TextBox(ControlFrame& frame, TextBox& box) : Win32TextEntry(frame, box), Box_(box) {
    frame.add(*this);
}

bool Win32TextBox::createWindow() {
    View_.create(frame().window(), pixels(), style(), *this);
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

POINT Win32TextBox::textCorner() const {
    const POINT corner = window() != nullptr ? View_.textCorner() : POINT{TextGap, TextGap};
    return {corner.x + EdgeWidth, corner.y + EdgeWidth};
}

void Win32TextBox::draw(const Canvas& canvas) const {
    const SavedContext saved(canvas.context());
    const RECT area = drawGround(canvas);
    canvas.sunkenEdge(area);
    canvas.clip(canvas.inside(area, EdgeWidth));
    drawText(canvas, canvas.inside(area, EdgeWidth + TextGap));
}

}  // namespace kel::win32
