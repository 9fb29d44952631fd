#include "common/EntryMembers.h"
#include "controls/text/KelText.h"

namespace kel {

namespace {

constexpr MemberRow KelTextMembers[] = {
    entry::caption(0x6803000E),
    entry::captionWidth(0x6803000D),
    property<&KelText::get_Changed>(u"Changed", 0x6803000C, u"The text differs from the original text"),
    property<&KelText::get_ChangedSaved>(u"ChangedSaved", 0x6803000B, u"The text differs from the saved text"),
    entry::enabled(),
    property<&KelText::get_hWnd>(u"hWnd", 0x6803000A, u"Handle of the control's own window"),
    entry::insertMode(0x68030009, true),
    entry::locked(0x68030008, u"The text can be read and copied but not edited"),
    entry::mandatory(0x68030007),
    entry::maxLength(0x68030006),
    property<&KelText::get_MultiLine, &KelText::put_MultiLine>(u"MultiLine", 0x68030005,
                                                               u"The field holds several lines")
        .saved(false)
        .in(Category::Behavior),
    property<&KelText::get_PasswordChar, &KelText::put_PasswordChar>(
        u"PasswordChar", 0x68030004, u"Character shown in place of each one typed; empty shows the text")
        .saved(u"")
        .in(Category::Appearance),
    entry::refresh(0x6003000F),
    entry::selectOnFocus(0x68030003),
    property<&KelText::get_Text, &KelText::put_Text>(
        u"Text", DefaultMemberId,
        u"The text, a multi-line one without its trailing empty lines: reading takes them out of the field, which "
        u"moves the caret to its start; a Change handler reads TextRaw instead")
        .savedAs<&KelText::put_Text, &KelText::get_TextRaw>(u"")
        .in(Category::Data)
        .linesWhere(u"MultiLine")
        .bound(),
    entry::original<&KelText::get_TextOriginal, &KelText::put_TextOriginal>(u"TextOriginal", 0x68030002),
    entry::saved<&KelText::get_TextSaved, &KelText::put_TextSaved>(u"TextSaved", 0x68030001),
    entry::tooltipSet(0x60030010),
    property<&KelText::get_Valid>(u"Valid", 0x68030000, u"The field is not mandatory, or not empty, or locked"),
    // Came later than the others and so stands last, in nobody's place.
    property<&KelText::get_TextRaw>(u"TextRaw", 0x68030011, u"The text exactly as it stands in the field"),
};

constexpr EventRow KelTextEvents[] = {
    {u"Change", 1, u"The text changed, by typing or by code"},
    {u"Click", 2, u"The field was clicked"},
};

}  // namespace

constinit const EventRow KelText::Change = KelTextEvents[0];
constinit const EventRow KelText::Click = KelTextEvents[1];

constinit const ClassModel KelTextModel{
    .name = u"KelText",
    .help = u"Free text entry with a caption, single-line or multi-line",
    .members = KelTextMembers,
    .events = KelTextEvents,
    .makeControl = &makeControl<KelText>,
};

const ClassModel& KelText::model() const { return KelTextModel; }

}  // namespace kel
