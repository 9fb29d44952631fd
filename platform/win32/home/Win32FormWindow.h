#pragma once

#include <memory>
#include <vector>

#include "forms/Home.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/home/ForeignWindow.h"
#include "platform/win32/home/PlacedWin32Control.h"

namespace kel::win32 {

class Session;

/// A form on the screen.
class Win32FormWindow final : public FormWindow, private WindowHandler {
public:
    Win32FormWindow(const WindowSpec& description, System& system, SharedSettings& settings,
                    const RegionalSettings& region, Session& session);
    ~Win32FormWindow() override;

    PlacedControl& place(const ClassModel& model, const Placement& placement, ControlObserver& observer) override;
    PlacedPanel* placeForeign(const ForeignBlock& block) override;
    void show() override;

    void press(const KeyStroke& stroke) override;
    void focus(PlacedControl& control) override;
    void click(PlacedControl& control, std::int32_t position) override;
    void doubleClick(PlacedControl& control, std::int32_t position) override;
    void rightClick(PlacedControl& control) override;
    void spin(PlacedControl& control, bool up) override;
    void pick(PlacedControl& control, std::int32_t item) override;
    void setClipboard(std::u16string_view text) override;
    PlacedControl* focused() const override;
    std::string picture() override;

    HWND window() const { return Window_; }

    /// Keys that are the form's own: Tab, and Alt with a mnemonic.
    bool takesKey(const MSG& message);
    /// The control has the focus, and its field can have it no longer.
    void passFocusOn(PlacedWin32Control& from);
    /// Presses and releases a key after what is under way.
    void sendKey(std::int16_t code);

private:
    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    void activated(WPARAM state);
    void changeResolution(int dotsPerInch);
    void sizeWindow();

    HWND parentOf(const Placement& placement) const;
    void setForeignFont();
    PlacedWin32Control* controlOf(HWND window) const;
    PlacedWin32Control* focusedControl() const { return controlOf(GetFocus()); }
    void moveByTab(bool back);
    void giveFocus(HWND field, bool byTab);
    bool canHaveFocusAgain(HWND window) const;

    void activate();
    void click(PlacedControl& control, std::int32_t position, UINT press);
    HWND keyTarget() const;
    void postKey(const KeyStroke& stroke);
    void strikeSent(std::int16_t code);

    System& System_;
    SharedSettings& Settings_;
    const RegionalSettings& Region_;
    Session& Session_;
    TwipGrid Grid_;
    Size ClientSize_;
    Font Font_;
    HWND Window_ = nullptr;
    HWND FocusBefore_ = nullptr;  ///< which had the focus when another window came in front
    TabOrder Order_;
    std::vector<std::unique_ptr<ForeignWindow>> Foreign_;
    std::vector<std::unique_ptr<PlacedWin32Control>> Controls_;
};

}  // namespace kel::win32
