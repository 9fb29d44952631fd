#include "controls/datetime/DateTimeMembers.h"
#include "controls/datetime/KelTime.h"

namespace kel {

namespace {

constexpr std::u16string_view UsualTimeFormats[] = {
    u"hh:nn am/pm", u"hh:nn:ss am/pm", u"hh:nn", u"hh:nn:ss", u"h:nn", u"Short Time", u"Medium Time", u"Long Time",
};

constexpr MemberRow KelTimeMembers[] = {
    entry::caption(0x6803000E),
    entry::captionWidth(0x6803000D),
    datetime::changed(0x6803000C),
    datetime::changedSaved(0x6803000B),
    entry::enabled(),
    datetime::format(u"How the time is shown, such as hh:nn am/pm", DefaultTimeFormat, UsualTimeFormats),
    entry::insertMode(0x68030009, false),
    entry::locked(0x68030008, u"The value can be read and copied but not edited"),
    entry::mandatory(0x68030007),
    datetime::maxValue(u"Latest time accepted", AllTimes.maximum),
    datetime::minValue(u"Earliest time accepted", AllTimes.minimum),
    entry::refresh(0x6003000F),
    entry::selectOnFocus(0x68030004),
    entry::tooltipSet(0x60030010),
    entry::upDown(0x68030003, true),
    datetime::valid(),
    // Written as a text, which equals no number: always.
    datetime::value<&DateTimeField::put_Value, &KelTime::storedValue>(
        u"The time; Null for none, Empty before the first one", std::int16_t{0}),
    datetime::valueOriginal(),
    datetime::valueSaved(),
};

constexpr EventRow KelTimeEvents[] = {
    {u"Change", 1, u"A step has changed the time"},
};

constexpr MessageRow KelTimeMessages[] = {TimeMessages.noValue, TimeMessages.outOfRange};

}  // namespace

constinit const EventRow KelTime::Change = KelTimeEvents[0];

constinit const ClassModel KelTimeModel{
    .name = u"KelTime",
    .help = u"Time entry with a caption, a display format and a spinner",
    .members = KelTimeMembers,
    .events = KelTimeEvents,
    .messages = KelTimeMessages,
    .makeControl = &makeControl<KelTime>,
    .datesAreTimes = true,
};

const ClassModel& KelTime::model() const { return KelTimeModel; }

}  // namespace kel
