// The check field and the progress bar in a host.

#include <windows.h>

#include <commctrl.h>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

constexpr DISPID ChangeId = 1;

Ref<_KelCheck> makeCheck() { return create(L"KelControls8.KelCheck").as<_KelCheck>(); }

Ref<_KelProgressBar> makeBar() { return create(L"KelControls8.KelProgressBar").as<_KelProgressBar>(); }

bool isChecked(_KelCheck* field) {
    VARIANT_BOOL value = 7;
    EXPECT_CODE(field->get_Value(&value), S_OK);
    return value != VARIANT_FALSE;
}

bool isChanged(_KelCheck* field) {
    VARIANT_BOOL changed = 7;
    EXPECT_CODE(field->get_Changed(&changed), S_OK);
    return changed != VARIANT_FALSE;
}

LONG valueOf(_KelProgressBar* bar) {
    LONG value = -7;
    EXPECT_CODE(bar->get_Value(&value), S_OK);
    return value;
}

std::wstring windowTextOf(HWND window) {
    wchar_t text[100]{};
    GetWindowTextW(window, text, 100);
    return text;
}

/// The window of the only widget in a host's control.
HWND widgetIn(const Host& host) {
    HWND const control = GetWindow(host.window(), GW_CHILD);
    HWND const widget = GetWindow(control, GW_CHILD);
    EXPECT(widget != nullptr);
    return widget;
}

void click(HWND window) {
    const LPARAM place = MAKELPARAM(100, 8);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(window, WM_LBUTTONUP, 0, place);
    pump();
}

/// A check field on the screen, unchecked and named "I &agree".
class CheckHost {
public:
    CheckHost() : Sink(false, u"KelCheck") {
        Field = Inside.place(makeCheck());
        EXPECT_CODE(Field.as<IPersistStreamInit>()->InitNew(), S_OK);
        EXPECT_CODE(Field->put_Caption(Str(L"I &agree")), S_OK);
        EXPECT_CODE(Inside.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
        SetActiveWindow(Inside.window());
        pump();
        adviseEvents(Field.get(), &Sink, u"KelCheck");
    }

    HWND button() const { return widgetIn(Inside); }
    HRESULT pressMnemonic() {
        MSG message{};
        message.message = WM_SYSCHAR;
        message.wParam = L'a';
        return Field.as<IOleControl>()->OnMnemonic(&message);
    }

    EventSink Sink;
    Host Inside;
    Ref<_KelCheck> Field;
};

}  // namespace

TEST(check_values_of_every_kind) {
    const auto field = makeCheck();
    Var yes(L"True");
    Var no(L"0");
    VARIANT truth = plain(VT_BOOL);
    truth.boolVal = VARIANT_TRUE;
    struct Row {
        VARIANT given;
        bool wanted;
    };
    for (const Row& row : {Row{truth, true}, Row{number(0), false}, Row{number(-3), true}, Row{no.Value, false},
                           Row{yes.Value, true}, Row{plain(VT_EMPTY), false}}) {
        EXPECT_CODE(put(field.get(), L"Value", row.given), S_OK);
        EXPECT_EQ(isChecked(field.get()), row.wanted);
        EXPECT(!isChanged(field.get()));
    }
    Var word(L"perhaps");
    for (const VARIANT& wrong : {word.Value, plain(VT_NULL)})
        EXPECT_CODE(put(field.get(), L"Value", wrong), DISP_E_TYPEMISMATCH);
    Var late;
    EXPECT_CODE(invoke(field.get(), L"Value", DISPATCH_PROPERTYGET, {}, &late.Value), S_OK);
    EXPECT_EQ(late.Value.vt, VT_BOOL);

    VARIANT_BOOL reference = VARIANT_TRUE;
    EXPECT_CODE(field->put_ValueOriginal(&reference), S_OK);
    EXPECT(isChanged(field.get()));
    EXPECT_CODE(field->put_ValueSaved(nullptr), E_POINTER);
    EXPECT_CODE(put(field.get(), L"ValueSaved", truth), S_OK);
    EXPECT_CODE(field->get_ChangedSaved(&reference), S_OK);
    EXPECT_EQ(reference, VARIANT_TRUE);
}

TEST(check_click_raises_the_event) {
    CheckHost host;
    EXPECT_EQ(windowTextOf(host.button()), std::wstring(L"I &agree"));
    click(host.button());
    EXPECT(host.Sink.Heard == std::vector<DISPID>{ChangeId});
    EXPECT(host.Inside.called("OnUIActivate"));
    EXPECT(isChecked(host.Field.get()));
    EXPECT(isChanged(host.Field.get()));
    // By code it is told to nobody.
    EXPECT_CODE(host.Field->put_Value(VARIANT_FALSE), S_OK);
    EXPECT_EQ(SendMessageW(host.button(), BM_GETCHECK, 0, 0), LRESULT{BST_UNCHECKED});
    EXPECT_EQ(host.Sink.Heard.size(), std::size_t{1});
}

TEST(check_mnemonic_focuses_and_toggles) {
    CheckHost host;
    CONTROLINFO info{};
    info.cb = sizeof info;
    EXPECT_CODE(host.Field.as<IOleControl>()->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 2);
    EXPECT_CODE(host.pressMnemonic(), S_OK);
    EXPECT(GetFocus() == host.button());
    EXPECT(isChecked(host.Field.get()));
    EXPECT_CODE(host.pressMnemonic(), S_OK);
    EXPECT(!isChecked(host.Field.get()));
    EXPECT_EQ(host.Sink.Heard.size(), std::size_t{2});
    EXPECT_CODE(host.Field->put_Caption(Str(L"Agreed")), S_OK);
    EXPECT_CODE(host.Field.as<IOleControl>()->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 0);
}

TEST(check_keys_go_to_the_box_or_to_the_host) {
    CheckHost host;
    EXPECT_CODE(host.Inside.verb(OLEIVERB_UIACTIVATE), S_OK);
    pump();
    const auto active = host.Field.as<IOleInPlaceActiveObject>();
    MSG key{};
    key.hwnd = host.button();
    key.message = WM_KEYDOWN;
    key.lParam = 1;
    for (const WPARAM pressed : std::initializer_list<WPARAM>{VK_LEFT, VK_DOWN, VK_SPACE}) {
        key.wParam = pressed;
        EXPECT_CODE(active->TranslateAccelerator(&key), S_OK);
    }
    EXPECT(GetFocus() == host.button());
    PostMessageW(host.button(), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001U));
    pump();
    EXPECT(isChecked(host.Field.get()));
    for (const WPARAM pressed : std::initializer_list<WPARAM>{VK_TAB, VK_ESCAPE}) {
        key.wParam = pressed;
        EXPECT_CODE(active->TranslateAccelerator(&key), S_FALSE);
    }
}

TEST(check_that_is_locked_or_disabled_takes_nothing) {
    for (const bool locks : {true, false}) {
        CheckHost host;
        if (locks)
            EXPECT_CODE(host.Field->put_Locked(VARIANT_TRUE), S_OK);
        else
            EXPECT_CODE(host.Field->put_Enabled(VARIANT_FALSE), S_OK);
        EXPECT_EQ(IsWindowEnabled(host.button()) != FALSE, locks);
        EXPECT(!IsWindowEnabled(GetParent(host.button())));
        click(host.button());
        SendMessageW(host.button(), BM_CLICK, 0, 0);
        host.pressMnemonic();
        pump();
        EXPECT(!isChecked(host.Field.get()));
        EXPECT(GetFocus() != host.button());
        EXPECT(host.Sink.Heard.empty());
    }
}

TEST(check_survives_a_host_that_unloads_in_its_event) {
    for (const bool byMouse : {true, false}) {
        CheckHost host;
        HWND const button = host.button();
        host.Sink.Handler = [&] {
            host.Inside.unload();
            host.Field.reset();
        };
        if (byMouse)
            click(button);
        else
            SendMessageW(button, BM_CLICK, 0, 0);
        EXPECT_EQ(host.Sink.Heard.size(), std::size_t{1});
        EXPECT(!IsWindow(button));
        EXPECT(GetCapture() == nullptr);
    }
}

TEST(check_that_nothing_was_stored_of_is_checked) {
    CheckHost host;
    BSTR caption = nullptr;
    EXPECT(!isChecked(host.Field.get()));
    Bag saved;
    EXPECT_CODE(host.Field.as<IPersistPropertyBag>()->Save(&saved, TRUE, TRUE), S_OK);
    EXPECT(saved.Written == (std::vector<std::wstring>{L"Caption=I &agree", L"Value=False"}));
    const auto same = makeCheck();
    EXPECT_CODE(same.as<IPersistPropertyBag>()->Load(&saved, nullptr), S_OK);
    EXPECT(!isChecked(same.get()));

    const auto bare = makeCheck();
    Bag empty;
    EXPECT_CODE(bare.as<IPersistPropertyBag>()->Load(&empty, nullptr), S_OK);
    EXPECT(isChecked(bare.get()));
    EXPECT(!isChanged(bare.get()));
    EXPECT_CODE(bare->get_Caption(&caption), S_OK);
    EXPECT_EQ(taken(caption), std::wstring());

    Ref<IStream> stream;
    EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
    EXPECT_CODE(host.Field->put_Locked(VARIANT_TRUE), S_OK);
    EXPECT_CODE(host.Field.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const auto loaded = makeCheck();
    EXPECT_CODE(loaded.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    VARIANT_BOOL locked = VARIANT_FALSE;
    EXPECT_CODE(loaded->get_Locked(&locked), S_OK);
    EXPECT_EQ(locked, VARIANT_TRUE);
    EXPECT(!isChecked(loaded.get()));
}

TEST(progress_is_shown_inside_the_put) {
    Host host;
    const auto bar = host.place(makeBar());
    EXPECT_CODE(bar.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_CODE(bar->put_ShowTime(VARIANT_FALSE), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
    pump();
    HWND const surface = widgetIn(host);
    EXPECT(!IsChild(host.window(), GetFocus()));
    EXPECT(!GetUpdateRect(surface, nullptr, FALSE));
    EXPECT_CODE(bar->Start(), S_OK);
    EXPECT_CODE(bar->put_Value(40), S_OK);
    EXPECT(!GetUpdateRect(surface, nullptr, FALSE));
    EXPECT_EQ(windowTextOf(surface), std::wstring(L"40%"));
    EXPECT_EQ(SendMessageW(surface, PBM_GETPOS, 0, 0), LRESULT{40});
    EXPECT_CODE(bar->put_Max(1000), S_OK);
    EXPECT_CODE(bar->put_Value(425), S_OK);
    EXPECT_EQ(windowTextOf(surface), std::wstring(L"42%"));
    EXPECT_EQ(SendMessageW(surface, PBM_GETPOS, 0, 0), LRESULT{42});
    EXPECT_CODE(bar->Clear(), S_OK);
    EXPECT_EQ(windowTextOf(surface), std::wstring());
    EXPECT_CODE(bar->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT(!IsWindowEnabled(surface));
}

TEST(progress_is_left_out_of_the_tab_order) {
    DWORD bar = 0, box = 0;
    EXPECT_CODE(makeBar().as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &bar), S_OK);
    EXPECT_CODE(create(L"KelControls8.KelCheck").as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &box), S_OK);
    EXPECT_EQ(bar & OLEMISC_NOUIACTIVATE, static_cast<DWORD>(OLEMISC_NOUIACTIVATE));
    EXPECT_EQ(box & OLEMISC_NOUIACTIVATE, 0UL);
}

TEST(progress_range_and_values) {
    const auto bar = makeBar();
    EXPECT_CODE(bar->put_Max(10), S_OK);
    EXPECT_CODE(bar->put_Min(20), S_OK);
    LONG last = 0;
    EXPECT_CODE(bar->get_Max(&last), S_OK);
    EXPECT_EQ(last, 20L);
    EXPECT_EQ(valueOf(bar.get()), 1L);
    EXPECT_CODE(bar->put_Value(21), S_OK);
    EXPECT_EQ(valueOf(bar.get()), 20L);
    Var word(L"half");
    Var text(L"19");
    EXPECT_CODE(put(bar.get(), L"Min", text.Value), S_OK);
    EXPECT_CODE(put(bar.get(), L"Value", number(19.4)), S_OK);
    EXPECT_EQ(valueOf(bar.get()), 19L);
    EXPECT_CODE(put(bar.get(), L"Value", word.Value), DISP_E_TYPEMISMATCH);
    EXPECT_CODE(put(bar.get(), L"Value", number(3e9)), DISP_E_OVERFLOW);
    Bag saved;
    EXPECT_CODE(bar.as<IPersistPropertyBag>()->Save(&saved, TRUE, TRUE), S_OK);
    EXPECT(saved.Written == (std::vector<std::wstring>{L"Min=19", L"Max=20"}));
    const auto loaded = makeBar();
    EXPECT_CODE(loaded.as<IPersistPropertyBag>()->Load(&saved, nullptr), S_OK);
    EXPECT_CODE(loaded->get_Min(&last), S_OK);
    EXPECT_EQ(last, 19L);
}

TEST(progress_has_an_event_interface_without_events) {
    const auto bar = makeBar();
    EventSink sink(false, u"KelProgressBar");
    EXPECT(adviseEvents(bar.get(), &sink, u"KelProgressBar") != 0);
    EXPECT_CODE(bar->put_Value(50), S_OK);
    EXPECT(sink.Heard.empty());
}

TEST(progress_is_drawn_without_a_window) {
    const auto bar = makeBar();
    const auto view = bar.as<IViewObject2>();
    HDC const memory = CreateCompatibleDC(nullptr);
    BITMAPINFO format{};
    format.bmiHeader = {sizeof(BITMAPINFOHEADER), 100, -20, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP const bitmap = CreateDIBSection(memory, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ const before = SelectObject(memory, bitmap);
    const RECTL bounds{0, 0, 100, 20};
    SIZEL size{2646, 529};
    Host host;
    host.place(bar);
    EXPECT_CODE(host.object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_CODE(bar->put_Value(50), S_OK);
    EXPECT_CODE(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, memory, &bounds, nullptr, nullptr, 0),
                S_OK);
    GdiFlush();
    EXPECT_EQ(GetPixel(memory, 5, 10), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(GetPixel(memory, 95, 10), GetSysColor(COLOR_BTNFACE));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
}
