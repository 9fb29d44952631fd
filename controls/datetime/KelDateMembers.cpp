#include "controls/datetime/DateTimeMembers.h"
#include "controls/datetime/KelDate.h"

namespace kel {

namespace {

constexpr std::u16string_view UsualDateFormats[] = {
    u"dd/mm/yyyy",       u"dd/mm/yy",  u"mm/dd/yyyy", u"yyyy-mm-dd",  u"dd.mm.yyyy", u"dd mmm yyyy",
    u"dddd d mmmm yyyy", u"mmmm yyyy", u"Short Date", u"Medium Date", u"Long Date",
};

constexpr MemberRow KelDateMembers[] = {
    entry::caption(0x6803000F),
    entry::captionWidth(0x6803000E),
    datetime::changed(0x6803000D),
    datetime::changedSaved(0x6803000C),
    property<&KelDate::get_DaysFlag, &KelDate::put_DaysFlag>(
        u"DaysFlag", 0x6803000B, u"Day of the month that the field keeps to, or that it holds a date of birth")
        .savedAs<&KelDate::loadDaysFlag, &KelDate::storedDaysFlag>(0)
        .in(Category::Behavior)
        .choices(KelDateDaysFlagNames),
    entry::enabled(),
    datetime::format(u"How the date is shown and read, such as dd/mm/yyyy", DefaultDateFormat, UsualDateFormats),
    entry::insertMode(0x68030009, false),
    entry::locked(0x68030008, u"The value can be read and copied but not edited"),
    entry::mandatory(0x68030007),
    datetime::maxValue(u"Latest date accepted", AllDates.maximum),
    datetime::minValue(u"Earliest date accepted", AllDates.minimum),
    entry::refresh(0x60030010),
    entry::selectOnFocus(0x68030004),
    entry::tooltipSet(0x60030011),
    entry::upDown(0x68030003, true),
    datetime::valid(),
    // Today is kept as a word, so that a form opens with the current date.
    datetime::value<&KelDate::loadValue, &KelDate::storedValue>(u"The date; Null for none, Empty before the first one",
                                                                u"Now"),
    datetime::valueOriginal(),
    datetime::valueSaved(),
};

constexpr EventRow KelDateEvents[] = {
    {u"Change", 1, u"A step has changed the date"},
};

constexpr MessageRow KelDateMessages[] = {DateMessages.noValue, DateMessages.outOfRange};

}  // namespace

constinit const EventRow KelDate::Change = KelDateEvents[0];

constinit const ClassModel KelDateModel{
    .name = u"KelDate",
    .help = u"Date entry with a caption, free typing, a display format and a spinner",
    .members = KelDateMembers,
    .events = KelDateEvents,
    .messages = KelDateMessages,
    .makeControl = &makeControl<KelDate>,
};

const ClassModel& KelDate::model() const { return KelDateModel; }

}  // namespace kel
