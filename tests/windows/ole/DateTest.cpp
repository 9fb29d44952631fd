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
    EXPECT_EQ(late(field.get(), L"MinValue"), L"date 41348");
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41364");
    EXPECT_CODE(field->put_MaxValue(Year9999 + 1), DISP_E_OVERFLOW);

    // Late-bound callers leave the conversion to the member.
    Var days(L"41348");
    Var written;
    EXPECT_CODE(VarBstrFromDate(March31, LOCALE_USER_DEFAULT, 0, &written.Value.bstrVal), S_OK);
    written.Value.vt = VT_BSTR;
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

TEST(date_is_loaded_from_texts_as_form_files_keep_them) {
    Bag texts;
    texts.Texts = {{L"MaxValue", L"41364"}, {L"DaysFlag", L"1"}, {L"Value", L"01032013"}};
    const auto field = makeDate();
    EXPECT_CODE(load(field.get(), texts), S_OK);
    EXPECT_EQ(late(field.get(), L"MaxValue"), L"date 41364");
    EXPECT_EQ(late(field.get(), L"DaysFlag"), L"long 1");
    EXPECT_EQ(valueOf(field), L"date 41334");
}
