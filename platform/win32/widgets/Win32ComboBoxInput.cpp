#include <algorithm>

#include "host/DepthGuard.h"
#include "platform/win32/widgets/Win32ComboBox.h"

/// What comes to the three windows of a combo box: the system's box, its edit window and its list.
namespace kel::win32 {

namespace {

/// What the system's box would do to its edit window, which is the widget's business.
bool meddles(UINT message) {
    return message == WM_SETTEXT || message == EM_SETSEL || message == EM_REPLACESEL || message == EM_SETLIMITTEXT;
}

/// A position as one half of a message's data; -1 in it is -1.
INT_PTR positionIn(WORD half) { return static_cast<std::int16_t>(half); }

}  // namespace

LRESULT Win32ComboBox::native(UINT message, WPARAM wide, LPARAM data) const {
    const DepthGuard working(NativeDepth_);
    return CallWindowProcW(ComboBase_, Combo_, message, wide, data);
}

LRESULT Win32ComboBox::nativeList(UINT message, WPARAM wide, LPARAM data) const {
    const DepthGuard working(NativeDepth_);
    return CallWindowProcW(ListBase_, List_, message, wide, data);
}

/// The control may do away with the box when it hears of a pick, which the system's would not survive in the middle of
/// its work: it is told after that.
LRESULT Win32ComboBox::handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == WM_NCCREATE) Combo_ = window;
    const LRESULT result = window == Combo_  ? handleCombo(message, wide, data)
                           : window == List_ ? handleList(message, wide, data)
                                             : handleEdit(message, wide, data);
    if (NativeDepth_ == 0 && Picked_ != ListItems::NotFound) Box_.pick(std::exchange(Picked_, ListItems::NotFound));
    return result;
}

// ---- The edit window

LRESULT Win32ComboBox::handleEdit(UINT message, WPARAM wide, LPARAM data) {
    if (NativeDepth_ > 0 && meddles(message)) return TRUE;
    switch (message) {
        // The pointer moves the highlight of the system's list by itself.
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (Box_.isDropped()) Box_.highlight(static_cast<std::int32_t>(nativeList(LB_GETCURSEL)));
            break;
        case WM_MOUSEWHEEL:
            if (Box_.isDropped()) return nativeList(message, wide, data);
            break;
        case EM_SETPASSWORDCHAR: return 0;
        default: break;
    }
    return Input_.handle(message, wide, data);
}

// ---- The list

LRESULT Win32ComboBox::handleList(UINT message, WPARAM wide, LPARAM data) {
    const LRESULT result = nativeList(message, wide, data);
    if (NativeDepth_ == 0 && message != WM_LBUTTONUP) Picked_ = ListItems::NotFound;
    if (message == WM_NCDESTROY) List_ = nullptr;
    return result;
}

// ---- The box

LRESULT Win32ComboBox::handleCombo(UINT message, WPARAM wide, LPARAM data) {
    if (const auto answered = NativeDepth_ == 0 ? answer(message, wide, data) : std::nullopt) return *answered;
    LRESULT result = 0;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: return pressed(message, wide, data);
        // Also what the edit window has no use for.
        case WM_MOUSEWHEEL:
            if (Box_.isDropped()) return nativeList(message, wide, data);
            return DefWindowProcW(Combo_, message, wide, data);
        case WM_SETFOCUS: Box_.setFocus(); return 0;
        case WM_COMMAND:
            result = native(message, wide, data);
            if (HIWORD(wide) == EN_CHANGE && reinterpret_cast<HWND>(data) == window()) View_.readText();
            return result;
        case WM_DESTROY: Box_.showDropDown(false); return native(message, wide, data);
        case WM_NCDESTROY:
            result = native(message, wide, data);
            Combo_ = nullptr;
            ListFilled_ = false;
            return result;
        default: return native(message, wide, data);
    }
}

/// The focus comes first, with all that the field does then.
LRESULT Win32ComboBox::pressed(UINT message, WPARAM wide, LPARAM data) {
    Box_.setFocus();
    if (window() == nullptr || !Box_.takesInput() || GetFocus() != window()) return 0;
    const LRESULT result = native(message, wide, data);
    Picked_ = ListItems::NotFound;
    if (Combo_ != nullptr) showList();
    return result;
}

/// What other programs ask of the box. They see it as its code does, and leave the items alone.
std::optional<LRESULT> Win32ComboBox::answer(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_CUT:
        case WM_COPY:
        case WM_PASTE:
        case WM_CLEAR:
        case WM_UNDO:
            if (window() == nullptr) return std::nullopt;
            return handleEdit(message, wide, data);
        case CB_LIMITTEXT: Input_.handle(EM_SETLIMITTEXT, wide, 0); return TRUE;
        case CB_SETEDITSEL:
            Input_.handle(EM_SETSEL, static_cast<WPARAM>(positionIn(LOWORD(data))), positionIn(HIWORD(data)));
            return TRUE;
        case CB_GETCURSEL: return Box_.listIndex();
        case CB_SETCURSEL: Box_.setListIndex(static_cast<std::int32_t>(wide)); return Box_.listIndex();
        case CB_SELECTSTRING: {
            fillList();
            const LRESULT found = native(CB_FINDSTRING, wide, data);
            if (found != CB_ERR) Box_.setListIndex(static_cast<std::int32_t>(found));
            return found;
        }
        case CB_SHOWDROPDOWN: Box_.showDropDown(wide != FALSE); return TRUE;
        case CB_SETDROPPEDWIDTH:
            Box_.setDroppedWidth(static_cast<std::int32_t>(std::min<WPARAM>(wide, INT16_MAX)));
            return native(CB_GETDROPPEDWIDTH);
        case CB_ADDSTRING:
        case CB_INSERTSTRING:
        case CB_DELETESTRING:
        case CB_RESETCONTENT: return CB_ERR;
        case CB_GETCOUNT:
        case CB_GETLBTEXT:
        case CB_GETLBTEXTLEN:
        case CB_FINDSTRING:
        case CB_FINDSTRINGEXACT: fillList(); return std::nullopt;
        default: return std::nullopt;
    }
}

}  // namespace kel::win32
