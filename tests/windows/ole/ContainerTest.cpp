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

namespace {

/// What a person types, as fast as that is: all of it waits in the queue. Shift is down with a key after "^".
void typeAhead(const std::string& keys) {
    for (std::size_t at = 0; at < keys.size(); ++at) {
        const bool shift = keys[at] == '^';
        if (shift) keybd_event(VK_SHIFT, 0, 0, 0);
        const auto key = static_cast<BYTE>(keys[shift ? ++at : at]);
        keybd_event(key, 0, 0, 0);
        keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
        if (shift) keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    }
}

}  // namespace

TEST(container_moves_on_by_enter_in_front_of_what_was_typed_after_it) {
    struct Row {
        const char* typed;
        const wchar_t* texts;  ///< of the fields, each of which holds "-" at first
    };
    const Row rows[] = {{"12\r34", L"12,34,-"}, {"12^\r34", L"12,34,-"}, {"12^\r3\r^A4", L"12,3,A4"}};
    for (const Row& row : rows) {
        const Atl atl;
        const HWND top = CreateWindowExW(0, L"#32770", L"Three fields", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 380,
                                         140, nullptr, nullptr, nullptr, nullptr);
        const HWND holders[] = {holderIn(top, 20), holderIn(top, 50), holderIn(top, 80)};
        {
            std::vector<Ref<_KelText>> fields;
            for (HWND const holder : holders) {
                fields.push_back(atl.controlIn(holder));
                EXPECT_CODE(fields.back()->put_Text(Str(L"-")), S_OK);
                EXPECT_CODE(fields.back()->put_SelectOnFocus(VARIANT_TRUE), S_OK);
            }
            const auto active = [&] {
                std::size_t at = 0;
                while (at < 2 && holders[at] != GetFocus() && !IsChild(holders[at], GetFocus())) ++at;
                activate(holders[at], fields[at]);
                return fields[at].as<IOleInPlaceActiveObject>();
            };
            SetForegroundWindow(top);
            SetFocus(holders[0]);
            SendMessageW((active(), GetFocus()), EM_SETSEL, 0, -1);
            typeAhead(row.typed);
            MSG message{};
            for (int idle = 0; idle < 5;) {
                const auto object = active();
                if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) {
                    Sleep(10);
                    ++idle;
                    continue;
                }
                if (object->TranslateAccelerator(&message) == S_OK) continue;
                if (IsDialogMessageW(top, &message)) continue;
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            std::wstring texts = text(fields[0].get());
            for (const auto& field : {fields[1], fields[2]}) texts += L"," + text(field.get());
            EXPECT_EQ(texts, std::wstring(row.texts));
            EXPECT(GetKeyState(VK_TAB) >= 0);
        }
        DestroyWindow(top);
        settle();
    }
}
