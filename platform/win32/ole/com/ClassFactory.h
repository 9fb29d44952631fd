#pragma once

#include <functional>

#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// Makes an object with one reference; `outer` may be null.
using Maker = std::function<ComObject*(IUnknown* outer)>;

/// Makes objects of one class.
class ClassFactory final : public ComObject {
public:
    ClassFactory(Module& module, Maker maker) : ComObject(module, nullptr), Factory_(*this, module, std::move(maker)) {}

protected:
    void* find(REFIID iid) override { return asOneOf<IClassFactory>(iid, Factory_); }

private:
    class FactoryPart final : public Part<IClassFactory> {
    public:
        FactoryPart(ComObject& whole, Module& module, Maker maker)
            : Part(whole), Module_(module), Maker_(std::move(maker)) {}

        HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override;
        HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

    private:
        Module& Module_;
        Maker Maker_;
    };

    FactoryPart Factory_;
};

/// The body of `DllGetClassObject` once the class is known.
HRESULT giveFactory(Module& module, Maker maker, REFIID iid, void** out) noexcept;

}  // namespace kel::win32::ole
