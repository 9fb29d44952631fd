#include "platform/win32/drawing/Symbols.h"

#include <algorithm>

#include "host/widgets/CheckBox.h"

namespace kel::win32 {

namespace {

void drawArrow(const Canvas& canvas, const RECT& area, Arrow arrow, COLORREF ink) {
    const int half = std::max(std::min(widthOf(area) / 4, heightOf(area) / 2), 1);
    const LONG middle = (area.left + area.right) / 2;
    const LONG top = (area.top + area.bottom - half) / 2;
    const LONG broad = arrow == Arrow::Down ? top : top + half;
    const LONG point = arrow == Arrow::Down ? top + half : top;
    canvas.fill({{middle - half, broad}, {middle + half, broad}, {middle, point}}, ink);
}

/// Looks engraved where it cannot be used.
template <class Draw>
void drawIn(const Canvas& canvas, const RECT& area, bool enabled, Draw draw) {
    if (!enabled) {
        RECT lower = area;
        OffsetRect(&lower, canvas.across(1), canvas.down(1));
        draw(lower, GetSysColor(COLOR_BTNHIGHLIGHT));
    }
    draw(area, GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_BTNSHADOW));
}

}  // namespace

void drawArrowButton(const Canvas& canvas, const RECT& area, Arrow arrow, bool enabled) {
    canvas.fill(area, GetSysColor(COLOR_BTNFACE));
    canvas.raisedEdge(area);
    drawIn(canvas, canvas.inside(area, 2), enabled,
           [&](const RECT& place, COLORREF ink) { drawArrow(canvas, place, arrow, ink); });
}

void drawCheck(const Canvas& canvas, const RECT& box, std::int32_t value, bool enabled) {
    const bool grey = value == CheckBox::Grey || !enabled;
    canvas.fill(box, GetSysColor(grey ? COLOR_BTNFACE : COLOR_WINDOW));
    canvas.sunkenEdge(box);
    if (value == CheckBox::Unchecked) return;
    // The tick of a box of thirteen pixels.
    const auto at = [&box](int x, int y) {
        return POINT{box.left + MulDiv(widthOf(box), x, 26), box.top + MulDiv(heightOf(box), y, 26)};
    };
    const COLORREF ink = GetSysColor(grey ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT);
    canvas.fill({at(6, 10), at(10, 14), at(20, 5), at(20, 11), at(10, 20), at(6, 16)}, ink);
}

}  // namespace kel::win32
