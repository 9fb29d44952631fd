#include "apps/kelforms/Options.h"

#include <algorithm>

#include "forms/ScriptValue.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel::app {

const char* const Usage =
    "kelforms run FORM.frm [--on terminal] [--locale L]   show the form in a window\n"
    "kelforms run FORM.frm --data DATABASE [--table T]    the same with records: a file of SQLite, or\n"
    "                                                     postgresql://user@host:port/name\n"
    "kelforms make DATABASE TABLE FORM.frm [--force]      make a form for a table\n"
    "kelforms import FORM.frm LIST.csv --data DATABASE [--table T] [--all-or-nothing]\n"
    "                                                     store the records of a list, each checked by the form\n"
    "kelforms export FORM.frm LIST.csv|- --data DATABASE [--table T]\n"
    "                                                     write the records to a list\n"
    "kelforms play FORM.frm SCRIPT|- [options]            play a script on the form\n"
    "kelforms check FORM.frm                              say what the file holds and what is wrong with it\n"
    "kelforms save FORM.frm OUT.frm                       load every control and write the form back\n"
    "kelforms convert FORM.frm OUT.ui                     carry the form over to Qt's designer\n"
    "kelforms shot FORM.frm OUT.png [--locale L]          take a picture of the form\n"
    "kelforms describe [CLASS] [--json|--markdown]        members, events and saved properties\n"
    "kelforms describe --commands                         the keys of a window with records\n"
    "\n"
    "options of play: --on headless|qt|win32|terminal, --locale en-GB, --today 2013-03-15, --now 10:15:30,\n"
    "  --colour-depth 24, --twips-per-pixel 15, --data DATABASE, --table T, --shot FILE.png, --used FILE,\n"
    "  --check, --update\n"
    "options of import and export: --separator \";\", --no-header, --locale L\n"
    "windows of Qt's take Qt's usual options: -style fusion, -reverse, -platform wayland, -stylesheet FILE ...\n";

namespace {

struct Reader {
    const std::vector<std::string>& arguments;
    std::size_t next = 0;

    std::string value(const std::string& option) {
        if (next == arguments.size()) throw UsageError(option + ": a value is missing");
        return arguments[next++];
    }

    std::u16string wideValue(const std::string& option) {
        const std::string bytes = value(option);
        const auto text = fromUtf8(bytes);
        if (!text) throw UsageError(option + ": the value is not valid UTF-8");
        return *text;
    }

    std::int32_t number(const std::string& option, std::int32_t least, std::int32_t most) {
        const std::u16string text = wideValue(option);
        double number = 0;
        if (!readPlainNumber(text, defaultRegion(), number) || number < least || number > most ||
            number != static_cast<std::int32_t>(number))
            throw UsageError(option + ": a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                             " is wanted, not \"" + toUtf8(text) + "\"");
        return static_cast<std::int32_t>(number);
    }

    char separator(const std::string& option) {
        const std::string text = value(option);
        if (text == "tab") return '\t';
        if (text.size() != 1 || text == "\"" || text == "\n" || text == "\r")
            throw UsageError(option + ": one character is wanted, or tab, not \"" + text + "\"");
        return text.front();
    }

    const RegionalSettings& region(const std::string& option) {
        const std::u16string name = wideValue(option);
        const RegionalSettings* region = findRegion(name);
        if (region == nullptr) throw UsageError(option + ": there is no region \"" + toUtf8(name) + "\"");
        return *region;
    }

    Date moment(const std::string& option, std::optional<Date> (*read)(std::u16string_view), const char* example) {
        const auto moment = read(wideValue(option));
        if (!moment) throw UsageError(option + ": it is written " + example);
        return *moment;
    }
};

/// False when `word` is no option.
bool readOption(const std::string& word, Reader& reader, Options& options) {
    if (word == "--on")
        options.on = reader.value(word);
    else if (word == "--locale")
        options.home.region = &reader.region(word);
    else if (word == "--today")
        options.today = reader.moment(word, readScriptDate, "2013-03-15");
    else if (word == "--now")
        options.now = reader.moment(word, readScriptTime, "10:15:30");
    else if (word == "--colour-depth")
        options.home.colorDepth = reader.number(word, 1, 64);
    else if (word == "--twips-per-pixel")
        options.home.twipsPerPixel = reader.number(word, 1, 1440);
    else if (word == "--data")
        options.data = reader.value(word);
    else if (word == "--table")
        options.table = reader.value(word);
    else if (word == "--separator")
        options.list.separator = reader.separator(word);
    else if (word == "--no-header")
        options.list.hasHeader = false;
    else if (word == "--all-or-nothing")
        options.allOrNothing = true;
    else if (word == "--shot")
        options.shot = reader.value(word);
    else if (word == "--used")
        options.used = reader.value(word);
    else if (word == "--check")
        options.check = true;
    else if (word == "--force")
        options.force = true;
    else if (word == "--update")
        options.update = true;
    else if (word == "--json")
        options.json = true;
    else if (word == "--markdown")
        options.markdown = true;
    else if (word == "--commands")
        options.commands = true;
    else
        return false;
    return true;
}

struct QtOption {
    std::string_view name;
    bool hasValue;
};
constexpr QtOption QtOptions[] = {
    {"-display", true},      {"-geometry", true},           {"-icon", true},
    {"-platform", true},     {"-platformpluginpath", true}, {"-platformtheme", true},
    {"-plugin", true},       {"-qwindowgeometry", true},    {"-qwindowicon", true},
    {"-qwindowtitle", true}, {"-reverse", false},           {"-session", true},
    {"-style", true},        {"-stylesheet", true},         {"-title", true},
    {"-widgetcount", false},
};

/// One that Qt understands, with its value beside it or after an equals sign. False when it is none.
bool readQtOption(const std::string& word, Reader& reader, Options& options) {
    const std::string_view name = std::string_view(word).substr(0, word.find('='));
    const auto found = std::find_if(std::begin(QtOptions), std::end(QtOptions),
                                    [name](const QtOption& option) { return option.name == name; });
    if (found == std::end(QtOptions)) return false;
    options.ofQt.push_back(word);
    if (found->hasValue && name.size() == word.size()) options.ofQt.push_back(reader.value(word));
    return true;
}

}  // namespace

Options readOptions(const std::vector<std::string>& arguments) {
    if (arguments.empty()) throw UsageError("a command is missing");
    Options options;
    options.command = arguments.front();
    Reader reader{arguments, 1};
    while (reader.next < arguments.size()) {
        const std::string& word = arguments[reader.next++];
        if (!word.starts_with("-") || word == "-")
            options.files.push_back(word);
        else if (!readOption(word, reader, options) && !readQtOption(word, reader, options))
            throw UsageError("there is no option " + word);
    }
    // A script prints the same on every machine.
    if (options.command == "play" && options.home.region == nullptr) options.home.region = &defaultRegion();
    return options;
}

}  // namespace kel::app
