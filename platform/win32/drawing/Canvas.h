#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>

#include "platform/win32/base/Gdi.h"

namespace kel::win32 {

/// What a control is painted on: a context, and how twips and the screen's pixels count there. It is painted by those
/// few functions alone that metafiles of any age keep and that ask nothing of the context.
class Canvas {
public:
    /// A window; the control's corner is at `origin` in it.
    Canvas(HDC context, const TwipGrid& screen, POINT origin) : Canvas(context, screen, screen, screen, origin) {}
    /// Something else, where twips count as they say; a pixel of the screen is as much of it as on the screen. With a
    /// width all is painted as in a mirror of that width.
    static Canvas elsewhere(HDC context, const TwipGrid& screen, const TwipScale& across, const TwipScale& down,
                            LONG mirrorWidth) {
        Canvas canvas(context, screen, across, down, {0, 0});
        canvas.IsWindow_ = false;
        canvas.MirrorWidth_ = mirrorWidth;
        return canvas;
    }

    HDC context() const { return Context_; }
    /// False where nobody works it, and what is painted may be kept.
    bool isWindow() const { return IsWindow_; }
    /// The same where nothing is mirrored.
    Canvas upright() const {
        Canvas canvas = *this;
        canvas.MirrorWidth_ = 0;
        return canvas;
    }
    bool isMirrored() const { return MirrorWidth_ > 0; }
    const TwipScale& screen() const { return Screen_; }
    const TwipScale& down() const { return Down_; }

    /// Where something in the control stands.
    RECT area(const Rect& twips) const;
    SIZE size(Size twips) const { return {Across_.pixel(twips.width), Down_.pixel(twips.height)}; }
    /// So many pixels of the screen; any are seen.
    int across(int pixels) const { return stretched(pixels, Across_); }
    int down(int pixels) const { return stretched(pixels, Down_); }
    /// Where in the context something comes to stand, or the unit at a place.
    RECT seen(const RECT& area) const;
    POINT seen(POINT place) const { return {isMirrored() ? MirrorWidth_ - 1 - place.x : place.x, place.y}; }
    /// `area` without so many of them on each side.
    RECT inside(const RECT& area, int pixels) const;

    void clip(const RECT& area) const;
    void fill(const RECT& area, COLORREF color) const;
    void fill(std::initializer_list<POINT> corners, COLORREF color) const;
    /// Two pixels wide, inside `area`.
    void sunkenEdge(const RECT& area) const;
    void raisedEdge(const RECT& area) const;

private:
    Canvas(HDC context, const TwipGrid& screen, const TwipScale& across, const TwipScale& down, POINT origin)
        : Context_(context), Screen_(screen), Across_(across), Down_(down), Origin_(origin) {}

    int stretched(int pixels, const TwipScale& scale) const;
    void corner(const RECT& area, const RECT& rest, int upper, int lower) const;
    void edge(const RECT& area, int outerUpper, int outerLower, int innerUpper, int innerLower) const;

    HDC Context_;
    TwipScale Screen_;
    TwipScale Across_;
    TwipScale Down_;
    POINT Origin_;
    bool IsWindow_ = true;
    LONG MirrorWidth_ = 0;  ///< 0 where nothing is mirrored
};

/// A rectangle of any context, made a canvas for as long as this lives: filled whole, whatever the context counts in,
/// and nothing painted outside.
class PictureCanvas {
public:
    /// `extent` is the size of the control, `ground` its colour where it paints nothing else. `metafile` is where a
    /// metafile's own coordinates begin and end, nullptr for other contexts and where it has none. `mirrored` has
    /// everything run from right to left.
    PictureCanvas(HDC context, const RECT& bounds, const RECT* metafile, Size extent, COLORREF ground,
                  const TwipGrid& screen, bool mirrored);

    const Canvas& canvas() const { return Canvas_; }
    /// Where the picture ends.
    LONG bottom() const { return Bottom_; }

private:
    SavedContext Saved_;
    LONG Bottom_ = 0;
    Canvas Canvas_;
};

}  // namespace kel::win32
