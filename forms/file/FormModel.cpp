#include "forms/file/FormModel.h"

#include <algorithm>

#include "library/ClassRegistry.h"
#include "values/Text.h"

namespace kel {

bool isLibraryClass(const FormBlock& block) {
    const std::u16string_view name = block.className;
    const std::size_t point = name.find(u'.');
    return point != std::u16string_view::npos && equalsIgnoringCase(name.substr(0, point), LibraryName);
}

bool isUnseen(const FormBlock& block) {
    return equalsIgnoringCase(block.className, u"VB.Menu") || equalsIgnoringCase(block.className, u"VB.Timer");
}

bool isHostProperty(std::u16string_view name) {
    static constexpr std::u16string_view Names[] = {
        u"Align",      u"Cancel",     u"CausesValidation", u"DataBindings", u"DataField",
        u"DataFormat", u"DataMember", u"DataSource",       u"Default",      u"DragIcon",
        u"DragMode",   u"Height",     u"HelpContextID",    u"Index",        u"Left",
        u"Negotiate",  u"TabIndex",   u"TabStop",          u"Tag",          u"ToolTipText",
        u"Top",        u"Visible",    u"WhatsThisHelpID",  u"Width"};
    return std::any_of(std::begin(Names), std::end(Names),
                       [name](std::u16string_view known) { return equalsIgnoringCase(known, name); });
}

std::size_t lineEndLength(std::string_view line) {
    std::size_t content = line.size();
    if (line.ends_with('\n')) --content;
    while (content > 0 && line[content - 1] == '\r') --content;
    return line.size() - content;
}

std::vector<FormModel::LineId> FormModel::liveLines() const {
    std::vector<LineId> live;
    const LineId last = spans.front().end;
    for (LineId line = 0;; line = lines[line].next) {
        if (!lines[line].removed) live.push_back(line);
        if (line == last) return live;
    }
}

std::string_view FormModel::wholeOf(LineId line) const {
    return std::string_view(*bytes).substr(lines[line].offset, lines[line].length);
}

std::string_view FormModel::contentOf(LineId line) const {
    const std::string_view all = wholeOf(line);
    return all.substr(0, all.size() - lineEndLength(all));
}

std::string_view FormModel::lineEndOf(LineId line) const {
    if (const Edit* edit = editOf(line)) return edit->lineEnd;
    const std::string_view all = wholeOf(line);
    return all.substr(all.size() - lineEndLength(all));
}

const FormModel::Edit* FormModel::editOf(LineId line) const {
    const std::int32_t edit = lines[line].edit;
    return edit < 0 ? nullptr : &edits[static_cast<std::size_t>(edit)];
}

std::u16string FormModel::nameOf(LineId propertyLine) const {
    if (const Edit* edit = editOf(propertyLine)) return edit->name;
    return decode(nameBytesOf(propertyLine), encoding);
}

std::string_view FormModel::nameBytesOf(LineId propertyLine) const {
    return std::string_view(*bytes).substr(lines[propertyLine].nameOffset, lines[propertyLine].nameLength);
}

bool FormModel::isNamed(LineId propertyLine, std::u16string_view name) const {
    if (const Edit* edit = editOf(propertyLine)) return equalsIgnoringCase(edit->name, name);
    const std::string_view own = nameBytesOf(propertyLine);
    // Decoded only where a byte is no character of its own: this is asked for every line and property.
    for (std::size_t i = 0; i < own.size(); ++i) {
        const auto byte = static_cast<unsigned char>(own[i]);
        if (byte >= 0x80) return equalsIgnoringCase(decode(own, encoding), name);
        if (i >= name.size() || toLowerAscii(byte) != toLowerAscii(name[i])) return false;
    }
    return own.size() == name.size();
}

FormEntries::FormEntries(const FormModel& model, FormBlockId block)
    : Model_(&model), End_(model.spans[block].end), First_(model.spans[block].begin), Last_(model.spans[block].begin) {}

bool FormEntries::next() {
    for (auto line = Model_->lines[Last_].next; line != End_; line = Model_->lines[line].next) {
        const FormModel::Line& here = Model_->lines[line];
        if (here.kind == FormLine::Kind::Begin) {
            line = Model_->spans[here.block].end;
            BehindChild_ = true;
        } else if (!here.removed &&
                   (here.kind == FormLine::Kind::Property || here.kind == FormLine::Kind::BeginGroup)) {
            First_ = line;
            Last_ = here.kind == FormLine::Kind::BeginGroup ? endOfGroup(line) : line;
            return true;
        }
    }
    return false;
}

FormModel::LineId FormEntries::endOfGroup(FormModel::LineId begin) const {
    std::size_t depth = 1;
    FormModel::LineId line = begin;
    while (depth > 0) {
        line = Model_->lines[line].next;
        if (Model_->lines[line].kind == FormLine::Kind::BeginGroup) ++depth;
        if (Model_->lines[line].kind == FormLine::Kind::EndGroup) --depth;
    }
    return line;
}

}  // namespace kel
