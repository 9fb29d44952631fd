#include "forms/file/FormValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <type_traits>

#include "forms/file/FormText.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel {

namespace {

/// Far above what people type and far below the longest line.
constexpr std::size_t LongestInlineText = 0x10000;

struct Decoder {
    FormEncoding encoding;

    FormValue operator()(std::int32_t number) const { return number; }
    FormValue operator()(double number) const { return number; }
    FormValue operator()(QuotedBytes quoted) const { return textOf(quoted); }
    FormValue operator()(const ReferenceBytes& reference) const {
        return FormReference{textOf(reference.file), reference.offset, reference.isText};
    }
    FormValue operator()(RawBytes raw) const { return FormRaw{decode(raw.bytes, encoding)}; }

    std::u16string textOf(QuotedBytes quoted) const { return decode(withoutDoubledQuotes(quoted), encoding); }
};

std::u16string quote(std::u16string_view text) {
    std::u16string quoted = u"\"";
    for (const char16_t unit : text) {
        quoted += unit;
        if (unit == u'"') quoted += unit;
    }
    return quoted + u'"';
}

/// Shortest: no zero stands before the point.
std::u16string writeNumber(double number) {
    std::u16string text = shortestNumber(number);
    const std::size_t first = text.starts_with(u'-') ? 1 : 0;
    if (text.substr(first).starts_with(u"0.")) text.erase(first, 1);
    return text;
}

struct ValueWriter {
    std::u16string operator()(std::int32_t number) const { return widen(std::to_string(number)); }
    std::u16string operator()(double number) const { return writeNumber(number); }
    std::u16string operator()(const std::u16string& text) const { return quote(text); }
    std::u16string operator()(const FormReference& reference) const {
        std::array<char, 16> offset{};
        const int length =
            std::snprintf(offset.data(), offset.size(), ":%04X", static_cast<unsigned>(reference.offset));
        return (reference.isText ? u"$" : u"") + quote(reference.file) +
               widen({offset.data(), static_cast<std::size_t>(length)});
    }
    std::u16string operator()(const FormRaw& raw) const { return raw.text; }
};

template <class T>
std::optional<Variant> coerced(const Variant& number) {
    T result{};
    if (coerce(number, defaultRegion(), result) != CoercionFault::None) return std::nullopt;
    return Variant(std::in_place_type<T>, std::move(result));
}

/// A number as late-bound callers see it: the smallest type that holds it.
Variant smallestNumber(const Variant& number) {
    const auto* whole = std::get_if<std::int32_t>(&number);
    if (whole == nullptr || *whole < INT16_MIN || *whole > INT16_MAX) return number;
    return static_cast<std::int16_t>(*whole);
}

std::optional<Variant> convertNumber(const Variant& number, TypeTag type) {
    switch (type) {
        case TypeTag::String: return coerced<std::u16string>(number);
        case TypeTag::Boolean: return coerced<bool>(number);
        case TypeTag::Integer16: return coerced<std::int16_t>(number);
        case TypeTag::DaysFlag:
        case TypeTag::Integer32: return coerced<std::int32_t>(number);
        case TypeTag::Double: return coerced<double>(number);
        case TypeTag::Date: return coerced<Date>(number);
        case TypeTag::Any: return smallestNumber(number);
        case TypeTag::None:
        case TypeTag::Object:
        case TypeTag::Strings: break;
    }
    return std::nullopt;
}

}  // namespace

FormValue readFormValue(std::string_view bytes, FormEncoding encoding) {
    return std::visit(Decoder{encoding}, scanFormValue(bytes));
}

std::optional<FormValue> toFormValue(const Variant& value) {
    const auto number = [](double held) { return std::isfinite(held) ? std::optional<FormValue>(held) : std::nullopt; };
    return std::visit(
        [&number](const auto& held) -> std::optional<FormValue> {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, bool>)
                return held ? -1 : 0;
            else if constexpr (std::is_same_v<Held, std::u16string>)
                return held;
            else if constexpr (std::is_integral_v<Held>)
                return std::int32_t{held};
            else if constexpr (std::is_same_v<Held, double>)
                return number(held);
            else if constexpr (std::is_same_v<Held, Date>)
                return number(held.Serial);
            else
                return std::nullopt;
        },
        value);
}

std::u16string writeFormValue(const FormValue& value) { return std::visit(ValueWriter{}, value); }

std::u16string writeFormVariant(const Variant& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? u"-1  'True" : u"0   'False";
    const std::optional<FormValue> plain = toFormValue(value);
    return plain ? writeFormValue(*plain) : std::u16string();
}

bool needsRecord(std::u16string_view text) {
    const auto isControl = [](char16_t unit) { return unit < u' ' || unit == 0x7F; };
    return text.size() > LongestInlineText || std::any_of(text.begin(), text.end(), isControl) || hasHalfPair(text);
}

std::optional<Variant> convertFormValue(const FormValue& value, TypeTag type) {
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return convertNumber(*whole, type);
    if (const auto* number = std::get_if<double>(&value)) return convertNumber(*number, type);
    const auto* text = std::get_if<std::u16string>(&value);
    if (text == nullptr || (type != TypeTag::String && type != TypeTag::Any)) return std::nullopt;
    return *text;
}

}  // namespace kel
