#pragma once

#include "host/widgets/Label.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

/// A caption: a label of the system, in front of the field, which thereby has its name for those who cannot see
/// it, and its mnemonic in dialogs. What it looks like is painted here. A field without a caption is spared the window.
class Win32Label final : public View {
public:
    Win32Label(ControlFrame& frame, Label& label) : Frame_(frame), Label_(label) { Frame_.setLabel(this); }
    ~Win32Label() override;

    const Label& shown() const { return Label_; }

    void outOfDate() override;
    void paintAgain() override { Frame_.captionChanged(); }

    HWND window() const { return Window_; }
    /// The first of the control's. Nothing happens where there is one, nothing to show in it, or nothing to be in.
    void makeWindow(int controlHeight);
    /// The window has been destroyed with its parent.
    void forgetWindow() { Window_ = nullptr; }
    /// The caption may take all of the control's height. The window comes and goes with it.
    void place(int controlHeight);
    /// In another resolution.
    void rescale() { Font_.rescale(Frame_.grid()); }

    /// With its text on `baseline`, in a control that ends at `bottom`.
    void draw(const Canvas& canvas, LONG bottom, int baseline, bool enabled) const;

private:
    ControlFrame& Frame_;
    Label& Label_;
    Font Font_;
    HWND Window_ = nullptr;
};

}  // namespace kel::win32
