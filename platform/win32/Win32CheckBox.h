#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "platform/win32/SystemWindow.h"
#include "platform/win32/Win32FieldWidget.h"

namespace kel::win32 {

/// A check box: the system's button, whose state is kept here and which says when it is pressed. It is painted here,
/// since the system's own picture has no colours for a caption where visual styles are on.
class Win32CheckBox final : public Win32FieldWidget<CheckBox>, private PaintedWindow {
public:
    Win32CheckBox(ControlFrame& frame, CheckBoxListener& listener);
    ~Win32CheckBox() override;

    // ---- CheckBox

    void refresh() override;

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override;
    std::int32_t value() const override { return Value_; }
    void setValue(std::int32_t value) override;

    // ---- ChildField

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    void gotFocus() override {}
    void lostFocus() override {}
    bool wantsKey(const KeyStroke& stroke) const override;
    char16_t mnemonic() const override;
    void mnemonicPressed() override { toggle(); }
    void rescale() override;
    LRESULT notified(UINT notification, LPARAM details) override;
    int baseline() const override;
    void draw(HDC context, POINT origin) const override;

private:
    using Win32FieldWidget::frame;

    void placeChanged() override;
    void fontChanged() override;
    /// A control that takes no input leaves the caption as it is.
    bool looksEnabled() const override { return enabled(); }

    // ---- Picture

    void paint(HDC context, const RECT& area) const override;
    void paint(HDC context, const RECT& area, HTHEME theme) const;
    RECT boxIn(const RECT& area) const;
    void paintBox(HDC context, const RECT& place, HTHEME theme) const;
    void paintCaption(HDC context, const RECT& area) const;
    bool isIn(UINT buttonState) const;
    bool hides(UINT interfaceState) const;

    // ---- What comes to the window

    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;
    LRESULT native(UINT message, WPARAM wide, LPARAM data);
    LRESULT dialogCode(const MSG* asked) const;
    bool takeFocus();
    LRESULT keyDown(UINT message, WPARAM wide, LPARAM data);
    LRESULT released(UINT message, WPARAM wide, LPARAM data);
    void typed(char16_t unit);
    void toggle() { setValue(Value_ == Unchecked ? Checked : Unchecked); }

    CheckBoxListener& Listener_;
    std::u16string Caption_;
    std::int32_t Value_ = Unchecked;
    bool Clicked_ = false;  ///< by the message in hand
};

}  // namespace kel::win32
