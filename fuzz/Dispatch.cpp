#include "library/Dispatch.h"

#include "controls/Classes.h"
#include "forms/ScriptValue.h"
#include "fuzz/Fuzz.h"
#include "fuzz/Stage.h"
#include "library/AutomationError.h"

namespace kel::fuzz {
namespace {

std::vector<Variant> valuesIn(std::u16string_view rest) {
    std::vector<Variant> values;
    std::string error;
    while (!rest.empty()) {
        const std::u16string_view before = rest;
        if (auto value = takeScriptValue(rest, error)) {
            values.push_back(*std::move(value));
        } else {
            rest = {};
            values.emplace_back(std::u16string(before));
        }
    }
    // Sorts of values that scripts do not write.
    for (Variant& value : values) {
        if (value == Variant(std::u16string(u"Missing"))) value = Missing{};
        if (value == Variant(std::u16string(u"Nothing"))) value = ObjectPtr{};
        const auto* const number = std::get_if<std::int32_t>(&value);
        if (number != nullptr && *number > 9 && *number < 100) value = static_cast<std::int16_t>(*number);
    }
    return values;
}

/// Gets, puts and calls the members of one object, as late-bound callers do.
class Caller {
public:
    explicit Caller(LibraryObject& object) : Object_(object), Model_(object.model()) {}

    void call(std::u16string_view line) {
        const std::u16string_view verb = takeWord(line), name = takeWord(line);
        const MemberRow& member = memberNamed(name);
        std::vector<Variant> values = valuesIn(line);
        DispatchFault fault;
        Variant result;
        if (verb == u"put" && !values.empty()) {
            fault = put(member, values.back());
        } else if (verb == u"call" || member.isMethod) {
            fault = callMember(Object_, member, values, result, defaultRegion());
        } else {
            fault = getMember(Object_, member, values, result, defaultRegion());
        }
        require(fault.argument < static_cast<int>(std::max<std::size_t>(values.size(), 1)),
                "a fault names an argument that there is", {name});
        describeFault(fault, Model_, name, values);
    }

private:
    static std::u16string_view takeWord(std::u16string_view& line) {
        const std::u16string_view word = line.substr(0, line.find(u' '));
        line.remove_prefix(std::min(line.size(), word.size() + 1));
        return word;
    }

    const MemberRow& memberNamed(std::u16string_view name) const {
        const MemberRow* const found = findMember(Model_, name);
        const MemberRow& member = found != nullptr ? *found : Model_.members[anyOf(name, Model_.members.size())];
        require(findMember(Model_, member.id) == &member && findMember(Model_, member.name) == &member,
                "a member is found by name and by identifier", {member.name});
        return member;
    }

    DispatchFault put(const MemberRow& member, const Variant& value) {
        const DispatchFault fault = putMember(Object_, member, value, defaultRegion());
        if (!fault.ok() || !member.isPersisted() || member.get == nullptr || member.parameterCount > 0) return fault;
        const Variant taken = get(member);
        bool truth = false;
        if (member.type == TypeTag::Boolean && coerce(value, defaultRegion(), truth) == CoercionFault::None)
            require(taken == Variant(truth), "a switch is as it was put", {member.name});
        require(putMember(Object_, member, taken, defaultRegion()).ok() && get(member) == taken,
                "a property that took a value takes it again",
                {member.name, writeScriptValue(value), writeScriptValue(taken), writeScriptValue(get(member))});
        return fault;
    }

    Variant get(const MemberRow& member) {
        Variant value;
        require(getMember(Object_, member, {}, value, defaultRegion()).ok(), "a saved property can be read",
                {member.name});
        return value;
    }

    LibraryObject& Object_;
    const ClassModel& Model_;
};

Bag saved(const Control& control) {
    Bag bag;
    control.WriteProperties(bag);
    return bag;
}

void checkSaving(FormWindow& window, Control& control, SilentObserver& nobody) {
    Bag bag = saved(control);
    Control& other = window.place(control.model(), {.name = u"b"}, nobody).control();
    other.ReadProperties(bag);
    const Bag again = saved(other);
    // A day is moved to the end of its month when it is loaded, not when code has put both.
    require(again == bag || bag.has(u"DaysFlag"), "what a control saves it saves again when it was loaded",
            {control.model().name, bag.differenceFrom(again)});
}

void play(LibraryObject& object, Lines& lines) {
    Caller caller(object);
    for (int left = 100; left > 0 && !lines.atEnd(); --left) {
        try {
            caller.call(lines.next());
        } catch (const AutomationError&) {  // Said by an object that was handed over.
        }
    }
}

}  // namespace
}  // namespace kel::fuzz

/// A class, then "put Member VALUE", "get Member VALUES" and "call Member VALUES".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    const std::u16string name = lines.next();
    const auto& classes = kel::libraryClasses();
    const kel::ClassModel* const found = classes.find(name);
    const kel::ClassModel& model = found != nullptr ? *found : *classes.all()[anyOf(name, classes.all().size())];
    Stage stage(kel::defaultRegion());
    if (!model.isControl()) {
        play(static_cast<kel::LibraryObject&>(*model.makeObject(stage.home().settings())), lines);
        return 0;
    }
    kel::SilentObserver nobody;
    const auto window = stage.home().makeWindow({}, stage.system());
    kel::PlacedControl& placed = window->place(model, {.name = u"a"}, nobody);
    placed.control().InitProperties();
    placed.setBounds({0, 0, 3000, 300});
    window->show();
    play(placed.control(), lines);
    checkControl(placed);
    checkSaving(*window, placed.control(), nobody);
    return 0;
}
