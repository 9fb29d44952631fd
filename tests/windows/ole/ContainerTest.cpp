// A container that is not ours, with two controls in it, worked by keys through the message queue.

#include "platform/win32/base/Procedure.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;
using kel::win32::procedureOf;

namespace {

/// The ready-made container's library.
class Atl {
public:
    Atl() : Library_(LoadLibraryW(L"atl100.dll")) {
        EXPECT(Library_ != nullptr);
        procedureOf<BOOL STDMETHODCALLTYPE()>(Library_, "AtlAxWinInit")();
    }

    Ref<_KelText> controlIn(HWND holder) const {
        Ref<IUnknown> control;
        auto* const controlOf = procedureOf<HRESULT STDMETHODCALLTYPE(HWND, IUnknown**)>(Library_, "AtlAxGetControl");
        EXPECT_CODE(controlOf(holder, control.receive()), S_OK);
        return control.as<_KelText>();
    }

private:
    HMODULE Library_;
};

HWND holderIn(HWND top, int y) {
    return CreateWindowExW(0, L"AtlAxWin100", L"KelControls8.KelText", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, y, 300,
                           20, top, nullptr, nullptr, nullptr);
}

/// Posts a key to the window with the focus and serves the queue as a host does: the control is asked first,
/// then the dialog's own keys, then the window.
void press(HWND top, const Ref<_KelText>& active, WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    const auto object = active.as<IOleInPlaceActiveObject>();
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (object && object->TranslateAccelerator(&message) == S_OK) continue;
        if (IsDialogMessageW(top, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// The container's window has the focus and hands it to its control, as Wine's container leaves to its owner.
void activate(HWND holder, const Ref<_KelText>& field) {
    if (IsChild(holder, GetFocus())) return;
    const auto object = field.as<IOleObject>();
    Ref<IOleClientSite> site;
    EXPECT_CODE(object->GetClientSite(site.receive()), S_OK);
    RECT area{};
    GetClientRect(holder, &area);
    EXPECT_CODE(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site.get(), 0, holder, &area), S_OK);
    EXPECT(IsChild(holder, GetFocus()));
}

}  // namespace

TEST(container_with_two_controls_takes_keys_and_tab) {
    const Atl atl;
    const HWND top = CreateWindowExW(0, L"#32770", L"Two fields", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 380, 140,
                                     nullptr, nullptr, nullptr, nullptr);
    const HWND holders[] = {holderIn(top, 20), holderIn(top, 50)};
    {
        const Ref<_KelText> first = atl.controlIn(holders[0]), second = atl.controlIn(holders[1]);
        EXPECT_CODE(first->put_Caption(Str(L"First")), S_OK);
        EXPECT_CODE(second->put_Caption(Str(L"Second")), S_OK);
        // Wine's container first sizes in pixels what are no pixels, which narrows the captions.
        EXPECT_CODE(first->put_CaptionWidth(1200), S_OK);
        EXPECT_CODE(second->put_CaptionWidth(1200), S_OK);
        SetFocus(holders[0]);
        activate(holders[0], first);
        press(top, first, 'A');
        press(top, first, 'B');
        EXPECT_EQ(text(first.get()), std::wstring(L"ab"));

        press(top, first, VK_TAB);
        EXPECT(GetFocus() == holders[1] || IsChild(holders[1], GetFocus()));
        activate(holders[1], second);
        press(top, second, 'C');
        press(top, second, VK_HOME);
        press(top, second, 'D');
        EXPECT_EQ(text(second.get()), std::wstring(L"dc"));
        EXPECT_EQ(text(first.get()), std::wstring(L"ab"));
    }
    DestroyWindow(top);
    settle();
}
