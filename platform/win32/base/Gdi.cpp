#include "platform/win32/base/Gdi.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#include "platform/win32/base/Procedure.h"

namespace kel::win32 {

TwipScale screenScale(HWND window) {
    static auto* const DotsPerInch = procedureOf<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
    const UINT dots = window != nullptr && DotsPerInch != nullptr ? DotsPerInch(window) : 0;
    return TwipScale::ofDotsPerInch(dots > 0 ? static_cast<int>(dots)
                                             : GetDeviceCaps(WindowContext(nullptr).get(), LOGPIXELSX));
}

int onScreenOf(HWND window, int pixels) {
    return static_cast<int>(
        std::lround(pixels * screenScale(window).exactPixels(1) / screenScale(nullptr).exactPixels(1)));
}

HBRUSH brushFor(HDC context, COLORREF color) {
    SetDCBrushColor(context, color);
    return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

COLORREF inkOf(const FieldWidget& field, bool enabled) {
    return enabled ? colorOf(field.foreColor()) : GetSysColor(COLOR_GRAYTEXT);
}

HBRUSH setColors(HDC context, const FieldWidget& field, bool enabled) {
    const COLORREF back = colorOf(field.backColor());
    SetTextColor(context, inkOf(field, enabled));
    SetBkColor(context, back);
    return brushFor(context, back);
}

HFONT Font::handle() const {
    return Handle_ != nullptr ? Handle_ : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

void Font::choose(const FontFace& face, const TwipGrid& grid) {
    LOGFONTW description{};
    if (face.size > 0) {
        description.lfHeight = -grid.fontPixels(face.size);
        description.lfCharSet = DEFAULT_CHARSET;
        const std::size_t units = std::min(face.name.size(), std::size(description.lfFaceName) - 1);
        std::copy_n(face.name.begin(), units, std::begin(description.lfFaceName));
        Points_ = face.size;
    } else {
        GetObjectW(handle(), sizeof description, &description);
    }
    description.lfWeight = face.bold ? FW_BOLD : FW_NORMAL;
    if (Handle_ == nullptr || std::memcmp(&description, &Description_, sizeof description) != 0) make(description);
}

void Font::rescale(const TwipGrid& grid) {
    if (Points_ <= 0) return;
    LOGFONTW description = Description_;
    description.lfHeight = -grid.fontPixels(Points_);
    make(description);
}

HFONT Font::makeScaled(const TwipScale& scale, const TwipScale& screen) const {
    LOGFONTW description{};
    GetObjectW(handle(), sizeof description, &description);
    description.lfHeight = static_cast<LONG>(Points_ > 0 ? -TwipGrid(scale).fontPixels(Points_)
                                                         : std::lround(static_cast<double>(description.lfHeight) *
                                                                       scale.exactPixels(1) / screen.exactPixels(1)));
    return CreateFontIndirectW(&description);
}

const TEXTMETRICW& Font::metrics(HWND window) const {
    if (!Metrics_) {
        const WindowContext context(window);
        const SavedContext saved(context.get());
        SelectObject(context.get(), handle());
        GetTextMetricsW(context.get(), &Metrics_.emplace());
    }
    return *Metrics_;
}

void Font::make(const LOGFONTW& description) {
    drop();
    Description_ = description;
    Handle_ = CreateFontIndirectW(&Description_);
}

void Font::drop() {
    Metrics_.reset();
    if (Handle_ != nullptr) DeleteObject(std::exchange(Handle_, nullptr));
}

}  // namespace kel::win32
