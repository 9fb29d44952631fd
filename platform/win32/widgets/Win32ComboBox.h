#pragma once

#include "host/widgets/ComboBox.h"
#include "platform/win32/widgets/Win32TextEntry.h"

namespace kel::win32 {

/// A combo box: the system's, around the edit window, has the button and the list.
///
/// The system's list gets its items when it is first to drop: filling it takes longer than all the rest.
class Win32ComboBox final : public Win32TextEntry {
public:
    Win32ComboBox(ControlFrame& frame, ComboBox& box);
    ~Win32ComboBox() override { destroy(); }

    HWND wholeWindow() const override { return Combo_; }
    LRESULT notified(UINT notification, LPARAM details) override;
    void draw(const Canvas& canvas) const override;

    // ---- For hands

    /// That is dropped; nullptr while there is none.
    HWND listWindow() const { return List_; }
    /// In the combo box's own coordinates.
    POINT buttonCenter() const;
    /// In those of the list, into which the row is brought. False when there is no such row.
    bool showRow(std::int32_t item, POINT& center) const;

private:
    COMBOBOXINFO parts() const;
    bool createWindow() override;
    void showPlace() override;
    void showOwn(Changes changes) override;
    Changes ownChanges() const override { return Change::Place | Change::ExtendedUi | Change::Frame | Change::List; }
    int listHeight() const;
    POINT textCorner() const override;

    // ---- The system's list

    void fillList();
    void showList();

    // ---- What comes to the windows

    LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data) override;
    LRESULT handleCombo(UINT message, WPARAM wide, LPARAM data);
    LRESULT handleList(UINT message, WPARAM wide, LPARAM data);
    LRESULT handleEdit(UINT message, WPARAM wide, LPARAM data);
    std::optional<LRESULT> answer(UINT message, WPARAM wide, LPARAM data);
    LRESULT pressed(UINT message, WPARAM wide, LPARAM data);
    /// While the system's own box works, what it sends to its parts is no wish of anybody's.
    LRESULT native(UINT message, WPARAM wide = 0, LPARAM data = 0) const;
    LRESULT nativeList(UINT message, WPARAM wide = 0, LPARAM data = 0) const;

    ComboBox& Box_;
    HWND Combo_ = nullptr;
    HWND List_ = nullptr;
    WNDPROC ComboBase_ = nullptr;
    WNDPROC ListBase_ = nullptr;
    std::int32_t Picked_ = ListItems::NotFound;  ///< by the mouse, in the message in hand
    mutable std::int16_t NativeDepth_ = 0;       ///< above 0 while the system's box is at work
    bool ListFilled_ = false;
};

}  // namespace kel::win32
