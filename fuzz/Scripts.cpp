#include <algorithm>
#include <filesystem>

#include "forms/file/FormStore.h"
#include "forms/play/Player.h"
#include "fuzz/Fuzz.h"
#include "fuzz/Stage.h"
#include "values/Text.h"

namespace kel::fuzz {
namespace {

using Verb = ScriptCommand::Verb;

constexpr std::size_t MostCommands = 300;
constexpr std::int32_t MostRepetitions = 30;

struct KnownForm {
    std::string name;
    std::string bytes;
    std::vector<std::u16string> controls;

    bool has(std::u16string_view control) const {
        return std::any_of(controls.begin(), controls.end(),
                           [&](const std::u16string& known) { return equalsIgnoringCase(known, control); });
    }
};

/// The forms that scripts are written for, in the folder where they are played.
std::vector<KnownForm> makeForms() {
    std::vector<KnownForm> forms;
    for (const char* const place : {KEL_SOURCE "/tests/play", KEL_SOURCE "/examples/forms"}) {
        for (const auto& entry : std::filesystem::directory_iterator(place)) {
            if (entry.path().extension() != ".frm") continue;
            KnownForm form{entry.path().filename().string(), readWholeFile(entry.path()), {}};
            const FormFile file = FormFile::parse(form.bytes, entry.path().string());
            for (const FormBlock& block : file.blocks())
                if (isLibraryClass(block)) form.controls.push_back(block.name);
            forms.push_back(std::move(form));
        }
    }
    std::sort(forms.begin(), forms.end(), [](const auto& left, const auto& right) { return left.name < right.name; });
    return forms;
}

const std::vector<KnownForm>& knownForms() {
    static const std::vector<KnownForm> forms = makeForms();
    return forms;
}

/// The form that has most of what a script names.
const KnownForm& formFor(const Script& script) {
    const std::vector<KnownForm>& forms = knownForms();
    const auto count = [&](const KnownForm& form) {
        return std::count_if(script.commands.begin(), script.commands.end(),
                             [&](const ScriptCommand& command) { return form.has(command.name); });
    };
    return *std::max_element(forms.begin(), forms.end(),
                             [&](const auto& left, const auto& right) { return count(left) < count(right); });
}

/// Nothing outside the folder is touched, and an input takes a moment.
bool mayBePlayed(const Script& script) {
    std::size_t files = 0;
    return script.commands.size() <= MostCommands &&
           std::all_of(script.commands.begin(), script.commands.end(), [&](const ScriptCommand& command) {
               if (command.verb != Verb::Save && command.verb != Verb::Load) return true;
               return ++files <= 4 && command.text.find_first_of(u"/\\") == std::u16string::npos &&
                      command.text.find(u"..") == std::u16string::npos && !command.text.starts_with(u'-');
           });
}

void checkWriting(const Script& script) {
    const auto rewritten = [](const Script& from) {
        std::vector<std::vector<std::string>> printed;
        for (const ScriptCommand& command : from.commands) printed.push_back(from.expected(command));
        return writeScript(from, printed);
    };
    const std::string written = rewritten(script);
    const Script again = readScript(script.file, written);
    require(again.commands.size() == script.commands.size(), "a script that is written has its commands");
    for (std::size_t i = 0; i < again.commands.size(); ++i)
        require(again.expected(again.commands[i]) == script.expected(script.commands[i]),
                "a script that is written expects what was printed");
    require(rewritten(again) == written, "a script that was written is written the same again");
}

/// Stands in the folder for as long as it plays, and leaves there what every script finds.
class Visit {
public:
    explicit Visit(const Script& script) : Back_(std::filesystem::current_path()) {
        static bool isReady = false;
        if (!isReady) {
            for (const auto& entry : std::filesystem::directory_iterator(folder()))
                std::filesystem::remove_all(entry.path());
            for (const KnownForm& form : knownForms()) writeInFolder(form.name, form.bytes);
            writeInFolder("contact.frx", readWholeFile(KEL_SOURCE "/examples/forms/contact.frx"));
            writeInFolder("saved.frx", readWholeFile(KEL_SOURCE "/tests/play/saved.frx"));
        }
        isReady = std::none_of(script.commands.begin(), script.commands.end(),
                               [](const ScriptCommand& command) { return command.verb == Verb::Save; });
        std::filesystem::current_path(folder());
    }
    ~Visit() { std::filesystem::current_path(Back_); }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

private:
    std::filesystem::path Back_;
};

void play(const Script& script) {
    const KnownForm& form = formFor(script);
    const Visit visit(script);
    Stage stage(defaultRegion());
    Player player(stage.home(), form.name, [](PlaySystem& system) {
        system.setToday(Date{41348});
        system.setTimer(36930);
    });
    for (ScriptCommand command : script.commands) {
        const bool repeats = command.verb == Verb::Tab || command.verb == Verb::BackTab || command.verb == Verb::Key ||
                             command.verb == Verb::Spin;
        if (repeats && !command.numbers.empty())
            command.numbers.front() = std::min(command.numbers.front(), MostRepetitions);
        try {
            player.play(command, script.file);
        } catch (const ScriptError&) {  // The next one may be possible.
        }
        for (const std::u16string& name : form.controls)
            if (PlacedControl* const control = player.form().find(name)) checkControl(*control);
    }
}

}  // namespace
}  // namespace kel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    try {
        const kel::Script script = kel::readScript("x.play", {reinterpret_cast<const char*>(data), size});
        checkWriting(script);
        if (mayBePlayed(script)) play(script);
    } catch (const kel::ScriptError&) {  // It is refused, and told why.
    } catch (const kel::FormError&) {
    }
    return 0;
}
