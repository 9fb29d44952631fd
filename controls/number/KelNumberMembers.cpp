#include "controls/number/KelNumber.h"

namespace kel {

namespace {

constexpr MemberRow Members[] = {
    property<&KelNumber::get_Caption, &KelNumber::put_Caption>(u"Caption", 0x68030012, u"Text of the caption")
        .saved(u""),
    property<&KelNumber::get_CaptionWidth, &KelNumber::put_CaptionWidth>(u"CaptionWidth", 0x68030011,
                                                                         u"Width of the caption in twips")
        .saved(0),
    property<&KelNumber::get_Changed>(u"Changed", 0x68030010, u"The value differs from the original value"),
    property<&KelNumber::get_ChangedCaption>(u"ChangedCaption", 0x6803000F,
                                             u"The caption is bound to data and was changed; gives its text")
        .arguments(u"CaptionToSave"),
    property<&KelNumber::get_ChangedSaved>(u"ChangedSaved", 0x6803000E, u"The value differs from the saved value"),
    property<&KelNumber::get_Decimals, &KelNumber::put_Decimals>(
        u"Decimals", 0x6803000D, u"Decimal places, 0 to 16; -1 for as many as the region uses")
        // First, so that all numbers after them are rounded with the right count.
        .saved(-1)
        .beforeReading(u"Caption"),
    property<&KelNumber::get_Enabled, &KelNumber::put_Enabled>(u"Enabled", EnabledId, u"The field takes input")
        .saved(true),
    property<&KelNumber::get_FontBold, &KelNumber::put_FontBold>(u"FontBold", 0x6803000C,
                                                                 u"Caption and field are shown in bold")
        .saved(false),
    property<&KelNumber::get_GroupDigits, &KelNumber::put_GroupDigits>(
        u"GroupDigits", 0x6803000B, u"Thousands are grouped while the field is not edited")
        .saved(true),
    property<&KelNumber::get_InsertMode, &KelNumber::put_InsertMode>(
        u"InsertMode", 0x6803000A, u"Typing inserts instead of overwriting; the Insert key toggles it")
        .saved(false)
        .beforeReading(u"FontBold"),
    property<&KelNumber::get_Locked, &KelNumber::put_Locked>(u"Locked", 0x68030009,
                                                             u"The value can be read and copied but not edited")
        .saved(false),
    property<&KelNumber::get_Mandatory, &KelNumber::put_Mandatory>(u"Mandatory", 0x68030008,
                                                                   u"The value must not be zero")
        .saved(true),
    property<&KelNumber::get_MaxValue, &KelNumber::put_MaxValue>(u"MaxValue", 0x68030007, u"Largest value accepted")
        .saved(0),
    property<&KelNumber::get_MinValue, &KelNumber::put_MinValue>(u"MinValue", 0x68030006, u"Smallest value accepted")
        .saved(0),
    method<&KelNumber::Refresh>(u"Refresh", 0x60030013, u"Repaints the field"),
    property<&KelNumber::get_SelectOnFocus, &KelNumber::put_SelectOnFocus>(u"SelectOnFocus", 0x68030005,
                                                                           u"Entering the field selects its text")
        .saved(false),
    method<&KelNumber::TooltipSet>(u"TooltipSet", 0x60030014, u"Sets the tooltip of the field").arguments(u"Tooltip"),
    property<&KelNumber::get_UpDown, &KelNumber::put_UpDown>(
        u"UpDown", 0x68030004, u"A spinner is shown, and the Up and Down keys step the value")
        .saved(false),
    property<&KelNumber::get_UpDownChange, &KelNumber::put_UpDownChange>(u"UpDownChange", 0x68030003,
                                                                         u"What one step adds or takes away")
        .saved(1),
    property<&KelNumber::get_Valid>(u"Valid", 0x68030002,
                                    u"The value is in range, and not zero in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&KelNumber::get_Value, &KelNumber::put_Value>(u"Value", DefaultMemberId, u"The number")
        // No number equals the empty text, so that a value is always written.
        .savedAs<&KelNumber::loadValue, &KelNumber::storedValue>(0)
        .writtenUnless(u""),
    property<&KelNumber::get_ValueOriginal, &KelNumber::put_ValueOriginal>(u"ValueOriginal", 0x68030001,
                                                                           u"What Changed compares with")
        .hiddenByReference(),
    property<&KelNumber::get_ValueSaved, &KelNumber::put_ValueSaved>(u"ValueSaved", 0x68030000,
                                                                     u"What ChangedSaved compares with")
        .hiddenByReference(),
};

constexpr EventRow Events[] = {
    {u"Change", 1, u"The spinner or the Up or Down key has changed the value"},
};

std::unique_ptr<Control> make(ControlHost& host) { return std::make_unique<KelNumber>(host); }

}  // namespace

constinit const EventRow KelNumber::Change = Events[0];

constinit const ClassModel KelNumberModel{
    .name = u"KelNumber",
    .help = u"Number entry with a caption, decimals, digit grouping and a spinner",
    .members = Members,
    .events = Events,
    .makeControl = &make,
};

const ClassModel& KelNumber::model() const { return KelNumberModel; }

}  // namespace kel
