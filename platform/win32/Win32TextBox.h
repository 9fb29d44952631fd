#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/win32/Win32EditedWidget.h"

namespace kel::win32 {

/// An edit box on the system's edit window. The text is edited in a buffer of our own, which knows more than the
/// window (undo, limits, pairs, words); the window shows it, and whatever it is asked to do goes to the buffer.
class Win32TextBox final : public EditedTextBox<Win32EditedWidget<TextBox>>,
                           private EditSurroundings,
                           private TextLines,
                           private WindowHandler {
public:
    Win32TextBox(ControlFrame& frame, TextBoxListener& listener, bool multiLine);
    ~Win32TextBox() override;

    // ---- TextBox

    void refresh() override;

    void setLocked(bool locked) override;
    void setPasswordChar(char32_t character) override;

    // ---- EditedField

    void makeWindow() override;
    void gotFocus() override { Editor_.listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.listener().Text1_LostFocus(); }
    bool wantsKey(const KeyStroke& stroke) const override { return Input_.wantsKey(stroke); }
    void rescale() override;
    LRESULT notified(UINT notification, LPARAM details) override;
    int baseline() const override;
    void draw(HDC context, POINT origin) const override;
    POINT showPosition(std::int32_t position) override { return Input_.showPosition(position); }
    void textSent(std::u16string_view text) override { setText(text); }
    void limitSent(std::int32_t units) override { setMaxLength(units); }
    void lockSent(bool locked) override { setLocked(locked); }
    void passwordCharSent(char16_t character) override { setPasswordChar(character); }

private:
    void placeChanged() override;
    void fontChanged() override;
    void showPasswordChar();
    std::wstring drawnText() const;

    bool takesInput() const override { return acceptsInput(); }
    void bufferChanged() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;
    std::ptrdiff_t linesOfPage() const override;
    const TextLines* lines() const override { return buffer().multiLine() ? this : nullptr; }
    TextLine lineAt(std::size_t position) const override;

    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;

    EditInput Input_;
};

}  // namespace kel::win32
