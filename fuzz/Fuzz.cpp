#include "fuzz/Fuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "forms/ScriptValue.h"
#include "values/Coercion.h"
#include "values/Decimal.h"
#include "values/Text.h"

namespace kel::fuzz {

namespace {

std::u16string decoded(std::string_view bytes) {
    auto text = fromUtf8(bytes, HalfPairs::Kept);
    return text ? *std::move(text) : fromWindows1252(bytes);
}

}  // namespace

std::u16string Lines::next() {
    const std::string_view line = Rest_.substr(0, Rest_.find('\n'));
    Rest_.remove_prefix(std::min(Rest_.size(), line.size() + 1));
    return decoded(line);
}

std::u16string Lines::rest() { return decoded(std::exchange(Rest_, {})); }

const RegionalSettings& Lines::region() {
    const std::u16string name = next();
    if (const RegionalSettings* const region = findRegion(name)) return *region;
    const auto names = regionNames();
    return *findRegion(names[anyOf(name, names.size())]);
}

Variant Lines::value() {
    const std::u16string line = next();
    if (line == u"Missing") return Missing{};
    std::u16string_view rest = line;
    std::string error;
    if (auto value = takeScriptValue(rest, error); value && rest.empty()) return *std::move(value);
    return line;
}

double Lines::number() {
    const std::u16string line = next();
    double number = 0;
    if (!readPlainNumber(line, defaultRegion(), number))
        std::memcpy(&number, line.data(), std::min(line.size() * sizeof(char16_t), sizeof number));
    return number;
}

std::int32_t Lines::whole() {
    const double number = this->number();
    return number >= INT32_MIN && number <= INT32_MAX ? static_cast<std::int32_t>(number) : 0;
}

std::size_t anyOf(std::u16string_view text, std::size_t count) {
    return std::hash<std::u16string_view>()(text) % count;
}

std::u16string shown(double number) { return shortestNumber(toFinite(number)); }

void require(bool holds, const char* promise, std::initializer_list<std::u16string_view> about) {
    if (holds) return;
    std::fprintf(stderr, "BROKEN: %s\n", promise);
    for (const std::u16string_view text : about) std::fprintf(stderr, "  %s\n", toUtf8(quoteScriptText(text)).c_str());
    std::abort();
}

}  // namespace kel::fuzz
