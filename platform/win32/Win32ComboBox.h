#pragma once

#include "host/editing/EditedComboBox.h"
#include "platform/win32/Win32EditedWidget.h"

namespace kel::win32 {

/// A combo box on the system's. Its edit window shows a buffer of our own as that of a text box does, and what keys
/// and picks do is decided by the editor that all homes share; the system's box has the button and the list.
///
/// The system's list gets its items when it is first to drop: filling it takes longer than all the rest.
class Win32ComboBox final : public EditedComboBox<Win32EditedWidget<ComboBox>>,
                            private ComboSurroundings,
                            private WindowHandler {
public:
    Win32ComboBox(ControlFrame& frame, ComboBoxListener& listener);
    ~Win32ComboBox() override;

    // ---- ComboBox

    void refresh() override;

    void setLocked(bool locked) override;
    void setItems(ListItems items) override;
    void setExtendedUi(bool extended) override;
    void installFrame(const std::int16_t& buttonWidthPixels) override;

    // ---- EditedField

    bool has(HWND window) const override;
    void makeWindow() override;
    void gotFocus() override { Editor_.edit().listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.edit().listener().Text1_LostFocus(); }
    bool wantsKey(const KeyStroke& stroke) const override;
    void rescale() override;
    LRESULT notified(UINT notification, LPARAM details) override;
    int baseline() const override;
    void draw(HDC context, POINT origin) const override;
    POINT showPosition(std::int32_t position) override { return Input_.showPosition(position); }
    void textSent(std::u16string_view text) override;
    void limitSent(std::int32_t units) override { setMaxLength(units); }
    void lockSent(bool locked) override { setLocked(locked); }
    void passwordCharSent(char16_t /*character*/) override {}

    // ---- For hands

    /// The system's combo box, and the list that it drops; nullptr while there is none.
    HWND comboWindow() const { return Combo_; }
    HWND listWindow() const { return List_; }
    /// In the combo box's own coordinates.
    POINT buttonCenter() const;
    /// In those of the list, into which the row is brought. False when there is no such row.
    bool showRow(std::int32_t item, POINT& center) const;

private:
    void placeChanged() override;
    HWND wholeWindow() const override { return Combo_; }
    void fontChanged() override;
    void fitHeight();
    int listHeight() const;

    // ---- ComboSurroundings

    bool takesInput() const override { return acceptsInput(); }
    void bufferChanged() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;
    std::ptrdiff_t linesOfPage() const override;
    void listChanged() override;

    // ---- The system's list

    void fillList();
    void emptyList();
    void showHighlight();
    void readHighlight();

    // ---- What comes to the windows

    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data);
    LRESULT handleCombo(UINT message, WPARAM wide, LPARAM data);
    LRESULT handleList(UINT message, WPARAM wide, LPARAM data);
    LRESULT handleEdit(UINT message, WPARAM wide, LPARAM data);
    bool handleRequest(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    LRESULT pressed(UINT message, WPARAM wide, LPARAM data);
    LRESULT native(UINT message, WPARAM wide = 0, LPARAM data = 0) const;
    LRESULT nativeList(UINT message, WPARAM wide = 0, LPARAM data = 0) const;
    void takePick();

    EditInput Input_;
    HWND Combo_ = nullptr;
    HWND List_ = nullptr;
    WNDPROC ComboBase_ = nullptr;
    WNDPROC ListBase_ = nullptr;
    const std::int16_t* FrameButtonWidth_ = nullptr;  ///< nullptr without a frame of its own
    std::int32_t Picked_ = ListItems::NotFound;       ///< by the mouse, in the message in hand
    mutable int NativeDepth_ = 0;                     ///< above 0 while the system's box is at work
    bool ListFilled_ = false;
    bool ExtendedUi_ = false;
};

}  // namespace kel::win32
