#include "platform/qt/ui/BlockReader.h"

#include <algorithm>

#include "values/Text.h"

namespace kel::qt {

namespace {

/// Measures of the window that the others repeat, and what a form tells of other programs.
constexpr std::u16string_view Meaningless[] = {u"ClientLeft", u"ClientTop", u"ScaleHeight", u"ScaleWidth",
                                               u"ScaleLeft",  u"ScaleTop",  u"ScaleMode",   u"LinkTopic",
                                               u"_ExtentX",   u"_ExtentY",  u"_Version",    u"Index"};

/// The first of that name out of `entries`.
template <class Entry>
std::optional<Entry> takeFrom(std::vector<Entry>& entries, std::u16string_view name) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [name](const Entry& entry) { return equalsIgnoringCase(entry.name, name); });
    if (found == entries.end()) return std::nullopt;
    std::optional<Entry> taken = std::move(*found);
    entries.erase(found);
    return taken;
}

UiNote noteOf(const FormBlock& block, std::u16string_view name, std::size_t line, const std::string& said) {
    return {line, toUtf8(block.name) + "." + toUtf8(name) + said};
}

constexpr const char* Left = " is not carried over";

}  // namespace

BlockReader::BlockReader(const FormFile& file, FormBlockId id)
    : File_(file), Id_(id), Properties_(file.properties(id)), Groups_(file.groups(id)) {
    for (const std::u16string_view name : Meaningless) pass(name);
}

std::optional<FormProperty> BlockReader::take(std::u16string_view name) { return takeFrom(Properties_, name); }

void BlockReader::pass(std::u16string_view name) { static_cast<void>(take(name)); }

std::optional<std::u16string> BlockReader::text(std::u16string_view name) {
    const auto property = take(name);
    if (!property) return std::nullopt;
    return File_.stringValue(*property);
}

std::optional<std::int32_t> BlockReader::integer(std::u16string_view name) {
    const auto property = take(name);
    if (!property) return std::nullopt;
    return std::get<std::int32_t>(File_.valueAs(*property, TypeTag::Integer32));
}

std::optional<bool> BlockReader::boolean(std::u16string_view name) {
    const auto property = take(name);
    if (!property) return std::nullopt;
    return std::get<bool>(File_.valueAs(*property, TypeTag::Boolean));
}

std::optional<FormGroup> BlockReader::group(std::u16string_view name) { return takeFrom(Groups_, name); }

void BlockReader::leave(std::u16string_view name, std::size_t line, std::string_view reason) {
    Notes_.push_back(noteOf(block(), name, line, Left + (": " + std::string(reason))));
}

void BlockReader::alter(std::u16string_view name, std::size_t line, std::u16string_view value) {
    constexpr std::size_t LongestShown = 40;
    const std::u16string_view shown = headOf(value, LongestShown);
    Notes_.push_back(noteOf(block(), name, line,
                            " comes in otherwise: " + toUtf8(shown) + (shown.size() < value.size() ? "..." : "")));
}

std::vector<UiNote> BlockReader::notes() const {
    std::vector<UiNote> notes = Notes_;
    for (const FormProperty& property : Properties_)
        notes.push_back(noteOf(block(), property.name, property.line, Left));
    for (const FormGroup& group : Groups_) notes.push_back(noteOf(block(), group.name, group.line, Left));
    return notes;
}

}  // namespace kel::qt
