// The combo field in a host: lists from arrays, and an event that the host may refuse.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

Ref<_KelCombo> makeCombo() { return create(L"KelControls8.KelCombo").as<_KelCombo>(); }

/// An array of a host's, freed with it.
class Array {
public:
    Array(VARTYPE type, ULONG count, LONG lowest = 0) {
        SAFEARRAYBOUND bound{count, lowest};
        Data = SafeArrayCreate(type, 1, &bound);
        Type_ = type;
    }
    ~Array() { SafeArrayDestroy(Data); }
    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;

    void put(LONG index, const wchar_t* text) {
        Str string(text);
        EXPECT_CODE(SafeArrayPutElement(Data, &index, static_cast<BSTR>(string)), S_OK);
    }
    void put(LONG index, VARIANT& value) { EXPECT_CODE(SafeArrayPutElement(Data, &index, &value), S_OK); }

    VARIANT byValue() const {
        VARIANT out = plain(static_cast<VARTYPE>(VT_ARRAY | Type_));
        out.parray = Data;
        return out;
    }
    VARIANT byReference() {
        VARIANT out = plain(static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | Type_));
        out.pparray = &Data;
        return out;
    }

    SAFEARRAY* Data = nullptr;

private:
    VARTYPE Type_;
};

HRESULT fill(IDispatch* field, const VARIANT& array) {
    return invoke(field, L"ListFromArray", DISPATCH_METHOD, {array});
}

/// "a|b" for the items a and b.
std::wstring itemsOf(_KelCombo* field) {
    LONG count = 0;
    EXPECT_CODE(field->get_ListCount(&count), S_OK);
    std::wstring items;
    for (LONG i = 1; i <= count; ++i) {
        BSTR item = nullptr;
        EXPECT_CODE(field->get_ListItem(static_cast<SHORT>(i), &item), S_OK);
        items += (i == 1 ? L"" : L"|") + taken(item);
    }
    return items;
}

}  // namespace

TEST(combo_takes_arrays_of_every_kind_that_hosts_pass) {
    Array texts(VT_BSTR, 3, 5);
    texts.put(5, L"plain");
    texts.put(6, L"with, comma");
    texts.put(7, L"\"quoted\"");
    Array mixed(VT_VARIANT, 2);
    Var seven(7L);
    Var word(L"word");
    mixed.put(0, seven.Value);
    mixed.put(1, word.Value);
    VARIANT held = mixed.byValue();
    VARIANT inVariable = plain(VT_BYREF | VT_VARIANT);
    inVariable.pvarVal = &held;
    SAFEARRAY* none = nullptr;
    VARIANT undimensioned = plain(VT_BYREF | VT_ARRAY | VT_BSTR);
    undimensioned.pparray = &none;
    struct Row {
        VARIANT array;
        const wchar_t* items;
    };
    const Row rows[] = {{texts.byReference(), L"plain|with, comma|\"quoted\""},
                        {inVariable, L"7|word"},
                        {texts.byValue(), L"plain|with, comma|\"quoted\""},
                        {mixed.byReference(), L"7|word"},
                        {undimensioned, L""}};
    const auto field = makeCombo();
    for (const Row& row : rows) {
        EXPECT_CODE(fill(field.get(), row.array), S_OK);
        EXPECT_EQ(itemsOf(field.get()), row.items);
    }
    EXPECT_CODE(field->ListFromArray(&texts.Data), S_OK);
    EXPECT_EQ(itemsOf(field.get()), rows[0].items);
    EXPECT_CODE(field->ListFromArray(nullptr), E_POINTER);
    // It stays the host's, which may go on with it.
    LONG lowest = 0;
    EXPECT_CODE(SafeArrayGetLBound(texts.Data, 1, &lowest), S_OK);
    EXPECT_EQ(lowest, 5L);
    EXPECT_CODE(SafeArrayRedim(texts.Data, texts.Data->rgsabound), S_OK);
}

TEST(combo_refuses_what_is_no_array_of_strings) {
    const auto field = makeCombo();
    EXPECT_CODE(field->put_List(Str(L"old")), S_OK);
    Array numbers(VT_I4, 2);
    SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
    SAFEARRAY* table = SafeArrayCreate(VT_BSTR, 2, bounds);
    VARIANT twoDimensions = plain(VT_ARRAY | VT_BSTR);
    twoDimensions.parray = table;
    Var word(L"word");
    for (const VARIANT& wrong : {numbers.byReference(), numbers.byValue(), twoDimensions, word.Value, number(1)}) {
        UINT which = 99;
        EXPECT_CODE(invoke(field.get(), L"ListFromArray", DISPATCH_METHOD, {wrong}, nullptr, nullptr, &which),
                    DISP_E_TYPEMISMATCH);
        EXPECT_EQ(which, 0U);
    }
    SafeArrayDestroy(table);
    EXPECT_EQ(itemsOf(field.get()), L"old");
}
