#include "common/EntryMembers.h"
#include "controls/combo/KelCombo.h"
#include "controls/combo/ListText.h"

namespace kel {

namespace {

/// The same items however they are quoted, as far as a combo takes them.
bool isSameList(std::u16string_view left, std::u16string_view right) { return listItemsOf(left) == listItemsOf(right); }

constexpr MemberRow KelComboMembers[] = {
    entry::caption(0x68030013),
    entry::captionWidth(0x68030012),
    property<&KelCombo::get_Changed>(u"Changed", 0x68030011, u"The text differs from the original text"),
    property<&KelCombo::get_ChangedSaved>(u"ChangedSaved", 0x68030010, u"The text differs from the saved text"),
    property<&KelCombo::get_DropDownWidth, &KelCombo::put_DropDownWidth>(
        u"DropDownWidth", 0x6803000F, u"Width of the dropped list in twips, up to 8000; 0 for the field's width")
        // Read by another name than written: kept, since forms were saved so.
        .savedAs<&KelCombo::loadDropDownWidth, &KelCombo::storedDropDownWidth>(0)
        .readAs(u"DropdownWidth")
        .in(Category::Appearance),
    entry::enabled(0x6803000E),
    property<&KelCombo::get_LimitToList, &KelCombo::put_LimitToList>(u"LimitToList", 0x6803000D,
                                                                     u"The text is an item of the list, or empty")
        .saved(true)
        .in(Category::Behavior),
    property<&KelCombo::get_List, &KelCombo::put_List>(
        u"List", 0x6803000C, u"The items, separated by commas; items with commas or quotes stand in double quotes")
        .saved(u"")
        .sameWhere(&isSameList)
        .in(Category::List)
        .on(DesignPage::List),
    property<&KelCombo::get_ListCount>(u"ListCount", 0x6803000B, u"Count of the items"),
    property<&KelCombo::get_ListIndex, &KelCombo::put_ListIndex>(
        u"ListIndex", 0x6803000A, u"The item that is the text, counted from 1; -1 for none or without LimitToList")
        .byReference(),
    property<&KelCombo::get_ListItem>(u"ListItem", 0x68030009,
                                      u"Text of an item, counted from 1; left out, of the one before the selected")
        .arguments(u"Item")
        .lastOptional(),
    property<&KelCombo::get_ListTag, &KelCombo::put_ListTag>(u"ListTag", 0x68030008,
                                                             u"Tags of the items, written as the list is")
        .saved(u"")
        .in(Category::List)
        .on(DesignPage::List),
    property<&KelCombo::get_ListTagItem>(u"ListTagItem", 0x68030007,
                                         u"Tag of an item, counted from 1; left out, of the selected one")
        .arguments(u"Item")
        .lastOptional(),
    entry::locked(0x68030006, u"The text can be read and copied but not changed"),
    entry::mandatory(0x68030005),
    entry::maxLength(0x68030004),
    entry::refresh(0x60030014),
    entry::selectOnFocus(0x68030003),
    property<&KelCombo::get_Text, &KelCombo::put_Text>(u"Text", DefaultMemberId,
                                                       u"The text; where only items may stand, an item or empty")
        .saved(u"")
        .in(Category::Data)
        .bound(),
    entry::original<&KelCombo::get_TextOriginal, &KelCombo::put_TextOriginal>(u"TextOriginal", 0x68030002),
    entry::saved<&KelCombo::get_TextSaved, &KelCombo::put_TextSaved>(u"TextSaved", 0x68030001),
    entry::tooltipSet(0x60030015),
    property<&KelCombo::get_Valid>(u"Valid", 0x68030000, u"The field is not mandatory, or not blank, or locked"),
    // Came later than the others and so stands last, in nobody's place.
    method<&KelCombo::ListFromArray>(u"ListFromArray", 0x60030016, u"Takes the items from an array, as they are")
        .arguments(u"strArray"),
};

constexpr ParameterRow ChangeParameters[] = {
    {.name = u"Handled", .type = TypeTag::Boolean, .byReference = true},
};

constexpr EventRow KelComboEvents[] = {
    {u"Change", 1, u"The user has changed the text"},
    {u"Click", 2, u"The user has picked another item from the list"},
    {u"ChangeEx", 3, u"Comes first; Handled set to False holds Change and Click back", ChangeParameters},
};

}  // namespace

constinit const EventRow KelCombo::Change = KelComboEvents[0];
constinit const EventRow KelCombo::Click = KelComboEvents[1];
constinit const EventRow KelCombo::ChangeEx = KelComboEvents[2];

constinit const ClassModel KelComboModel{
    .name = u"KelCombo",
    .help = u"Choice from a list with a caption; completes what is typed",
    .members = KelComboMembers,
    .events = KelComboEvents,
    .makeControl = &makeControl<KelCombo>,
};

const ClassModel& KelCombo::model() const { return KelComboModel; }

}  // namespace kel
