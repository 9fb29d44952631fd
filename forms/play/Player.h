#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/Form.h"
#include "forms/play/PlaySystem.h"
#include "forms/play/RecordCommands.h"
#include "forms/play/Script.h"

namespace kel {

/// Plays script commands on a form and writes down what they print.
class Player final : private ControlObserver {
public:
    /// Opens and shows the form, when `prepare` has set the session's clock. Throws FormError when the file
    /// is wrong. `records`, which outlives the player, is the form's database, if it has one.
    Player(Home& home, const std::string& formPath, const std::function<void(PlaySystem&)>& prepare,
           RecordCommands* records = nullptr);
    ~Player();

    Form& form() { return *Form_; }

    /// Runs one command and gives the lines it printed, in UTF-8. Throws ScriptError (naming `scriptFile`)
    /// when the command asks for what is not there, FormError when a form to be loaded is wrong.
    std::vector<std::string> play(const ScriptCommand& command, const std::string& scriptFile);

    /// What has been written down outside of a command since the last one or since this was asked: events, beeps and
    /// messages that a program's own calls have brought about.
    std::vector<std::string> takePrinted() { return std::exchange(Printed_, {}); }

    /// What the commands so far have come by, a line each: "KelText get Caption", likewise put, call, event, and load
    /// and save of properties that differ from their default.
    const std::set<std::string>& used() const { return Used_; }

private:
    void controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) override;
    void propertyReported(PlacedControl& control, std::u16string_view bagName) override;

    void print(const std::u16string& line);
    void open(const std::string& path);
    void use(const ClassModel& model, std::string_view how, std::u16string_view name);
    void useLoaded(const FormFile& file);
    PlacedControl& controlNamed(const ScriptCommand& command, const std::string& scriptFile);
    void execute(const ScriptCommand& command, const std::string& scriptFile);

    void press(const KeyStroke& stroke, const ScriptCommand& command);
    void accessMember(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile);
    void setAnswer(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile);
    void setCaret(const ScriptCommand& command, const std::string& scriptFile);
    void pick(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile);
    void spin(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile);
    void handOverRuntime();
    void runRecords(const ScriptCommand& command, const std::string& scriptFile);
    void close();
    void printBag(PlacedControl& control);
    void printReported(PlacedControl& control);
    void printProperties(PlacedControl& control);
    void printProperty(PlacedControl& control, const MemberRow& property);
    /// A property as it reads.
    Variant valueOf(PlacedControl& control, const MemberRow& property);

    Home& Home_;
    RecordCommands* Records_;
    std::vector<std::string> Printed_;
    PlaySystem System_;
    std::map<std::u16string, bool> Answers_;  ///< by "name.event"
    std::map<const PlacedControl*, std::vector<std::u16string>> Reported_;
    std::set<std::string> Used_;
    std::unique_ptr<Form> Form_;
};

}  // namespace kel
