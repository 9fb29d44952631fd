#include "platform/win32/ole/com/ConnectionPoints.h"

#include <array>

#include "platform/win32/ole/automation/VariantConversion.h"
#include "platform/win32/ole/com/Enumerator.h"

namespace kel::win32::ole {

namespace {

IConnectionPoint* copyPoint(const ComPtr<IConnectionPoint>& point) { return ComPtr<IConnectionPoint>(point).detach(); }

CONNECTDATA copyConnection(const ConnectionPoint::Sink& sink) {
    return {ComPtr<IUnknown>(sink.object).detach(), sink.cookie};
}

using PointEnumerator = Enumerator<IEnumConnectionPoints, ComPtr<IConnectionPoint>, IConnectionPoint*, &copyPoint>;
using ConnectionEnumerator = Enumerator<IEnumConnections, ConnectionPoint::Sink, CONNECTDATA, &copyConnection>;

}  // namespace

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = asOneOf<IUnknown, IConnectionPoint>(iid, *this);
    if (*out == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) noexcept {
    if (iid == nullptr) return E_POINTER;
    *iid = Iid_;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = ComPtr<IConnectionPointContainer>(&Container_).detach();
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
    if (sink == nullptr || cookie == nullptr) return E_POINTER;
    *cookie = 0;
    const ComPtr<IUnknown> held(&Whole_.outer());
    return atEdge([&] {
        ComPtr<IUnknown> accepted = accept(*sink);
        if (!accepted) return CONNECT_E_CANNOTCONNECT;
        auto changed = std::make_shared<std::vector<Sink>>(*Sinks_);
        changed->push_back({++LastCookie_, std::move(accepted)});
        Sinks_ = std::move(changed);
        *cookie = LastCookie_;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) noexcept {
    const ComPtr<IUnknown> held(&Whole_.outer());
    return atEdge([&] {
        auto changed = std::make_shared<std::vector<Sink>>(*Sinks_);
        if (std::erase_if(*changed, [cookie](const Sink& sink) { return sink.cookie == cookie; }) == 0)
            return CONNECT_E_NOCONNECTION;
        const Sinks old = std::exchange(Sinks_, std::move(changed));
        return S_OK;
    });
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return atEdge([&] { *out = new ConnectionEnumerator(Whole_.countedIn(), Sinks_); });
}

ComPtr<IUnknown> EventPoint::accept(IUnknown& sink) const {
    ComPtr<IUnknown> found;
    sink.QueryInterface(iid(), found.receiveVoid());
    if (!found) sink.QueryInterface(IID_IDispatch, found.receiveVoid());
    return found;
}

void EventPoint::raise(const EventRow& event, std::span<Variant> arguments) const {
    if (nobodyListens()) return;
    const Sinks now = sinks();
    constexpr std::size_t MostEventArguments = 4;
    std::array<OwnedVariant, MostEventArguments> values;
    std::array<VARIANT, MostEventArguments> passed{};
    const std::size_t count = std::min(arguments.size(), MostEventArguments);
    for (std::size_t i = 0; i < count; ++i) {
        toAutomation(arguments[i], *values[i]);
        VARIANT& argument = passed[count - 1 - i];
        argument = *values[i];
        if (!event.parameters[i].byReference) continue;
        argument.vt = static_cast<VARTYPE>(VT_BYREF | values[i]->vt);
        argument.byref = &values[i]->byref;
    }
    DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(count), 0};
    for (const Sink& sink : *now)
        static_cast<IDispatch*>(sink.object.get())
            ->Invoke(event.id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    for (std::size_t i = 0; i < count; ++i)
        if (event.parameters[i].byReference) arguments[i] = fromAutomation(*values[i]);
}

ComPtr<IUnknown> PropertyNotifyPoint::accept(IUnknown& sink) const {
    return ComPtr<IUnknown>(ComPtr<IPropertyNotifySink>::of(&sink).get());
}

bool PropertyNotifyPoint::mayChange(DISPID id) const {
    if (nobodyListens()) return true;
    const Sinks now = sinks();
    for (const Sink& sink : *now)
        if (static_cast<IPropertyNotifySink*>(sink.object.get())->OnRequestEdit(id) == S_FALSE) return false;
    return true;
}

void PropertyNotifyPoint::changed(DISPID id) const {
    if (nobodyListens()) return;
    const Sinks now = sinks();
    for (const Sink& sink : *now) static_cast<IPropertyNotifySink*>(sink.object.get())->OnChanged(id);
}

HRESULT ConnectionPointsPart::EnumConnectionPoints(IEnumConnectionPoints** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return guarded([&] {
        auto points = std::make_shared<std::vector<ComPtr<IConnectionPoint>>>();
        points->emplace_back(&Events);
        points->emplace_back(&Notify);
        *out = new PointEnumerator(module(), std::move(points));
    });
}

HRESULT ConnectionPointsPart::FindConnectionPoint(REFIID iid, IConnectionPoint** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    for (ConnectionPoint* point : {static_cast<ConnectionPoint*>(&Events), static_cast<ConnectionPoint*>(&Notify)}) {
        if (!IsEqualGUID(iid, point->iid())) continue;
        *out = ComPtr<IConnectionPoint>(point).detach();
        return S_OK;
    }
    return CONNECT_E_NOCONNECTION;
}

}  // namespace kel::win32::ole
