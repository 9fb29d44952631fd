#pragma once

#include <string>

#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// The character that a caption marks with "&"; 0 for none.
char16_t mnemonicIn(std::u16string_view caption);

/// A caption: a label of the system, in front of the field, which thereby has its name for those who cannot see
/// it. What it looks like is painted here.
class Win32Label final : public Win32TextualWidget<Label> {
public:
    explicit Win32Label(ControlFrame& frame) : Win32TextualWidget(frame, colors::SystemButtonText) {
        frame.setLabel(this);
    }
    ~Win32Label() override;

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override;

    void refresh() override { frame().captionChanged(); }

    HWND window() const { return Window_; }
    void makeWindow(int controlHeight);
    /// The window has been destroyed with its parent.
    void forgetWindow() { Window_ = nullptr; }
    /// The caption may take all of the control's height.
    void place(int controlHeight);
    /// In another resolution.
    void rescale() { rescaleFont(); }

    char16_t mnemonic() const { return mnemonicIn(Caption_); }

    /// With its text on `baseline`, in pixels from the top; `control` is the whole control.
    void draw(HDC context, const RECT& control, int baseline, bool enabled) const;

private:
    void placeChanged() override { refresh(); }
    void enabledChanged() override { refresh(); }
    void fontChanged() override { refresh(); }

    std::u16string Caption_;
    HWND Window_ = nullptr;
};

}  // namespace kel::win32
