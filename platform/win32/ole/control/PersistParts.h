#pragma once

#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

class OleControl;
class ValueBag;

/// Properties in the host's own bag, as form files of classic Basic keep them.
class PersistBagPart final : public Part<IPersistPropertyBag> {
public:
    explicit PersistBagPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew() noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) noexcept override;

private:
    OleControl& Control_;
};

/// Properties in a stream, in the library's own form.
class PersistStreamPart final : public Part<IPersistStreamInit> {
public:
    explicit PersistStreamPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) noexcept override;
    HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew() noexcept override;

private:
    OleControl& Control_;
};

/// Properties in a storage, which holds the same stream under one name.
class PersistStoragePart final : public Part<IPersistStorage> {
public:
    explicit PersistStoragePart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) noexcept override;
    HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) noexcept override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() noexcept override;

private:
    OleControl& Control_;
};

}  // namespace kel::win32::ole
