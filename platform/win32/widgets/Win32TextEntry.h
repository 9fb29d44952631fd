#pragma once

#include "platform/win32/base/Gdi.h"
#include "platform/win32/widgets/EditInput.h"

namespace kel::win32 {

/// What shows a text box and what shows a combo box have in common: the system's edit window, which shows the text of
/// the widget. Whatever that window is asked to do goes to the widget.
class Win32TextEntry : public TextView, public WindowedField, protected WindowHandler {
public:
    // ---- TextView

    void outOfDate() final;
    void paintAgain() final;
    const TextLines* lines() const final { return &View_; }

    // ---- WindowedField

    HWND window() const final { return View_.window(); }
    void makeWindow() final;
    bool wantsKey(const KeyStroke& stroke) const final { return win32::wantsKey(Entry_, stroke); }
    HBRUSH colors(HDC context) const final;
    int baseline(const Canvas& canvas) const final;
    void rescale() final;

    /// For hands: where the window shows the caret at `position`, brought into view; past an end is that end.
    POINT showPosition(std::int32_t position) { return View_.showPosition(position); }

protected:
    static constexpr int EdgeWidth = 2;  ///< of the sunken edge, pixels
    static constexpr int TextGap = 1;    ///< between edge and text, pixels

    Win32TextEntry(ControlFrame& frame, TextEntry& entry)
        : WindowedField(entry), Frame_(frame), Entry_(entry), View_(entry), Input_(frame, *this, View_, entry) {}
    /// Of what derives from this, which is told until the window is gone.
    void destroy();

    ControlFrame& frame() const { return Frame_; }
    /// A child window's, shown and enabled as the widget is.
    DWORD style() const;
    RECT pixels() const { return Frame_.grid().pixels(Entry_.bounds()); }
    const TEXTMETRICW& textMetrics() const { return Font_.metrics(window()); }
    /// The area of the picture and what is behind its text; nothing is painted around it from now on.
    RECT drawGround(const Canvas& canvas) const;
    /// It ends with `area`.
    void drawText(const Canvas& canvas, RECT area) const;

private:
    /// In its place, in `style` and what else it takes; shows nothing yet. False when the system gives no window.
    virtual bool createWindow() = 0;
    virtual void showPlace() = 0;
    /// Of the text in the widget, in the screen's pixels.
    virtual POINT textCorner() const = 0;
    /// What only this kind of widget has.
    virtual void showOwn(Changes /*changes*/) {}
    virtual Changes ownChanges() const { return {}; }
    virtual LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data) = 0;
    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) final;

    Changes shownAnew() const;
    void show(Changes changes);
    void showToolTip();

    ControlFrame& Frame_;
    TextEntry& Entry_;
    Font Font_;

protected:
    EditView View_;
    EditInput Input_;
};

}  // namespace kel::win32
