#include "platform/win32/ole/control/PersistParts.h"

#include <array>

#include "platform/win32/ole/automation/ValueBag.h"
#include "platform/win32/ole/control/OleControl.h"
#include "platform/win32/ole/control/PropertyStream.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

constexpr wchar_t StreamName[] = L"Contents";

HRESULT classOf(const OleControl& control, CLSID* clsid) {
    if (clsid == nullptr) return E_POINTER;
    *clsid = toGuid(control.identity().coclass);
    return S_OK;
}

HRESULT initNew(OleControl& control) {
    return control.begin([&control] { control.control().InitProperties(); });
}

ValueBag saved(const OleControl& control) {
    ValueBag bag;
    control.control().WriteProperties(bag);
    return bag;
}

/// Reads until `bytes` is full. What ends before that is damaged.
void readAll(IStream& stream, std::span<std::byte> bytes) {
    while (!bytes.empty()) {
        ULONG count = 0;
        check(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count), "the stream cannot be read");
        if (count == 0) throw AutomationError(STG_E_READFAULT, "the stored properties end too early");
        bytes = bytes.subspan(count);
    }
}

/// In pieces, so that a damaged length asks for no more memory than there are bytes.
Bytes readBody(IStream& stream, std::size_t size) {
    constexpr std::size_t Piece = std::size_t{1} << 16U;
    Bytes body;
    while (body.size() < size) {
        const std::size_t start = body.size();
        body.resize(std::min(size, start + Piece));
        readAll(stream, std::span(body).subspan(start));
    }
    return body;
}

/// Case does not count, as in a host's bag: one property is written in another case than it is read.
const StoredValue* find(const std::vector<StoredValue>& values, std::u16string_view name) {
    for (const StoredValue& stored : values)
        if (equalsIgnoringCase(stored.name, name)) return &stored;
    return nullptr;
}

void loadStream(OleControl& control, IStream& stream) {
    std::array<std::byte, StreamHeadSize> head{};
    readAll(stream, head);
    const std::vector<StoredValue> stored = decode(readBody(stream, bodySize(head)));
    ValueBag bag;
    for (const PersistedRow& row : control.model().loaded)
        if (const StoredValue* found = find(stored, row.readName)) bag.take(row, found->value);
    control.control().ReadProperties(bag);
}

void saveStream(OleControl& control, IStream& stream) {
    const Bytes bytes = encode(saved(control).values());
    ULONG written = 0;
    check(stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written), "the stream cannot be written");
    if (written != bytes.size()) throw AutomationError(STG_E_MEDIUMFULL, "the stream takes no more");
}

/// A bag says "no such property" with E_INVALIDARG; what it gives as Empty counts as absent too.
void takeFromBag(IPropertyBag& host, IErrorLog* log, const PersistedRow& row, ValueBag& bag) {
    OwnedVariant value;
    const std::wstring name = wide(row.readName);
    value->vt = automationType(row.type);
    if (FAILED(host.Read(name.c_str(), value.get(), log)) || value->vt == VT_EMPTY) return;
    bag.take(row, valueFromAutomation(*value, row.type));
}

void writeToBag(IPropertyBag& host, const StoredValue& stored) {
    OwnedVariant value;
    toAutomation(stored.value, *value);
    check(host.Write(wide(stored.name).c_str(), value.get()), "the property bag takes no value");
}

}  // namespace

// ---- PersistBagPart

PersistBagPart::PersistBagPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT PersistBagPart::GetClassID(CLSID* clsid) noexcept { return classOf(Control_, clsid); }

HRESULT PersistBagPart::InitNew() noexcept {
    return guarded([&] { return initNew(Control_); });
}

HRESULT PersistBagPart::Load(IPropertyBag* bag, IErrorLog* log) noexcept {
    if (bag == nullptr) return E_POINTER;
    return guarded([&] {
        return Control_.begin([&] {
            ValueBag values;
            for (const PersistedRow& row : Control_.model().loaded) takeFromBag(*bag, log, row, values);
            Control_.control().ReadProperties(values);
        });
    });
}

HRESULT PersistBagPart::Save(IPropertyBag* bag, BOOL clearDirty, BOOL /*saveAll*/) noexcept {
    if (bag == nullptr) return E_POINTER;
    return guarded([&] {
        const ValueBag values = saved(Control_);
        for (const StoredValue& stored : values.values()) writeToBag(*bag, stored);
        if (clearDirty != FALSE) Control_.setClean();
        return S_OK;
    });
}

// ---- PersistStreamPart

PersistStreamPart::PersistStreamPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT PersistStreamPart::GetClassID(CLSID* clsid) noexcept { return classOf(Control_, clsid); }

HRESULT PersistStreamPart::IsDirty() noexcept { return Control_.dirty() ? S_OK : S_FALSE; }

HRESULT PersistStreamPart::Load(IStream* stream) noexcept {
    if (stream == nullptr) return E_POINTER;
    return guarded([&] { return Control_.begin([&] { loadStream(Control_, *stream); }); });
}

HRESULT PersistStreamPart::Save(IStream* stream, BOOL clearDirty) noexcept {
    if (stream == nullptr) return E_POINTER;
    return guarded([&] {
        saveStream(Control_, *stream);
        if (clearDirty != FALSE) Control_.setClean();
        return S_OK;
    });
}

HRESULT PersistStreamPart::GetSizeMax(ULARGE_INTEGER* size) noexcept {
    if (size == nullptr) return E_POINTER;
    return guarded([&] {
        size->QuadPart = encode(saved(Control_).values()).size();
        return S_OK;
    });
}

HRESULT PersistStreamPart::InitNew() noexcept {
    return guarded([&] { return initNew(Control_); });
}

// ---- PersistStoragePart

PersistStoragePart::PersistStoragePart(OleControl& control) : Part(control), Control_(control) {}

HRESULT PersistStoragePart::GetClassID(CLSID* clsid) noexcept { return classOf(Control_, clsid); }

HRESULT PersistStoragePart::IsDirty() noexcept { return Control_.dirty() ? S_OK : S_FALSE; }

HRESULT PersistStoragePart::InitNew(IStorage* storage) noexcept {
    if (storage == nullptr) return E_POINTER;
    return guarded([&] {
        const HRESULT result = initNew(Control_);
        return result == E_UNEXPECTED ? CO_E_ALREADYINITIALIZED : result;
    });
}

HRESULT PersistStoragePart::Load(IStorage* storage) noexcept {
    if (storage == nullptr) return E_POINTER;
    return guarded([&] {
        const HRESULT result = Control_.begin([&] {
            ComPtr<IStream> stream;
            check(storage->OpenStream(StreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.receive()),
                  "the storage has no properties");
            loadStream(Control_, *stream.get());
        });
        return result == E_UNEXPECTED ? CO_E_ALREADYINITIALIZED : result;
    });
}

HRESULT PersistStoragePart::Save(IStorage* storage, BOOL /*sameAsLoad*/) noexcept {
    if (storage == nullptr) return E_POINTER;
    return guarded([&] {
        ComPtr<IStream> stream;
        check(storage->CreateStream(StreamName, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                    stream.receive()),
              "the storage takes no stream");
        saveStream(Control_, *stream.get());
        return S_OK;
    });
}

HRESULT PersistStoragePart::SaveCompleted(IStorage* /*storage*/) noexcept {
    Control_.setClean();
    return S_OK;
}

HRESULT PersistStoragePart::HandsOffStorage() noexcept { return S_OK; }

}  // namespace kel::win32::ole
