#include <cmath>

#include "controls/check/KelCheck.h"
#include "controls/Classes.h"
#include "controls/combo/KelCombo.h"
#include "controls/datetime/KelDate.h"
#include "controls/datetime/KelTime.h"
#include "controls/number/KelNumber.h"
#include "controls/progress/KelProgressBar.h"
#include "controls/text/KelText.h"
#include "forms/ScriptValue.h"
#include "fuzz/Fuzz.h"
#include "fuzz/Stage.h"
#include "values/NumberReader.h"
#include "values/Text.h"

namespace kel::fuzz {
namespace {

/// A form of all controls in a region, and a person in front of it.
class Session {
public:
    explicit Session(const RegionalSettings& region)
        : Region_(region), Stage_(region), Window_(Stage_.home().makeWindow({}, Stage_.system())) {
        for (const ClassModel* const model : {&KelTextModel, &KelNumberModel, &KelDateModel, &KelTimeModel,
                                              &KelComboModel, &KelComboModel, &KelCheckModel, &KelProgressBarModel})
            place(*model);
        put(4, u"List", std::u16string(u"Apple,Apricot,Banana,banana split,,Cherry"));
        put(5, u"List", std::u16string(u"Apple,Apricot,Banana,banana split,,Cherry"));
        put(5, u"LimitToList", false);
        put(1, u"MinValue", -1000.0);
        put(1, u"MaxValue", 5000.0);
        put(1, u"Decimals", std::int16_t{2});
        for (const std::size_t field : {1U, 2U, 3U}) put(field, u"UpDown", true);
        Window_->show();
    }

    void act(std::u16string_view line) {
        if (line.size() < 2) return;
        const std::size_t who = line[1] % Controls_.size();
        PlacedControl* const before = Window_->focused();
        const std::u16string_view rest = line.substr(2);
        switch (line[0]) {
            case u't': type(line.substr(1)); break;
            case u'k': strike(line[1], rest.empty() ? u'0' : rest[0]); break;
            case u'p': paste(rest); break;
            case u's': putMember(who, rest); break;
            case u'v': checkValid(who); break;
            case u'g': get(who, rest); break;
            default: hand(line[0], *Controls_[who], numberIn(rest), rest);
        }
        for (PlacedControl* const placed : Controls_) checkControl(*placed);
        if (before != nullptr && Window_->focused() != nullptr && before != Window_->focused()) checkLeft(*before);
    }

private:
    void place(const ClassModel& model) {
        const auto index = static_cast<std::int32_t>(Controls_.size());
        const auto name = std::u16string(1, static_cast<char16_t>(u'a' + index));
        PlacedControl& placed = Window_->place(model, {.name = name, .tabIndex = index}, Nobody_);
        placed.control().InitProperties();
        placed.setBounds({0, 400 * index, 3000, 300});
        Controls_.push_back(&placed);
    }

    headless::HeadlessWindow& window() { return static_cast<headless::HeadlessWindow&>(*Window_); }

    static std::int32_t numberIn(std::u16string_view text) {
        std::int32_t number = 0;
        for (const char16_t unit : text.substr(0, 3)) number = number * 10 + unit % 10;
        return text.starts_with(u'-') ? -number % 10 : number;
    }

    void type(std::u16string_view text) {
        PlacedControl* const focused = Window_->focused();
        const TextEntry* const box = focused == nullptr ? nullptr : focused->control().widgets().entry;
        for (int left = 40; left > 0 && !text.empty(); --left) {
            const std::int32_t length = box == nullptr ? 0 : box->textLength();
            Window_->press(strokeFor(takeCodePoint(text)));
            // What completes a text is an item of a list, which may be any length.
            if (box == nullptr || focused->control().widgets().comboBox != nullptr || box->maxLength() == 0) continue;
            if (focused->control().widgets().entry != box) break;
            require(box->textLength() <= std::max(length, box->maxLength()), "no text is typed over its maximum",
                    {box->text()});
        }
    }

    /// A key by the character that has its code: % is Left, A the letter with Ctrl.
    void strike(char16_t key, char16_t modifiers) {
        const auto code = static_cast<std::int16_t>(key & 0xFF);
        const bool isLetter = code >= u'A' && code <= u'Z';
        const auto held = static_cast<Modifiers>(isLetter ? modifiers % 8 | ControlKey : modifiers % 8);
        Window_->press({code, isLetter ? static_cast<char32_t>(code) : 0, held});
    }

    void paste(std::u16string_view text) {
        Window_->setClipboard(text);
        Window_->press({u'V', u'V', ControlKey});
    }

    void hand(char16_t action, PlacedControl& placed, std::int32_t number, std::u16string_view text) {
        const WidgetSet widgets = placed.control().widgets();
        switch (action) {
            case u'c': Window_->click(placed, number); break;
            case u'm': Window_->rightClick(placed); break;
            case u'f': Window_->focus(placed); break;
            case u'w': window().turnWheel(placed, number % 20); break;
            case u'd': window().drop(placed, number, text.substr(std::min<std::size_t>(text.size(), 3))); break;
            case u'+':
            case u'-':
                if (widgets.upDown != nullptr && widgets.upDown->visible()) Window_->spin(placed, action == u'+');
                break;
            case u'i':
                if (widgets.comboBox != nullptr && widgets.comboBox->items().contains(number))
                    Window_->pick(placed, number);
                break;
            case u'r': placed.setBounds(withinReach(Rect{0, 0, number * number * 10, number * 10})); break;
            default: Window_->press({keys::Tab, 0, action == u'T' ? NoModifier : ShiftKey});
        }
    }

    void put(std::size_t who, std::u16string_view property, const Variant& value) {
        Control& control = Controls_[who]->control();
        if (const MemberRow* const row = findMember(control.model(), property); row != nullptr && row->put != nullptr)
            static_cast<void>(kel::putMember(control, *row, value, Region_));
    }

    void putMember(std::size_t who, std::u16string_view text) {
        const std::u16string_view name = text.substr(0, text.find(u'='));
        std::u16string_view rest = text.substr(std::min(text.size(), name.size() + 1));
        const std::u16string all(rest);
        std::string error;
        const auto value = takeScriptValue(rest, error);
        put(who, name, value && rest.empty() ? *value : Variant(all));
    }

    void get(std::size_t who, std::u16string_view name) {
        Control& control = Controls_[who]->control();
        const MemberRow* const row = findMember(control.model(), name);
        Variant value;
        if (row != nullptr && row->get != nullptr) static_cast<void>(getMember(control, *row, {}, value, Region_));
    }

    void checkValid(std::size_t who) {
        Control& control = Controls_[who]->control();
        const MemberRow* const row = findMember(control.model(), u"Valid");
        if (row == nullptr || row->parameterCount == 0) return;
        const auto isValid = [&](bool inWords) {
            Variant argument = inWords, valid;
            require(getMember(control, *row, {&argument, 1}, valid, Region_).ok(), "Valid can be read");
            return valid == Variant(true);
        };
        const bool valid = isValid(false);
        const std::size_t before = Stage_.said();
        require(isValid(true) == valid, "Valid in words is Valid", {control.model().name});
        require((Stage_.said() == before) == valid, "what is not valid is said", {control.model().name});
    }

    /// With the focus gone elsewhere.
    void checkLeft(PlacedControl& placed) {
        Control& control = placed.control();
        if (control.model().name == u"KelNumber") checkNumber(static_cast<KelNumber&>(control));
        if (control.model().name == u"KelDate" || control.model().name == u"KelTime")
            checkDate(DateTimeField::of(control), control);
    }

    void checkNumber(KelNumber& number) {
        const double value = std::get<double>(number.get_Value());
        const std::u16string& text = number.widgets().entry->text();
        double read = 0;
        require(text.empty() || readNumber(text, Region_, read) == NumberReading::Number, "a number shows a number",
                {text});
        require(read == value, "a number shows its value", {text, shown(value)});
        if (number.entry().get_Locked()) return;
        const double half = 0.5 * std::pow(10, -std::max<int>(number.get_Decimals(), 0));
        const double slack = half + std::ldexp(std::fabs(value), -50);
        require(value >= number.get_MinValue() - slack && value <= number.get_MaxValue() + slack,
                "a number that was left is within its bounds", {shown(value)});
    }

    void checkDate(DateTimeField& field, Control& control) {
        const std::u16string text = control.widgets().entry->text();
        const Variant value = field.get_Value();
        require(control.widgets().entry->text() == text, "a field that was left has settled its text", {text});
        const auto date = dateIn(value);
        require(text == FieldFormat(field.get_Format()).show(date, Region_), "a field shows its value",
                {text, field.get_Format()});
        const auto* const days = dynamic_cast<KelDate*>(&control);
        if (field.entry().get_Locked() || !date || (days != nullptr && days->get_DaysFlag() != KelDateDaysFlag{}))
            return;
        const Date day = days != nullptr ? dayOf(*date) : *date;
        require(!isEarlier(day, days != nullptr ? dayOf(field.get_MinValue()) : field.get_MinValue()) &&
                    !isEarlier(days != nullptr ? dayOf(field.get_MaxValue()) : field.get_MaxValue(), day),
                "a date or time that was left is within its bounds", {text, shown(date->Serial)});
    }

    const RegionalSettings& Region_;
    Stage Stage_;
    SilentObserver Nobody_;
    std::unique_ptr<FormWindow> Window_;
    std::vector<PlacedControl*> Controls_;
};

}  // namespace
}  // namespace kel::fuzz

/// A region, then what is done: a letter, the control that it is done to, and the rest of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    Session session(lines.region());
    for (int left = 100; left > 0 && !lines.atEnd(); --left) session.act(lines.next());
    return 0;
}
