#include "tests/windows/ole/Client.h"

#include <algorithm>
#include <sstream>

#include "tests/windows/ole/Check.h"

namespace kel::tests {

std::wstring taken(BSTR text) {
    const std::wstring value = text == nullptr ? std::wstring() : std::wstring(text, SysStringLen(text));
    SysFreeString(text);
    return value;
}

GUID systemGuid(const Guid& guid) {
    GUID out{guid.data1, guid.data2, guid.data3, {}};
    std::copy(guid.data4.begin(), guid.data4.end(), out.Data4);
    return out;
}

Ref<IDispatch> create(const wchar_t* programId) {
    CLSID clsid{};
    EXPECT_CODE(CLSIDFromProgID(programId, &clsid), S_OK);
    Ref<IDispatch> made;
    EXPECT_CODE(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.receiveVoid()), S_OK);
    return made;
}

Ref<IDispatch> makeControl(const std::wstring& className) { return create((L"KelControls8." + className).c_str()); }

namespace {

constexpr struct {
    const wchar_t* word;
    VARTYPE type;
} Kinds[] = {{L"empty", VT_EMPTY}, {L"null", VT_NULL}, {L"bool", VT_BOOL}, {L"short", VT_I2},
             {L"long", VT_I4},     {L"double", VT_R8}, {L"date", VT_DATE}, {L"text", VT_BSTR}};

}  // namespace

std::wstring described(const VARIANT& value) {
    const auto kind =
        std::find_if(std::begin(Kinds), std::end(Kinds), [&](const auto& k) { return k.type == value.vt; });
    if (kind == std::end(Kinds)) return L"type " + std::to_wstring(value.vt);
    if (kind->type == VT_EMPTY || kind->type == VT_NULL) return kind->word;
    VARIANT plainValue = value;
    // The system writes a date as one; here it is the number of its day.
    if (value.vt == VT_DATE) plainValue.vt = VT_R8;
    Var text;
    EXPECT_CODE(VariantChangeTypeEx(&text.Value, &plainValue, LOCALE_INVARIANT, VARIANT_ALPHABOOL, VT_BSTR), S_OK);
    return std::wstring(kind->word) + L" " + std::wstring(text.Value.bstrVal, SysStringLen(text.Value.bstrVal));
}

namespace {

template <class Interface>
Ref<Interface> make(const wchar_t* programId) {
    auto made = create(programId).as<Interface>();
    EXPECT(made);
    return made;
}

}  // namespace

Ref<_KelText> makeText() { return make<_KelText>(L"KelControls8.KelText"); }

Ref<_KelNumber> makeNumber() { return make<_KelNumber>(L"KelControls8.KelNumber"); }

Ref<_KelDate> makeDate() { return make<_KelDate>(L"KelControls8.KelDate"); }

HRESULT invoke(IDispatch* object, const wchar_t* name, WORD flags, std::vector<VARIANT> arguments, VARIANT* result,
               EXCEPINFO* exception, UINT* argumentError) {
    std::wstring copy = name;
    wchar_t* names = copy.data();
    DISPID id = DISPID_UNKNOWN;
    const HRESULT found = object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(found)) return found;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    // It may be gone afterwards.
    const std::u16string className = classOf(object);
    const HRESULT done =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, exception, argumentError);
    if (done == S_OK) useMember(className, name, flags);
    return done;
}

HRESULT put(IDispatch* object, const wchar_t* name, VARIANT value, UINT* argumentError) {
    return invoke(object, name, DISPATCH_PROPERTYPUT, {value}, nullptr, nullptr, argumentError);
}

void putAll(IDispatch* object, const std::wstring& properties) {
    std::wistringstream list(properties);
    for (std::wstring each; std::getline(list, each, L'|');) {
        const std::size_t name = each.find(L'=');
        EXPECT_CODE(put(object, each.substr(0, name).c_str(), Var(each.substr(name + 1).c_str()).Value), S_OK);
    }
}

std::wstring late(IDispatch* object, const wchar_t* name) {
    Var value;
    EXPECT_CODE(invoke(object, name, DISPATCH_PROPERTYGET, {}, &value.Value), S_OK);
    return described(value.Value);
}

std::wstring text(_KelText* object) {
    BSTR value = nullptr;
    EXPECT_CODE(object->get_Text(&value), S_OK);
    return taken(value);
}

std::wstring captionOf(_KelText* object) {
    BSTR value = nullptr;
    EXPECT_CODE(object->get_Caption(&value), S_OK);
    return taken(value);
}

DWORD advise(IUnknown* object, REFIID iid, IUnknown* sink) {
    Ref<IConnectionPointContainer> container;
    EXPECT_CODE(object->QueryInterface(IID_IConnectionPointContainer, container.receiveVoid()), S_OK);
    Ref<IConnectionPoint> point;
    EXPECT_CODE(container->FindConnectionPoint(iid, point.receive()), S_OK);
    DWORD cookie = 0;
    EXPECT_CODE(point->Advise(sink, &cookie), S_OK);
    EXPECT(cookie != 0);
    return cookie;
}

HRESULT unadvise(IUnknown* object, REFIID iid, DWORD cookie) {
    Ref<IConnectionPointContainer> container;
    EXPECT_CODE(object->QueryInterface(IID_IConnectionPointContainer, container.receiveVoid()), S_OK);
    Ref<IConnectionPoint> point;
    EXPECT_CODE(container->FindConnectionPoint(iid, point.receive()), S_OK);
    return point->Unadvise(cookie);
}

DWORD adviseEvents(IUnknown* object, IUnknown* sink, std::u16string_view className) {
    return advise(object, systemGuid(findIdentity(className)->events), sink);
}

}  // namespace kel::tests
