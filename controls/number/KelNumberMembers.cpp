#include "common/EntryMembers.h"
#include "controls/number/KelNumber.h"

namespace kel {

namespace {

constexpr MemberRow KelNumberMembers[] = {
    entry::caption(0x68030012),
    entry::captionWidth(0x68030011),
    property<&KelNumber::get_Changed>(u"Changed", 0x68030010, u"The value differs from the original value"),
    property<&KelNumber::get_ChangedCaption>(u"ChangedCaption", 0x6803000F,
                                             u"The caption is bound to data and was changed; gives its text")
        .arguments(u"CaptionToSave"),
    property<&KelNumber::get_ChangedSaved>(u"ChangedSaved", 0x6803000E, u"The value differs from the saved value"),
    property<&KelNumber::get_Decimals, &KelNumber::put_Decimals>(
        u"Decimals", 0x6803000D, u"Decimal places, 0 to 16; -1 for as many as the region uses")
        // First, so that all numbers after them are rounded with the right count.
        .saved(-1)
        .beforeReading(u"Caption")
        .in(Category::Format)
        .on(DesignPage::Numbers),
    entry::enabled(),
    entry::fontBold(0x6803000C),
    property<&KelNumber::get_GroupDigits, &KelNumber::put_GroupDigits>(
        u"GroupDigits", 0x6803000B, u"Thousands are grouped while the field is not edited")
        .saved(true)
        .in(Category::Format)
        .on(DesignPage::Numbers),
    entry::insertMode(0x6803000A, false).beforeReading(u"FontBold"),
    entry::locked(0x68030009, u"The value can be read and copied but not edited"),
    entry::mandatory(0x68030008, u"The value must not be zero"),
    property<&KelNumber::get_MaxValue, &KelNumber::put_MaxValue>(u"MaxValue", 0x68030007, u"Largest value accepted")
        .saved(0)
        .in(Category::Data)
        .on(DesignPage::Numbers),
    property<&KelNumber::get_MinValue, &KelNumber::put_MinValue>(u"MinValue", 0x68030006, u"Smallest value accepted")
        .saved(0)
        .in(Category::Data)
        .on(DesignPage::Numbers),
    entry::refresh(0x60030013),
    entry::selectOnFocus(0x68030005, u"Entering the field selects its text"),
    entry::tooltipSet(0x60030014),
    entry::upDown(0x68030004, false, u"A spinner is shown, and the Up and Down keys step the value"),
    property<&KelNumber::get_UpDownChange, &KelNumber::put_UpDownChange>(u"UpDownChange", 0x68030003,
                                                                         u"What one step adds or takes away")
        .saved(1)
        .in(Category::Behavior)
        .on(DesignPage::Numbers),
    property<&KelNumber::get_Valid>(u"Valid", 0x68030002,
                                    u"The value is in range, and not zero in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional(),
    property<&KelNumber::get_Value, &KelNumber::put_Value>(u"Value", DefaultMemberId, u"The number")
        // No number equals the empty text, so that a value is always written.
        .savedAs<&KelNumber::loadValue, &KelNumber::storedValue>(0)
        .writtenUnless(u"")
        .in(Category::Data)
        .bound(),
    entry::original<&KelNumber::get_ValueOriginal, &KelNumber::put_ValueOriginal>(u"ValueOriginal", 0x68030001),
    entry::saved<&KelNumber::get_ValueSaved, &KelNumber::put_ValueSaved>(u"ValueSaved", 0x68030000),
};

constexpr EventRow KelNumberEvents[] = {
    {u"Change", 1, u"The spinner or the Up or Down key has changed the value"},
};

constexpr MessageRow KelNumberMessages[] = {ValueMissing, ValueOutOfRange};

}  // namespace

constinit const EventRow KelNumber::Change = KelNumberEvents[0];

constinit const ClassModel KelNumberModel{
    .name = u"KelNumber",
    .help = u"Number entry with a caption, decimals, digit grouping and a spinner",
    .members = KelNumberMembers,
    .events = KelNumberEvents,
    .messages = KelNumberMessages,
    .makeControl = &makeControl<KelNumber>,
};

const ClassModel& KelNumber::model() const { return KelNumberModel; }

}  // namespace kel
