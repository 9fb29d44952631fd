#include "controls/datetime/KelTime.h"

namespace kel {

namespace {

constexpr MemberRow Members[] = {
    property<&KelTime::get_Caption, &KelTime::put_Caption>(u"Caption", 0x6803000E, u"Text of the caption").saved(u""),
    property<&KelTime::get_CaptionWidth, &KelTime::put_CaptionWidth>(u"CaptionWidth", 0x6803000D,
                                                                     u"Width of the caption in twips")
        .saved(0),
    property<&KelTime::get_Changed>(u"Changed", 0x6803000C, u"The value differs from the original value"),
    property<&KelTime::get_ChangedSaved>(u"ChangedSaved", 0x6803000B, u"The value differs from the saved value"),
    property<&KelTime::get_Enabled, &KelTime::put_Enabled>(u"Enabled", EnabledId, u"The field takes input").saved(true),
    property<&KelTime::get_Format, &KelTime::put_Format>(u"Format", 0x6803000A,
                                                         u"How the time is shown, such as hh:nn am/pm")
        .saved(DefaultTimeFormat),
    property<&KelTime::get_InsertMode, &KelTime::put_InsertMode>(
        u"InsertMode", 0x68030009, u"Typing inserts instead of overwriting; the Insert key toggles it")
        .saved(false),
    property<&KelTime::get_Locked, &KelTime::put_Locked>(u"Locked", 0x68030008,
                                                         u"The value can be read and copied but not edited")
        .saved(false),
    property<&KelTime::get_Mandatory, &KelTime::put_Mandatory>(u"Mandatory", 0x68030007,
                                                               u"The field must not be left empty")
        .saved(true),
    property<&KelTime::get_MaxValue, &KelTime::put_MaxValue>(u"MaxValue", 0x68030006, u"Latest time accepted")
        .saved(AllTimes.maximum),
    property<&KelTime::get_MinValue, &KelTime::put_MinValue>(u"MinValue", 0x68030005, u"Earliest time accepted")
        .saved(AllTimes.minimum),
    method<&KelTime::Refresh>(u"Refresh", 0x6003000F, u"Repaints the field"),
    property<&KelTime::get_SelectOnFocus, &KelTime::put_SelectOnFocus>(
        u"SelectOnFocus", 0x68030004, u"Entering the field with the Tab key selects its text")
        .saved(false),
    method<&KelTime::TooltipSet>(u"TooltipSet", 0x60030010, u"Sets the tooltip of the field").arguments(u"Tooltip"),
    property<&KelTime::get_UpDown, &KelTime::put_UpDown>(u"UpDown", 0x68030003, u"A spinner is shown").saved(true),
    property<&KelTime::get_Valid>(u"Valid", 0x68030002,
                                  u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&KelTime::get_Value, &KelTime::put_Value>(u"Value", DefaultMemberId,
                                                       u"The time; Null for none, Empty before the first one")
        // Written as a text, which equals no number: always.
        .savedAs<&KelTime::put_Value, &KelTime::storedValue>(std::int16_t{0})
        .beforeWriting(u"UpDown"),
    property<&KelTime::get_ValueOriginal, &KelTime::put_ValueOriginal>(u"ValueOriginal", 0x68030001,
                                                                       u"What Changed compares with")
        .hiddenByReference(),
    property<&KelTime::get_ValueSaved, &KelTime::put_ValueSaved>(u"ValueSaved", 0x68030000,
                                                                 u"What ChangedSaved compares with")
        .hiddenByReference(),
};

constexpr EventRow Events[] = {
    {u"Change", 1, u"A step has changed the time"},
};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelTime>(host); }

}  // namespace

constinit const EventRow KelTime::Change = Events[0];

constinit const ClassModel KelTimeModel{
    .name = u"KelTime",
    .help = u"Time entry with a caption, a display format and a spinner",
    .members = Members,
    .events = Events,
    .makeControl = &make,
    .datesAreTimes = true,
};

const ClassModel& KelTime::model() const { return KelTimeModel; }

}  // namespace kel
