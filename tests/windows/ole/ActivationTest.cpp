// A control in a host's window: in the right order, in the wrong one, and with a host that interferes.

#include <algorithm>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel::tests;

namespace {

HWND windowOf(_KelText* field) {
    LONG handle = 0;
    EXPECT_CODE(field->get_hWnd(&handle), S_OK);
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle));
}

}  // namespace

TEST(activation_shows_the_control_in_its_place) {
    Host host;
    const auto field = host.place();
    host.Extended.ToolTipText = L"from the host";
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    const HWND before = windowOf(field.get());
    EXPECT(!IsWindowVisible(before));
    EXPECT_CODE(host.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    const HWND window = windowOf(field.get());
    EXPECT(window == before);
    EXPECT(GetParent(window) == host.window());
    EXPECT(IsWindowVisible(window));
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, host.window(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 10L);
    EXPECT_EQ(place.right, 210L);
    const RECT moved{30, 40, 330, 60};
    EXPECT_CODE(host.inPlace()->SetObjectRects(&moved, &moved), S_OK);
    GetWindowRect(window, &place);
    EXPECT_EQ(place.right - place.left, 300L);
    HWND told = nullptr;
    EXPECT_CODE(host.inPlace()->GetWindow(&told), S_OK);
    EXPECT(told == window);
    EXPECT_CODE(host.inPlace()->InPlaceDeactivate(), S_OK);
    EXPECT(host.called("OnInPlaceDeactivate"));
    EXPECT(!IsWindowVisible(window));
    EXPECT_CODE(host.inPlace()->GetWindow(&told), E_FAIL);
    EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
    EXPECT(IsWindowVisible(window));
}

TEST(activation_keeps_the_place_among_neighbours) {
    Host host;
    const auto neighbour = [&] {
        return CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 9, 9, host.window(),
                               nullptr, nullptr, nullptr);
    };
    const HWND first = neighbour();
    const auto field = host.placeNew();
    const HWND window = windowOf(field.get());
    EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
    const HWND last = neighbour();
    const NamedDeed<Host> deeds[] = {
        {"nothing", [](Host&) {}},
        {"hidden", [](Host& h) { EXPECT_CODE(h.verb(OLEIVERB_HIDE), S_OK); }},
        {"deactivated", [](Host& h) { EXPECT_CODE(h.inPlace()->InPlaceDeactivate(), S_OK); }},
    };
    for (const auto& deed : deeds) {
        deed.act(host);
        EXPECT_EQ(IsWindowVisible(window) != FALSE, deed.name == std::string("nothing"));
        EXPECT_CODE(host.verb(OLEIVERB_SHOW), S_OK);
        EXPECT(GetWindow(window, GW_HWNDPREV) == first);
        EXPECT(GetWindow(window, GW_HWNDNEXT) == last);
    }
    EXPECT_CODE(host.object()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT(GetParent(window) != host.window());
}

TEST(activation_of_the_user_interface_takes_the_focus) {
    Host host;
    const auto field = host.place();
    EventSink sink;
    adviseEvents(field.get(), &sink);
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
    settle();
    EXPECT(host.called("OnUIActivate"));
    EXPECT(host.called("OnFocus"));
    SendMessageW(GetFocus(), WM_CHAR, L'a', 0);
    EXPECT_EQ(text(field.get()), std::wstring(L"a"));
    EXPECT_EQ(sink.Heard.size(), std::size_t{1});
    EXPECT_EQ(late(field.get(), L"Changed"), L"bool True");
    SetFocus(host.window());
    EXPECT(host.called("OnFocusLost"));
    EXPECT_CODE(host.inPlace()->UIDeactivate(), S_OK);
    EXPECT(host.called("OnUIDeactivate"));
}

TEST(activation_keys_go_to_the_field_or_to_the_host) {
    Host host;
    const auto field = host.placeNew();
    const auto active = field.as<IOleInPlaceActiveObject>();
    MSG key{};
    key.message = WM_KEYDOWN;
    key.wParam = VK_LEFT;
    EXPECT_CODE(active->TranslateAccelerator(&key), S_FALSE);
    EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
    settle();
    key.hwnd = GetFocus();
    EXPECT_CODE(active->TranslateAccelerator(&key), S_OK);
    EXPECT(!host.called("TranslateAccelerator"));
    key.wParam = VK_TAB;
    EXPECT_CODE(active->TranslateAccelerator(&key), S_FALSE);
    EXPECT(host.called("TranslateAccelerator"));
    EXPECT_CODE(active->TranslateAccelerator(nullptr), E_POINTER);
    // Only the host knows where the focus goes from a field that is disabled.
    host.Calls.clear();
    EXPECT_CODE(field->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT(host.called("TranslateAccelerator"));
    EXPECT(GetFocus() != key.hwnd);
}

TEST(activation_forces_its_height_on_the_host) {
    Host host;
    const auto field = host.placeNew();
    host.Bounds = {0, 0, 200, 5};
    EXPECT_CODE(host.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    EXPECT(host.called("OnPosRectChange"));
    EXPECT_EQ(host.Bounds.bottom, 20L);
    EXPECT_EQ(extentOf(host).cy, 529L);
    // A host that insists is not told again and again.
    host.FollowsSize = false;
    const RECT low{0, 0, 100, 5};
    host.Bounds = low;
    EXPECT_CODE(host.inPlace()->SetObjectRects(&low, &low), S_OK);
}

TEST(activation_sizes_come_back_as_given) {
    Host host;
    const auto field = host.place();
    SIZEL size{5291, 529};
    EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_EQ(extentOf(host).cx, 5291L);
    EXPECT_EQ(extentOf(host).cy, 529L);
    size = {-1, 5};
    EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), E_INVALIDARG);
    EXPECT_CODE(host.object()->SetExtent(DVASPECT_ICON, &size), DV_E_DVASPECT);
}

TEST(order_calls_before_a_site_are_errors) {
    const auto field = makeText();
    const auto object = field.as<IOleObject>();
    EXPECT_CODE(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), E_UNEXPECTED);
    EXPECT_CODE(object->DoVerb(-77, nullptr, nullptr, 0, nullptr, nullptr), E_NOTIMPL);
    const RECT bounds{0, 0, 10, 10};
    EXPECT_CODE(field.as<IOleInPlaceObject>()->SetObjectRects(&bounds, &bounds), E_UNEXPECTED);
    EXPECT_CODE(field.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_CODE(object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    EXPECT_CODE(object->Unadvise(5), OLE_E_NOCONNECTION);
}

TEST(order_everything_twice) {
    Host host;
    const auto field = host.placeNew();
    for (const LONG verb : {OLEIVERB_SHOW, OLEIVERB_SHOW, OLEIVERB_UIACTIVATE, OLEIVERB_UIACTIVATE, OLEIVERB_HIDE,
                            OLEIVERB_HIDE, OLEIVERB_SHOW})
        EXPECT_CODE(host.verb(verb), S_OK);
    EXPECT_CODE(host.verb(3), OLEOBJ_S_INVALIDVERB);
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), E_UNEXPECTED);
    EXPECT_CODE(host.object()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_CODE(host.object()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_CODE(host.object()->SetClientSite(nullptr), S_OK);
    EXPECT_CODE(host.object()->SetClientSite(nullptr), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_SHOW), E_UNEXPECTED);
    EXPECT_CODE(field->put_Text(Str(L"still works")), S_OK);
    EXPECT_EQ(text(field.get()), std::wstring(L"still works"));
}

TEST(order_hosts_that_interfere_get_an_error) {
    for (const char* moment : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext",
                               "OnUIActivate", "OnFocus", "ShowObject", "OnPosRectChange"}) {
        for (const int deed : {0, 1, 2, 3}) {
            Host host;
            auto field = host.placeNew();
            host.Bounds.bottom = 25;
            if (std::string(moment) == "OnPosRectChange") host.Bounds.bottom = host.Bounds.top + 5;
            int depth = 0;
            host.At[moment] = [&] {
                if (++depth > 1) return;
                if (deed == 0 && host.object() != nullptr) host.object()->Close(OLECLOSE_NOSAVE);
                if (deed == 1 && host.object() != nullptr) host.object()->SetClientSite(nullptr);
                if (deed == 2) host.verb(OLEIVERB_UIACTIVATE);
                if (deed == 3) field.reset();
            };
            host.verb(OLEIVERB_UIACTIVATE);

            EXPECT(depth > 0);
            const auto times = [&](const char* call) { return std::count(host.Calls.begin(), host.Calls.end(), call); };
            if (deed == 1) EXPECT_EQ(times("OnInPlaceDeactivate"), times("OnInPlaceActivate"));
            if (field) field->put_CaptionWidth(10);
        }
    }
}

TEST(order_control_dies_while_active) {
    Host host;
    auto field = host.placeNew();
    EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
    const HWND window = windowOf(field.get());
    host.forget();
    field.reset();
    EXPECT(!IsWindow(window));
}

TEST(order_host_destroys_the_parent) {
    Host outer;
    const auto field = outer.placeNew();
    EXPECT_CODE(outer.verb(OLEIVERB_SHOW), S_OK);
    DestroyWindow(outer.window());
    EXPECT_CODE(field->put_Text(Str(L"kept")), S_OK);
    EXPECT_EQ(text(field.get()), std::wstring(L"kept"));
    EXPECT(IsWindow(windowOf(field.get())));
}

TEST(mnemonic_of_the_caption) {
    Host host;
    const auto field = host.place();
    const auto control = field.as<IOleControl>();
    CONTROLINFO info{};
    info.cb = sizeof info;
    EXPECT_CODE(field->put_Caption(Str(L"&Name")), S_OK);
    EXPECT(host.called("OnControlInfoChanged"));
    EXPECT_CODE(control->GetControlInfo(&info), S_OK);
    const auto isMnemonic = [&](UINT message, wchar_t character) {
        constexpr LPARAM AltIsDown = 1 << 29;
        MSG pressed{};
        pressed.message = message;
        pressed.wParam = character;
        pressed.lParam = message == WM_SYSCHAR ? AltIsDown : 0;
        return IsAccelerator(info.hAccel, info.cAccel, &pressed, nullptr) != FALSE;
    };
    for (const UINT message : {UINT{WM_SYSCHAR}, UINT{WM_CHAR}}) {
        EXPECT(isMnemonic(message, L'n') && isMnemonic(message, L'N'));
        EXPECT(!isMnemonic(message, L'a'));
    }
    EXPECT_CODE(field->put_Caption(Str(L"&Ärzte")), S_OK);
    EXPECT_CODE(control->GetControlInfo(&info), S_OK);
    EXPECT(isMnemonic(WM_SYSCHAR, L'ä') && isMnemonic(WM_SYSCHAR, L'Ä'));
    EXPECT_EQ(info.dwFlags & CTRLINFO_EATS_RETURN, static_cast<DWORD>(CTRLINFO_EATS_RETURN));
    EXPECT_CODE(field->put_Caption(Str(L"Name")), S_OK);
    EXPECT_CODE(control->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 0);
}
