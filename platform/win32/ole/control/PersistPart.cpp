#include <array>

#include "platform/win32/ole/automation/ValueBag.h"
#include "platform/win32/ole/control/ControlParts.h"
#include "platform/win32/ole/control/OleControl.h"
#include "platform/win32/ole/control/PropertyStream.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

constexpr wchar_t StreamName[] = L"Contents";

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

/// A bag says "no such property" in many ways, with E_INVALIDARG by the book; what it gives as Empty counts as absent
/// too. What it has and cannot give it writes into the log, which is its own to read. Where memory or the store behind
/// it fails, there may be any number of properties.
bool isAbsent(HRESULT read) {
    return FAILED(read) && read != E_OUTOFMEMORY && HRESULT_FACILITY(read) != FACILITY_STORAGE;
}

void takeFromBag(IPropertyBag& host, IErrorLog* log, const PersistedRow& row, ValueBag& bag) {
    OwnedVariant value;
    const std::wstring name = wide(row.readName);
    value->vt = automationType(row.type);
    const HRESULT read = host.Read(name.c_str(), value.get(), log);
    if (isAbsent(read)) return;
    check(read, "the property bag cannot be read");
    if (value->vt == VT_EMPTY) return;
    bag.take(row, valueFromAutomation(*value, row.type));
}

void writeToBag(IPropertyBag& host, const StoredValue& stored) {
    OwnedVariant value;
    toAutomation(stored.value, *value);
    check(host.Write(wide(stored.name).c_str(), value.get()), "the property bag takes no value");
}

/// The bag is the host's own, as form files of classic Basic keep it; a stream has the library's own form, and a
/// storage holds the same stream under one name.
class PersistPart final : public ControlPart<IPersistPropertyBag, IPersistStreamInit, IPersistStorage> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override {
        if (IsEqualGUID(iid, IID_IPersist)) return static_cast<IPersistStreamInit*>(this);
        return asOneOf<IPersistPropertyBag, IPersistStreamInit, IPersistStorage>(iid, *this);
    }

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) noexcept override {
        if (clsid == nullptr) return E_POINTER;
        *clsid = toGuid(Control_.identity().coclass);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE IsDirty() noexcept override { return Control_.dirty() ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE InitNew() noexcept override {
        return guarded([&] { return Control_.beginNew(); });
    }

    // ---- IPersistPropertyBag

    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) noexcept override {
        if (bag == nullptr) return E_POINTER;
        return guarded([&] {
            return Control_.begin([&] {
                ValueBag values;
                for (const PersistedRow& row : Control_.model().loaded) takeFromBag(*bag, log, row, values);
                Control_.control().ReadProperties(values);
            });
        });
    }
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL /*saveAll*/) noexcept override {
        if (bag == nullptr) return E_POINTER;
        return guarded([&] {
            const ValueBag values = saved(Control_);
            for (const StoredValue& stored : values.values()) writeToBag(*bag, stored);
            if (clearDirty != FALSE) Control_.saved();
        });
    }

    // ---- IPersistStreamInit

    HRESULT STDMETHODCALLTYPE Load(IStream* stream) noexcept override {
        if (stream == nullptr) return E_POINTER;
        return guarded([&] { return Control_.begin([&] { loadStream(Control_, *stream); }); });
    }
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) noexcept override {
        if (stream == nullptr) return E_POINTER;
        return guarded([&] {
            saveStream(Control_, *stream);
            if (clearDirty != FALSE) Control_.saved();
        });
    }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) noexcept override {
        if (size == nullptr) return E_POINTER;
        return guarded([&] { size->QuadPart = encode(saved(Control_).values()).size(); });
    }

    // ---- IPersistStorage

    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) noexcept override {
        if (storage == nullptr) return E_POINTER;
        return guarded([&] { return onceOnly(Control_.beginNew()); });
    }
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) noexcept override {
        if (storage == nullptr) return E_POINTER;
        return guarded([&] {
            return onceOnly(Control_.begin([&] {
                ComPtr<IStream> stream;
                check(storage->OpenStream(StreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.receive()),
                      "the storage has no properties");
                loadStream(Control_, *stream.get());
            }));
        });
    }
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) noexcept override {
        if (storage == nullptr) return E_POINTER;
        return guarded([&] {
            Unfinished_ = Saving::None;
            ComPtr<IStream> stream;
            check(storage->CreateStream(StreamName, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                        stream.receive()),
                  "the storage takes no stream");
            saveStream(Control_, *stream.get());
            Unfinished_ = sameAsLoad != FALSE ? Saving::InPlace : Saving::Copy;
        });
    }
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) noexcept override {
        return guarded([&] {
            const Saving saving = std::exchange(Unfinished_, Saving::None);
            if (saving == Saving::InPlace || (saving == Saving::Copy && storage != nullptr)) Control_.saved();
        });
    }
    HRESULT STDMETHODCALLTYPE HandsOffStorage() noexcept override { return S_OK; }

private:
    /// Storages have a name of their own for what has begun already.
    static HRESULT onceOnly(HRESULT begun) { return begun == E_UNEXPECTED ? CO_E_ALREADYINITIALIZED : begun; }

    /// A copy that went elsewhere saves nothing, unless the host goes on with it.
    enum class Saving { None, InPlace, Copy };
    Saving Unfinished_ = Saving::None;
};

}  // namespace

std::unique_ptr<ControlInterfaces> makePersistPart(OleControl& control) {
    return std::make_unique<PersistPart>(control);
}

}  // namespace kel::win32::ole
