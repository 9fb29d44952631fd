#include "forms/file/FormParser.h"

#include <algorithm>
#include <charconv>

#include "forms/file/FormError.h"
#include "forms/file/FormStore.h"
#include "forms/file/FormUniqueness.h"
#include "forms/file/FormValue.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr double ReadableVersion = 5;

/// A block or group whose end has not come yet.
struct OpenScope {
    bool isGroup = false;
    FormBlockId block = NoFormBlock;
    std::size_t line = 0;
    std::string_view title;  ///< the rest of its first line, for messages
    NamedLines names;        ///< of the properties and groups directly in it
};

class FormParser {
public:
    FormParser(std::string bytes, const std::string& path) {
        Model_.path = path;
        Model_.resources = std::make_shared<ResourceFolder>(pathOf(path).parent_path());
        Model_.bytes = std::make_shared<const std::string>(std::move(bytes));
        Rest_ = *Model_.bytes;
    }

    FormModel parse() {
        try {
            readOpening();
            while (!Done_) readLine();
            requireUniqueBlocks(Model_.blocks);
        } catch (const FormFault& fault) {
            throw FormError(Model_.path, Number_, fault.message);
        } catch (const PlacedFormFault& fault) {
            throw FormError(Model_.path, fault.line, fault.message);
        }
        Model_.codeStart = Model_.bytes->size() - Rest_.size();
        return std::move(Model_);
    }

private:
    void readOpening() {
        if (Rest_.size() > LargestFile) throw FormFault{"the file is larger than 2 GB"};
        if (Rest_.starts_with(Utf8Mark)) {
            Model_.markLength = Utf8Mark.size();
            Rest_.remove_prefix(Utf8Mark.size());
        }
        Number_ = 1;
        if (Rest_.empty()) throw FormFault{"the file is empty"};
        const std::string_view first = Rest_.substr(0, std::min(Rest_.find('\n'), LongestFormLine));
        if (!isVersionLine(first.substr(0, first.size() - lineEndLength(first))))
            throw FormFault{"no form file: it does not begin with a VERSION line"};
        Number_ = 0;
        Model_.encoding = detectEncoding(*Model_.bytes);
        readLine();
    }

    void readLine() {
        if (Rest_.empty()) failAtEnd();
        ++Number_;
        if (Number_ > MostFormLines) throw FormFault{"more than a million lines in front of the code"};
        const std::string_view line = takeLine();
        const std::string_view content = line.substr(0, line.size() - lineEndLength(line));
        if (content.find('\0') != std::string_view::npos) throw FormFault{"a NUL byte stands in the line"};
        const FormLine scanned = scanFormLine(content);
        append(line, scanned);
        accept(scanned, content);
    }

    std::string_view takeLine() {
        const std::size_t end = Rest_.substr(0, LongestFormLine + 1).find('\n');
        if (end == std::string_view::npos && Rest_.size() > LongestFormLine)
            throw FormFault{"the line is longer than 1 MiB"};
        const std::string_view line = Rest_.substr(0, end == std::string_view::npos ? end : end + 1);
        Rest_.remove_prefix(line.size());
        return line;
    }

    void append(std::string_view line, const FormLine& scanned) {
        FormModel::Line entry;
        entry.offset = offsetOf(line);
        entry.length = static_cast<std::uint32_t>(line.size());
        entry.number = static_cast<std::uint32_t>(Number_);
        entry.next = entry.number;
        entry.kind = scanned.kind;
        if (!scanned.name.empty()) {
            entry.nameOffset = offsetOf(scanned.name);
            entry.nameLength = static_cast<std::uint32_t>(scanned.name.size());
        }
        Model_.lines.push_back(entry);
    }

    std::uint32_t offsetOf(std::string_view part) const {
        return static_cast<std::uint32_t>(part.data() - Model_.bytes->data());
    }

    FormModel::LineId current() const { return static_cast<FormModel::LineId>(Model_.lines.size() - 1); }

    void accept(const FormLine& line, std::string_view content) {
        switch (line.kind) {
            case FormLine::Kind::Blank:
            case FormLine::Kind::Object: break;
            case FormLine::Kind::Version: acceptVersion(line); break;
            case FormLine::Kind::Begin: beginBlock(line, content); break;
            case FormLine::Kind::End: endBlock(); break;
            case FormLine::Kind::BeginGroup: beginGroup(line, content); break;
            case FormLine::Kind::EndGroup: endGroup(); break;
            case FormLine::Kind::Property: acceptProperty(line); break;
        }
    }

    void acceptVersion(const FormLine& line) const {
        if (Number_ != 1) throw FormFault{"a second VERSION line"};
        double version = 0;
        const auto [end, fault] = std::from_chars(line.detail.data(), line.detail.data() + line.detail.size(), version);
        if (fault != std::errc() || end != line.detail.data() + line.detail.size() || version != ReadableVersion)
            throw FormFault{"the version is " + excerptOf(line.detail) + "; only 5.00 can be read"};
    }

    void open(bool isGroup, FormBlockId block, std::string_view content) {
        if (Open_.size() == DeepestFormNesting)
            throw FormFault{"blocks are nested deeper than " + std::to_string(DeepestFormNesting)};
        Open_.push_back({isGroup, block, Number_, content, {}});
    }

    void close() {
        requireUniqueNames(std::move(Open_.back().names));
        Open_.pop_back();
    }

    void beginBlock(const FormLine& line, std::string_view content) {
        if (!Open_.empty() && Open_.back().isGroup) throw FormFault{"Begin inside " + describe(Open_.back())};
        const FormBlockId id = Model_.blocks.size();
        const FormBlockId parent = Open_.empty() ? NoFormBlock : Open_.back().block;
        open(false, id, content);
        FormBlock& block = Model_.blocks.emplace_back();
        block.className = decode(line.name, Model_.encoding);
        block.name = decode(line.detail, Model_.encoding);
        block.line = Number_;
        block.parent = parent;
        if (parent != NoFormBlock) Model_.blocks[parent].children.push_back(id);
        Model_.spans.push_back({current(), current()});
        Model_.lines.back().block = static_cast<std::uint32_t>(id);
    }

    void endBlock() {
        if (Open_.empty()) throw FormFault{"End without Begin"};
        if (Open_.back().isGroup) throw FormFault{"End inside " + describe(Open_.back())};
        Model_.spans[Open_.back().block].end = current();
        close();
        Done_ = Open_.empty();
    }

    void beginGroup(const FormLine& line, std::string_view content) {
        if (Open_.empty()) throw FormFault{"BeginProperty outside a block"};
        Open_.back().names.push_back({line.name, Number_});
        open(true, Open_.back().block, content);
    }

    void endGroup() {
        if (Open_.empty() || !Open_.back().isGroup) throw FormFault{"EndProperty without BeginProperty"};
        close();
    }

    void acceptProperty(const FormLine& line) {
        if (Open_.empty()) {
            acceptObject(line);
            return;
        }
        OpenScope& scope = Open_.back();
        scope.names.push_back({line.name, Number_});
        const ScannedValue value = scanFormValue(line.detail);
        const auto* number = std::get_if<std::int32_t>(&value);
        if (number != nullptr && !scope.isGroup && equalsIgnoringAsciiCase(line.name, "Index"))
            Model_.blocks[scope.block].index = *number;
    }

    void acceptObject(const FormLine& line) {
        if (!equalsIgnoringAsciiCase(line.name, "Object"))
            throw FormFault{"the property " + excerptOf(line.name) + " stands outside a block"};
        Model_.lines.back().kind = FormLine::Kind::Object;
        const auto [library, file] = scanObjectValue(line.detail);
        Model_.objects.push_back({decode(withoutDoubledQuotes(library), Model_.encoding),
                                  decode(withoutDoubledQuotes(file), Model_.encoding), Number_});
    }

    [[noreturn]] void failAtEnd() {
        if (Open_.empty()) throw FormFault{"the file ends without a Begin"};
        const OpenScope& scope = Open_.back();
        throw PlacedFormFault{scope.line, excerptOf(trimmed(scope.title)) + " has no " +
                                              (scope.isGroup ? "EndProperty" : "End") +
                                              ": the file is cut off after line " + std::to_string(Number_)};
    }

    static std::string_view trimmed(std::string_view text) {
        const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
        return text.substr(start, text.find_last_not_of(" \t") + 1 - start);
    }

    static std::string describe(const OpenScope& scope) {
        return excerptOf(trimmed(scope.title)) + " of line " + std::to_string(scope.line);
    }

    FormModel Model_;
    std::string_view Rest_;
    std::size_t Number_ = 0;
    std::vector<OpenScope> Open_;
    bool Done_ = false;
};

}  // namespace

FormModel parseForm(std::string bytes, const std::string& path) { return FormParser(std::move(bytes), path).parse(); }

}  // namespace kel
