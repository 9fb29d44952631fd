#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/win32/EditView.h"
#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// An edit box on the system's edit window. The text is edited in a buffer of our own, which knows more than the
/// window (undo, limits, pairs, words); the window shows it, and whatever it is asked to do goes to the buffer.
class Win32TextBox final : public EditedTextBox<Win32Widget<TextBox>>,
                           public ChildField,
                           private EditSurroundings,
                           private TextLines,
                           private WindowHandler {
public:
    Win32TextBox(ControlFrame& frame, TextBoxListener& listener, bool multiLine);
    ~Win32TextBox() override;

    // ---- TextBox

    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override;
    Color backColor() const override { return BackColor_; }
    void setBackColor(Color color) override;
    std::u16string toolTip() const override { return ToolTip_; }
    void setToolTip(std::u16string_view text) override;
    void setFocus() override;
    void refresh() override;

    void setLocked(bool locked) override;
    void setPasswordChar(char16_t character) override;

    // ---- ChildField

    HWND window() const override { return View_.window(); }
    void makeWindow() override;
    bool shown() const override { return Visible_; }
    bool acceptsInput() const override { return enabled() && Visible_ && frame().acceptsInput(); }
    void gotFocus() override { Editor_.listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.listener().Text1_LostFocus(); }
    bool wantsKey(const KeyStroke& stroke) const override;
    HBRUSH colors(HDC context) const override;
    void rescale() override;
    void notified(UINT notification) override;
    int baseline() const override;
    void draw(HDC context, POINT origin) const override;

    /// Where the window shows the caret at `position`, brought into view; past the end is the end.
    POINT showPosition(std::int32_t position);

private:
    void placeChanged() override;
    void enabledChanged() override;
    void fontChanged() override;
    void showPasswordChar();
    int lineHeight() const;
    std::wstring drawnText() const;

    bool takesInput() const override { return acceptsInput(); }
    void bufferChanged() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;
    std::ptrdiff_t linesOfPage() const override;
    const TextLines* lines() const override { return buffer().multiLine() ? this : nullptr; }
    TextLine lineAt(std::size_t position) const override;

    // ---- What comes to the window

    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM data);
    bool handleText(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleKey(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleInputMethod(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleMouse(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    LRESULT defaultFor(UINT message, WPARAM wide, LPARAM data) const;

    LRESULT copyText(std::size_t capacity, wchar_t* out) const;
    void selectFromOutside(WPARAM start, LPARAM end);
    bool keyDown(std::int16_t code, LPARAM data);
    void unitTyped(char16_t unit);
    void placeInputMethod() const;
    void takeCommitted();
    void pressed(UINT message, WPARAM wide, LPARAM data);
    void readSelection();

    EditView View_;
    std::u16string ToolTip_;
    Color BackColor_ = colors::SystemWindow;
    char16_t FirstHalf_ = 0;  ///< of a pair whose second half has not come yet
    bool Visible_ = true;
    bool LeftPressed_ = false;
};

/// The modifier keys that are down for the message being handled.
Modifiers modifiersDown();

}  // namespace kel::win32
