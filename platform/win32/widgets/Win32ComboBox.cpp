#include "platform/win32/widgets/Win32ComboBox.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "platform/win32/base/WideText.h"
#include "platform/win32/drawing/Symbols.h"
#include "platform/win32/widgets/ComboHook.h"

namespace kel::win32 {

namespace {

constexpr WPARAM FieldItself = static_cast<WPARAM>(-1);

const WindowClass& comboClass() {
    static const WindowClass Class(L"KelControls8.ComboBox", L"COMBOBOX");
    return Class;
}

}  // namespace

Win32ComboBox::Win32ComboBox(ControlFrame& frame, ComboBox& box) : Win32TextEntry(frame, box), Box_(box) {
    frame.add(*this);
}

// ---- The window

COMBOBOXINFO Win32ComboBox::parts() const {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(Combo_, &parts);
    return parts;
}

bool Win32ComboBox::createWindow() {
    ComboBase_ = comboClass().baseProcedure();
    const RECT place = pixels();
    constexpr DWORD Style = WS_VSCROLL | WS_CLIPSIBLINGS | CBS_DROPDOWN | CBS_AUTOHSCROLL;
    CreateWindowExW(0, comboClass().name(), L"", style() | Style, place.left, place.top, widthOf(place),
                    heightOf(place) + listHeight(), frame().window(), nullptr, thisModule(),
                    static_cast<WindowHandler*>(this));
    if (Combo_ != nullptr) List_ = parts().hwndList;
    if (List_ == nullptr) return false;
    ListBase_ = putInFront(List_, *this);
    View_.attach(parts().hwndItem, *this);
    // Boxes with visual styles do not go by the height of their window.
    native(CB_SETMINVISIBLE, ComboBox::RowsOfList);
    return true;
}

/// The field is as high as it is told, whatever the font, and the list as high as its rows.
void Win32ComboBox::showPlace() {
    const RECT place = pixels();
    placeWindow(Combo_, {place.left, place.top, place.right, place.bottom + listHeight()});
    // Being moved, the system's box grows to what its font needs.
    auto field = static_cast<int>(native(CB_GETITEMHEIGHT, FieldItself));
    // Systems differ in what they count in, which shows in the first step.
    for (int step = 0; step < 2; ++step) {
        RECT now{};
        GetWindowRect(Combo_, &now);
        const int missing = heightOf(place) - heightOf(now);
        if (missing == 0) break;
        field = std::max(field + missing, 1);
        native(CB_SETITEMHEIGHT, FieldItself, field);
    }
}

int Win32ComboBox::listHeight() const {
    const auto row = Combo_ != nullptr ? static_cast<int>(native(CB_GETITEMHEIGHT, 0)) : 0;
    return ComboBox::RowsOfList * row + 2 * EdgeWidth;
}

void Win32ComboBox::showOwn(Changes changes) {
    if (changes.has(Change::Items) && std::exchange(ListFilled_, false)) native(CB_RESETCONTENT);
    if (changes.has(Change::ExtendedUi)) native(CB_SETEXTENDEDUI, Box_.extendedUi());
    if (changes.has(Change::Frame) && Box_.frameButtonWidth() != nullptr) {
        setFrameButtonWidth(Combo_, *Box_.frameButtonWidth());
        SubclassWindow(Combo_);
    }
    if (changes.has(Change::List)) showList();
}

// ---- The list

void Win32ComboBox::fillList() {
    if (std::exchange(ListFilled_, true)) return;
    nativeList(WM_SETREDRAW, FALSE);
    const ListItems& all = Box_.items();
    nativeList(LB_INITSTORAGE, static_cast<WPARAM>(all.size()));
    std::wstring item;
    for (std::int32_t i = 0; i < all.size(); ++i) {
        const std::u16string_view text = all.item(i);
        item.assign(text.begin(), text.end());
        nativeList(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
    nativeList(WM_SETREDRAW, TRUE);
}

/// The system's list follows the widget's, unless it goes ahead.
void Win32ComboBox::showList() {
    if (NativeDepth_ > 0) return;
    native(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(Box_.droppedWidth()));
    if ((native(CB_GETDROPPEDSTATE) != FALSE) != Box_.isDropped()) {
        if (Box_.isDropped()) fillList();
        native(CB_SHOWDROPDOWN, Box_.isDropped());
        Picked_ = ListItems::NotFound;
    }
    if (Box_.isDropped() && nativeList(LB_GETCURSEL) != Box_.highlighted())
        nativeList(LB_SETCURSEL, static_cast<WPARAM>(Box_.highlighted()));
}

LRESULT Win32ComboBox::notified(UINT notification, LPARAM /*details*/) {
    switch (notification) {
        case CBN_DROPDOWN:
            fillList();
            Box_.showDropDown(true);
            break;
        case CBN_SELENDOK: Picked_ = static_cast<std::int32_t>(nativeList(LB_GETCURSEL)); break;
        case CBN_CLOSEUP: Box_.showDropDown(false); break;
        default: break;
    }
    return 0;
}

POINT Win32ComboBox::buttonCenter() const {
    const RECT button = parts().rcButton;
    return {(button.left + button.right) / 2, (button.top + button.bottom) / 2};
}

bool Win32ComboBox::showRow(std::int32_t item, POINT& center) const {
    if (List_ == nullptr || !Box_.items().contains(item)) return false;
    const auto row = static_cast<WPARAM>(item);
    RECT area{};
    RECT place{};
    GetClientRect(List_, &area);
    nativeList(LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
    if (place.top < area.top || place.bottom > area.bottom) {
        nativeList(LB_SETTOPINDEX, row);
        nativeList(LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
    }
    center = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    return true;
}

// ---- Picture

POINT Win32ComboBox::textCorner() const {
    if (window() == nullptr) return {EdgeWidth + TextGap, EdgeWidth + TextGap};
    POINT corner = View_.textCorner();
    MapWindowPoints(window(), Combo_, &corner, 1);
    return corner;
}

void Win32ComboBox::draw(const Canvas& canvas) const {
    const SavedContext saved(canvas.context());
    const RECT area = drawGround(canvas);
    RECT button = canvas.inside(area, EdgeWidth);
    button.left =
        std::max(button.left, button.right - canvas.across(onScreenOf(Combo_, GetSystemMetrics(SM_CXVSCROLL))));
    drawArrowButton(canvas, button, Arrow::Down, Box_.enabled());
    RECT frame = area;
    if (const std::int16_t* const buttonWidth = Box_.frameButtonWidth()) {
        frame.bottom -= canvas.down(1);
        RECT raised = canvas.inside(frame, EdgeWidth);
        raised.left = raised.right - canvas.across(onScreenOf(Combo_, *buttonWidth));
        if (*buttonWidth > 0) canvas.raisedEdge(raised);
    }
    canvas.sunkenEdge(frame);
    RECT text = canvas.inside(area, EdgeWidth + TextGap);
    text.right = button.left;
    canvas.clip(text);
    drawText(canvas, text);
}

}  // namespace kel::win32
