#pragma once

#include <vector>

#include "platform/win32/base/Clipboard.h"
#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/control/ControlWindow.h"
#include "platform/win32/control/Win32Focus.h"
#include "platform/win32/widgets/Win32Label.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

class Win32ControlWindow final : public ControlWindow, private ControlFrame, private WidgetHost, private WindowHandler {
public:
    Win32ControlWindow(ControlWindowOwner& owner, System& system, std::shared_ptr<Clipboard> clipboard)
        : Owner_(owner), Grid_(system.twipsPerPixel()), Clipboard_(std::move(clipboard)) {}
    ~Win32ControlWindow() override;

    WidgetHost& widgets() override { return *this; }
    HWND handle() override;
    void setParent(HWND parent) override;
    void place(const RECT& bounds, const RECT& clip) override;
    void setVisible(bool visible) override;
    void setEnabled(bool enabled) override;
    void setFocus() override;
    bool hasFocus() const override;
    bool translateAccelerator(MSG& message) override;
    void draw(HDC context, const RECT& bounds) override;

    /// The screen that the window is on has another resolution.
    void setGrid(const TwipGrid& grid);

private:
    template <class Seen, class Shown>
    std::unique_ptr<Seen> make(Shown& shown);
    std::unique_ptr<PictureView> makeView(PictureBox& box) override;
    std::unique_ptr<View> makeView(CheckBox& box) override;
    std::unique_ptr<View> makeView(UpDown& spinner) override;
    std::unique_ptr<View> makeView(Label& label) override;
    std::unique_ptr<TextView> makeView(TextBox& box) override;
    std::unique_ptr<TextView> makeView(ComboBox& box) override;
    bool takesInput() const override { return Enabled_ && Visible_; }
    void moveFocusTo(FieldWidget& field) override;
    void focusBarred(FieldWidget& field) override { takeInputFrom(viewOf<WindowedField>(&field)->wholeWindow()); }
    void controlEntered() override { Owner_.focusEntered(); }
    void controlLeft() override { Owner_.focusLeft(); }
    std::u16string clipboardText() override { return Clipboard_->text(Window_); }
    void setClipboardText(std::u16string_view text) override { Clipboard_->setText(Window_, text); }

    HWND window() const override { return Window_; }
    ControlWindowOwner& owner() override { return Owner_; }
    const TwipGrid& grid() const override { return Grid_; }
    bool enabled() const override { return Enabled_; }
    void add(WindowedView& widget) override;
    void remove(WindowedView& widget) override { std::erase(Widgets_, &widget); }
    void addField(WindowedField& field) override;
    void removeField(WindowedField& field) override;
    void arrived(WindowedField& field) override;
    void departed(HWND next) override;
    void leave();
    void takeInputFrom(HWND window) override;
    void dropInputOf(HWND window) const;
    void setToolTip(HWND field, const wchar_t* text) override;
    void setLabel(Win32Label* label) override;
    void captionChanged() override;
    void mnemonicChanged() override { Owner_.mnemonicChanged(); }
    void viewChanged() override { Owner_.viewChanged(); }

    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data);
    int height() const { return heightOf(Bounds_); }
    void drawCaption(HDC context, const RECT& area) const;
    void drawLabelWindow(const DRAWITEMSTRUCT& item) const;

    void makeWindow(HWND parent);
    HWND parkingWindow();
    WindowedView* widgetOf(HWND window) const;
    WindowedField* fieldOf(HWND window) const;
    WindowedField* shownField() const;

    ControlWindowOwner& Owner_;
    TwipGrid Grid_;
    std::shared_ptr<Clipboard> Clipboard_;
    std::shared_ptr<Win32Focus> Focus_;  ///< where it has had the focus last; nullptr for nowhere
    std::vector<WindowedView*> Widgets_;
    std::vector<WindowedField*> Fields_;  ///< those of them that can have the focus
    Win32Label* Label_ = nullptr;
    HWND Window_ = nullptr;
    HWND Parking_ = nullptr;  ///< the parent that nobody sees
    HWND ToolTips_ = nullptr;
    RECT Bounds_{};
    bool Enabled_ = true;
    bool Visible_ = false;
};

}  // namespace kel::win32
