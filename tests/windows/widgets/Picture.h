#pragma once

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace kel::tests {

/// A colour that no part of a control has by itself.
inline constexpr DWORD Ink = 0xFF0000;

/// A picture in memory, white at first.
class Picture {
public:
    static constexpr int Width = 300;
    static constexpr int Height = 60;

    explicit Picture(int width = Width, int height = Height)
        : Width_(width), Height_(height), Context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof format.bmiHeader;
        format.bmiHeader.biWidth = width;
        format.bmiHeader.biHeight = -height;
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        Bitmap_ = CreateDIBSection(Context_, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
        Before_ = SelectObject(Context_, Bitmap_);
        Pixels_ = static_cast<DWORD*>(bits);
        std::fill_n(Pixels_, width * height, 0xFFFFFFU);
    }
    ~Picture() {
        SelectObject(Context_, Before_);
        DeleteObject(Bitmap_);
        DeleteDC(Context_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC context() const { return Context_; }
    int width() const { return Width_; }
    int height() const { return Height_; }
    DWORD at(int column, int row) const { return Pixels_[row * Width_ + column] & 0xFFFFFFU; }
    /// Pixels of a colour between two columns.
    int count(DWORD color, int left, int right) {
        GdiFlush();
        int found = 0;
        for (int row = 0; row < Height_; ++row)
            for (int column = left; column < right; ++column) found += at(column, row) == color ? 1 : 0;
        return found;
    }
    /// The smallest rectangle around all pixels of some kind in an area; empty where there are none.
    template <class Kind>
    RECT around(const RECT& area, Kind kind) {
        GdiFlush();
        RECT found{};
        for (LONG row = area.top; row < area.bottom; ++row)
            for (LONG column = area.left; column < area.right; ++column) {
                const RECT pixel{column, row, column + 1, row + 1};
                const RECT before = found;
                if (kind(at(static_cast<int>(column), static_cast<int>(row)))) UnionRect(&found, &before, &pixel);
            }
        return found;
    }
    /// The pixels of the upper left corner, so wide and high.
    std::vector<DWORD> all(int width, int height) {
        GdiFlush();
        std::vector<DWORD> pixels;
        for (int row = 0; row < height; ++row) std::copy_n(Pixels_ + row * Width_, width, std::back_inserter(pixels));
        return pixels;
    }

private:
    int Width_;
    int Height_;
    HDC Context_;
    HBITMAP Bitmap_;
    HGDIOBJ Before_;
    DWORD* Pixels_;
};

}  // namespace kel::tests
