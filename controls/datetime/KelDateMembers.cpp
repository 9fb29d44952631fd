#include "controls/datetime/KelDate.h"

namespace kel {

namespace {

constexpr MemberRow Members[] = {
    property<&KelDate::get_Caption, &KelDate::put_Caption>(u"Caption", 0x6803000F, u"Text of the caption"),
    property<&KelDate::get_CaptionWidth, &KelDate::put_CaptionWidth>(u"CaptionWidth", 0x6803000E,
                                                                     u"Width of the caption in twips"),
    property<&KelDate::get_Changed>(u"Changed", 0x6803000D, u"The value differs from the original value"),
    property<&KelDate::get_ChangedSaved>(u"ChangedSaved", 0x6803000C, u"The value differs from the saved value"),
    property<&KelDate::get_DaysFlag, &KelDate::put_DaysFlag>(
        u"DaysFlag", 0x6803000B, u"Day of the month that the field keeps to, or that it holds a date of birth"),
    property<&KelDate::get_Enabled, &KelDate::put_Enabled>(u"Enabled", EnabledId, u"The field takes input"),
    property<&KelDate::get_Format, &KelDate::put_Format>(u"Format", 0x6803000A,
                                                         u"How the date is shown and read, such as dd/mm/yyyy"),
    property<&KelDate::get_InsertMode, &KelDate::put_InsertMode>(
        u"InsertMode", 0x68030009, u"Typing inserts instead of overwriting; the Insert key toggles it"),
    property<&KelDate::get_Locked, &KelDate::put_Locked>(u"Locked", 0x68030008,
                                                         u"The value can be read and copied but not edited"),
    property<&KelDate::get_Mandatory, &KelDate::put_Mandatory>(u"Mandatory", 0x68030007,
                                                               u"The field must not be left empty"),
    property<&KelDate::get_MaxValue, &KelDate::put_MaxValue>(u"MaxValue", 0x68030006, u"Latest date accepted"),
    property<&KelDate::get_MinValue, &KelDate::put_MinValue>(u"MinValue", 0x68030005, u"Earliest date accepted"),
    method<&KelDate::Refresh>(u"Refresh", 0x60030010, u"Repaints the field"),
    property<&KelDate::get_SelectOnFocus, &KelDate::put_SelectOnFocus>(
        u"SelectOnFocus", 0x68030004, u"Entering the field with the Tab key selects its text"),
    method<&KelDate::TooltipSet>(u"TooltipSet", 0x60030011, u"Sets the tooltip of the field").arguments(u"Tooltip"),
    property<&KelDate::get_UpDown, &KelDate::put_UpDown>(u"UpDown", 0x68030003, u"A spinner is shown"),
    property<&KelDate::get_Valid>(u"Valid", 0x68030002,
                                  u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&KelDate::get_Value, &KelDate::put_Value>(u"Value", DefaultMemberId,
                                                       u"The date; Null for none, Empty before the first one"),
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

constexpr PersistedRow Caption = persisted<&KelDate::put_Caption, &KelDate::get_Caption>(u"Caption", u"");
constexpr PersistedRow CaptionWidth =
    persisted<&KelDate::put_CaptionWidth, &KelDate::get_CaptionWidth>(u"CaptionWidth", 0);
constexpr PersistedRow DaysFlag = persisted<&KelDate::loadDaysFlag, &KelDate::storedDaysFlag>(u"DaysFlag", 0);
constexpr PersistedRow Enabled = persisted<&KelDate::put_Enabled, &KelDate::get_Enabled>(u"Enabled", true);
constexpr PersistedRow Format = persisted<&KelDate::put_Format, &KelDate::get_Format>(u"Format", DefaultDateFormat);
constexpr PersistedRow InsertMode = persisted<&KelDate::put_InsertMode, &KelDate::get_InsertMode>(u"InsertMode", false);
constexpr PersistedRow Locked = persisted<&KelDate::put_Locked, &KelDate::get_Locked>(u"Locked", false);
constexpr PersistedRow Mandatory = persisted<&KelDate::put_Mandatory, &KelDate::get_Mandatory>(u"Mandatory", true);
constexpr PersistedRow MaxValue =
    persisted<&KelDate::put_MaxValue, &KelDate::get_MaxValue>(u"MaxValue", AllDates.maximum);
constexpr PersistedRow MinValue =
    persisted<&KelDate::put_MinValue, &KelDate::get_MinValue>(u"MinValue", AllDates.minimum);
constexpr PersistedRow SelectOnFocus =
    persisted<&KelDate::put_SelectOnFocus, &KelDate::get_SelectOnFocus>(u"SelectOnFocus", false);
constexpr PersistedRow UpDownShown = persisted<&KelDate::put_UpDown, &KelDate::get_UpDown>(u"UpDown", true);
// Today is kept as a word, so that a form opens with the current date.
constexpr PersistedRow Value = persisted<&KelDate::loadValue, &KelDate::storedValue>(u"Value", u"Now");

constexpr PersistedRow Loaded[] = {Caption,   CaptionWidth, DaysFlag, Enabled,       Format,      InsertMode, Locked,
                                   Mandatory, MaxValue,     MinValue, SelectOnFocus, UpDownShown, Value};
// The spinner is written last.
constexpr PersistedRow Saved[] = {Caption,   CaptionWidth, DaysFlag, Enabled,       Format, InsertMode, Locked,
                                  Mandatory, MaxValue,     MinValue, SelectOnFocus, Value,  UpDownShown};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelDate>(host); }

}  // namespace

constinit const EventRow KelDate::Change = Events[0];

constinit const ClassModel KelDateModel{
    .name = u"KelDate",
    .help = u"Date entry with a caption, free typing, a display format and a spinner",
    .members = Members,
    .events = Events,
    .loaded = Loaded,
    .saved = Saved,
    .makeControl = &make,
};

const ClassModel& KelDate::model() const { return KelDateModel; }

}  // namespace kel
