#include "platform/headless/HeadlessForm.h"

#include <stdexcept>

#include "forms/play/Player.h"
#include "forms/ScriptValue.h"
#include "library/AutomationError.h"
#include "library/Dispatch.h"
#include "platform/headless/HeadlessHome.h"
#include "values/Text.h"

namespace kel {

namespace {

std::u16string wide(std::string_view utf8) {
    const auto text = fromUtf8(utf8);
    if (!text) throw std::invalid_argument("a name is not valid UTF-8");
    return *text;
}

HomeOptions homeOptions(const HeadlessOptions& options) {
    const RegionalSettings* const region = findRegion(wide(options.locale));
    if (region == nullptr) throw std::invalid_argument("there is no locale \"" + options.locale + "\"");
    if (options.twipsPerPixel < 1 || options.twipsPerPixel > 1440)
        throw std::invalid_argument("twipsPerPixel is 1 to 1440, not " + std::to_string(options.twipsPerPixel));
    return {region, 0, options.twipsPerPixel};
}

/// getMember and callMember.
using Access = DispatchFault(Object&, const MemberRow&, std::span<Variant>, Variant&, const RegionalSettings&);

}  // namespace

class HeadlessForm::Session {
public:
    Session(const std::string& path, const HeadlessOptions& options)
        : Home_(headless::makeHome(homeOptions(options))), Player_(*Home_, path, [&](PlaySystem& system) {
              if (options.today) system.setToday(*options.today);
              if (options.timeOfDay) system.setTimer(*options.timeOfDay);
          }) {
        Player_.takePrinted();  // what loading has raised
    }

    Player& player() { return Player_; }
    Form& form() { return Player_.form(); }

    Control& control(std::string_view name) {
        PlacedControl* const placed = form().find(wide(name));
        if (placed == nullptr) throw std::invalid_argument("the form has no control \"" + std::string(name) + "\"");
        return placed->control();
    }

    Variant access(Access& how, std::string_view name, std::string_view member, std::vector<Variant>& arguments) {
        Variant result;
        run(name, member, arguments, [&](Control& control, const MemberRow& row) {
            return how(control, row, arguments, result, Home_->region());
        });
        return result;
    }

    void put(std::string_view name, std::string_view member, const Variant& value) {
        run(name, member, {&value, 1},
            [&](Control& control, const MemberRow& row) { return putMember(control, row, value, Home_->region()); });
    }

private:
    /// Finds the member and has it accessed; a fault is thrown in words.
    template <class Action>
    void run(std::string_view name, std::string_view member, std::span<const Variant> arguments, Action action) {
        Control& owner = control(name);
        const std::u16string wanted = wide(member);
        const MemberRow* const row = findMember(owner.model(), wanted);
        DispatchFault fault{DispatchFault::Kind::UnknownName};
        try {
            if (row != nullptr) fault = action(owner, *row);
        } catch (const AutomationError& error) {
            throw std::invalid_argument(std::string(name) + "." + std::string(member) + ": " + error.what());
        }
        if (!fault.ok())
            throw std::invalid_argument(std::string(name) + ": " +
                                        toUtf8(describeFault(fault, owner.model(), wanted, arguments)));
    }

    std::unique_ptr<Home> Home_;
    Player Player_;
};

HeadlessForm::HeadlessForm(const std::string& path, const HeadlessOptions& options)
    : Session_(std::make_unique<Session>(path, options)) {}

HeadlessForm::~HeadlessForm() = default;

std::vector<std::string> HeadlessForm::controls() const {
    std::vector<std::string> names;
    for (const PlacedControl* const control : Session_->form().controls()) names.push_back(toUtf8(control->name()));
    return names;
}

std::string HeadlessForm::className(std::string_view control) const {
    return toUtf8(Session_->control(control).model().name);
}

Variant HeadlessForm::get(std::string_view control, std::string_view member, std::vector<Variant> arguments) const {
    return Session_->access(getMember, control, member, arguments);
}

void HeadlessForm::set(std::string_view control, std::string_view member, const Variant& value) {
    Session_->put(control, member, value);
}

Variant HeadlessForm::call(std::string_view control, std::string_view member, std::vector<Variant>& arguments) {
    return Session_->access(callMember, control, member, arguments);
}

Variant HeadlessForm::call(std::string_view control, std::string_view member) {
    std::vector<Variant> none;
    return call(control, member, none);
}

std::vector<std::string> HeadlessForm::play(std::string_view script) {
    const Script commands = readScript("script", script);
    std::vector<std::string> printed;
    for (const ScriptCommand& command : commands.commands)
        for (std::string& line : Session_->player().play(command, commands.file)) printed.push_back(std::move(line));
    return printed;
}

std::vector<std::string> HeadlessForm::takeEvents() { return Session_->player().takePrinted(); }

void HeadlessForm::save(const std::string& path) const { Session_->form().save(path); }

std::string describe(const Variant& value) { return toUtf8(writeScriptValue(value)); }

}  // namespace kel
