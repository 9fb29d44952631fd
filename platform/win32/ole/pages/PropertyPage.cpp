#include "platform/win32/ole/pages/PropertyPage.h"

#include "platform/win32/base/WindowClass.h"

namespace kel::win32::ole {

namespace {

constexpr DWORD SayId = 900;
constexpr short SayHeight = 25;

INT_PTR CALLBACK doNothing(HWND /*window*/, UINT /*message*/, WPARAM /*wide*/, LPARAM /*data*/) { return FALSE; }

SIZE inPixels(short width, short height) {
    DialogTemplate empty(width, height);
    HWND const window = empty.create(HWND_MESSAGE, &doNothing, 0);
    if (window == nullptr) throw std::bad_alloc();
    RECT area{0, 0, width, height};
    MapDialogRect(window, &area);
    DestroyWindow(window);
    return {area.right, area.bottom};
}

bool isKeyDown(const MSG& message) { return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN; }

bool isHeld(int key) { return GetKeyState(key) < 0; }

}  // namespace

PropertyPage::PropertyPage(Module& module, IUnknown* outer, DesignPage kind)
    : ComObject(module, outer), Part(static_cast<ComObject&>(*this)), Kind_(kind) {}

PropertyPage::~PropertyPage() { close(); }

// ---- The frame

HRESULT PropertyPage::SetPageSite(IPropertyPageSite* site) noexcept {
    if (site != nullptr && Site_) return E_UNEXPECTED;
    Site_ = ComPtr<IPropertyPageSite>(site);
    return S_OK;
}

HRESULT PropertyPage::Activate(HWND parent, LPCRECT area, BOOL /*modal*/) noexcept {
    if (area == nullptr) return E_POINTER;
    if (Window_ != nullptr || Objects_.empty()) return E_UNEXPECTED;
    return guarded([&] {
        DialogTemplate dialog(Width, Height);
        layOut(dialog);
        const short top = Height - Margin - SayHeight;
        dialog.add(L"STATIC", L"", SS_ETCHEDHORZ, {Margin, static_cast<short>(top - 3), Width - 2 * Margin, 1},
                   SayId + 1);
        dialog.add(L"STATIC", L"", SS_NOPREFIX, {Margin, top, Width - 2 * Margin, SayHeight}, SayId);
        HWND const made = dialog.create(parent, &procedure, reinterpret_cast<LPARAM>(this));
        if (made == nullptr) return HRESULT_FROM_WIN32(GetLastError());
        Window_ = made;
        placeWindow(made, *area);
        showAll();
        return S_OK;
    });
}

HRESULT PropertyPage::Deactivate() noexcept {
    if (Window_ == nullptr) return E_UNEXPECTED;
    return guarded([&] {
        closing();
        close();
    });
}

void PropertyPage::close() {
    if (HWND const window = std::exchange(Window_, nullptr)) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        DestroyWindow(window);
    }
}

HRESULT PropertyPage::GetPageInfo(PROPPAGEINFO* info) noexcept {
    if (info == nullptr) return E_POINTER;
    // Some frames leave its size for the page to fill in.
    return guarded([&] {
        const SIZE size = inPixels(Width, Height);
        LPOLESTR const title = makeTaskText(DesignPageTitles[static_cast<std::size_t>(Kind_)]);
        *info = {};
        info->cb = sizeof *info;
        info->pszTitle = title;
        info->size = size;
    });
}

HRESULT PropertyPage::SetObjects(ULONG count, IUnknown** objects) noexcept {
    if (count > 0 && objects == nullptr) return E_POINTER;
    for (ULONG i = 0; i < count; ++i)
        if (objects[i] == nullptr) return E_POINTER;
    return guarded([&] {
        Objects_ = SelectedObjects(objects, count);
        setDirty(false);
        takeObjects();
        if (Window_ != nullptr) layOutAnew();
    });
}

void PropertyPage::layOutAnew() {
    HWND const parent = GetParent(Window_);
    RECT area{};
    GetWindowRect(Window_, &area);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
    const bool shown = IsWindowVisible(Window_) != FALSE;
    const int focused = GetParent(GetFocus()) == Window_ ? GetDlgCtrlID(GetFocus()) : 0;
    close();
    if (Objects_.empty()) return;
    check(Activate(parent, &area, FALSE), "the page cannot be shown");
    if (shown) Show(SW_SHOW);
    if (focused != 0) SetFocus(item(static_cast<DWORD>(focused)));
}

HRESULT PropertyPage::Show(UINT command) noexcept {
    if (Window_ == nullptr) return E_UNEXPECTED;
    if (command != SW_SHOW && command != SW_SHOWNORMAL && command != SW_HIDE) return E_INVALIDARG;
    return guarded([&] { ShowWindow(Window_, static_cast<int>(command)); });
}

HRESULT PropertyPage::Move(LPCRECT area) noexcept {
    if (area == nullptr) return E_POINTER;
    if (Window_ == nullptr) return E_UNEXPECTED;
    return guarded([&] { placeWindow(Window_, *area); });
}

HRESULT PropertyPage::Apply() noexcept {
    if (Objects_.empty()) return E_UNEXPECTED;
    if (!Dirty_) return S_OK;
    return guarded([&] {
        const std::optional<std::u16string> wrong = applyAll();
        if (!wrong) {
            setDirty(false);
            return S_OK;
        }
        say(*wrong, true);
        return reportError(E_INVALIDARG, *wrong);
    });
}

HRESULT PropertyPage::EditProperty(DISPID id) noexcept {
    if (Window_ == nullptr || Objects_.empty()) return E_UNEXPECTED;
    return guarded([&] {
        const MemberRow* const row = findMember(Objects_.type().model, id);
        return row != nullptr && edit(*row) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

void PropertyPage::setDirty(bool dirty) {
    if (std::exchange(Dirty_, dirty) == dirty) return;
    const ComPtr<IPropertyPageSite> site = Site_;
    if (site) site->OnStatusChange(dirty ? PROPPAGESTATUS_DIRTY : 0);
}

void PropertyPage::say(const std::u16string& text, bool isError) {
    SaysError_ = isError;
    SetDlgItemTextW(Window_, SayId, wide(text).c_str());
    InvalidateRect(item(SayId), nullptr, TRUE);
}

// ---- Keys

HRESULT PropertyPage::TranslateAccelerator(MSG* message) noexcept {
    if (message == nullptr) return E_POINTER;
    return guarded([&] {
        const ComPtr<IPropertyPageSite> site = Site_;
        const bool ours = Window_ != nullptr && (message->hwnd == Window_ || IsChild(Window_, message->hwnd) != FALSE);
        const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
        if (!ours || !isKey) return S_FALSE;
        if (isKeyDown(*message) && takeKey(*message)) return S_OK;
        const bool leaving = leaves(*message);
        if (!leaving && translate(*message)) return S_OK;
        if (site && site->TranslateAccelerator(message) == S_OK) return S_OK;
        // A frame that does not take the focus over leaves it here.
        return leaving && translate(*message) ? S_OK : S_FALSE;
    });
}

bool PropertyPage::translate(MSG& message) {
    if (isKeyDown(message)) {
        const bool isFrames = message.wParam == VK_RETURN || message.wParam == VK_ESCAPE || message.wParam == VK_F1 ||
                              (message.wParam == VK_TAB && isHeld(VK_CONTROL));
        if (isFrames && !wantsKey(message)) return false;
    }
    return IsDialogMessageW(Window_, &message) != FALSE;
}

/// What takes this key itself: a list that is dropped, several lines of text, a button.
bool PropertyPage::wantsKey(MSG& message) const {
    const LRESULT wanted =
        SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    const bool presses = message.wParam == VK_RETURN && (wanted & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
    return presses || (wanted & DLGC_WANTALLKEYS) != 0;
}

/// Tab from the last of the page, or back from its first.
bool PropertyPage::leaves(const MSG& message) const {
    if (!isKeyDown(message) || message.wParam != VK_TAB || isHeld(VK_CONTROL) || isHeld(VK_MENU)) return false;
    const BOOL back = isHeld(VK_SHIFT) ? TRUE : FALSE;
    HWND const first = GetNextDlgTabItem(Window_, nullptr, FALSE);
    HWND const next = GetNextDlgTabItem(Window_, message.hwnd, back);
    HWND const end = back != FALSE ? GetNextDlgTabItem(Window_, first, TRUE) : first;
    return next == end;
}

// ---- The window

INT_PTR CALLBACK PropertyPage::procedure(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, data);
        return FALSE;
    }
    auto* const page = reinterpret_cast<PropertyPage*>(GetWindowLongPtrW(window, DWLP_USER));
    if (page == nullptr || page->Window_ != window) return FALSE;
    const ComPtr<IUnknown> held(&page->outer());
    return win32::atEdge([&] { return page->handle(message, wide, data); });
}

INT_PTR PropertyPage::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_COMMAND: command(LOWORD(wide), HIWORD(wide)); return TRUE;
        case WM_NOTIFY:
            SetWindowLongPtrW(Window_, DWLP_MSGRESULT, notify(*reinterpret_cast<const NMHDR*>(data)));
            return TRUE;
        case WM_CTLCOLORSTATIC: {
            if (!SaysError_ || reinterpret_cast<HWND>(data) != item(SayId)) return FALSE;
            constexpr COLORREF Red = RGB(0xC0, 0, 0);
            HDC const context = reinterpret_cast<HDC>(wide);
            SetTextColor(context, Red);
            SetBkColor(context, GetSysColor(COLOR_BTNFACE));
            return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_BTNFACE));
        }
        case WM_DESTROY:  // with the frame's own window
            SetWindowLongPtrW(std::exchange(Window_, nullptr), DWLP_USER, 0);
            return FALSE;
        default: return FALSE;
    }
}

}  // namespace kel::win32::ole
