#include "apps/kelforms/Commands.h"

#include <algorithm>
#include <iostream>
#include <iterator>

#include "apps/kelforms/Convert.h"
#include "apps/kelforms/Databases.h"
#include "apps/kelforms/Homes.h"
#include "apps/kelforms/Lists.h"
#include "apps/kelforms/MakeForm.h"
#include "controls/Classes.h"
#include "forms/Describe.h"
#include "forms/file/FileWriter.h"
#include "forms/file/FormStore.h"
#include "forms/play/Player.h"
#include "host/focus/Mnemonic.h"
#include "records/Commands.h"
#include "records/RecordScript.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel::app {

namespace {

std::string readAll(const std::string& path) {
    if (path == "-") return {std::istreambuf_iterator<char>(std::cin), {}};
    return readWholeFile(pathOf(path));
}

void writePicture(FormWindow& window, const std::string& path) {
    std::string picture = window.picture();
    if (picture.empty()) throw UsageError("there are no pictures on this home, so none for " + path);
    writeFile(pathOf(path), std::move(picture));
}

void setClock(PlaySystem& system, const Options& options) {
    if (options.today) system.setToday(*options.today);
    if (options.now) system.setTimer(options.now->Serial * SecondsPerDay);
}

/// Says where the printed lines differ from the expected ones; true when they do not.
bool compare(const Script& script, const ScriptCommand& command, const std::vector<std::string>& printed) {
    const std::vector<std::string> expected = script.expected(command);
    if (printed == expected) return true;
    std::cout << script.file << ":" << command.line << ": " << script.lines[command.line - 1].text << "\n";
    for (const std::string& line : expected) std::cout << "  wanted  " << line << "\n";
    for (const std::string& line : printed) std::cout << "  printed " << line << "\n";
    if (printed.empty()) std::cout << "  printed nothing\n";
    return false;
}

ExitStatus playScript(const Options& options) {
    const std::string& scriptFile = options.files[1];
    const Script script = readScript(scriptFile == "-" ? "standard input" : scriptFile, readAll(scriptFile));
    if (options.update && scriptFile == "-") throw UsageError("--update: standard input cannot be rewritten");
    const auto session = openHome(options.on.empty() ? "headless" : options.on, options, false);
    std::unique_ptr<Database> database;
    std::unique_ptr<records::RecordScript> records;
    if (!options.data.empty()) {
        database = std::make_unique<Database>(options.data);
        records =
            std::make_unique<records::RecordScript>(database->store(), tableOf(options), session->home().region());
    }
    Player player(
        session->home(), options.files[0], [&](PlaySystem& system) { setClock(system, options); }, records.get());

    bool same = true;
    std::vector<std::vector<std::string>> printed;
    for (const ScriptCommand& command : script.commands) {
        printed.push_back(player.play(command, script.file));
        if (options.check) same = compare(script, command, printed.back()) && same;
        if (options.check || options.update) continue;
        for (const std::string& line : printed.back()) std::cout << line << "\n";
    }
    if (!options.shot.empty()) writePicture(player.form().window(), options.shot);
    if (!options.used.empty()) {
        std::string used;
        for (const std::string& line : player.used()) used += line + "\n";
        writeFile(pathOf(options.used), std::move(used));
    }
    if (options.update) writeFile(pathOf(scriptFile), writeScript(script, printed));
    return same ? Done : Differed;
}

ExitStatus runForm(const Options& options) {
    if (options.on == "headless") throw UsageError("--on headless: nobody would see the form");
    const std::string home = options.on.empty() ? WindowHome : options.on;
    if (!options.data.empty()) mustShowRecords(home);
    const auto session = openHome(home, options, true);
    SilentObserver observer;
    Form form(session->home(), session->home().system(), observer, readFormFile(options.files[0]));
    if (!options.data.empty()) {
        Database database(options.data);
        const auto window = openRecords(form, session->home(), database.store(), tableOf(options));
        session->runUntilClosed();
        return Done;
    }
    form.show();
    // A form starts with the focus nowhere; whoever opens one to fill it in types at once.
    form.window().press({keys::Tab, 0, NoModifier});
    session->runUntilClosed();
    return Done;
}

ExitStatus shootForm(const Options& options) {
    if (!options.data.empty()) mustShowRecords(WindowHome);
    const auto session = openHome(WindowHome, options, false);
    SilentObserver observer;
    Form form(session->home(), session->home().system(), observer, readFormFile(options.files[0]));
    if (!options.data.empty()) {
        Database database(options.data);
        const auto window = openRecords(form, session->home(), database.store(), tableOf(options));
        writeFile(pathOf(options.files[1]), window->picture());
        return Done;
    }
    form.show();
    writePicture(form.window(), options.files[1]);
    return Done;
}

ExitStatus saveForm(const Options& options) {
    const auto session = openHome("headless", options, false);
    SilentObserver observer;
    const Form form(session->home(), session->home().system(), observer, readFormFile(options.files[0]));
    form.save(options.files[1]);
    return Done;
}

void printBlock(const FormFile& file, FormBlockId id) {
    const FormBlock& block = file.block(id);
    std::size_t depth = 0;
    for (FormBlockId parent = block.parent; parent != NoFormBlock; parent = file.block(parent).parent) ++depth;
    std::cout << block.line << ": " << std::string(2 * depth, ' ') << toUtf8(block.className) << " "
              << toUtf8(block.name);
    if (block.index) std::cout << "(" << *block.index << ")";
    std::cout << (id == 0 || isLibraryClass(block) ? "" : ", kept as it is") << "\n";
    const ClassModel* model = isLibraryClass(block) ? libraryClasses().find(block.className) : nullptr;
    if (model == nullptr) return;
    for (const FormProperty& property : file.properties(id))
        if (!isPropertyOf(*model, property.name))
            std::cout << property.line << ": " << std::string(2 * depth + 2, ' ') << toUtf8(property.name)
                      << " is no property of " << toUtf8(model->name) << "; it is kept as it is\n";
}

/// What would come back otherwise when the form is saved, or is taken only in part.
void printDeviations(const Form& form, FormBlockId id) {
    constexpr std::size_t LongestShown = 40;
    for (const ControlBag::Deviation& deviation : form.deviations(id)) {
        const std::u16string_view shown = headOf(deviation.value, LongestShown);
        std::cout << deviation.line << ": " << toUtf8(deviation.name)
                  << (deviation.isKept ? " is not taken as it stands, but kept so: the control has "
                                       : " comes in otherwise, and is saved so: ")
                  << toUtf8(shown) << (shown.size() < deviation.value.size() ? "..." : "") << "\n";
    }
}

ExitStatus checkForm(const Options& options) {
    const FormFile file = readFormFile(options.files[0]);
    const auto session = openHome("headless", options, false);
    SilentObserver observer;
    // Loading is what finds wrong classes and values.
    const Form form(session->home(), session->home().system(), observer, file);
    for (FormBlockId id = 0; id < file.blocks().size(); ++id) {
        printBlock(file, id);
        printDeviations(form, id);
    }
    return Done;
}

void describeCommands() {
    std::cout << "| key | menu | command | what it does |\n|---|---|---|---|\n";
    for (const records::CommandRow& row : records::commandRows())
        std::cout << "| " << toUtf8(row.key) << " | " << toUtf8(readCaption(row.menu).text) << " | "
                  << toUtf8(readCaption(row.caption).text) << " | " << toUtf8(row.help) << " |\n";
}

ExitStatus describe(const Options& options) {
    if (options.commands) {
        describeCommands();
        return Done;
    }
    std::vector<const ClassModel*> models = libraryClasses().all();
    if (!options.files.empty()) {
        const auto name = fromUtf8(options.files[0]);
        const ClassModel* model = name ? libraryClasses().find(*name) : nullptr;
        if (model == nullptr) throw UsageError("the library has no class \"" + options.files[0] + "\"");
        models = {model};
    }
    if (options.json)
        std::cout << describeAsJson(models);
    else if (options.markdown)
        std::cout << describeAsMarkdown(models);
    else
        for (const ClassModel* model : models)
            std::cout << (model == models.front() ? "" : "\n") << describeClass(*model);
    return Done;
}

struct CommandRow {
    const char* name;
    std::size_t leastFiles;
    std::size_t mostFiles;
    ExitStatus (*run)(const Options& options);
};
constexpr CommandRow Commands[] = {
    {"run", 1, 1, runForm},       {"make", 3, 3, makeForm},       {"import", 2, 2, importList},
    {"export", 2, 2, exportList}, {"play", 2, 2, playScript},     {"check", 1, 1, checkForm},
    {"save", 2, 2, saveForm},     {"convert", 2, 2, convertForm}, {"shot", 2, 2, shootForm},
    {"describe", 0, 1, describe},
};

/// Throws UsageError where there is no such command, or not with so many files.
const CommandRow& commandOf(const Options& options) {
    const auto* const found = std::find_if(std::begin(Commands), std::end(Commands),
                                           [&](const CommandRow& row) { return options.command == row.name; });
    if (found == std::end(Commands)) throw UsageError("there is no command \"" + options.command + "\"");
    if (options.files.size() < found->leastFiles) throw UsageError(options.command + ": a file is missing");
    if (options.files.size() > found->mostFiles)
        throw UsageError(options.command + ": \"" + options.files[found->mostFiles] + "\" is too much");
    return *found;
}

}  // namespace

ExitStatus runCommand(const Options& options) { return commandOf(options).run(options); }

}  // namespace kel::app
