#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "host/widgets/CheckBox.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/SystemWindow.h"

namespace kel::win32 {

/// A check box: the system's button, whose state is kept here and which says when it is pressed. It is painted here,
/// since the system's own picture has no colours for a caption where visual styles are on.
class Win32CheckBox final : public View, public WindowedField, private PaintedWindow {
public:
    Win32CheckBox(ControlFrame& frame, CheckBox& box);
    ~Win32CheckBox() override;

    // ---- View

    void outOfDate() override;
    void paintAgain() override;

    // ---- WindowedField

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    bool wantsKey(const KeyStroke& stroke) const override;
    HBRUSH colors(HDC context) const override;
    void rescale() override;
    LRESULT notified(UINT notification, LPARAM details) override;
    int baseline(const Canvas& canvas) const override;
    void draw(const Canvas& canvas) const override;

private:
    void show(Changes changes);

    // ---- Picture

    void paintBox(HDC context, const RECT& place) const;
    void drawCaption(const Canvas& canvas, const RECT& room) const;
    void paintFocus(HDC context, RECT caption, const RECT& room) const;
    bool isIn(UINT buttonState) const;
    bool hides(UINT interfaceState) const;

    // ---- What comes to the window

    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;
    LRESULT native(UINT message, WPARAM wide, LPARAM data);
    LRESULT dialogCode(const MSG* asked) const;
    LRESULT keyDown(UINT message, WPARAM wide, LPARAM data);
    LRESULT released(UINT message, WPARAM wide, LPARAM data);
    void typed(char16_t unit);

    CheckBox& Box_;
    Font Font_;
    bool Clicked_ = false;  ///< by the message in hand
};

}  // namespace kel::win32
