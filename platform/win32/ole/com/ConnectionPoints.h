#pragma once

#include <memory>
#include <span>
#include <vector>

#include "library/TypeModel.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// One outgoing interface and who listens to it. An object of its own whose life is its control's.
class ConnectionPoint : public IConnectionPoint {
public:
    ConnectionPoint(ComObject& whole, const GUID& iid, IConnectionPointContainer& container)
        : Whole_(whole), Iid_(iid), Container_(container) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;
    virtual ~ConnectionPoint() = default;

    struct Sink {
        DWORD cookie;
        ComPtr<IUnknown> object;  ///< the interface that `accept` chose
    };

    const GUID& iid() const { return Iid_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return Whole_.outer().AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return Whole_.outer().Release(); }

    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) noexcept override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** out) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** out) noexcept override;

protected:
    using Sinks = std::shared_ptr<const std::vector<Sink>>;

    /// The interface that this point calls on a sink; none when the sink does not have it.
    virtual ComPtr<IUnknown> accept(IUnknown& sink) const = 0;

    /// Those who listen now; a sink that comes or goes meanwhile changes nothing for who walks over them.
    Sinks sinks() const { return Sinks_; }
    bool nobodyListens() const { return Sinks_->empty(); }

private:
    ComObject& Whole_;
    GUID Iid_;
    IConnectionPointContainer& Container_;
    Sinks Sinks_ = std::make_shared<std::vector<Sink>>();
    DWORD LastCookie_ = 0;
};

/// The events of a control. A sink that refuses the event interface may take them as plain IDispatch.
class EventPoint final : public ConnectionPoint {
public:
    using ConnectionPoint::ConnectionPoint;

    /// Runs the handlers; by-reference arguments come back in `arguments`. A handler's failure is its own.
    void raise(const EventRow& event, std::span<Variant> arguments) const;

private:
    ComPtr<IUnknown> accept(IUnknown& sink) const override;
};

/// Who wants to know that a persisted property changes.
class PropertyNotifyPoint final : public ConnectionPoint {
public:
    PropertyNotifyPoint(ComObject& whole, IConnectionPointContainer& container)
        : ConnectionPoint(whole, IID_IPropertyNotifySink, container) {}

    /// False when one of them wants the property to stay as it is.
    bool mayChange(DISPID id) const;
    void changed(DISPID id) const;

private:
    ComPtr<IUnknown> accept(IUnknown& sink) const override;
};

/// The outgoing interfaces of a control.
class ConnectionPointsPart final : public Part<IConnectionPointContainer> {
public:
    ConnectionPointsPart(ComObject& whole, const GUID& eventInterface)
        : Part(whole), Events(whole, eventInterface, *this), Notify(whole, *this) {}

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** out) noexcept override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** out) noexcept override;

    EventPoint Events;
    PropertyNotifyPoint Notify;
};

}  // namespace kel::win32::ole
