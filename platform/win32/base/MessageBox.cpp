#include "platform/win32/base/MessageBox.h"

#include "platform/win32/base/WideText.h"

namespace kel::win32 {

namespace {

/// Top-level windows of many hosts take the focus themselves when they come in front again.
void giveFocusBack(HWND window) {
    if (window == nullptr || window == GetFocus() || IsWindow(window) == FALSE) return;
    const HWND root = GetAncestor(window, GA_ROOT);
    if (root == GetActiveWindow() && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE)
        SetFocus(window);
}

}  // namespace

void showMessageBox(HWND owner, std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    const HWND focus = GetFocus();
    const HWND behind = owner != nullptr ? owner : GetActiveWindow();
    // Without a window behind it the box keeps all others of the thread waiting.
    const UINT modality = behind != nullptr ? MB_APPLMODAL : MB_TASKMODAL;
    MessageBoxW(behind, wide(prompt).c_str(), wide(title).c_str(), static_cast<UINT>(style) | modality);
    giveFocusBack(focus);
}

}  // namespace kel::win32
