// Date and time fields: dates, variants that may hold nothing, and the enumeration, through every door.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel::tests;

namespace {

constexpr double March15 = 41348;
constexpr double March31 = 41364;
constexpr double Year100 = -657434;
constexpr double Year9999 = 2958465;

template <class Field>
std::wstring valueOf(const Ref<Field>& field) {
    Var value;
    EXPECT_CODE(field->get_Value(&value.Value), S_OK);
    return described(value.Value);
}

VARIANT variable(VARTYPE type, void* place) {
    VARIANT value = plain(static_cast<VARTYPE>(VT_BYREF | type));
    value.byref = place;
    return value;
}

}  // namespace

TEST(date_values_of_every_kind) {
    const auto field = makeDate();
    EXPECT_EQ(valueOf(field), L"empty");
    EXPECT_EQ(late(field.get(), L"Value"), L"empty");
    Var text(L"15/03/2013");
    Var word(L"no date");
    double kept = March15;
    Var inside;
    inside.Value = date(March31);
    const auto other = makeDate();
    EXPECT_CODE(other->put_Value(date(March31)), S_OK);
    VARIANT object = plain(VT_DISPATCH);
    object.pdispVal = other.get();
    struct Row {
        VARIANT given;
        const wchar_t* wanted;
    };
    const Row rows[] = {
        {date(March15 + 0.75), L"date 41348"},
        {plain(VT_NULL), L"null"},
        {number(March15), L"date 41348"},
        {plain(VT_EMPTY), L"null"},
        {text.Value, L"date 41348"},
        {word.Value, L"null"},
        {variable(VT_DATE, &kept), L"date 41348"},
        {variable(VT_VARIANT, &inside.Value), L"date 41364"},
        {object, L"date 41364"},
        {date(Year100), L"date -657434"},
    };
    for (const Row& row : rows) {
        EXPECT_CODE(field->put_Value(row.given), S_OK);
        EXPECT_EQ(valueOf(field), row.wanted);
        EXPECT_CODE(put(field.get(), L"Value", row.given), S_OK);
        EXPECT_EQ(late(field.get(), L"Value"), row.wanted);
    }
}

TEST(date_references_hold_null_and_empty_too) {
    const auto field = makeDate();
    EXPECT_CODE(field->put_Value(date(March15)), S_OK);
    for (const VARIANT& given : {plain(VT_NULL), plain(VT_EMPTY), date(March15)}) {
        VARIANT saved = given;
        EXPECT_CODE(field->put_ValueSaved(&saved), S_OK);
        EXPECT_EQ(saved.vt, given.vt);
        Var back;
        EXPECT_CODE(field->get_ValueSaved(&back.Value), S_OK);
        EXPECT_EQ(described(back.Value), described(given));
        EXPECT_CODE(put(field.get(), L"ValueOriginal", given), S_OK);
        EXPECT_EQ(late(field.get(), L"ValueOriginal"), described(given));
    }
    EXPECT_CODE(field->put_ValueSaved(nullptr), E_POINTER);
}

TEST(date_bounds_are_dates) {
    const auto field = makeDate();
    EXPECT_CODE(field->put_MaxValue(March31), S_OK);
    EXPECT_CODE(field->put_MinValue(March15), S_OK);
    DATE bound = 0;
    EXPECT_CODE(field->get_MinValue(&bound), S_OK);
    EXPECT_EQ(bound, March15);
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41364");
    EXPECT_CODE(field->put_MaxValue(Year9999 + 1), DISP_E_OVERFLOW);

    // Late-bound callers leave the conversion to the member.
    Var days(L"41348");
    Var written;
    EXPECT_CODE(VarBstrFromDate(March31, LOCALE_USER_DEFAULT, 0, &written.Value.bstrVal), S_OK);
    written.Value.vt = VT_BSTR;
    EXPECT_CODE(put(field.get(), L"MaxValue", number(March15)), S_OK);
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41348");
    EXPECT_CODE(put(field.get(), L"MaxValue", written.Value), S_OK);
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41364");
    EXPECT_CODE(put(field.get(), L"MaxValue", days.Value), S_OK);
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41348");
    Var word(L"some day");
    EXPECT_CODE(put(field.get(), L"MaxValue", word.Value), DISP_E_TYPEMISMATCH);
    EXPECT_CODE(put(field.get(), L"MaxValue", plain(VT_NULL)), DISP_E_TYPEMISMATCH);

    // And a date becomes a text as the system writes it.
    const auto text = makeText();
    EXPECT_CODE(put(text.get(), L"Text", date(March31)), S_OK);
    EXPECT_EQ(kel::tests::text(text.get()), std::wstring(written.Value.bstrVal));
}

TEST(date_days_flag_is_an_enumeration) {
    const auto field = makeDate();
    EXPECT_CODE(field->put_DaysFlag(LastDay), S_OK);
    KelDateDaysFlag flag = Allow;
    EXPECT_CODE(field->get_DaysFlag(&flag), S_OK);
    EXPECT_EQ(static_cast<int>(flag), 2);
    EXPECT_CODE(field->put_Value(date(March15)), S_OK);
    EXPECT_EQ(valueOf(field), L"date 41364");
    Var value;
    EXPECT_CODE(invoke(field.get(), L"DaysFlag", DISPATCH_PROPERTYGET, {}, &value.Value), S_OK);
    EXPECT_EQ(value.Value.vt, VT_I4);
    EXPECT_EQ(value.Value.lVal, 2L);
    VARIANT first = plain(VT_I2);
    first.iVal = 1;
    EXPECT_CODE(put(field.get(), L"DaysFlag", first), S_OK);
    EXPECT_CODE(field->get_DaysFlag(&flag), S_OK);
    EXPECT_EQ(static_cast<int>(flag), 1);
}

TEST(date_persists_its_dates) {
    const auto saved = makeDate();
    EXPECT_CODE(saved.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_CODE(saved->put_MaxValue(March31), S_OK);
    EXPECT_CODE(saved->put_DaysFlag(FirstDay), S_OK);
    EXPECT_CODE(saved->put_Value(date(March15)), S_OK);
    Ref<IStream> stream;
    EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
    EXPECT_CODE(saved.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    Bag bag;
    EXPECT_CODE(save(saved.get(), bag), S_OK);
    EXPECT_EQ(bag.Values.at(L"MaxValue").Value.vt, VT_DATE);
    EXPECT(bag.Values.count(L"MinValue") == 0);
    // As form files and other bags keep them.
    Bag texts;
    texts.Texts = {{L"MaxValue", L"41364"}, {L"DaysFlag", L"1"}, {L"Value", L"01032013"}};
    Ref<IStorage> storage;
    EXPECT_CODE(StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                                 storage.receive()),
                S_OK);
    EXPECT_CODE(saved.as<IPersistStorage>()->Save(storage.get(), FALSE), S_OK);

    const Ref<_KelDate> loaded[] = {makeDate(), makeDate(), makeDate(), makeDate()};
    EXPECT_CODE(loaded[0].as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    EXPECT_CODE(load(loaded[1].get(), bag), S_OK);
    EXPECT_CODE(load(loaded[2].get(), texts), S_OK);
    EXPECT_CODE(loaded[3].as<IPersistStorage>()->Load(storage.get()), S_OK);
    for (const Ref<_KelDate>& field : loaded) {
        EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41364");
        EXPECT_EQ(late(field.get(), L"MinValue"), L"date -657434");
        EXPECT_EQ(valueOf(field), L"date 41334");
        KelDateDaysFlag flag = Allow;
        EXPECT_CODE(field->get_DaysFlag(&flag), S_OK);
        EXPECT_EQ(static_cast<int>(flag), 1);
    }
}

TEST(time_values_of_every_kind) {
    const auto field = makeTime();
    EXPECT_EQ(valueOf(field), L"empty");
    Var text(L"6:00 pm");
    struct Row {
        VARIANT given;
        const wchar_t* wanted;
    };
    const Row rows[] = {{date(0.75), L"date 0.75"},           {plain(VT_NULL), L"null"},  {text.Value, L"date 0.75"},
                        {number(March15 + 0.5), L"date 0.5"}, {plain(VT_EMPTY), L"null"}, {number(0), L"date 0"}};
    for (const Row& row : rows) {
        EXPECT_CODE(field->put_Value(row.given), S_OK);
        EXPECT_EQ(valueOf(field), row.wanted);
        EXPECT_CODE(put(field.get(), L"Value", row.given), S_OK);
        EXPECT_EQ(late(field.get(), L"Value"), row.wanted);
    }
    EXPECT_CODE(field->put_MinValue(0.25), S_OK);
    EXPECT_EQ(late(field.get(), L"MinValue"), L"date 0.25");
}
