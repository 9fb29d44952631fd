#include "platform/win32/Win32ComboBox.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "platform/win32/Clipboard.h"
#include "platform/win32/ComboHook.h"
#include "platform/win32/ControlWindow.h"
#include "platform/win32/WideText.h"

namespace kel::win32 {

namespace {

constexpr int RowsOfList = 8;
constexpr int EdgeWidth = 2;  ///< of the list's and the field's edges, pixels
constexpr int TextGap = 1;    ///< between edge and text, pixels

constexpr WPARAM FieldItself = static_cast<WPARAM>(-1);

const WindowClass& comboClass() {
    static const WindowClass Class(L"KelControls8.ComboBox", L"COMBOBOX");
    return Class;
}

}  // namespace

Win32ComboBox::Win32ComboBox(ControlFrame& frame, ComboBoxListener& listener)
    : EditedComboBox(listener, static_cast<ComboSurroundings&>(*this), frame, false),
      Input_(frame, *this, View_, Editor_.edit()) {
    frame.addField(*this);
}

Win32ComboBox::~Win32ComboBox() {
    frame().removeField(*this);
    if (Combo_ != nullptr) DestroyWindow(Combo_);
}

// ---- The window

void Win32ComboBox::makeWindow() {
    if (Combo_ != nullptr) return;
    ComboBase_ = comboClass().baseProcedure();
    const RECT place = pixels();
    constexpr DWORD Style = WS_CHILD | WS_TABSTOP | WS_VSCROLL | WS_CLIPSIBLINGS | CBS_DROPDOWN | CBS_AUTOHSCROLL;
    CreateWindowExW(0, comboClass().name(), L"", Style, place.left, place.top, widthOf(place),
                    heightOf(place) + listHeight(), frame().window(), nullptr, thisModule(),
                    static_cast<WindowHandler*>(this));
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    if (Combo_ == nullptr || GetComboBoxInfo(Combo_, &parts) == FALSE) return;
    List_ = parts.hwndList;
    ListBase_ = putInFront(List_, *this);
    View_.attach(parts.hwndItem, *this);
    native(WM_SETFONT, reinterpret_cast<WPARAM>(font().handle()));
    fitHeight();
    // Boxes with visual styles do not go by the height of their window.
    native(CB_SETMINVISIBLE, RowsOfList);
    native(CB_SETEXTENDEDUI, ExtendedUi_);
    View_.base(EM_SETREADONLY, locked());
    View_.show(buffer());
    if (FrameButtonWidth_ != nullptr) installFrame(*FrameButtonWidth_);
    listChanged();
    showState();
}

bool Win32ComboBox::has(HWND window) const {
    return window != nullptr && (window == Combo_ || window == List_ || window == this->window());
}

void Win32ComboBox::placeChanged() {
    if (Combo_ != nullptr) fitHeight();
    frame().captionChanged();
}

/// The field is as high as it is told, whatever the font, and the list as high as its rows.
void Win32ComboBox::fitHeight() {
    const RECT place = pixels();
    SetWindowPos(Combo_, nullptr, place.left, place.top, widthOf(place), heightOf(place) + listHeight(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
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
    return RowsOfList * row + 2 * EdgeWidth;
}

void Win32ComboBox::fontChanged() {
    if (Combo_ != nullptr) {
        native(WM_SETFONT, reinterpret_cast<WPARAM>(font().handle()), TRUE);
        fitHeight();
    }
    frame().captionChanged();
}

void Win32ComboBox::rescale() {
    rescaleFont();
    placeChanged();
}

void Win32ComboBox::setLocked(bool locked) {
    if (locked == this->locked()) return;
    Editor_.setLocked(locked);
    if (window() != nullptr) View_.base(EM_SETREADONLY, locked);
    refresh();
}

void Win32ComboBox::setExtendedUi(bool extended) {
    ExtendedUi_ = extended;
    if (Combo_ != nullptr) native(CB_SETEXTENDEDUI, extended);
}

void Win32ComboBox::installFrame(const std::int16_t& buttonWidthPixels) {
    FrameButtonWidth_ = &buttonWidthPixels;
    if (Combo_ == nullptr) return;
    setFrameButtonWidth(Combo_, buttonWidthPixels);
    SubclassWindow(Combo_);
}

void Win32ComboBox::refresh() {
    if (Combo_ != nullptr) RedrawWindow(Combo_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    frame().viewChanged();
}

// ---- Around the buffer

void Win32ComboBox::bufferChanged() {
    View_.show(buffer());
    frame().viewChanged();
}

std::u16string Win32ComboBox::clipboardText() { return frame().clipboard().text(window()); }

void Win32ComboBox::setClipboardText(std::u16string_view text) { frame().clipboard().setText(window(), text); }

bool Win32ComboBox::wantsKey(const KeyStroke& stroke) const {
    return Input_.wantsKey(stroke) || Editor_.claims(stroke);
}

/// A reader's tool writes so for the user.
void Win32ComboBox::textSent(std::u16string_view text) {
    if (textEquals(text)) return;
    Editor_.edit().select({0, buffer().text().size()});
    if (text.empty())
        Editor_.edit().perform(EditAction::EraseSelection);
    else
        Editor_.edit().paste(std::u16string(text));
}

// ---- The list

std::ptrdiff_t Win32ComboBox::linesOfPage() const { return RowsOfList; }

void Win32ComboBox::setItems(ListItems items) {
    EditedComboBox::setItems(std::move(items));
    emptyList();
}

void Win32ComboBox::emptyList() {
    if (std::exchange(ListFilled_, false)) native(CB_RESETCONTENT);
}

void Win32ComboBox::fillList() {
    if (std::exchange(ListFilled_, true)) return;
    nativeList(WM_SETREDRAW, FALSE);
    const ListItems& all = items();
    nativeList(LB_INITSTORAGE, static_cast<WPARAM>(all.size()));
    std::wstring item;
    for (std::int32_t i = 0; i < all.size(); ++i) {
        const std::u16string_view text = all.item(i);
        item.assign(text.begin(), text.end());
        nativeList(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
    nativeList(WM_SETREDRAW, TRUE);
}

/// The system's list follows the editor's, unless it goes ahead.
void Win32ComboBox::listChanged() {
    if (Combo_ == nullptr || NativeDepth_ > 0) return;
    native(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(droppedWidth()));
    if ((native(CB_GETDROPPEDSTATE) != FALSE) != isDropped()) {
        if (isDropped()) fillList();
        native(CB_SHOWDROPDOWN, isDropped());
        Picked_ = ListItems::NotFound;
    }
    showHighlight();
}

void Win32ComboBox::showHighlight() {
    if (!isDropped() || nativeList(LB_GETCURSEL) == Editor_.highlighted()) return;
    nativeList(LB_SETCURSEL, static_cast<WPARAM>(Editor_.highlighted()));
}

/// The pointer moves the highlight of the system's list by itself.
void Win32ComboBox::readHighlight() {
    if (isDropped()) Editor_.highlight(static_cast<std::int32_t>(nativeList(LB_GETCURSEL)));
}

LRESULT Win32ComboBox::notified(UINT notification, LPARAM /*details*/) {
    switch (notification) {
        case CBN_DROPDOWN:
            fillList();
            Editor_.showDropDown(true);
            break;
        case CBN_SELENDOK: Picked_ = static_cast<std::int32_t>(nativeList(LB_GETCURSEL)); break;
        case CBN_CLOSEUP: Editor_.showDropDown(false); break;
        default: break;
    }
    return 0;
}

POINT Win32ComboBox::buttonCenter() const {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(Combo_, &parts);
    return {(parts.rcButton.left + parts.rcButton.right) / 2, (parts.rcButton.top + parts.rcButton.bottom) / 2};
}

bool Win32ComboBox::showRow(std::int32_t item, POINT& center) const {
    if (List_ == nullptr || !items().contains(item)) return false;
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

int Win32ComboBox::baseline() const {
    RECT text{0, EdgeWidth + TextGap, 0, 0};
    if (window() != nullptr) {
        GetClientRect(window(), &text);
        MapWindowPoints(window(), Combo_, reinterpret_cast<POINT*>(&text), 2);
        text.top += View_.textTop();
    }
    return static_cast<int>(pixels().top + text.top + textMetrics().tmAscent);
}

void Win32ComboBox::draw(HDC context, POINT origin) const {
    const SavedContext saved(context);
    RECT area = pixels();
    OffsetRect(&area, origin.x, origin.y);
    if (area.right <= area.left || area.bottom <= area.top) return;
    FillRect(context, &area, colors(context));
    IntersectClipRect(context, area.left, area.top, area.right, area.bottom);
    RECT button = area;
    InflateRect(&button, -EdgeWidth, -EdgeWidth);
    button.left = std::max(button.left, button.right - GetSystemMetrics(SM_CXVSCROLL));
    DrawFrameControl(context, &button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | (enabled() ? 0U : DFCS_INACTIVE));
    if (FrameButtonWidth_ != nullptr) {
        drawComboFrame(context, area, *FrameButtonWidth_);
    } else {
        RECT edge = area;
        DrawEdge(context, &edge, EDGE_SUNKEN, BF_RECT);
    }
    RECT text = area;
    InflateRect(&text, -(EdgeWidth + TextGap), -(EdgeWidth + TextGap));
    text.right = button.left;
    SelectObject(context, font().handle());
    SetBkMode(context, TRANSPARENT);
    const std::wstring shown = wide(displayed(buffer().text(), false));
    DrawTextW(context, shown.c_str(), static_cast<int>(shown.size()), &text, DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER);
}

}  // namespace kel::win32
