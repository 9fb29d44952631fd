#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/Keys.h"
#include "values/Variant.h"

/// Play scripts: one command a line, `> ` lines with what the command above them must print.
namespace kel {

/// What is wrong with a script, and where: "FILE:LINE: what is wrong".
class ScriptError : public std::runtime_error {
public:
    ScriptError(const std::string& file, std::size_t line, const std::string& message)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + message) {}
};

/// One command, read and found well-formed. Which fields mean something depends on the verb.
struct ScriptCommand {
    enum class Verb : std::uint8_t {
        Tab,
        BackTab,
        Focus,
        Click,
        DoubleClick,
        Type,
        Key,
        Paste,
        Caret,
        Spin,
        Pick,
        Menu,
        Get,
        Set,
        Call,
        Answer,
        Show,
        Layout,
        Tip,
        Reported,
        Bag,
        Properties,
        Resize,
        Where,
        Clock,
        Advance,
        Runtime,
        Save,
        Load,
        Records
    };
    Verb verb = Verb::Where;
    std::size_t line = 0;   ///< 1-based
    std::u16string name;    ///< of a control
    std::u16string member;  ///< after the point
    std::u16string text;    ///< of type and paste; a file of save and load; all of a command of the records
    KeyStroke stroke;       ///< of key
    std::vector<std::int32_t> numbers;
    std::vector<Variant> values;
    bool up = false;               ///< of spin
    std::size_t expectedFrom = 0;  ///< lines of the script, 0-based, half open, that hold what it must print
    std::size_t expectedTo = 0;
};

/// A whole script.
struct Script {
    struct Line {
        std::string text;
        std::string end;  ///< LF, CR LF, or nothing at the end of the file
    };

    std::string file;
    std::string mark;  ///< a byte order mark, if one stands in front
    std::vector<Line> lines;
    std::vector<ScriptCommand> commands;

    /// What the command must print.
    std::vector<std::string> expected(const ScriptCommand& command) const;
};

/// Reads a script; throws ScriptError at the first line that is not well-formed.
Script readScript(const std::string& file, std::string_view utf8);

/// The script with each command's `> ` lines replaced by what it printed; `printed` has an entry a command. All else
/// stays to the byte.
std::string writeScript(const Script& script, const std::vector<std::vector<std::string>>& printed);

}  // namespace kel
