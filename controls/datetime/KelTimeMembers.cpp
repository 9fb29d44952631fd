#include "common/EntryMembers.h"
#include "controls/datetime/KelTime.h"

namespace kel {

namespace {

constexpr std::u16string_view UsualFormats[] = {
    u"hh:nn am/pm", u"hh:nn:ss am/pm", u"hh:nn", u"hh:nn:ss", u"h:nn", u"Short Time", u"Medium Time", u"Long Time",
};

constexpr MemberRow Members[] = {
    entry::caption(0x6803000E),
    entry::captionWidth(0x6803000D),
    property<&DateTimeField::get_Changed>(u"Changed", 0x6803000C, u"The value differs from the original value"),
    property<&DateTimeField::get_ChangedSaved>(u"ChangedSaved", 0x6803000B, u"The value differs from the saved value"),
    entry::enabled(),
    property<&DateTimeField::get_Format, &DateTimeField::put_Format>(u"Format", 0x6803000A,
                                                                     u"How the time is shown, such as hh:nn am/pm")
        .saved(DefaultTimeFormat)
        .in(Category::Format)
        .on(DesignPage::Format)
        .choices(UsualFormats),
    entry::insertMode(0x68030009, false),
    entry::locked(0x68030008, u"The value can be read and copied but not edited"),
    entry::mandatory(0x68030007),
    property<&DateTimeField::get_MaxValue, &DateTimeField::put_MaxValue>(u"MaxValue", 0x68030006,
                                                                         u"Latest time accepted")
        .saved(AllTimes.maximum)
        .in(Category::Data),
    property<&DateTimeField::get_MinValue, &DateTimeField::put_MinValue>(u"MinValue", 0x68030005,
                                                                         u"Earliest time accepted")
        .saved(AllTimes.minimum)
        .in(Category::Data),
    entry::refresh(0x6003000F),
    entry::selectOnFocus(0x68030004),
    entry::tooltipSet(0x60030010),
    entry::upDown(0x68030003, true),
    property<&DateTimeField::get_Valid>(
        u"Valid", 0x68030002, u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&DateTimeField::get_Value, &DateTimeField::put_Value>(
        u"Value", DefaultMemberId, u"The time; Null for none, Empty before the first one")
        // Written as a text, which equals no number: always.
        .savedAs<&DateTimeField::put_Value, &KelTime::storedValue>(std::int16_t{0})
        .beforeWriting(u"UpDown")
        .in(Category::Data)
        .bound(),
    entry::original<&DateTimeField::get_ValueOriginal, &DateTimeField::put_ValueOriginal>(u"ValueOriginal", 0x68030001),
    entry::saved<&DateTimeField::get_ValueSaved, &DateTimeField::put_ValueSaved>(u"ValueSaved", 0x68030000),
};

constexpr EventRow Events[] = {
    {u"Change", 1, u"A step has changed the time"},
};

constexpr MessageRow Messages[] = {TimeMessages.noValue, TimeMessages.outOfRange};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelTime>(host); }

}  // namespace

constinit const EventRow KelTime::Change = Events[0];

constinit const ClassModel KelTimeModel{
    .name = u"KelTime",
    .help = u"Time entry with a caption, a display format and a spinner",
    .members = Members,
    .events = Events,
    .messages = Messages,
    .makeControl = &make,
    .datesAreTimes = true,
};

const ClassModel& KelTime::model() const { return KelTimeModel; }

}  // namespace kel
