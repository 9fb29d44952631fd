#pragma once

#include <atomic>

#include "platform/win32/ole/com/Edge.h"

namespace kel::win32::ole {

/// Counts what keeps a server's DLL in its process: objects and locks.
class Module {
public:
    void add() { ++Count_; }
    void remove() { --Count_; }
    bool idle() const { return Count_ == 0; }

private:
    std::atomic<long> Count_ = 0;
};

/// An object made of parts that share one count of references and answer for one another. It can be a part
/// of a larger object itself, which then counts (`outer`).
class ComObject {
public:
    /// Begins with one reference, the maker's. `outer` may be null.
    ComObject(Module& module, IUnknown* outer);
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    virtual ~ComObject();

    /// Whoever counts: the larger object, or this one.
    IUnknown& outer() const { return *Outer_; }

    /// The object itself, for its maker and for the larger object.
    IUnknown& inner() { return Inner_; }

    /// What keeps the server for it, and for what outlives it.
    Module& countedIn() const { return Module_; }

protected:
    /// The interface of this identifier, not counted; nullptr where there is none.
    virtual void* find(REFIID iid) = 0;

private:
    class Inner final : public IUnknown {
    public:
        explicit Inner(ComObject& whole) : Whole_(whole) {}
        virtual ~Inner() = default;
        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override;
        ULONG STDMETHODCALLTYPE AddRef() noexcept override;
        ULONG STDMETHODCALLTYPE Release() noexcept override;

    private:
        ComObject& Whole_;
        ULONG References_ = 1;
    };

    Module& Module_;
    Inner Inner_;
    IUnknown* Outer_;  ///< not counted: it holds this object, or is it
};

/// Hands over a new object, with its maker's reference, as the interface of this identifier.
HRESULT giveNew(ComObject* made, REFIID iid, void** out);

/// Some interfaces of an object. `Interfaces` derive from IUnknown in different ways.
template <class... Interfaces>
class Part : public Interfaces... {
public:
    explicit Part(ComObject& whole) : Whole_(whole) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    virtual ~Part() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
        return Whole_.outer().QueryInterface(iid, out);
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return Whole_.outer().AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return Whole_.outer().Release(); }

protected:
    /// What keeps the server.
    Module& module() const { return Whole_.countedIn(); }

    /// Runs the body of a method; the object outlives it, whatever the host does meanwhile.
    template <class Body>
    HRESULT guarded(Body&& body) noexcept {
        const ComPtr<IUnknown> held(&Whole_.outer());
        return ole::atEdge(std::forward<Body>(body));
    }

private:
    ComObject& Whole_;
};

/// `part` as the first of the interfaces that `iid` names; nullptr when it names none of them.
template <class... Interfaces, class Whole>
void* asOneOf(REFIID iid, Whole& part) {
    void* found = nullptr;
    static_cast<void>(
        ((IsEqualGUID(iid, __uuidof(Interfaces)) && (found = static_cast<Interfaces*>(&part)) != nullptr) || ...));
    return found;
}

}  // namespace kel::win32::ole
