#include "common/EntryMembers.h"
#include "controls/datetime/KelDate.h"

namespace kel {

namespace {

constexpr std::u16string_view UsualFormats[] = {
    u"dd/mm/yyyy",       u"dd/mm/yy",  u"mm/dd/yyyy", u"yyyy-mm-dd",  u"dd.mm.yyyy", u"dd mmm yyyy",
    u"dddd d mmmm yyyy", u"mmmm yyyy", u"Short Date", u"Medium Date", u"Long Date",
};

constexpr MemberRow Members[] = {
    entry::caption(0x6803000F),
    entry::captionWidth(0x6803000E),
    property<&DateTimeField::get_Changed>(u"Changed", 0x6803000D, u"The value differs from the original value"),
    property<&DateTimeField::get_ChangedSaved>(u"ChangedSaved", 0x6803000C, u"The value differs from the saved value"),
    property<&KelDate::get_DaysFlag, &KelDate::put_DaysFlag>(
        u"DaysFlag", 0x6803000B, u"Day of the month that the field keeps to, or that it holds a date of birth")
        .savedAs<&KelDate::loadDaysFlag, &KelDate::storedDaysFlag>(0)
        .in(Category::Behavior)
        .choices(KelDateDaysFlagNames),
    entry::enabled(),
    property<&DateTimeField::get_Format, &DateTimeField::put_Format>(
        u"Format", 0x6803000A, u"How the date is shown and read, such as dd/mm/yyyy")
        .saved(DefaultDateFormat)
        .in(Category::Format)
        .on(DesignPage::Format)
        .choices(UsualFormats),
    entry::insertMode(0x68030009, false),
    entry::locked(0x68030008, u"The value can be read and copied but not edited"),
    entry::mandatory(0x68030007),
    property<&DateTimeField::get_MaxValue, &DateTimeField::put_MaxValue>(u"MaxValue", 0x68030006,
                                                                         u"Latest date accepted")
        .saved(AllDates.maximum)
        .in(Category::Data),
    property<&DateTimeField::get_MinValue, &DateTimeField::put_MinValue>(u"MinValue", 0x68030005,
                                                                         u"Earliest date accepted")
        .saved(AllDates.minimum)
        .in(Category::Data),
    entry::refresh(0x60030010),
    entry::selectOnFocus(0x68030004),
    entry::tooltipSet(0x60030011),
    entry::upDown(0x68030003, true),
    property<&DateTimeField::get_Valid>(
        u"Valid", 0x68030002, u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&DateTimeField::get_Value, &DateTimeField::put_Value>(
        u"Value", DefaultMemberId, u"The date; Null for none, Empty before the first one")
        // Today is kept as a word, so that a form opens with the current date.
        .savedAs<&KelDate::loadValue, &KelDate::storedValue>(u"Now")
        .beforeWriting(u"UpDown")
        .in(Category::Data)
        .bound(),
    entry::original<&DateTimeField::get_ValueOriginal, &DateTimeField::put_ValueOriginal>(u"ValueOriginal", 0x68030001),
    entry::saved<&DateTimeField::get_ValueSaved, &DateTimeField::put_ValueSaved>(u"ValueSaved", 0x68030000),
};

constexpr EventRow Events[] = {
    {u"Change", 1, u"A step has changed the date"},
};

constexpr MessageRow Messages[] = {DateMessages.noValue, DateMessages.outOfRange};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelDate>(host); }

}  // namespace

constinit const EventRow KelDate::Change = Events[0];

constinit const ClassModel KelDateModel{
    .name = u"KelDate",
    .help = u"Date entry with a caption, free typing, a display format and a spinner",
    .members = Members,
    .events = Events,
    .messages = Messages,
    .makeControl = &make,
};

const ClassModel& KelDate::model() const { return KelDateModel; }

}  // namespace kel
