#include "tests/windows/ole/Client.h"

#include <algorithm>

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

Ref<_KelText> makeText() {
    auto made = create(L"KelControls8.KelText").as<_KelText>();
    EXPECT(made);
    return made;
}

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
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, exception, argumentError);
}

HRESULT put(IDispatch* object, const wchar_t* name, VARIANT value, UINT* argumentError) {
    return invoke(object, name, DISPATCH_PROPERTYPUT, {value}, nullptr, nullptr, argumentError);
}

std::wstring text(_KelText* object) {
    BSTR value = nullptr;
    EXPECT_CODE(object->get_Text(&value), S_OK);
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

DWORD adviseEvents(IUnknown* text, IUnknown* sink) {
    return advise(text, systemGuid(findIdentity(u"KelText")->events), sink);
}

}  // namespace kel::tests
