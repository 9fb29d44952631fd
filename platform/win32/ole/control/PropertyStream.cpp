#include "platform/win32/ole/control/PropertyStream.h"

#include <cstring>

#include "library/AutomationError.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

namespace {

constexpr std::uint32_t Mark = 0x534C454B;  // "KELS"
constexpr std::uint16_t Version = 1;
/// More than any control's properties come to; what claims more is not ours.
constexpr std::uint32_t LargestBody = 256U << 20U;

enum class Kind : std::uint8_t { Empty, Null, String, Boolean, Integer16, Integer32, Double, Date };

[[noreturn]] void damaged() {
    throw AutomationError(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), "the stored properties are damaged");
}

/// Numbers go as they stand in memory, which is little-endian wherever this runs.
class Writer {
public:
    template <class T>
    void number(T value) {
        const auto bytes = std::as_bytes(std::span(&value, 1));
        Bytes_.insert(Bytes_.end(), bytes.begin(), bytes.end());
    }
    void text(std::u16string_view text) {
        number(static_cast<std::uint32_t>(text.size()));
        for (const char16_t unit : text) number(unit);
    }
    void bytes(const Bytes& bytes) { Bytes_.insert(Bytes_.end(), bytes.begin(), bytes.end()); }
    Bytes take() { return std::move(Bytes_); }

private:
    Bytes Bytes_;
};

class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : Rest_(bytes) {}

    bool atEnd() const { return Rest_.empty(); }

    std::span<const std::byte> take(std::size_t count) {
        if (count > Rest_.size()) damaged();
        const auto taken = Rest_.first(count);
        Rest_ = Rest_.subspan(count);
        return taken;
    }
    template <class T>
    T number() {
        T value{};
        std::memcpy(&value, take(sizeof value).data(), sizeof value);
        return value;
    }
    std::u16string text() {
        const auto units = number<std::uint32_t>();
        if (units > Rest_.size() / 2) damaged();
        std::u16string text(units, u'\0');
        for (char16_t& unit : text) unit = number<char16_t>();
        return text;
    }

private:
    std::span<const std::byte> Rest_;
};

Bytes payloadOf(const Variant& value, Kind& kind) {
    struct Visitor {
        Writer& out;
        Kind operator()(Empty) const { return Kind::Empty; }
        Kind operator()(Null) const { return Kind::Null; }
        Kind operator()(bool set) const { return out.number<std::uint8_t>(set ? 1 : 0), Kind::Boolean; }
        Kind operator()(std::int16_t number) const { return out.number(number), Kind::Integer16; }
        Kind operator()(std::int32_t number) const { return out.number(number), Kind::Integer32; }
        Kind operator()(double number) const { return out.number(number), Kind::Double; }
        Kind operator()(Date date) const { return out.number(date.Serial), Kind::Date; }
        Kind operator()(const std::u16string& text) const { return out.text(text), Kind::String; }
        // No persisted property holds these.
        Kind operator()(Missing) const { return Kind::Empty; }
        Kind operator()(const StringArray&) const { return Kind::Empty; }
        Kind operator()(const ObjectPtr&) const { return Kind::Empty; }
    };
    Writer out;
    kind = std::visit(Visitor{out}, value);
    return out.take();
}

/// False when the type is one that a later version writes.
bool readPayload(std::uint8_t kind, Reader in, Variant& out) {
    switch (static_cast<Kind>(kind)) {
        case Kind::Empty: out = Empty{}; return true;
        case Kind::Null: out = Null{}; return true;
        case Kind::String: out = in.text(); return true;
        case Kind::Boolean: out = in.number<std::uint8_t>() != 0; return true;
        case Kind::Integer16: out = in.number<std::int16_t>(); return true;
        case Kind::Integer32: out = in.number<std::int32_t>(); return true;
        case Kind::Double: out = in.number<double>(); return true;
        case Kind::Date: out = Date{in.number<double>()}; return true;
    }
    return false;
}

}  // namespace

Bytes encode(const std::vector<StoredValue>& values) {
    Writer body;
    for (const StoredValue& stored : values) {
        Kind kind{};
        const Bytes payload = payloadOf(stored.value, kind);
        body.text(stored.name);
        body.number(static_cast<std::uint8_t>(kind));
        body.number(static_cast<std::uint32_t>(payload.size()));
        body.bytes(payload);
    }
    const Bytes entries = body.take();
    Writer out;
    out.number(Mark);
    out.number(Version);
    out.number<std::uint16_t>(0);
    out.number(static_cast<std::uint32_t>(entries.size()));
    out.bytes(entries);
    return out.take();
}

std::size_t bodySize(std::span<const std::byte> head) {
    Reader in(head);
    const bool isOurs = in.number<std::uint32_t>() == Mark && in.number<std::uint16_t>() == Version;
    in.number<std::uint16_t>();
    const auto size = in.number<std::uint32_t>();
    if (!isOurs || size > LargestBody) damaged();
    return size;
}

std::vector<StoredValue> decode(std::span<const std::byte> body) {
    std::vector<StoredValue> values;
    Reader in(body);
    while (!in.atEnd()) {
        StoredValue stored{in.text(), {}};
        const auto kind = in.number<std::uint8_t>();
        const auto size = in.number<std::uint32_t>();
        if (readPayload(kind, Reader(in.take(size)), stored.value)) values.push_back(std::move(stored));
    }
    return values;
}

}  // namespace kel::win32::ole
