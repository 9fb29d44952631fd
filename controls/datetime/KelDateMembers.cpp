#include "controls/datetime/KelDate.h"

namespace kel {

namespace {

constexpr MemberRow Members[] = {
    property<&KelDate::get_Caption, &KelDate::put_Caption>(u"Caption", 0x6803000F, u"Text of the caption").saved(u""),
    property<&KelDate::get_CaptionWidth, &KelDate::put_CaptionWidth>(u"CaptionWidth", 0x6803000E,
                                                                     u"Width of the caption in twips")
        .saved(0),
    property<&KelDate::get_Changed>(u"Changed", 0x6803000D, u"The value differs from the original value"),
    property<&KelDate::get_ChangedSaved>(u"ChangedSaved", 0x6803000C, u"The value differs from the saved value"),
    property<&KelDate::get_DaysFlag, &KelDate::put_DaysFlag>(
        u"DaysFlag", 0x6803000B, u"Day of the month that the field keeps to, or that it holds a date of birth")
        .savedAs<&KelDate::loadDaysFlag, &KelDate::storedDaysFlag>(0),
    property<&KelDate::get_Enabled, &KelDate::put_Enabled>(u"Enabled", EnabledId, u"The field takes input").saved(true),
    property<&KelDate::get_Format, &KelDate::put_Format>(u"Format", 0x6803000A,
                                                         u"How the date is shown and read, such as dd/mm/yyyy")
        .saved(DefaultDateFormat),
    property<&KelDate::get_InsertMode, &KelDate::put_InsertMode>(
        u"InsertMode", 0x68030009, u"Typing inserts instead of overwriting; the Insert key toggles it")
        .saved(false),
    property<&KelDate::get_Locked, &KelDate::put_Locked>(u"Locked", 0x68030008,
                                                         u"The value can be read and copied but not edited")
        .saved(false),
    property<&KelDate::get_Mandatory, &KelDate::put_Mandatory>(u"Mandatory", 0x68030007,
                                                               u"The field must not be left empty")
        .saved(true),
    property<&KelDate::get_MaxValue, &KelDate::put_MaxValue>(u"MaxValue", 0x68030006, u"Latest date accepted")
        .saved(AllDates.maximum),
    property<&KelDate::get_MinValue, &KelDate::put_MinValue>(u"MinValue", 0x68030005, u"Earliest date accepted")
        .saved(AllDates.minimum),
    method<&KelDate::Refresh>(u"Refresh", 0x60030010, u"Repaints the field"),
    property<&KelDate::get_SelectOnFocus, &KelDate::put_SelectOnFocus>(
        u"SelectOnFocus", 0x68030004, u"Entering the field with the Tab key selects its text")
        .saved(false),
    method<&KelDate::TooltipSet>(u"TooltipSet", 0x60030011, u"Sets the tooltip of the field").arguments(u"Tooltip"),
    property<&KelDate::get_UpDown, &KelDate::put_UpDown>(u"UpDown", 0x68030003, u"A spinner is shown").saved(true),
    property<&KelDate::get_Valid>(u"Valid", 0x68030002,
                                  u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&KelDate::get_Value, &KelDate::put_Value>(u"Value", DefaultMemberId,
                                                       u"The date; Null for none, Empty before the first one")
        // Today is kept as a word, so that a form opens with the current date.
        .savedAs<&KelDate::loadValue, &KelDate::storedValue>(u"Now")
        .beforeWriting(u"UpDown"),
    property<&KelDate::get_ValueOriginal, &KelDate::put_ValueOriginal>(u"ValueOriginal", 0x68030001,
                                                                       u"What Changed compares with")
        .hiddenByReference(),
    property<&KelDate::get_ValueSaved, &KelDate::put_ValueSaved>(u"ValueSaved", 0x68030000,
                                                                 u"What ChangedSaved compares with")
        .hiddenByReference(),
};

constexpr EventRow Events[] = {
    {u"Change", 1, u"A step has changed the date"},
};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelDate>(host); }

}  // namespace

constinit const EventRow KelDate::Change = Events[0];

constinit const ClassModel KelDateModel{
    .name = u"KelDate",
    .help = u"Date entry with a caption, free typing, a display format and a spinner",
    .members = Members,
    .events = Events,
    .makeControl = &make,
};

const ClassModel& KelDate::model() const { return KelDateModel; }

}  // namespace kel
