// The number field in a host: arguments that come back, and message boxes.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
#include "tests/windows/ole/MessageBoxHand.h"

using namespace kel;
using namespace kel::tests;

namespace {

/// A number field with a spinner on the screen, in a host with a frame.
class NumberHost {
public:
    NumberHost() : Sink(false, u"KelNumber") {
        Inside.Frame = std::make_unique<HostFrame>(Inside.window());
        Field = Inside.place(makeNumber());
        adviseEvents(Field.get(), &Sink, u"KelNumber");
        EXPECT_CODE(Field.as<IPersistStreamInit>()->InitNew(), S_OK);
        EXPECT_CODE(Field->put_UpDown(VARIANT_TRUE), S_OK);
        EXPECT_CODE(Inside.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
        SetActiveWindow(Inside.window());
        settle();
    }

    bool valid(bool showMessage) {
        const Ref<_KelNumber> held = Field;
        VARIANT_BOOL valid = 7;
        EXPECT_CODE(held->get_Valid(showMessage ? VARIANT_TRUE : VARIANT_FALSE, &valid), S_OK);
        return valid != VARIANT_FALSE;
    }

    EventSink Sink;
    Host Inside;
    Ref<_KelNumber> Field;
};

}  // namespace

TEST(number_arguments_that_are_left_out_or_come_back) {
    const auto field = makeNumber();
    EXPECT_CODE(field->put_Caption(Str(L"Amount")), S_OK);
    VARIANT_BOOL changed = 7;
    EXPECT_CODE(field->get_ChangedCaption(nullptr, &changed), E_POINTER);
    Str caption(L"before");
    VARIANT place = plain(VT_BYREF | VT_BSTR);
    place.pbstrVal = caption.address();
    Var result;
    EXPECT_CODE(invoke(field.get(), L"ChangedCaption", DISPATCH_PROPERTYGET, {place}, &result.Value), S_OK);
    EXPECT_EQ(described(result.Value), L"bool False");
    EXPECT_EQ(std::wstring(caption), L"Amount");
    double saved = 2.5;
    EXPECT_CODE(field->put_ValueSaved(&saved), S_OK);
    EXPECT_CODE(field->get_ValueSaved(&saved), S_OK);
    EXPECT_EQ(saved, 2.5);
    EXPECT_CODE(field->put_ValueSaved(nullptr), E_POINTER);
}

TEST(number_message_box_has_the_container_wait) {
    NumberHost host;
    EXPECT_CODE(host.Inside.verb(OLEIVERB_UIACTIVATE), S_OK);
    settle();
    HWND const focus = GetFocus();
    EXPECT(!host.valid(false));
    std::string whileUp;
    HWND owner = nullptr;
    bool ownerWaits = false;
    wchar_t title[32]{};
    const MessageBoxHand hand([&](HWND box) {
        whileUp = host.Inside.Frame->Waits;
        owner = GetWindow(box, GW_OWNER);
        ownerWaits = IsWindowEnabled(owner) == FALSE;
        GetWindowTextW(box, title, 32);
    });
    EXPECT(!host.valid(true));
    settle();
    EXPECT_EQ(hand.seen(), 1);
    EXPECT_EQ(std::wstring(title), L"Invalid Value");
    EXPECT(whileUp == "+");
    EXPECT(host.Inside.Frame->Waits == "+-");
    EXPECT(owner == host.Inside.window());
    EXPECT(ownerWaits && IsWindowEnabled(owner));
    EXPECT(!host.Inside.called("OnFocusLost"));
    // The desktop gives it back when it comes to it.
    for (int tries = 0; GetFocus() != focus && tries < 200; ++tries) {
        Sleep(10);
        settle();
    }
    EXPECT(GetFocus() == focus);
    EXPECT_CODE(host.Field->put_Value(number(1)), S_OK);
    EXPECT(host.valid(true));
    EXPECT_EQ(hand.seen(), 1);
}

TEST(number_control_and_host_may_go_while_the_message_box_is_up) {
    const NamedDeed<NumberHost> deeds[] = {
        {"closed", [](NumberHost& host) { host.Inside.object()->Close(OLECLOSE_NOSAVE); }},
        {"unloaded",
         [](NumberHost& host) {
             host.Inside.unload();
             host.Field.reset();
         }},
        {"parent destroyed", [](NumberHost& host) { DestroyWindow(host.Inside.window()); }},
        {"all of it",
         [](NumberHost& host) {
             host.Inside.unload();
             host.Field.reset();
             DestroyWindow(host.Inside.window());
         }},
    };
    for (const auto& deed : deeds) {
        NumberHost host;
        EXPECT_CODE(host.Inside.verb(OLEIVERB_UIACTIVATE), S_OK);
        settle();
        const MessageBoxHand hand([&](HWND /*box*/) { deed.act(host); });
        EXPECT(!host.valid(true));
        settle();
        EXPECT_EQ(hand.seen(), 1);
        if (host.Inside.Frame->Waits != "+-") fail(__FILE__, __LINE__, std::string(deed.name) + ": the host waits");
    }
}
