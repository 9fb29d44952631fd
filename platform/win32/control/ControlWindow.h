#pragma once

#include <memory>
#include <vector>

#include "host/System.h"
#include "host/Widgets.h"
#include "platform/win32/accessible/ControlAccess.h"
#include "platform/win32/base/Clipboard.h"
#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/control/ControlWindowOwner.h"
#include "platform/win32/control/Win32Focus.h"
#include "platform/win32/widgets/Win32Label.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

class PictureCanvas;

/// The window of one control, a child of whatever window its host gives it, and the host of the child
/// widgets in it. Coordinates here are screen pixels; the widgets' are twips (`System::scale`).
///
/// Widgets and control work without any window being there: what they are given is kept and shown once there
/// is one. When a host destroys the parent with the window in it, the widgets keep what they hold, and the
/// next `handle` makes the window anew.
class ControlWindow final : private ControlFrame, private WidgetHost, private WindowHandler, private AccessibleSource {
public:
    /// `owner` outlives the window.
    ControlWindow(ControlWindowOwner& owner, const System& system,
                  std::shared_ptr<Clipboard> clipboard = std::make_shared<Clipboard>())
        : Owner_(owner), Grid_(system.scale()), Clipboard_(std::move(clipboard)) {}
    /// Destroys the window. The control, and with it every widget, is gone before.
    ~ControlWindow();
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

    WidgetHost& widgets() { return *this; }

    /// The control's own window. There being none, it is made: hidden, in a parent that nobody sees. nullptr
    /// when the system gives no window.
    HWND handle();
    /// The same as hosts of any width have it: handles have 32 significant bits in 64-bit processes too.
    std::int32_t handleNumber() { return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(handle())); }

    /// Moves the window into `parent`, as the last in its order; makes the window if need be. Where it is in there
    /// already it stays as it is.
    void setParent(HWND parent);
    /// The window, if there is one, goes: the parent is no longer for the control. Whatever shows in it stays as it is,
    /// for a window that is made later.
    void abandon();

    /// Place inside the parent, also of a window that is made later; nothing outside `clip`, in the same coordinates,
    /// is shown.
    void place(const RECT& bounds, const RECT& clip);

    void setVisible(bool visible);

    /// A disabled window takes no input, and neither do the widgets in it.
    bool enabled() const override { return Enabled_; }
    void setEnabled(bool enabled);

    /// An inert control looks as ever and can be told anything, but a person's deeds do nothing to it, nor does the
    /// focus.
    void setInert(bool inert);
    /// Whatever input it has, held buttons too, it has no longer.
    void dropInput() const { dropInputOf(Window_); }

    /// The colour around the field and behind the caption.
    void setGround(Color ground);
    COLORREF ground() const { return colorOf(Ground_); }
    /// Captions, fields and texts run from right to left.
    void setMirrored(bool mirrored);
    bool mirrored() const { return Mirrored_; }

    /// Gives the focus to the field by code. Nothing happens while the control is disabled or hidden.
    void setFocus();

    /// A key that the host offers before it looks at it itself. True: the field wants it (arrows, Home, End,
    /// Enter, Escape in a dropped list, the editing shortcuts) and has been given it. Tab is never wanted.
    bool translateAccelerator(MSG& message);

    /// Paints the control as it stands, also while it has no window.
    void draw(const PictureCanvas& picture) const;

    /// That of the screen that the window is on.
    const TwipGrid& grid() const override { return Grid_; }
    void setGrid(const TwipGrid& grid);
    /// Takes it from the system, which tells screens apart for programs that know that they differ.
    /// Of the screen of `parent`, while there is no window in it yet.
    void followScreen(HWND parent = nullptr);

private:
    template <class Seen, class Shown>
    std::unique_ptr<Seen> make(Shown& shown);
    std::unique_ptr<PictureView> makeView(PictureBox& box) override;
    std::unique_ptr<View> makeView(CheckBox& box) override;
    std::unique_ptr<View> makeView(UpDown& spinner) override;
    std::unique_ptr<View> makeView(Label& label) override;
    std::unique_ptr<TextView> makeView(TextBox& box) override;
    std::unique_ptr<TextView> makeView(ComboBox& box) override;
    bool takesInput() const override { return Enabled_ && Visible_ && !Inert_; }
    void moveFocusTo(FieldWidget& field) override;
    void focusBarred(FieldWidget& field) override { takeInputFrom(viewOf<WindowedField>(&field)->wholeWindow()); }
    void controlEntered() override { Owner_.focusEntered(); }
    void controlLeft() override { Owner_.focusLeft(); }
    std::u16string clipboardText() override { return Clipboard_->text(Window_); }
    void setClipboardText(std::u16string_view text) override { Clipboard_->setText(Window_, text); }

    HWND window() const override { return Window_; }
    ControlWindowOwner& owner() override { return Owner_; }
    void add(WindowedView& widget) override;
    void remove(WindowedView& widget) override;
    void arrived(WindowedField& field) override;
    void departed(HWND next) override;
    void leave();
    void takeInputFrom(HWND window) override;
    void dropInputOf(HWND window) const;
    void setToolTip(HWND field, const wchar_t* text) override;
    void setLabel(Win32Label* label) override;
    void captionChanged() override;
    void mnemonicChanged() override { Owner_.mnemonicChanged(); }
    void viewChanged() override;
    std::optional<LRESULT> answerReader(HWND window, UINT message, WPARAM wide, LPARAM data) override;

    HWND speakingWindow() const override;
    std::vector<HWND> parts() const override;

    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data);
    int height() const { return heightOf(Bounds_); }
    void drawCaption(const Canvas& canvas, LONG bottom) const;
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
    Win32Label* Label_ = nullptr;
    HWND Window_ = nullptr;
    HWND Parking_ = nullptr;  ///< the parent that nobody sees
    HWND ToolTips_ = nullptr;
    std::unique_ptr<ControlAccess> Access_;  ///< none before a reader asks
    RECT Bounds_{};
    RECT Clip_{};
    bool Enabled_ = true;
    bool Visible_ = false;
    bool Clipped_ = false;  ///< the window is
    bool Inert_ = false;
    bool Mirrored_ = false;
    Color Ground_ = colors::SystemButtonFace;
};

}  // namespace kel::win32
