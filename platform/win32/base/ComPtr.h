#pragma once

#include <windows.h>

// The system's component interfaces have no destructors; nothing is destroyed through them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#include <objbase.h>
#pragma GCC diagnostic pop

#include <utility>

namespace kel::win32 {

/// Owns one reference to an interface of an object, which it keeps alive across calls that may release it.
template <class I>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(I* object) : Object_(object) {
        if (Object_ != nullptr) Object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.Object_) {}
    ComPtr(ComPtr&& other) noexcept : Object_(std::exchange(other.Object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(Object_, other.Object_);
        return *this;
    }
    ~ComPtr() {
        if (Object_ != nullptr) Object_->Release();
    }

    /// Takes over the reference that an object is made with.
    static ComPtr adopt(I* made) {
        ComPtr owned;
        owned.Object_ = made;
        return owned;
    }

    /// The interface `I` of any object; none where it has none.
    static ComPtr of(IUnknown* object) {
        ComPtr found;
        if (object != nullptr) object->QueryInterface(__uuidof(I), reinterpret_cast<void**>(&found.Object_));
        return found;
    }

    I* get() const { return Object_; }
    I* operator->() const { return Object_; }
    explicit operator bool() const { return Object_ != nullptr; }

    /// Where a call stores a new reference.
    I** receive() {
        *this = ComPtr();
        return &Object_;
    }
    void** receiveVoid() { return reinterpret_cast<void**>(receive()); }

    I* detach() { return std::exchange(Object_, nullptr); }

private:
    I* Object_ = nullptr;
};

}  // namespace kel::win32
