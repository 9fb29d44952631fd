#include "forms/file/FormEdit.h"

#include <algorithm>

#include "forms/file/FormError.h"
#include "forms/file/FormReading.h"
#include "values/Text.h"

namespace kel {

namespace {

using LineId = FormModel::LineId;

constexpr std::u16string_view IndentCharacters = u" \t";
constexpr std::u16string_view IndentStep = u"   ";
constexpr std::u16string_view GapBeforeValue = u"   ";
constexpr std::size_t ClassicColumn = 16;

enum class Rank : std::uint8_t { Host, Extent, Own };

/// In a block of the library: the host's properties, then `_ExtentX` and its like, then the control's. Elsewhere
/// all stand in one alphabet.
Rank rankOf(std::u16string_view name, bool isLibraryBlock) {
    if (!isLibraryBlock) return Rank::Own;
    if (name.starts_with(u'_')) return Rank::Extent;
    return isHostProperty(name) ? Rank::Host : Rank::Own;
}

/// How a property's line is laid out.
struct HeadLayout {
    std::u16string indent;
    std::size_t column = 0;  ///< of the =, counted from the name
    std::size_t blanks = 0;  ///< between name and =
    std::u16string gap;      ///< between = and value
};

HeadLayout layoutOf(std::u16string_view head) {
    const std::size_t name = std::min(head.find_first_not_of(IndentCharacters), head.size());
    const std::size_t equals = head.find(u'=', name);
    const std::size_t nameEnd = head.find_first_of(u" \t=", name);
    return {std::u16string(head.substr(0, name)), equals - name, equals - nameEnd,
            std::u16string(head.substr(equals + 1))};
}

/// The line that a new property follows.
LineId placeFor(const FormModel& model, FormBlockId block, std::u16string_view name) {
    const bool isLibraryBlock = isLibraryClass(model.blocks[block]);
    const Rank rank = rankOf(name, isLibraryBlock);
    LineId place = model.spans[block].begin;
    bool found = false;
    for (FormEntries entries(model, block); entries.next() && !entries.isBehindChild();) {
        const std::u16string other = model.nameOf(entries.first());
        const Rank otherRank = rankOf(other, isLibraryBlock);
        if (otherRank < rank)
            found = false;
        else if (otherRank > rank || NameOrder{}(name, other))
            found = true;
        if (!found) place = entries.last();
    }
    return place;
}

/// The layout of a block's lines: the column that its = are aligned in, if they are.
std::optional<HeadLayout> layoutIn(const FormModel& model, FormBlockId block) {
    std::optional<HeadLayout> layout;
    for (FormEntries entries(model, block); entries.next();) {
        if (entries.isGroup()) continue;
        HeadLayout found = layoutOf(headOfProperty(model, entries.first()));
        const bool isAligned = found.blanks > 1;
        if (!layout || isAligned) layout = std::move(found);
        if (isAligned) break;
    }
    return layout;
}

HeadLayout layoutFor(const FormModel& model, FormBlockId block) {
    if (auto own = layoutIn(model, block)) return *std::move(own);
    const std::u16string begin = decode(model.contentOf(model.spans[block].begin), model.encoding);
    const std::u16string indent = begin.substr(0, begin.find_first_not_of(IndentCharacters)).append(IndentStep);
    for (FormBlockId outer = model.blocks[block].parent; outer != NoFormBlock; outer = model.blocks[outer].parent) {
        if (auto layout = layoutIn(model, outer)) {
            layout->indent = indent;
            return *std::move(layout);
        }
    }
    return {indent, ClassicColumn, ClassicColumn, std::u16string(GapBeforeValue)};
}

std::u16string makeHead(const HeadLayout& layout, std::u16string_view name) {
    std::u16string head = layout.indent;
    head.append(name);
    if (layout.blanks <= 1)
        head.append(layout.blanks, u' ');
    else if (name.size() < layout.column)
        head.append(layout.column - name.size(), u' ');
    return head.append(u"=").append(layout.gap);
}

void insertBehind(FormModel& model, LineId place, FormModel::Edit edit) {
    FormModel::Line line = model.lines[place];
    line.edit = static_cast<std::int32_t>(model.edits.size());
    line.kind = FormLine::Kind::Property;
    line.removed = false;
    model.lines[place].next = static_cast<LineId>(model.lines.size());
    model.lines.push_back(line);
    model.edits.push_back(std::move(edit));
}

void changeLine(FormModel& model, LineId line, const Variant& value) {
    if (model.editOf(line) == nullptr) {
        FormModel::Edit edit{headOfProperty(model, line), model.nameOf(line), {}, std::string(model.lineEndOf(line))};
        model.lines[line].edit = static_cast<std::int32_t>(model.edits.size());
        model.edits.push_back(std::move(edit));
    }
    model.edits[static_cast<std::size_t>(model.lines[line].edit)].value = value;
}

}  // namespace

std::u16string headOfProperty(const FormModel& model, LineId line) {
    if (const FormModel::Edit* edit = model.editOf(line)) return edit->head;
    const std::string_view content = model.contentOf(line);
    const std::string_view value = scanFormLine(content).detail;
    const auto length = static_cast<std::size_t>(value.data() - content.data());
    return decode(content.substr(0, length), model.encoding);
}

void setProperty(FormModel& model, FormBlockId block, std::u16string_view name, const Variant& value) {
    const auto fail = [&](std::size_t line, const char* reason) -> FormError {
        return {model.path, line, toUtf8(name) + reason};
    };
    if (!toFormValue(value)) throw fail(model.blocks[block].line, ": such a value cannot stand in a form file");
    if (const auto entry = findEntry(model, block, name)) {
        if (entry->isGroup()) throw fail(model.lines[entry->first()].number, " is a group and has no value");
        changeLine(model, entry->first(), value);
        return;
    }
    const LineId place = placeFor(model, block, name);
    insertBehind(
        model, place,
        {makeHead(layoutFor(model, block), name), std::u16string(name), value, std::string(model.lineEndOf(place))});
}

bool removeProperty(FormModel& model, FormBlockId block, std::u16string_view name) {
    const auto entry = findEntry(model, block, name);
    if (!entry || entry->isGroup()) return false;
    model.lines[entry->first()].removed = true;
    return true;
}

}  // namespace kel
