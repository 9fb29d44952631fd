#pragma once

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace kel::tests {

/// A picture in memory, white at first.
class Picture {
public:
    static constexpr int Width = 300;
    static constexpr int Height = 60;

    Picture() : Context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof format.bmiHeader;
        format.bmiHeader.biWidth = Width;
        format.bmiHeader.biHeight = -Height;
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        Bitmap_ = CreateDIBSection(Context_, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
        Before_ = SelectObject(Context_, Bitmap_);
        Pixels_ = static_cast<DWORD*>(bits);
        std::fill_n(Pixels_, Width * Height, 0xFFFFFFU);
    }
    ~Picture() {
        SelectObject(Context_, Before_);
        DeleteObject(Bitmap_);
        DeleteDC(Context_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC context() const { return Context_; }
    /// Pixels of a colour between two columns.
    int count(DWORD color, int left, int right) {
        GdiFlush();
        int found = 0;
        for (int row = 0; row < Height; ++row)
            for (int column = left; column < right; ++column)
                found += (Pixels_[row * Width + column] & 0xFFFFFFU) == color ? 1 : 0;
        return found;
    }
    /// The pixels of the upper left corner, so wide and high.
    std::vector<DWORD> all(int width, int height) {
        GdiFlush();
        std::vector<DWORD> pixels;
        for (int row = 0; row < height; ++row) std::copy_n(Pixels_ + row * Width, width, std::back_inserter(pixels));
        return pixels;
    }

private:
    HDC Context_;
    HBITMAP Bitmap_;
    HGDIOBJ Before_;
    DWORD* Pixels_;
};

}  // namespace kel::tests
