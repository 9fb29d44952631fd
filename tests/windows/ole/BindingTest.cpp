// Calls through the function table and late-bound calls, with the values and mistakes that clients make.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel::tests;

namespace {

VARIANT reference(VARTYPE type, void* place) {
    VARIANT value{};
    value.vt = static_cast<VARTYPE>(VT_BYREF | type);
    value.byref = place;
    return value;
}

std::wstring latePut(_KelText* field, const wchar_t* name, VARIANT value) {
    EXPECT_CODE(put(field, name, value), S_OK);
    Var result;
    EXPECT_CODE(invoke(field, name, DISPATCH_PROPERTYGET, {}, &result.Value), S_OK);
    Var text;
    EXPECT_CODE(VariantChangeType(&text.Value, &result.Value, VARIANT_ALPHABOOL, VT_BSTR), S_OK);
    return text.Value.bstrVal;
}

}  // namespace

TEST(vtable_text_and_references) {
    const auto field = makeText();
    EXPECT_CODE(field->put_Text(Str(L"Müller")), S_OK);
    EXPECT_EQ(text(field.get()), std::wstring(L"Müller"));
    EXPECT_CODE(field->put_Text(nullptr), S_OK);
    EXPECT_EQ(text(field.get()), std::wstring());
    Str saved(L"Meier");
    const BSTR before = saved;
    EXPECT_CODE(field->put_TextSaved(saved.address()), S_OK);
    EXPECT(before == static_cast<BSTR>(saved));
    BSTR kept = nullptr;
    EXPECT_CODE(field->get_TextSaved(&kept), S_OK);
    EXPECT_EQ(taken(kept), std::wstring(L"Meier"));
    VARIANT_BOOL changed = 0;
    EXPECT_CODE(field->get_ChangedSaved(&changed), S_OK);
    EXPECT_EQ(changed, VARIANT_TRUE);
    EXPECT_CODE(field->TooltipSet(Str(L"tip")), S_OK);
    EXPECT_CODE(field->Refresh(), S_OK);
    LONG handle = 0;
    EXPECT_CODE(field->get_hWnd(&handle), S_OK);
    EXPECT(IsWindow(reinterpret_cast<HWND>(static_cast<INT_PTR>(handle))));
}

TEST(vtable_null_pointers_are_refused) {
    const auto field = makeText();
    EXPECT_CODE(field->get_Text(nullptr), E_POINTER);
    EXPECT_CODE(field->get_Locked(nullptr), E_POINTER);
    EXPECT_CODE(field->put_TextSaved(nullptr), E_POINTER);
    // Between apartments the system frees what it finds in a result, whatever the code says.
    VARIANT_BOOL changed = VARIANT_TRUE;
    EXPECT_CODE(makeNumber()->get_ChangedCaption(nullptr, &changed), E_POINTER);
    EXPECT_EQ(changed, VARIANT_FALSE);
    EXPECT_CODE(field->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr), E_INVALIDARG);
    EXPECT_CODE(field->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_INVALIDARG);
}

TEST(late_values_of_every_kind) {
    const auto field = makeText();
    struct Case {
        const wchar_t* member;
        VARIANT value;
        const wchar_t* wanted;
    };
    const auto variant = [](VARTYPE type, auto set) {
        VARIANT value{};
        value.vt = type;
        set(value);
        return value;
    };
    short twenty = 20;
    Str byRef(L"by reference");
    Var inner(L"inside");
    Var number(42L);
    DECIMAL decimal{};
    VarDecFromR8(12.5, &decimal);
    VARIANT decimalValue{};
    decimalValue.decVal = decimal;
    decimalValue.vt = VT_DECIMAL;
    const Case cases[] = {
        {L"CaptionWidth", variant(VT_I2, [](VARIANT& v) { v.iVal = 10; }), L"10"},
        {L"CaptionWidth", variant(VT_R8, [](VARIANT& v) { v.dblVal = 12.5; }), L"12"},
        {L"CaptionWidth", variant(VT_UI1, [](VARIANT& v) { v.bVal = 200; }), L"200"},
        {L"CaptionWidth", variant(VT_I8, [](VARIANT& v) { v.llVal = 300; }), L"300"},
        {L"CaptionWidth", variant(VT_UI4, [](VARIANT& v) { v.ulVal = 301; }), L"301"},
        {L"CaptionWidth", variant(VT_CY, [](VARIANT& v) { v.cyVal.int64 = 3020000; }), L"302"},
        {L"CaptionWidth", decimalValue, L"12"},
        {L"CaptionWidth", variant(VT_EMPTY, [](VARIANT&) {}), L"0"},
        {L"CaptionWidth", reference(VT_I2, &twenty), L"20"},
        {L"CaptionWidth", reference(VT_VARIANT, &number.Value), L"42"},
        {L"Text", decimalValue, L"12.5"},
        {L"Text", variant(VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_TRUE; }), L"True"},
        {L"Text", reference(VT_BSTR, byRef.address()), L"by reference"},
        {L"Text", reference(VT_VARIANT, &inner.Value), L"inside"},
        {L"TextSaved", reference(VT_VARIANT, &inner.Value), L"inside"},
        {L"TextSaved", number.Value, L"42"},
        {L"Locked", variant(VT_I4, [](VARIANT& v) { v.lVal = 5; }), L"True"},
    };
    for (const Case& c : cases) EXPECT_EQ(latePut(field.get(), c.member, c.value), std::wstring(c.wanted));
    EXPECT_EQ(std::wstring(inner.Value.bstrVal), std::wstring(L"inside"));
    EXPECT_EQ(number.Value.vt, VT_I4);
}

TEST(late_texts_are_read_by_the_callers_locale) {
    struct Case {
        LCID locale;
        Ref<IDispatch> object;
        const wchar_t* member;
        Var value;
        const wchar_t* wanted;
    };
    constexpr LCID German = 0x407, American = 0x409, British = 0x809;
    Var dateValue;
    dateValue.Value = date(41348);
    Var germanDate;
    EXPECT_CODE(VariantChangeTypeEx(&germanDate.Value, &dateValue.Value, German, 0, VT_BSTR), S_OK);
    const std::wstring germanText = described(germanDate.Value);
    const auto number = create(L"KelControls8.KelNumber"), day = create(L"KelControls8.KelDate");
    Case cases[] = {
        {German, number, L"UpDownChange", Var(L"2,5"), L"double 2.5"},
        {American, number, L"UpDownChange", Var(L"2.5"), L"double 2.5"},
        {American, day, L"MaxValue", Var(L"3/4/2013"), L"date 41337"},
        {British, day, L"MaxValue", Var(L"3/4/2013"), L"date 41367"},
        {German, makeText().as<IDispatch>(), L"TextSaved", std::move(dateValue), germanText.c_str()},
    };
    for (Case& c : cases) {
        std::wstring name = c.member;
        wchar_t* names = name.data();
        DISPID id = DISPID_UNKNOWN, put = DISPID_PROPERTYPUT;
        EXPECT_CODE(c.object->GetIDsOfNames(IID_NULL, &names, 1, c.locale, &id), S_OK);
        DISPPARAMS passed{&c.value.Value, &put, 1, 1};
        EXPECT_CODE(c.object->Invoke(id, IID_NULL, c.locale, DISPATCH_PROPERTYPUT, &passed, nullptr, nullptr, nullptr),
                    S_OK);
        EXPECT_EQ(late(c.object.get(), c.member), std::wstring(c.wanted));
    }
}

TEST(late_mistakes_have_their_codes) {
    const auto field = makeText();
    const auto handler = create(L"KelControls8.KelControlHandler");
    Var word(L"word");
    Var missing;
    missing.Value.vt = VT_ERROR;
    missing.Value.scode = DISP_E_PARAMNOTFOUND;
    UINT at = 99;
    EXPECT_CODE(put(field.get(), L"CaptionWidth", word.Value, &at), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(at, 0U);
    EXPECT_CODE(put(field.get(), L"Text", plain(VT_DISPATCH)), DISP_E_TYPEMISMATCH);
    EXPECT_CODE(invoke(field.get(), L"Text", DISPATCH_METHOD, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_CODE(invoke(field.get(), L"Refresh", DISPATCH_PROPERTYGET, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_CODE(invoke(field.get(), L"Refresh", DISPATCH_METHOD, {word.Value}), DISP_E_BADPARAMCOUNT);
    EXPECT_CODE(invoke(field.get(), L"Text", DISPATCH_PROPERTYGET, {word.Value}), DISP_E_BADPARAMCOUNT);
    EXPECT_CODE(invoke(field.get(), L"TooltipSet", DISPATCH_METHOD, {missing.Value}), DISP_E_PARAMNOTOPTIONAL);
    EXPECT_CODE(invoke(handler.get(), L"SetRuntime", DISPATCH_METHOD, {word.Value}, nullptr, nullptr, &at),
                DISP_E_TYPEMISMATCH);
    DISPPARAMS none{};
    EXPECT_CODE(field->Invoke(0x12345, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
                DISP_E_MEMBERNOTFOUND);
    EXPECT_CODE(field->Invoke(0, IID_IUnknown, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
                DISP_E_UNKNOWNINTERFACE);
}

TEST(late_arguments_by_name) {
    const auto field = makeText();
    wchar_t member[] = L"tooltipset";
    wchar_t parameter[] = L"TOOLTIP";
    wchar_t wrong[] = L"Nothing";
    wchar_t* names[] = {member, parameter, wrong};
    DISPID ids[3] = {};
    EXPECT_CODE(field->GetIDsOfNames(IID_NULL, names, 2, 0, ids), S_OK);
    EXPECT_EQ(static_cast<long>(ids[0]), 0x60030010L);
    EXPECT_EQ(static_cast<long>(ids[1]), 0L);
    EXPECT_CODE(field->GetIDsOfNames(IID_NULL, names, 3, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(static_cast<long>(ids[2]), static_cast<long>(DISPID_UNKNOWN));
    Var tip(L"tip");
    DISPID position = 0;
    DISPPARAMS named{&tip.Value, &position, 1, 1};
    EXPECT_CODE(field->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &named, nullptr, nullptr, nullptr), S_OK);
    position = 1;
    UINT at = 99;
    EXPECT_CODE(field->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &named, nullptr, nullptr, &at),
                DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(at, 0U);
}

TEST(late_reference_arguments_come_back_as_the_callers_type) {
    const auto runtime = create(L"KelRuntime8.Runtime");
    const auto read = [&runtime](VARIANT position) {
        Var list(L"a,\"b,c\"");
        Var comma(44L);
        Var field;
        EXPECT_CODE(
            invoke(runtime.get(), L"ReadField", DISPATCH_METHOD, {comma.Value, position, list.Value}, &field.Value),
            S_OK);
        return std::wstring(field.Value.bstrVal);
    };
    long wide = 0;
    EXPECT_EQ(read(reference(VT_I4, &wide)), std::wstring(L"a"));
    EXPECT_EQ(read(reference(VT_I4, &wide)), std::wstring(L"b,c"));
    EXPECT_EQ(read(reference(VT_I4, &wide)), std::wstring());
    EXPECT(wide < 0);
    short narrow = 0;
    EXPECT_EQ(read(reference(VT_I2, &narrow)), std::wstring(L"a"));
    EXPECT_EQ(narrow, 2);
    Var variable;
    EXPECT_EQ(read(reference(VT_VARIANT, &variable.Value)), std::wstring(L"a"));
    EXPECT_EQ(variable.Value.lVal, 2L);
    Str text(L"0");
    EXPECT_EQ(read(reference(VT_BSTR, text.address())), std::wstring(L"a"));
    EXPECT_EQ(std::wstring(text), std::wstring(L"2"));
    EXPECT_EQ(read(Var(2L).Value), std::wstring(L"b,c"));
}

TEST(errors_carry_a_description) {
    const auto field = makeText();
    Var object;
    const auto handler = create(L"KelControls8.KelControlHandler");
    VARIANT wrong{};
    wrong.vt = VT_DISPATCH;
    wrong.pdispVal = field.get();
    EXCEPINFO exception{};
    EXPECT_CODE(invoke(handler.get(), L"SetRuntime", DISPATCH_METHOD, {wrong}, nullptr, &exception), DISP_E_EXCEPTION);
    EXPECT_CODE(exception.scode, DISP_E_UNKNOWNNAME);
    EXPECT(taken(exception.bstrDescription).find(L"DecimalSeparator") != std::wstring::npos);
    EXPECT_EQ(taken(exception.bstrSource), std::wstring(L"KelControls8.KelControlHandler"));
    const auto early = handler.as<_KelControlHandler>();
    EXPECT_CODE(early->SetRuntime(field.get()), DISP_E_UNKNOWNNAME);
    Ref<IErrorInfo> info;
    EXPECT_CODE(GetErrorInfo(0, info.receive()), S_OK);
    EXPECT_CODE(handler.as<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(__uuidof(_KelControlHandler)), S_OK);
    EXPECT_CODE(handler.as<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
    // One in a process that has ended says nothing of its members.
    HostRuntime gone;
    gone.Gone = RPC_E_DISCONNECTED;
    EXPECT_CODE(early->SetRuntime(&gone), RPC_E_DISCONNECTED);
    // The object was stored before it failed; a sound one takes its place.
    const auto sound = create(L"KelRuntime8.Runtime");
    VARIANT right = plain(VT_DISPATCH);
    right.pdispVal = sound.get();
    EXPECT_CODE(invoke(handler.get(), L"SetRuntime", DISPATCH_METHOD, {right}), S_OK);
}
