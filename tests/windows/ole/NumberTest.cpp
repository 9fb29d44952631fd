// The number field in a host: its values through every door, its spinner, its message boxes.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"
#include "tests/windows/ole/MessageBoxHand.h"

using namespace kel;
using namespace kel::tests;

namespace {

double valueOf(_KelNumber* field) {
    Var value;
    EXPECT_CODE(field->get_Value(&value.Value), S_OK);
    EXPECT_EQ(value.Value.vt, VT_R8);
    return value.Value.dblVal;
}

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

TEST(number_values_of_every_kind) {
    const auto field = makeNumber();
    EXPECT_CODE(field->put_Decimals(2), S_OK);
    Var word(L"no number");
    Var text(L"7");
    VARIANT yes = plain(VT_BOOL);
    yes.boolVal = VARIANT_TRUE;
    VARIANT currency = plain(VT_CY);
    currency.cyVal.int64 = 12345;
    struct Row {
        VARIANT given;
        double wanted;
    };
    // What is no number leaves the value as it was.
    const Row rows[] = {{number(1.005), 1.01}, {word.Value, 1.01}, {plain(VT_NULL), 1.01},
                        {text.Value, 7},       {currency, 1.23},   {yes, -1}};
    for (const Row& row : rows) {
        EXPECT_CODE(field->put_Value(row.given), S_OK);
        EXPECT_EQ(valueOf(field.get()), row.wanted);
        EXPECT_CODE(put(field.get(), L"Value", row.given), S_OK);
        Var late;
        EXPECT_CODE(invoke(field.get(), L"Value", DISPATCH_PROPERTYGET, {}, &late.Value), S_OK);
        EXPECT_EQ(late.Value.vt, VT_R8);
        EXPECT_EQ(late.Value.dblVal, row.wanted);
    }
}

TEST(number_arguments_that_are_left_out_or_come_back) {
    const auto field = makeNumber();
    EXPECT_CODE(field->put_Caption(Str(L"Amount")), S_OK);
    Str early(L"before");
    VARIANT_BOOL changed = 7;
    EXPECT_CODE(field->get_ChangedCaption(early.address(), &changed), S_OK);
    EXPECT_EQ(changed, VARIANT_FALSE);
    EXPECT_EQ(std::wstring(early), L"Amount");
    EXPECT_CODE(field->get_ChangedCaption(nullptr, &changed), E_POINTER);

    Str late(L"before");
    VARIANT caption{};
    caption.vt = VT_BYREF | VT_BSTR;
    caption.pbstrVal = late.address();
    Var result;
    EXPECT_CODE(invoke(field.get(), L"ChangedCaption", DISPATCH_PROPERTYGET, {caption}, &result.Value), S_OK);
    EXPECT_EQ(result.Value.vt, VT_BOOL);
    EXPECT_EQ(std::wstring(late), L"Amount");

    // The value is 0, which a mandatory field does not take; asked for no message it shows none.
    EXPECT_CODE(invoke(field.get(), L"Valid", DISPATCH_PROPERTYGET, {}, &result.Value), S_OK);
    EXPECT_EQ(result.Value.boolVal, VARIANT_FALSE);

    double saved = 2.5;
    EXPECT_CODE(field->put_ValueSaved(&saved), S_OK);
    EXPECT_CODE(field->get_ValueSaved(&saved), S_OK);
    EXPECT_EQ(saved, 2.5);
    EXPECT_CODE(field->put_ValueSaved(nullptr), E_POINTER);
}

TEST(number_spinner_steps_and_raises_the_event) {
    NumberHost host;
    EXPECT_CODE(host.Field->put_Decimals(1), S_OK);
    EXPECT_CODE(host.Field->put_UpDownChange(0.5), S_OK);
    EXPECT_CODE(host.Field->put_Value(number(3)), S_OK);
    HWND const spinner = spinnerIn(host.Inside.window());
    pressSpinner(spinner, true);
    EXPECT_EQ(valueOf(host.Field.get()), 3.5);
    pressSpinner(spinner, false);
    pressSpinner(spinner, false);
    EXPECT_EQ(valueOf(host.Field.get()), 2.5);
    EXPECT_EQ(host.Sink.Heard.size(), std::size_t{3});
    EXPECT(host.Inside.called("OnUIActivate"));
    EXPECT_CODE(host.Field->put_Enabled(VARIANT_FALSE), S_OK);
    pressSpinner(spinner, true);
    EXPECT_EQ(valueOf(host.Field.get()), 2.5);
}

TEST(number_spinner_survives_a_host_that_unloads_in_its_event) {
    NumberHost host;
    HWND const spinner = spinnerIn(host.Inside.window());
    host.Sink.Handler = [&] {
        host.Inside.unload();
        host.Field.reset();
    };
    pressSpinner(spinner, true);
    EXPECT_EQ(host.Sink.Heard.size(), std::size_t{1});
    EXPECT(!IsWindow(spinner));
    EXPECT(GetCapture() == nullptr);
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

TEST(number_persists_its_doubles) {
    const auto saved = makeNumber();
    EXPECT_CODE(saved.as<IPersistStreamInit>()->InitNew(), S_OK);
    saved->put_Decimals(3);
    saved->put_MinValue(-0.125);
    saved->put_UpDownChange(0.1);
    saved->put_Value(number(1234.5));
    Ref<IStream> stream;
    EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
    EXPECT_CODE(saved.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    Bag bag;
    EXPECT_CODE(save(saved.get(), bag), S_OK);
    const Ref<_KelNumber> loaded[] = {makeNumber(), makeNumber()};
    EXPECT_CODE(loaded[0].as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    EXPECT_CODE(load(loaded[1].get(), bag), S_OK);
    for (const Ref<_KelNumber>& field : loaded) {
        double minimum = 0;
        double step = 0;
        EXPECT_CODE(field->get_MinValue(&minimum), S_OK);
        EXPECT_CODE(field->get_UpDownChange(&step), S_OK);
        EXPECT_EQ(minimum, -0.125);
        EXPECT_EQ(step, 0.1);
        EXPECT_EQ(valueOf(field.get()), 1234.5);
    }
}
