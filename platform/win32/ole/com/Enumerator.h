#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/win32/ole/com/ComObject.h"
#include "platform/win32/ole/com/SoleInterface.h"

namespace kel::win32::ole {

/// Hands out a list that does not change, as the IEnum interfaces have it, also when what the list is of is gone.
/// `Copy` makes what the caller of `Next` owns.
template <class Interface, class Item, class Out, Out (*Copy)(const Item&)>
class Enumerator final : public SoleInterface<Interface> {
public:
    using Items = std::shared_ptr<const std::vector<Item>>;

    Enumerator(Module& module, Items items, std::size_t position = 0)
        : Module_(module), Items_(std::move(items)), Position_(position) {
        Module_.add();
    }
    ~Enumerator() override { Module_.remove(); }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, Out* out, ULONG* fetched) noexcept override {
        if (out == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
        const std::size_t count = std::min<std::size_t>(wanted, Items_->size() - Position_);
        for (std::size_t i = 0; i < count; ++i) out[i] = Copy((*Items_)[Position_++]);
        if (fetched != nullptr) *fetched = static_cast<ULONG>(count);
        return count == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
        const std::size_t skipped = std::min<std::size_t>(count, Items_->size() - Position_);
        Position_ += skipped;
        return skipped == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        Position_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interface** out) noexcept override {
        if (out == nullptr) return E_POINTER;
        *out = new (std::nothrow) Enumerator(Module_, Items_, Position_);
        return *out != nullptr ? S_OK : E_OUTOFMEMORY;
    }

private:
    Module& Module_;
    Items Items_;
    std::size_t Position_;
};

}  // namespace kel::win32::ole
