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
        pump();
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
    Str early(L"before");
    VARIANT_BOOL changed = 7;
    EXPECT_CODE(field->get_ChangedCaption(early.address(), &changed), S_OK);
    EXPECT_EQ(changed, VARIANT_FALSE);
    EXPECT_EQ(std::wstring(early), L"Amount");
    EXPECT_CODE(field->get_ChangedCaption(nullptr, &changed), E_POINTER);

    Var result;
    // The value is 0, which a mandatory field does not take; asked for no message it shows none.
    EXPECT_CODE(invoke(field.get(), L"Valid", DISPATCH_PROPERTYGET, {}, &result.Value), S_OK);
    EXPECT_EQ(result.Value.boolVal, VARIANT_FALSE);

    double saved = 2.5;
    EXPECT_CODE(field->put_ValueSaved(&saved), S_OK);
    EXPECT_CODE(field->get_ValueSaved(&saved), S_OK);
    EXPECT_EQ(saved, 2.5);
    EXPECT_CODE(field->put_ValueSaved(nullptr), E_POINTER);
}

TEST(number_message_box_has_the_container_wait) {
    NumberHost host;
    EXPECT_CODE(host.Inside.verb(OLEIVERB_UIACTIVATE), S_OK);
    pump();
    HWND const focus = GetFocus();
    EXPECT(!host.valid(false));
    std::string whileUp;
    HWND owner = nullptr;
    const MessageBoxHand hand([&](HWND box) {
        whileUp = host.Inside.Frame->Waits;
        owner = GetWindow(box, GW_OWNER);
    });
    EXPECT(!host.valid(true));
    pump();
    EXPECT_EQ(hand.seen(), 1);
    EXPECT(whileUp == "+");
    EXPECT(host.Inside.Frame->Waits == "+-");
    EXPECT(owner == host.Inside.window());
    EXPECT(!host.Inside.called("OnFocusLost"));
    EXPECT(GetFocus() == focus);
    EXPECT_CODE(host.Field->put_Value(number(1)), S_OK);
    EXPECT(host.valid(true));
    EXPECT_EQ(hand.seen(), 1);
}

TEST(number_control_and_host_may_go_while_the_message_box_is_up) {
    struct Deed {
        const char* name;
        void (*act)(NumberHost& host);
    };
    const Deed deeds[] = {
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
    for (const Deed& deed : deeds) {
        NumberHost host;
        EXPECT_CODE(host.Inside.verb(OLEIVERB_UIACTIVATE), S_OK);
        pump();
        const MessageBoxHand hand([&](HWND /*box*/) { deed.act(host); });
        EXPECT(!host.valid(true));
        pump();
        EXPECT_EQ(hand.seen(), 1);
        if (host.Inside.Frame->Waits != "+-") fail(__FILE__, __LINE__, std::string(deed.name) + ": the host waits");
    }
}
