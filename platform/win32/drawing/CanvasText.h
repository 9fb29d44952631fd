#pragma once

#include <windows.h>

#include <string_view>

#include "platform/win32/base/Gdi.h"
#include "platform/win32/drawing/Canvas.h"

namespace kel::win32 {

/// Letters on a canvas, in a font that is as large there as it is on the screen. Lengths are measured beside the
/// canvas, which may be a metafile that knows none.
class CanvasText {
public:
    /// `canvas` and `font` outlive it.
    CanvasText(const Canvas& canvas, const Font& font);
    ~CanvasText();
    CanvasText(const CanvasText&) = delete;
    CanvasText& operator=(const CanvasText&) = delete;

    int ascent() const { return static_cast<int>(Metrics_.tmAscent); }
    int height() const { return static_cast<int>(Metrics_.tmHeight); }
    int width(std::wstring_view text) const;

    /// A line from its upper left corner; nothing of it outside `clip`, where there is one.
    void line(POINT place, std::wstring_view text, COLORREF ink, const RECT* clip = nullptr) const;

    /// A caption of one line, or of as many as it takes in the width of `area`. The character after "&" is underlined,
    /// unless `marks` is false.
    void caption(const RECT& area, std::u16string_view caption, COLORREF ink, bool severalLines, bool marks) const;
    /// Lines that end where the text says so, or with the last word that fits, or where a word is too long for one. Of
    /// a line after the first all of its height is there, or nothing.
    void lines(const RECT& area, std::wstring_view text, COLORREF ink) const;

private:
    template <class Line>
    void breakInto(int width, std::wstring_view text, Line line) const;
    std::size_t fitting(int width, std::wstring_view paragraph) const;
    void underline(POINT place, std::wstring_view line, std::size_t at, COLORREF ink) const;

    const Canvas& Canvas_;
    HDC Measure_;
    HFONT Made_ = nullptr;  ///< nullptr where the font itself serves
    HGDIOBJ Before_ = nullptr;
    HGDIOBJ MeasuredBefore_ = nullptr;
    TEXTMETRICW Metrics_{};
};

}  // namespace kel::win32
