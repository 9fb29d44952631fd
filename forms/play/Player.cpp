#include "forms/play/Player.h"

#include <algorithm>

#include "controls/Classes.h"
#include "forms/file/FormBag.h"
#include "forms/play/ControlInWords.h"
#include "forms/ScriptValue.h"
#include "library/AutomationError.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel {

namespace {

using Verb = ScriptCommand::Verb;

/// Keeps what a control saves, in the order it saves it.
class ListingBag final : public PropertyBag {
public:
    Variant readProperty(const PersistedRow& row) override { return toVariant(row.readDefault); }
    void writeProperty(const PersistedRow& row, const Variant& value) override {
        if (!equalsDefault(value, row.writeDefault)) Entries.emplace_back(row.name, value);
    }
    bool holds(std::u16string_view name) const {
        return std::any_of(Entries.begin(), Entries.end(), [&](const auto& entry) { return entry.first == name; });
    }
    std::vector<std::pair<std::u16string, Variant>> Entries;
};

/// Another value of the same type; a date where there is none. That date has a time of day, for controls that keep
/// either.
Variant another(const Variant& value) {
    if (const bool* const truth = std::get_if<bool>(&value)) return !*truth;
    if (const auto* const number = std::get_if<std::int16_t>(&value)) return static_cast<std::int16_t>(*number + 1);
    if (const auto* const number = std::get_if<std::int32_t>(&value)) return *number - (*number == INT32_MAX ? 1 : -1);
    if (const double* const number = std::get_if<double>(&value)) return *number + 0.5;
    if (const auto* const text = std::get_if<std::u16string>(&value)) return *text + u"x";
    return Date{41334.75};
}

std::size_t repetitions(const ScriptCommand& command) {
    return command.numbers.empty() ? 1 : static_cast<std::size_t>(std::max(command.numbers.front(), 0));
}

/// By-reference arguments as they came back.
std::u16string returnedArguments(const MemberRow& member, std::span<const Variant> arguments) {
    std::u16string text;
    const auto parameters = member.parameters();
    for (std::size_t i = 0; i < parameters.size() && i < arguments.size(); ++i) {
        if (!parameters[i].byReference) continue;
        const std::u16string value = writeScriptValue(arguments[i]);
        if (!value.empty()) text += u" " + value;
    }
    return text;
}

std::string_view verbName(Verb verb) {
    switch (verb) {
        case Verb::Get: return "get";
        case Verb::Set: return "put";
        default: return "call";
    }
}

DispatchFault access(Verb verb, LibraryObject& object, const MemberRow& member, std::vector<Variant>& arguments,
                     Variant& result, const RegionalSettings& region) {
    switch (verb) {
        case Verb::Get: return getMember(object, member, arguments, result, region);
        case Verb::Set: return putMember(object, member, arguments.front(), region);
        default: return callMember(object, member, arguments, result, region);
    }
}

}  // namespace

Player::Player(Home& home, const std::string& formPath, const std::function<void(PlaySystem&)>& prepare,
               RecordCommands* records)
    : Home_(home), Records_(records), System_(home.system(), [this](const std::u16string& line) { print(line); }) {
    prepare(System_);
    open(formPath);
}

Player::~Player() { close(); }

void Player::close() {
    if (Records_ != nullptr && Form_) Records_->formCloses();
    Form_.reset();
}

void Player::open(const std::string& path) {
    FormFile file = readFormFile(path);
    close();
    Reported_.clear();
    useLoaded(file);
    ControlObserver& observer = *this;
    Form_ = std::make_unique<Form>(Home_, System_, observer, std::move(file));
    Form_->show();
    if (Records_ != nullptr) Records_->formOpened(*Form_);
}

void Player::use(const ClassModel& model, std::string_view how, std::u16string_view name) {
    Used_.insert(toUtf8(model.name) + " " + std::string(how) + " " + toUtf8(name));
}

void Player::useLoaded(const FormFile& file) {
    for (FormBlockId id = 0; id < file.blocks().size(); ++id) {
        const FormBlock& block = file.block(id);
        const ClassModel* const model = isLibraryClass(block) ? libraryClasses().find(block.className) : nullptr;
        if (model == nullptr) continue;
        for (const PersistedRow& row : model->loaded)
            if (file.find(id, row.readName)) use(*model, "load", row.name);
    }
}

void Player::print(const std::u16string& line) { Printed_.push_back(toUtf8(line)); }

std::vector<std::string> Player::play(const ScriptCommand& command, const std::string& scriptFile) {
    Printed_.clear();
    try {
        execute(command, scriptFile);
    } catch (const AutomationError& error) {
        throw ScriptError(scriptFile, command.line, error.what());
    }
    return std::move(Printed_);
}

PlacedControl& Player::controlNamed(const ScriptCommand& command, const std::string& scriptFile) {
    PlacedControl* control = Form_->find(command.name);
    if (control == nullptr)
        throw ScriptError(scriptFile, command.line, "the form has no control \"" + toUtf8(command.name) + "\"");
    return *control;
}

void Player::execute(const ScriptCommand& command, const std::string& scriptFile) {
    FormWindow& window = Form_->window();
    const auto control = [&]() -> PlacedControl& { return controlNamed(command, scriptFile); };
    const auto position = [&] { return command.numbers.empty() ? INT32_MAX : command.numbers[0]; };
    switch (command.verb) {
        case Verb::Tab: press({keys::Tab, 0, NoModifier}, command); break;
        case Verb::BackTab: press({keys::Tab, 0, ShiftKey}, command); break;
        case Verb::Key: press(command.stroke, command); break;
        case Verb::Focus: window.focus(control()); break;
        case Verb::Click: window.click(control(), position()); break;
        case Verb::DoubleClick: window.doubleClick(control(), position()); break;
        case Verb::Menu: window.rightClick(control()); break;
        case Verb::Type:
            for (std::u16string_view rest = command.text; !rest.empty();) window.press(strokeFor(takeCodePoint(rest)));
            break;
        case Verb::Paste:
            window.setClipboard(command.text);
            window.press({u'V', u'V', ControlKey});
            break;
        case Verb::Caret: setCaret(command, scriptFile); break;
        case Verb::Spin: spin(control(), command, scriptFile); break;
        case Verb::Pick: pick(control(), command, scriptFile); break;
        case Verb::Get:
        case Verb::Set:
        case Verb::Call: accessMember(control(), command, scriptFile); break;
        case Verb::Answer: setAnswer(control(), command, scriptFile); break;
        case Verb::Show: print(describeLook(control().name(), control().control())); break;
        case Verb::Layout: print(describeLayout(control().name(), control().bounds(), control().control())); break;
        case Verb::Tip: print(describeTip(control().name(), control().control())); break;
        case Verb::Reported: printReported(control()); break;
        case Verb::Bag: printBag(control()); break;
        case Verb::Properties: printProperties(control()); break;
        case Verb::Resize: {
            const Rect old = control().bounds();
            control().setBounds(withinReach(Rect{old.left, old.top, command.numbers[0], command.numbers[1]}));
            break;
        }
        case Verb::Where: {
            const PlacedControl* focused = window.focused();
            print(u"focus " + (focused == nullptr ? std::u16string(u"nowhere") : focused->name()));
            break;
        }
        case Verb::Clock: System_.setTimer(std::get<Date>(command.values[0]).Serial * SecondsPerDay); break;
        case Verb::Advance: System_.advance(command.numbers[0]); break;
        case Verb::Runtime: handOverRuntime(); break;
        case Verb::Save: Form_->save(toUtf8(command.text)); break;
        case Verb::Load: open(toUtf8(command.text)); break;
        case Verb::Records: runRecords(command, scriptFile); break;
    }
}

void Player::press(const KeyStroke& stroke, const ScriptCommand& command) {
    for (std::size_t i = repetitions(command); i > 0; --i) Form_->window().press(stroke);
}

void Player::setCaret(const ScriptCommand& command, const std::string& scriptFile) {
    PlacedControl* focused = Form_->window().focused();
    TextEntry* const box = focused == nullptr ? nullptr : focused->control().widgets().entry;
    if (box == nullptr) throw ScriptError(scriptFile, command.line, "no text field has the focus");
    box->setSelStart(command.numbers[0]);
    if (command.numbers.size() > 1) box->setSelLength(command.numbers[1]);
}

void Player::spin(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile) {
    const UpDown* const spinner = control.control().widgets().upDown;
    if (spinner == nullptr || !spinner->visible())
        throw ScriptError(scriptFile, command.line,
                          toUtf8(control.name()) + (spinner == nullptr ? " has no spinner" : " shows no spinner"));
    for (std::size_t i = repetitions(command); i > 0; --i) Form_->window().spin(control, command.up);
}

void Player::pick(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile) {
    const ComboBox* const box = control.control().widgets().comboBox;
    const std::string name = toUtf8(control.name());
    if (box == nullptr) throw ScriptError(scriptFile, command.line, name + " has no list");
    const std::int32_t item = command.numbers[0] - 1;
    if (!box->items().contains(item))
        throw ScriptError(scriptFile, command.line,
                          name + " has " + std::to_string(box->items().size()) + " items, and no item " +
                              std::to_string(command.numbers[0]));
    Form_->window().pick(control, item);
}

void Player::accessMember(PlacedControl& placed, const ScriptCommand& command, const std::string& scriptFile) {
    Control& control = placed.control();
    const ClassModel& model = control.model();
    const MemberRow* member = findMember(model, command.member);
    std::vector<Variant> arguments = command.values;
    Variant result = Missing{};
    const DispatchFault fault = member == nullptr
                                    ? DispatchFault{DispatchFault::Kind::UnknownName}
                                    : access(command.verb, control, *member, arguments, result, Home_.region());
    if (!fault.ok())
        throw ScriptError(scriptFile, command.line,
                          toUtf8(describeFault(fault, model, command.member, command.values)));
    use(model, verbName(command.verb), member->name);
    const std::u16string value = writeScriptValue(result, model.datesAreTimes) + returnedArguments(*member, arguments);
    if (command.verb != Verb::Set && !value.empty())
        print(placed.name() + u"." + std::u16string(member->name) + u" = " +
              (value.starts_with(u' ') ? value.substr(1) : value));
}

void Player::setAnswer(PlacedControl& control, const ScriptCommand& command, const std::string& scriptFile) {
    const EventRow* event = findEvent(control.control().model(), command.member);
    const bool* answer = std::get_if<bool>(&command.values[0]);
    if (event == nullptr || event->parameters.empty())
        throw ScriptError(scriptFile, command.line,
                          toUtf8(command.name + u"." + command.member) + " is no event that takes an answer");
    if (answer == nullptr) throw ScriptError(scriptFile, command.line, "the answer is True or False");
    Answers_[control.name() + u"." + std::u16string(event->name)] = *answer;
}

void Player::controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) {
    std::u16string line = control.name() + u"." + std::u16string(event.name);
    const auto answer = Answers_.find(line);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (answer != Answers_.end() && event.parameters[i].byReference) arguments[i] = answer->second;
        line += u" " + std::u16string(event.parameters[i].name) + u"=" + writeScriptValue(arguments[i]);
    }
    use(control.control().model(), "event", event.name);
    print(u"event " + line);
}

void Player::propertyReported(PlacedControl& control, std::u16string_view bagName) {
    Reported_[&control].emplace_back(bagName);
}

void Player::handOverRuntime() {
    const ClassModel& model = *libraryClasses().find(u"KelControlHandler");
    const ObjectPtr handler = model.makeObject(Home_.settings());
    std::vector<Variant> arguments{ObjectPtr(Home_.settings().makeDefaultRuntime())};
    Variant result;
    callMember(static_cast<LibraryObject&>(*handler), *findMember(model, u"SetRuntime"), arguments, result,
               Home_.region());
    use(model, "call", u"SetRuntime");
}

void Player::runRecords(const ScriptCommand& command, const std::string& scriptFile) {
    if (Records_ == nullptr) throw ScriptError(scriptFile, command.line, "the form has no database: --data is wanted");
    try {
        Records_->run(command.text, [this](const std::u16string& line) { print(line); });
    } catch (const RecordCommands::Error& error) {
        throw ScriptError(scriptFile, command.line, error.what());
    }
}

void Player::printReported(PlacedControl& control) {
    std::u16string names;
    for (const std::u16string& name : Reported_[&control]) names += (names.empty() ? u"" : u",") + name;
    Reported_[&control].clear();
    print(control.name() + u" reported " + (names.empty() ? std::u16string(u"nothing") : names));
}

void Player::printBag(PlacedControl& control) {
    ListingBag bag;
    control.control().WriteProperties(bag);
    const ClassModel& model = control.control().model();
    for (const auto& [name, value] : bag.Entries) {
        use(model, "save", name);
        print(control.name() + u" bag " + quoteScriptText(name) + u" = " +
              writeScriptValue(value, model.datesAreTimes));
    }
    if (bag.Entries.empty()) print(control.name() + u" bag nothing");
}

void Player::printProperties(PlacedControl& control) {
    for (const MemberRow& row : control.control().model().members)
        if (row.get != nullptr && row.put != nullptr) printProperty(control, row);
}

void Player::printProperty(PlacedControl& placed, const MemberRow& property) {
    Control& control = placed.control();
    const ClassModel& model = control.model();
    std::vector<std::u16string>& reported = Reported_[&placed];
    const Variant other = another(valueOf(placed, property));
    reported.clear();
    putMember(control, property, other, Home_.region());
    use(model, "put", property.name);
    ListingBag bag;
    control.WriteProperties(bag);
    if (bag.holds(property.name)) use(model, "save", property.name);
    print(placed.name() + u"." + std::u16string(property.name) + u" = " +
          writeScriptValue(valueOf(placed, property), model.datesAreTimes) + (reported.empty() ? u"" : u" reported") +
          (bag.holds(property.name) ? u" saved" : u""));
    reported.clear();
}

Variant Player::valueOf(PlacedControl& placed, const MemberRow& property) {
    Variant value;
    getMember(placed.control(), property, {}, value, Home_.region());
    use(placed.control().model(), "get", property.name);
    return value;
}

}  // namespace kel
