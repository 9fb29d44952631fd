#include "tools/qtwidgets/TypedSurface.h"

#include <algorithm>
#include <iterator>

#include "tools/qtwidgets/QtType.h"
#include "values/Text.h"

namespace kel::qtwidgets {

namespace {

constexpr TypedKind Lines{"QString", "QString", "toLines", "fromLines", ", multiLine()", "linesFromBound"};
constexpr TypedKind Text{"QString", "QString", "toText", "fromText", "", "textFromBound"};
constexpr TypedKind Number{"double", "", "toNumber", "fromNumber", "", "numberFromBound"};
constexpr TypedKind Count{"int", "", "toInteger", "fromInteger", "", "countFromBound"};
constexpr TypedKind Day{"QDate", "QDate", "toDate", "fromDate", "", "dateFromBound"};
constexpr TypedKind Time{"QTime", "QTime", "toTime", "fromTime", "", "timeFromBound"};
constexpr TypedKind Flag{"bool", "", "toFlag", "fromFlag", "", "flagFromBound"};

constexpr TypedProperty TypedProperties[] = {
    {u"KelText", u"Text", "text", Lines, "textChanged",
     "Lines end in a line feed, as in Qt's own boxes; `textRaw` has them as the control does, in CR LF.",
     "The text, with every line"},
    {u"KelNumber", u"Value", "value", Number, "valueChanged", "A null is 0."},
    {u"KelNumber", u"MinValue", "minimum", Number},
    {u"KelNumber", u"MaxValue", "maximum", Number},
    {u"KelNumber", u"UpDownChange", "singleStep", Number},
    {u"KelDate", u"Value", "date", Day, "dateChanged", "No date is an invalid QDate.", "The date"},
    {u"KelDate", u"MinValue", "minimumDate", Day},
    {u"KelDate", u"MaxValue", "maximumDate", Day},
    {u"KelTime", u"Value", "time", Time, "timeChanged",
     "No time is an invalid QTime. Milliseconds are rounded to the nearest second of the day.", "The time"},
    {u"KelTime", u"MinValue", "minimumTime", Time},
    {u"KelTime", u"MaxValue", "maximumTime", Time},
    {u"KelCombo", u"Text", "text", Text, "textChanged"},
    {u"KelCheck", u"Value", "checked", Flag, "toggled", "A null is false."},
    {u"KelProgressBar", u"Value", "value", Count, "valueChanged"},
    {u"KelProgressBar", u"Min", "minimum", Count},
    {u"KelProgressBar", u"Max", "maximum", Count},
};

constexpr MadeProperty MadeProperties[] = {
    {.model = u"KelCombo",
     .name = "items",
     .type = "QStringList",
     .header = "QStringList",
     .functions = "choices",
     .functionsHeader = "platform/qt/control/ComboChoices.h",
     .notify = "",
     .help = "The items of the list, as they are"},
    {.model = u"KelCombo",
     .name = "currentIndex",
     .type = "int",
     .header = "",
     .functions = "choices",
     .functionsHeader = "platform/qt/control/ComboChoices.h",
     .notify = "textChanged",
     .help = "The item that the text is, counted from 0; -1 for none, which puts an empty text"},
    {.model = u"KelCombo",
     .name = "currentData",
     .type = "QVariant",
     .header = "QVariant",
     .functions = "choices",
     .functionsHeader = "platform/qt/control/ComboChoices.h",
     .notify = "textChanged",
     .help = "The tag of the item that the text is; invalid for none. Writing picks the first item with the tag"},
};

constexpr EventSignal EventSignals[] = {
    {.model = u"KelCombo",
     .event = u"Click",
     .signal = "activated",
     .parameter = "int",
     .value = "currentIndex()",
     .help = "The user has picked another item, counted from 0, from the list"},
};

}  // namespace

const TypedProperty* typedProperty(const ClassModel& model, const MemberRow& member) {
    const auto* const found = std::find_if(
        std::begin(TypedProperties), std::end(TypedProperties),
        [&](const TypedProperty& typed) { return typed.model == model.name && typed.member == member.name; });
    return found != std::end(TypedProperties) ? found : nullptr;
}

const TypedProperty* heldValue(const ClassModel& model) {
    const auto* const found =
        std::find_if(std::begin(TypedProperties), std::end(TypedProperties),
                     [&](const TypedProperty& typed) { return typed.model == model.name && typed.isHeldValue(); });
    return found != std::end(TypedProperties) ? found : nullptr;
}

std::vector<MadeProperty> madeProperties(const ClassModel& model) {
    std::vector<MadeProperty> made;
    std::copy_if(std::begin(MadeProperties), std::end(MadeProperties), std::back_inserter(made),
                 [&](const MadeProperty& property) { return property.model == model.name; });
    return made;
}

const EventSignal* signalOf(const ClassModel& model, const EventRow& event) {
    const auto* const found = std::find_if(
        std::begin(EventSignals), std::end(EventSignals),
        [&](const EventSignal& signal) { return signal.model == model.name && signal.event == event.name; });
    return found != std::end(EventSignals) ? found : nullptr;
}

std::string qtNameOf(const ClassModel& model, const MemberRow& member) {
    const TypedProperty* const typed = typedProperty(model, member);
    return typed != nullptr ? std::string(typed->name) : lowerName(member.name);
}

std::string helpOf(const ClassModel& model, const MemberRow& member) {
    const TypedProperty* const typed = typedProperty(model, member);
    return typed != nullptr && !typed->help.empty() ? std::string(typed->help) : toUtf8(member.help);
}

bool isLeftOut(const MemberRow& member) {
    // A widget has `winId`; a property would be read by every tool that lists them, which makes the window native.
    return member.name == u"hWnd";
}

bool isWidgetsOwn(const MemberRow& member) { return member.name == u"Enabled"; }

bool isResettable(const MemberRow& member) {
    constexpr std::u16string_view Names[] = {u"MinValue",  u"MaxValue",      u"UpDownChange", u"Decimals", u"Format",
                                             u"MaxLength", u"DropDownWidth", u"Min",          u"Max"};
    return std::find(std::begin(Names), std::end(Names), member.name) != std::end(Names);
}

bool tellsEdits(const ClassModel& model) { return model.name == u"KelText"; }

}  // namespace kel::qtwidgets
