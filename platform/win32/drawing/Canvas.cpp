#include "platform/win32/drawing/Canvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace kel::win32 {

// ---- Places

RECT Canvas::area(const Rect& twips) const {
    RECT area{Across_.pixel(twips.left), Down_.pixel(twips.top), Across_.pixel(twips.left + twips.width),
              Down_.pixel(twips.top + twips.height)};
    OffsetRect(&area, Origin_.x, Origin_.y);
    return area;
}

int Canvas::stretched(int pixels, const TwipScale& scale) const {
    const double factor = scale.exactPixels(1) / Screen_.exactPixels(1);
    const auto length = static_cast<int>(std::lround(pixels * factor));
    return pixels > 0 ? std::max(length, 1) : length;
}

RECT Canvas::seen(const RECT& area) const {
    if (!isMirrored()) return area;
    return {MirrorWidth_ - area.right, area.top, MirrorWidth_ - area.left, area.bottom};
}

RECT Canvas::inside(const RECT& area, int pixels) const {
    RECT inner = area;
    InflateRect(&inner, -across(pixels), -down(pixels));
    return inner;
}

// ---- Painting

void Canvas::clip(const RECT& area) const {
    const RECT kept = seen(area);
    IntersectClipRect(Context_, kept.left, kept.top, kept.right, kept.bottom);
}

/// The changeable brush has no colour in a metafile.
void Canvas::fill(const RECT& area, COLORREF color) const {
    if (IsWindow_) {
        FillRect(Context_, &area, brushFor(Context_, color));
        return;
    }
    HBRUSH const brush = CreateSolidBrush(color);
    const RECT filled = seen(area);
    FillRect(Context_, &filled, brush);
    DeleteObject(brush);
}

void Canvas::fill(std::initializer_list<POINT> corners, COLORREF color) const {
    HBRUSH const brush = CreateSolidBrush(color);
    HGDIOBJ const brushBefore = SelectObject(Context_, brush);
    HGDIOBJ const penBefore = SelectObject(Context_, GetStockObject(NULL_PEN));
    std::vector<POINT> points(corners);
    for (POINT& point : points) point = seen(point);
    Polygon(Context_, points.data(), static_cast<int>(points.size()));
    SelectObject(Context_, penBefore);
    SelectObject(Context_, brushBefore);
    DeleteObject(brush);
}

/// What of `area` is around `rest`, with light from the upper left. The lower right has the corners.
void Canvas::corner(const RECT& area, const RECT& rest, int upper, int lower) const {
    const COLORREF light = GetSysColor(upper);
    const COLORREF shade = GetSysColor(lower);
    fill({area.left, area.top, rest.right, rest.top}, light);
    fill({area.left, rest.top, rest.left, rest.bottom}, light);
    fill({rest.right, area.top, area.right, area.bottom}, shade);
    fill({area.left, rest.bottom, rest.right, area.bottom}, shade);
}

void Canvas::edge(const RECT& area, int outerUpper, int outerLower, int innerUpper, int innerLower) const {
    const RECT outer = inside(area, 1);
    corner(area, outer, outerUpper, outerLower);
    corner(outer, inside(area, 2), innerUpper, innerLower);
}

void Canvas::sunkenEdge(const RECT& area) const {
    edge(area, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_3DLIGHT);
}

void Canvas::raisedEdge(const RECT& area) const {
    edge(area, COLOR_3DLIGHT, COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
}

// ---- Any context

namespace {

/// In the device's own pixels.
SIZE deviceSize(HDC context, const RECT& bounds) {
    // The third corner is for contexts that turn their picture.
    POINT corners[] = {{bounds.left, bounds.top}, {bounds.right, bounds.top}, {bounds.left, bounds.bottom}};
    LPtoDP(context, corners, 3);
    const auto distance = [&corners](int to) {
        return std::max(std::lround(std::hypot(corners[to].x - corners[0].x, corners[to].y - corners[0].y)), 1L);
    };
    return {distance(1), distance(2)};
}

/// How many units the picture is wide and high: the device's own pixels where those are known, so that edges lie on
/// them and letters are the best that the device has for their size. A metafile is for any device: twips.
SIZE unitsOf(HDC context, const RECT& bounds, Size extent, const TwipGrid& screen) {
    constexpr double Stretch = 1.03;  // no more than the rounding of a low field to pixels makes
    const DWORD kind = GetObjectType(context);
    if (kind == OBJ_METADC || kind == OBJ_ENHMETADC) return {extent.width, extent.height};
    const SIZE device = deviceSize(context, bounds);
    if (device.cx == screen.pixel(extent.width) && device.cy == screen.pixel(extent.height)) return device;
    // Letters that are to be stretched are drawn in their usual shape, and the context stretches them.
    const TwipScale down(extent.height, static_cast<std::int32_t>(device.cy));
    const LONG unstretched = std::max(down.pixel(extent.width), 1);
    const double stretch = static_cast<double>(device.cx) / unstretched;
    return stretch > Stretch || stretch < 1 / Stretch ? SIZE{unstretched, device.cy} : device;
}

/// From here on `units` count from the corner of `bounds`.
void countIn(HDC context, const RECT& bounds, const RECT* metafile, SIZE units) {
    const double across = static_cast<double>(widthOf(bounds)) / units.cx;
    const double down = static_cast<double>(heightOf(bounds)) / units.cy;
    if (GetObjectType(context) == OBJ_METADC) {
        const RECT& whole = metafile != nullptr ? *metafile : bounds;
        const auto counted = [](double length, double scale) { return static_cast<int>(std::lround(length / scale)); };
        SetWindowOrgEx(context, counted(whole.left - bounds.left, across), counted(whole.top - bounds.top, down),
                       nullptr);
        SetWindowExtEx(context, counted(widthOf(whole), across), counted(heightOf(whole), down), nullptr);
        return;
    }
    if (across == 1 && down == 1 && GetGraphicsMode(context) == GM_COMPATIBLE) {
        OffsetWindowOrgEx(context, -static_cast<int>(bounds.left), -static_cast<int>(bounds.top), nullptr);
        return;
    }
    SetGraphicsMode(context, GM_ADVANCED);
    const XFORM toBounds{static_cast<FLOAT>(across),    0, 0, static_cast<FLOAT>(down), static_cast<FLOAT>(bounds.left),
                         static_cast<FLOAT>(bounds.top)};
    ModifyWorldTransform(context, &toBounds, MWT_LEFTMULTIPLY);
}

/// Whatever the host was drawing with.
void startAfresh(HDC context, bool mirrored) {
    SetTextAlign(context, (mirrored ? TA_RIGHT : TA_LEFT) | TA_TOP | TA_NOUPDATECP);
    SetBkMode(context, TRANSPARENT);
    SetROP2(context, R2_COPYPEN);
    SetTextCharacterExtra(context, 0);
    SetTextJustification(context, 0, 0);
}

}  // namespace

PictureCanvas::PictureCanvas(HDC context, const RECT& bounds, const RECT* metafile, Size extent, COLORREF ground,
                             const TwipGrid& screen, bool mirrored)
    : Saved_(context), Canvas_(context, screen, {0, 0}) {
    const Size size{std::max(extent.width, 1), std::max(extent.height, 1)};
    const SIZE units = unitsOf(context, bounds, size, screen);
    const RECT whole{0, 0, units.cx, units.cy};
    const bool asOnScreen = units.cx == screen.pixel(size.width) && units.cy == screen.pixel(size.height);
    const auto scale = [&](std::int32_t twips, LONG count) {
        return asOnScreen ? TwipScale(screen) : TwipScale(twips, static_cast<std::int32_t>(count));
    };
    Canvas_ = Canvas::elsewhere(context, screen, scale(size.width, units.cx), scale(size.height, units.cy),
                                mirrored ? units.cx : 0);
    countIn(context, bounds, metafile, units);
    Bottom_ = units.cy;
    startAfresh(context, mirrored);
    Canvas_.clip(whole);
    Canvas_.fill(whole, ground);
}

}  // namespace kel::win32
