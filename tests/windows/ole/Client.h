#pragma once

// A client of the component server that shares no code with it: the system's own interfaces and the header
// that the interface compiler made from the type library.

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "KelControls8.h"
#include "library/Identities.h"
#include "tests/windows/ole/Used.h"

namespace kel::tests {

template <class I>
class Ref {
public:
    Ref() = default;
    Ref(const Ref& other) : Object_(other.Object_) {
        if (Object_ != nullptr) Object_->AddRef();
    }
    Ref(Ref&& other) noexcept : Object_(std::exchange(other.Object_, nullptr)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(Object_, other.Object_);
        return *this;
    }
    ~Ref() { reset(); }

    void reset() {
        if (I* const old = std::exchange(Object_, nullptr)) old->Release();
    }
    I* get() const { return Object_; }
    I* operator->() const { return Object_; }
    explicit operator bool() const { return Object_ != nullptr; }
    I** receive() {
        reset();
        return &Object_;
    }
    void** receiveVoid() { return reinterpret_cast<void**>(receive()); }

    template <class Other>
    Ref<Other> as() const {
        Ref<Other> found;
        if (Object_ != nullptr) Object_->QueryInterface(__uuidof(Other), found.receiveVoid());
        return found;
    }

private:
    I* Object_ = nullptr;
};

/// A string argument, freed with it.
class Str {
public:
    explicit Str(const wchar_t* text) : Text_(SysAllocString(text)) {}
    ~Str() { SysFreeString(Text_); }
    Str(const Str&) = delete;
    Str& operator=(const Str&) = delete;
    operator BSTR() const { return Text_; }
    BSTR* address() { return &Text_; }

private:
    BSTR Text_;
};

/// The text of a string result, which is freed.
std::wstring taken(BSTR text);

/// Variants that own nothing.
inline VARIANT plain(VARTYPE type) {
    VARIANT value{};
    value.vt = type;
    return value;
}
inline VARIANT number(double value) {
    VARIANT out = plain(VT_R8);
    out.dblVal = value;
    return out;
}
inline VARIANT date(double serial) {
    VARIANT out = plain(VT_DATE);
    out.date = serial;
    return out;
}

/// A variant that is cleared with it.
class Var {
public:
    Var() { VariantInit(&Value); }
    explicit Var(const wchar_t* text) : Var() {
        Value.vt = VT_BSTR;
        Value.bstrVal = SysAllocString(text);
    }
    explicit Var(long number) : Var() {
        Value.vt = VT_I4;
        Value.lVal = number;
    }
    Var(Var&& other) noexcept : Value(other.Value) { VariantInit(&other.Value); }
    Var& operator=(Var&& other) noexcept {
        std::swap(Value, other.Value);
        return *this;
    }
    ~Var() { VariantClear(&Value); }
    Var(const Var&) = delete;
    Var& operator=(const Var&) = delete;
    VARIANT Value;
};

/// "short 700", "long 7", "double 2.5", "bool True", "date 41348", "text abc", "null", "empty"; numbers with a point,
/// whatever the region.
std::wstring described(const VARIANT& value);

GUID systemGuid(const Guid& guid);

/// A new object of a class, by its program identifier.
Ref<IDispatch> create(const wchar_t* programId);
/// A new control of a class, by the class's name.
Ref<IDispatch> makeControl(const std::wstring& className);

/// A new control of a class.
Ref<_KelText> makeText();
Ref<_KelNumber> makeNumber();
Ref<_KelDate> makeDate();

/// One late-bound call; arguments last first, as the system wants them.
HRESULT invoke(IDispatch* object, const wchar_t* name, WORD flags, std::vector<VARIANT> arguments,
               VARIANT* result = nullptr, EXCEPINFO* exception = nullptr, UINT* argumentError = nullptr);
HRESULT put(IDispatch* object, const wchar_t* name, VARIANT value, UINT* argumentError = nullptr);
/// Puts "Caption=Name|Decimals=0", a text each.
void putAll(IDispatch* object, const std::wstring& properties);
/// What a property is, described.
std::wstring late(IDispatch* object, const wchar_t* name);
std::wstring text(_KelText* object);
std::wstring captionOf(_KelText* object);

/// Base of the client's own objects, which live on the stack and outlive their use; counts for checks.
template <class... Interfaces>
class StackObject : public Interfaces... {
public:
    virtual ~StackObject() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        *out = nullptr;
        static_cast<void>(((*out == nullptr && IsEqualGUID(iid, __uuidof(Interfaces)) &&
                            (*out = static_cast<Interfaces*>(this)) != nullptr) ||
                           ...));
        if (*out == nullptr && IsEqualGUID(iid, IID_IUnknown)) *out = first();
        if (*out == nullptr) *out = other(iid);
        if (*out == nullptr) return E_NOINTERFACE;
        ++References;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++References); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--References); }

    long References = 1;

protected:
    virtual void* other(REFIID /*iid*/) { return nullptr; }

private:
    void* first() {
        void* found = nullptr;
        static_cast<void>(((found = static_cast<Interfaces*>(this)) || ...));
        return found;
    }
};

/// Hears events; runs `handler` for each.
class EventSink final : public StackObject<IDispatch> {
public:
    explicit EventSink(bool refusesOwnInterface = false, std::u16string_view className = u"KelText")
        : Refuses_(refusesOwnInterface), Class_(findIdentity(className)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* passed, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        useEvent(Class_->name, id);
        Heard.push_back(id);
        Passed = passed;
        if (Handler) Handler();
        return S_OK;
    }

    std::vector<DISPID> Heard;
    DISPPARAMS* Passed = nullptr;  ///< with the event that the handler handles
    std::function<void()> Handler;

protected:
    void* other(REFIID iid) override {
        return !Refuses_ && IsEqualGUID(iid, systemGuid(Class_->events)) ? static_cast<IDispatch*>(this) : nullptr;
    }

private:
    bool Refuses_;
    const ClassIdentity* Class_;
};

/// The event that every control has.
inline constexpr DISPID ChangeId = 1;

/// Connects `sink` to an outgoing interface of `object`; 0 when it was refused.
DWORD advise(IUnknown* object, REFIID iid, IUnknown* sink);
HRESULT unadvise(IUnknown* object, REFIID iid, DWORD cookie);
DWORD adviseEvents(IUnknown* object, IUnknown* sink, std::u16string_view className = u"KelText");

}  // namespace kel::tests
