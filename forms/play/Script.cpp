#include "forms/play/Script.h"

#include <algorithm>
#include <array>
#include <optional>

#include "forms/ScriptValue.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel {

namespace {

using Verb = ScriptCommand::Verb;

constexpr std::string_view ExpectedMark = "> ";

/// What a verb is followed by.
enum class Shape : std::uint8_t {
    Nothing,         // where
    Count,           // tab [N]
    Name,            // show NAME
    NameNumber,      // click NAME [POSITION], double NAME [POSITION], pick NAME ITEM
    NameTwoNumbers,  // resize NAME WIDTH HEIGHT
    Text,            // type TEXT
    Clipboard,       // paste TEXT
    KeyCount,        // key KEY [N]
    Numbers,         // caret START [LENGTH], advance SECONDS
    Spinner,         // spin NAME up|down [N]
    Member,          // get NAME.MEMBER [ARG …]
    File,            // save FILE
    Time,            // clock HH:MM:SS
};

struct VerbRow {
    std::u16string_view word;
    Verb verb;
    Shape shape;
    std::size_t least = 0;  ///< numbers or values that must follow
    std::size_t most = 0;
};

constexpr VerbRow Verbs[] = {
    {u"tab", Verb::Tab, Shape::Count, 0, 1},
    {u"backtab", Verb::BackTab, Shape::Count, 0, 1},
    {u"focus", Verb::Focus, Shape::Name},
    {u"click", Verb::Click, Shape::NameNumber, 0, 1},
    {u"double", Verb::DoubleClick, Shape::NameNumber, 0, 1},
    {u"type", Verb::Type, Shape::Text},
    {u"key", Verb::Key, Shape::KeyCount, 0, 1},
    {u"paste", Verb::Paste, Shape::Clipboard},
    {u"caret", Verb::Caret, Shape::Numbers, 1, 2},
    {u"spin", Verb::Spin, Shape::Spinner, 0, 1},
    {u"pick", Verb::Pick, Shape::NameNumber, 1, 1},
    {u"menu", Verb::Menu, Shape::Name},
    {u"get", Verb::Get, Shape::Member, 0, 8},
    {u"set", Verb::Set, Shape::Member, 1, 1},
    {u"call", Verb::Call, Shape::Member, 0, 8},
    {u"answer", Verb::Answer, Shape::Member, 1, 1},
    {u"show", Verb::Show, Shape::Name},
    {u"layout", Verb::Layout, Shape::Name},
    {u"tip", Verb::Tip, Shape::Name},
    {u"reported", Verb::Reported, Shape::Name},
    {u"bag", Verb::Bag, Shape::Name},
    {u"properties", Verb::Properties, Shape::Name},
    {u"resize", Verb::Resize, Shape::NameTwoNumbers, 2, 2},
    {u"where", Verb::Where, Shape::Nothing},
    {u"clock", Verb::Clock, Shape::Time},
    {u"advance", Verb::Advance, Shape::Numbers, 1, 1},
    {u"runtime", Verb::Runtime, Shape::Nothing},
    {u"save", Verb::Save, Shape::File},
    {u"load", Verb::Load, Shape::File},
};

/// What a script says of the records behind the form. "save" and "show" are so with these words after them.
constexpr std::u16string_view RecordWords[] = {u"new",  u"first",     u"previous", u"next",   u"last",  u"go",
                                               u"find", u"duplicate", u"undo",     u"delete", u"carry", u"answers"};

bool isOfRecords(std::u16string_view word, std::u16string_view line) {
    if (word == u"save") return line == u"save" || line == u"save new";
    if (word == u"show") return line == u"show record";
    return std::find(std::begin(RecordWords), std::end(RecordWords), word) != std::end(RecordWords);
}

struct KeyName {
    std::u16string_view name;
    std::int16_t code;
};

constexpr KeyName KeyNames[] = {
    {u"Enter", keys::Enter},       {u"Escape", keys::Escape}, {u"Backspace", keys::Backspace},
    {u"Delete", keys::Delete},     {u"Insert", keys::Insert}, {u"Left", keys::Left},
    {u"Right", keys::Right},       {u"Up", keys::Up},         {u"Down", keys::Down},
    {u"Home", keys::Home},         {u"End", keys::End},       {u"PageUp", keys::PageUp},
    {u"PageDown", keys::PageDown}, {u"F4", keys::F4},
};

constexpr struct {
    std::u16string_view name;
    Modifiers modifier;
} ModifierNames[] = {{u"Shift+", ShiftKey}, {u"Ctrl+", ControlKey}, {u"Alt+", AltKey}};

/// "Ctrl+Shift+Left", or a letter with Ctrl or Alt ("Ctrl+A").
std::optional<KeyStroke> readKey(std::u16string_view word) {
    KeyStroke stroke;
    for (bool found = true; found;) {
        found = false;
        for (const auto& row : ModifierNames) {
            if (!word.starts_with(row.name)) continue;
            stroke.modifiers = stroke.modifiers | row.modifier;
            word.remove_prefix(row.name.size());
            found = true;
        }
    }
    for (const KeyName& row : KeyNames) {
        if (row.name != word) continue;
        stroke.code = row.code;
        return stroke;
    }
    const bool letter = word.size() == 1 && word.front() >= u'A' && word.front() <= u'Z';
    if (!letter || (stroke.modifiers & (ControlKey | AltKey)) == 0) return std::nullopt;
    stroke.code = static_cast<std::int16_t>(word.front());
    stroke.character = word.front();
    return stroke;
}

/// Reads one line after its verb.
class LineReader {
public:
    LineReader(const std::string& file, std::size_t line, std::u16string_view rest)
        : File_(file), Line_(line), Rest_(rest) {}

    [[noreturn]] void fail(const std::string& message) const { throw ScriptError(File_, Line_, message); }

    bool atEnd() {
        const std::size_t start = Rest_.find_first_not_of(u" \t");
        Rest_.remove_prefix(start == std::u16string_view::npos ? Rest_.size() : start);
        return Rest_.empty();
    }

    std::u16string word(const char* what) {
        if (atEnd()) fail(std::string(what) + " is missing");
        const std::u16string_view found = Rest_.substr(0, Rest_.find_first_of(u" \t"));
        Rest_.remove_prefix(found.size());
        return std::u16string(found);
    }

    Variant value() {
        std::string error;
        auto found = takeScriptValue(Rest_, error);
        if (!found) fail(error);
        return std::move(*found);
    }

    std::int32_t number(const char* what) {
        const std::u16string text = word(what);
        double number = 0;
        if (!readPlainNumber(text, defaultRegion(), number) || number < INT32_MIN || number > INT32_MAX ||
            number != static_cast<std::int32_t>(number))
            fail(std::string(what) + ": a whole number is wanted, not \"" + toUtf8(text) + "\"");
        return static_cast<std::int32_t>(number);
    }

    /// All that is left, without the one blank after the verb.
    std::u16string rest() {
        std::u16string_view text = Rest_.starts_with(u' ') ? Rest_.substr(1) : Rest_;
        Rest_ = {};
        return std::u16string(text);
    }

    void numbers(ScriptCommand& command, const VerbRow& row) {
        while (command.numbers.size() < row.most && !atEnd()) command.numbers.push_back(number("the number"));
        if (command.numbers.size() < row.least) fail("a number is missing");
    }

private:
    const std::string& File_;
    std::size_t Line_;
    std::u16string_view Rest_;
};

void readMember(LineReader& line, ScriptCommand& command) {
    const std::u16string word = line.word("NAME.MEMBER");
    const std::size_t point = word.rfind(u'.');
    if (point == std::u16string::npos || point == 0 || point + 1 == word.size())
        line.fail("NAME.MEMBER is wanted, not \"" + toUtf8(word) + "\"");
    command.name = word.substr(0, point);
    command.member = word.substr(point + 1);
}

void readClipboard(LineReader& line, ScriptCommand& command) {
    command.text = line.rest();
    if (!command.text.starts_with(u'"')) return;
    std::u16string_view rest = command.text;
    std::string error;
    auto value = takeScriptValue(rest, error);
    if (!value || !rest.empty()) line.fail(error.empty() ? "something stands after the closing quote" : error);
    command.text = std::get<std::u16string>(std::move(*value));
}

void readSpinner(LineReader& line, ScriptCommand& command) {
    const std::u16string direction = line.word("up or down");
    if (direction != u"up" && direction != u"down")
        line.fail("up or down is wanted, not \"" + toUtf8(direction) + "\"");
    command.up = direction == u"up";
}

void readArguments(LineReader& line, ScriptCommand& command, const VerbRow& row) {
    switch (row.shape) {
        case Shape::Nothing: break;
        case Shape::Count:
        case Shape::Numbers: line.numbers(command, row); break;
        case Shape::Name:
        case Shape::NameNumber:
        case Shape::NameTwoNumbers:
            command.name = line.word("the control's name");
            line.numbers(command, row);
            break;
        case Shape::Text: command.text = line.rest(); break;
        case Shape::Clipboard: readClipboard(line, command); break;
        case Shape::KeyCount: {
            const std::u16string key = line.word("the key");
            const auto stroke = readKey(key);
            if (!stroke) line.fail("there is no key \"" + toUtf8(key) + "\"");
            command.stroke = *stroke;
            line.numbers(command, row);
            break;
        }
        case Shape::Spinner:
            command.name = line.word("the control's name");
            readSpinner(line, command);
            line.numbers(command, row);
            break;
        case Shape::Member:
            readMember(line, command);
            while (command.values.size() < row.most && !line.atEnd()) command.values.push_back(line.value());
            if (command.values.size() < row.least) line.fail("a value is missing");
            break;
        case Shape::File:
            if (line.atEnd()) line.fail("a file is wanted");
            command.text = line.rest();
            break;
        case Shape::Time: {
            const auto time = readScriptTime(line.word("HH:MM:SS"));
            if (!time) line.fail("the time is written HH:MM:SS");
            command.values.emplace_back(*time);
            break;
        }
    }
    if (!line.atEnd()) line.fail("something stands after the command");
}

std::u16string_view withoutBlanks(std::u16string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(ScriptBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(ScriptBlanks) + 1);
}

ScriptCommand readCommand(const std::string& file, std::size_t lineNumber, std::u16string_view text) {
    LineReader line(file, lineNumber, text);
    const std::u16string word = line.word("the command");
    const std::u16string_view whole = withoutBlanks(text);
    if (isOfRecords(word, whole)) {
        ScriptCommand command;
        command.verb = Verb::Records;
        command.line = lineNumber;
        command.text = whole;
        return command;
    }
    for (const VerbRow& row : Verbs) {
        if (row.word != word) continue;
        ScriptCommand command;
        command.verb = row.verb;
        command.line = lineNumber;
        readArguments(line, command, row);
        return command;
    }
    line.fail("there is no command \"" + toUtf8(word) + "\"");
}

void splitLines(Script& script, std::string_view text) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (text.starts_with(Mark)) {
        script.mark = Mark;
        text.remove_prefix(Mark.size());
    }
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        const std::string_view whole = text.substr(0, size);
        const std::string_view end = whole.ends_with("\r\n") ? "\r\n" : whole.ends_with('\n') ? "\n" : "";
        script.lines.push_back({std::string(whole.substr(0, size - end.size())), std::string(end)});
        text.remove_prefix(size);
    }
}

bool isExpectation(std::string_view line) { return line.starts_with(ExpectedMark) || line == ">"; }

}  // namespace

Script readScript(const std::string& file, std::string_view utf8) {
    Script script;
    script.file = file;
    splitLines(script, utf8);
    for (std::size_t i = 0; i < script.lines.size(); ++i) {
        const std::string& line = script.lines[i].text;
        const auto text = fromUtf8(line);
        if (!text) throw ScriptError(file, i + 1, "the line is not valid UTF-8");
        if (isExpectation(line)) {
            if (script.commands.empty())
                throw ScriptError(file, i + 1, "no command stands above what is to be printed");
            ScriptCommand& above = script.commands.back();
            if (above.expectedFrom == above.expectedTo)
                above.expectedFrom = i;
            else if (above.expectedTo != i)
                throw ScriptError(file, i + 1, "what a command prints stands in one piece");
            above.expectedTo = i + 1;
            continue;
        }
        const std::size_t start = line.find_first_not_of(" \t");
        if (start == std::string::npos || line[start] == '#') continue;
        script.commands.push_back(readCommand(file, i + 1, *text));
    }
    return script;
}

std::vector<std::string> Script::expected(const ScriptCommand& command) const {
    std::vector<std::string> texts;
    for (std::size_t i = command.expectedFrom; i < command.expectedTo; ++i)
        texts.push_back(lines[i].text.substr(std::min(lines[i].text.size(), ExpectedMark.size())));
    return texts;
}

std::string writeScript(const Script& script, const std::vector<std::vector<std::string>>& printed) {
    const auto endOf = [&script](std::size_t line) -> std::string_view {
        if (!script.lines[line].end.empty()) return script.lines[line].end;
        return line > 0 ? std::string_view(script.lines[line - 1].end) : "\n";
    };
    std::string text = script.mark;
    std::size_t next = 0;
    for (std::size_t i = 0; i < script.lines.size(); ++i) {
        if (isExpectation(script.lines[i].text)) continue;
        const bool isCommand = next < script.commands.size() && script.commands[next].line == i + 1;
        const bool isLast = !isCommand || printed[next].empty();
        text.append(script.lines[i].text).append(isLast ? script.lines[i].end : endOf(i));
        if (!isCommand) continue;
        std::size_t expected = script.commands[next].expectedFrom;
        for (const std::string& line : printed[next]) {
            const bool stood = expected < script.commands[next].expectedTo;
            text.append(ExpectedMark).append(line).append(endOf(stood ? expected++ : i));
        }
        ++next;
    }
    return text;
}

}  // namespace kel
