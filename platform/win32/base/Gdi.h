#pragma once

#include <windows.h>

#include <optional>
#include <string_view>
#include <utility>

#include "host/widgets/Widget.h"
#include "platform/win32/base/TwipGrid.h"

namespace kel::win32 {

/// A colour of the library on this machine.
inline COLORREF colorOf(Color color) {
    return isSystemColor(color) ? GetSysColor(static_cast<int>(color & 0xFFU))
                                : static_cast<COLORREF>(color & 0xFFFFFFU);
}

/// That of the screen that `window` is on, as its program sees it; that of the first screen for nullptr, and where the
/// system knows but one.
TwipScale screenScale(HWND window);

/// What so many pixels of the first screen are on that of `window`.
int onScreenOf(HWND window, int pixels);

/// Fills in `color` with the system's changeable brush: there is none to keep.
HBRUSH brushFor(HDC context, COLORREF color);

/// That of a field's text, grey where it is not enabled.
COLORREF inkOf(const FieldWidget& field, bool enabled);
/// Those of a field. Returns the brush for its background.
HBRUSH setColors(HDC context, const FieldWidget& field, bool enabled);

/// A font of our own, or the system's while none has been chosen.
class Font {
public:
    Font() = default;
    ~Font() { drop(); }
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    HFONT handle() const;

    void choose(const FontFace& face, const TwipGrid& grid);
    /// The same on a screen of another resolution.
    void rescale(const TwipGrid& grid);
    /// The same where twips count as `scale` says, not as on the `screen` that it has been chosen for; the caller's to
    /// delete.
    HFONT makeScaled(const TwipScale& scale, const TwipScale& screen) const;
    /// Ascent of it, and height of its lines, where `window` stands.
    const TEXTMETRICW& metrics(HWND window) const;

private:
    void make(const LOGFONTW& description);
    void drop();

    HFONT Handle_ = nullptr;
    LOGFONTW Description_{};
    double Points_ = 0;
    mutable std::optional<TEXTMETRICW> Metrics_;  ///< once they have been asked for
};

/// The device context of a window, or with nullptr of the screen, for measuring.
class WindowContext {
public:
    explicit WindowContext(HWND window) : Window_(window), Context_(GetDC(window)) {}
    ~WindowContext() { ReleaseDC(Window_, Context_); }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;

    HDC get() const { return Context_; }

private:
    HWND Window_;
    HDC Context_;
};

/// Keeps clip, colours and what is selected into a context as they were. The last that was saved is the first that is
/// restored: a metafile is played where others were saved before.
class SavedContext {
public:
    explicit SavedContext(HDC context) : Context_(context) { SaveDC(context); }
    ~SavedContext() { RestoreDC(Context_, -1); }
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;

private:
    HDC Context_;
};

}  // namespace kel::win32
