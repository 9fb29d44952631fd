#include <algorithm>

#include "platform/win32/ControlWindow.h"
#include "platform/win32/Win32ComboBox.h"

/// What comes to the three windows of a combo box: the system's box, its edit window and its list.
namespace kel::win32 {

namespace {

/// While the system's own box works, what it sends to its parts is no wish of anybody's.
class NativeScope {
public:
    explicit NativeScope(int& depth) : Depth_(depth) { ++Depth_; }
    ~NativeScope() { --Depth_; }
    NativeScope(const NativeScope&) = delete;
    NativeScope& operator=(const NativeScope&) = delete;

private:
    int& Depth_;
};

/// What the system's box would do to its edit window, which is the editor's business.
bool meddles(UINT message) {
    return message == WM_SETTEXT || message == EM_SETSEL || message == EM_REPLACESEL || message == EM_SETLIMITTEXT;
}

/// A position as one half of a message's data; -1 in it is -1.
INT_PTR positionIn(WORD half) { return static_cast<std::int16_t>(half); }

}  // namespace

LRESULT Win32ComboBox::native(UINT message, WPARAM wide, LPARAM data) const {
    const NativeScope scope(NativeDepth_);
    return CallWindowProcW(ComboBase_, Combo_, message, wide, data);
}

LRESULT Win32ComboBox::nativeList(UINT message, WPARAM wide, LPARAM data) const {
    const NativeScope scope(NativeDepth_);
    return CallWindowProcW(ListBase_, List_, message, wide, data);
}

LRESULT Win32ComboBox::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == WM_NCCREATE) Combo_ = window;
    ControlWindowOwner& owner = frame().owner();
    owner.holdOpen();
    const LRESULT result = atEdge([&] {
        const LRESULT handled = handle(window, message, wide, data);
        takePick();
        return handled;
    });
    owner.letGo();
    return result;
}

LRESULT Win32ComboBox::handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (window == Combo_) return handleCombo(message, wide, data);
    return window == List_ ? handleList(message, wide, data) : handleEdit(message, wide, data);
}

/// The control may do away with the box, which the system's would not survive in the middle of its work: it is told
/// after that.
void Win32ComboBox::takePick() {
    if (NativeDepth_ > 0 || Picked_ == ListItems::NotFound) return;
    Editor_.pick(std::exchange(Picked_, ListItems::NotFound));
}

// ---- The edit window

LRESULT Win32ComboBox::handleEdit(UINT message, WPARAM wide, LPARAM data) {
    if (NativeDepth_ > 0 && meddles(message)) return TRUE;
    switch (message) {
        case WM_KEYDOWN:
            if (wide == VK_TAB) showDropDown(false);
            [[fallthrough]];
        case WM_SYSKEYDOWN: readHighlight(); break;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN: showDropDown(false); break;
        case WM_MOUSEWHEEL:
            if (isDropped()) return nativeList(message, wide, data);
            break;
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
    LRESULT result = 0;
    if (NativeDepth_ == 0 && handleRequest(message, wide, data, result)) return result;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: return pressed(message, wide, data);
        // Also what the edit window has no use for.
        case WM_MOUSEWHEEL:
            if (isDropped()) return nativeList(message, wide, data);
            return DefWindowProcW(Combo_, message, wide, data);
        case WM_SETFOCUS: setFocus(); return 0;
        case WM_COMMAND:
            result = native(message, wide, data);
            if (HIWORD(wide) == EN_CHANGE && reinterpret_cast<HWND>(data) == window()) Input_.windowChanged();
            return result;
        case WM_DESTROY: Editor_.showDropDown(false); return native(message, wide, data);
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
    setFocus();
    if (window() == nullptr || !acceptsInput() || GetFocus() != window()) return 0;
    const LRESULT result = native(message, wide, data);
    Picked_ = ListItems::NotFound;
    listChanged();
    return result;
}

/// What other programs ask of the box. They see it as its code does, and leave the items alone.
bool Win32ComboBox::handleRequest(UINT message, WPARAM wide, LPARAM data, LRESULT& result) {
    switch (message) {
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_CUT:
        case WM_COPY:
        case WM_PASTE:
        case WM_CLEAR:
        case WM_UNDO:
            if (window() == nullptr) return false;
            result = Input_.handle(message, wide, data);
            return true;
        case CB_LIMITTEXT:
            Input_.handle(EM_SETLIMITTEXT, wide, 0);
            result = TRUE;
            return true;
        case CB_SETEDITSEL:
            Input_.selectFromOutside(static_cast<WPARAM>(positionIn(LOWORD(data))), positionIn(HIWORD(data)));
            result = TRUE;
            return true;
        case CB_GETCURSEL: result = listIndex(); return true;
        case CB_SETCURSEL:
            setListIndex(static_cast<std::int32_t>(wide));
            result = listIndex();
            return true;
        case CB_SELECTSTRING:
            fillList();
            result = native(CB_FINDSTRING, wide, data);
            if (result != CB_ERR) setListIndex(static_cast<std::int32_t>(result));
            return true;
        case CB_SHOWDROPDOWN:
            showDropDown(wide != FALSE);
            result = TRUE;
            return true;
        case CB_SETDROPPEDWIDTH:
            setDroppedWidth(static_cast<std::int32_t>(std::min<WPARAM>(wide, INT16_MAX)));
            result = native(CB_GETDROPPEDWIDTH);
            return true;
        case CB_ADDSTRING:
        case CB_INSERTSTRING:
        case CB_DELETESTRING:
        case CB_RESETCONTENT: result = CB_ERR; return true;
        case CB_GETCOUNT:
        case CB_GETLBTEXT:
        case CB_GETLBTEXTLEN:
        case CB_FINDSTRING:
        case CB_FINDSTRINGEXACT: fillList(); return false;
        default: return false;
    }
}

}  // namespace kel::win32
