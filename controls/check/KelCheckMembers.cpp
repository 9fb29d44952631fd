#include "controls/check/KelCheck.h"

namespace kel {

namespace {

constexpr MemberRow KelCheckMembers[] = {
    property<&KelCheck::get_Caption, &KelCheck::put_Caption>(u"Caption", CaptionId, u"Text beside the check box")
        .savedAs<&KelCheck::loadCaption, &KelCheck::get_Caption>(u"")
        .in(Category::Appearance),
    property<&KelCheck::get_Changed>(u"Changed", 0x68030007, u"The value differs from the original value"),
    property<&KelCheck::get_ChangedSaved>(u"ChangedSaved", 0x68030006, u"The value differs from the saved value"),
    property<&KelCheck::get_Enabled, &KelCheck::put_Enabled>(u"Enabled", EnabledId, u"The check box takes input")
        .saved(true)
        .in(Category::Behavior),
    property<&KelCheck::get_FontBold, &KelCheck::put_FontBold>(u"FontBold", 0x68030005, u"The caption is shown in bold")
        .savedAs<&KelCheck::loadFontBold, &KelCheck::get_FontBold>(false)
        .in(Category::Appearance),
    property<&KelCheck::get_Locked, &KelCheck::put_Locked>(u"Locked", 0x68030004,
                                                           u"The value is shown but cannot be changed by the user")
        .saved(false)
        .in(Category::Behavior),
    property<&KelCheck::get_Mandatory, &KelCheck::put_Mandatory>(u"Mandatory", 0x68030003,
                                                                 u"The caption has the colour of mandatory fields")
        .saved(true)
        .in(Category::Behavior),
    method<&KelCheck::Refresh>(u"Refresh", 0x60030008, u"Repaints the check box"),
    method<&KelCheck::TooltipSet>(u"TooltipSet", 0x60030009, u"Sets the tooltip").arguments(u"Tooltip"),
    property<&KelCheck::get_Valid>(u"Valid", 0x68030002, u"Always true"),
    property<&KelCheck::get_Value, &KelCheck::put_Value>(u"Value", DefaultMemberId, u"The box is checked")
        // Although a new check box is unchecked: form files rely on it.
        .saved(true)
        .in(Category::Data)
        .bound(),
    property<&KelCheck::get_ValueOriginal, &KelCheck::put_ValueOriginal>(u"ValueOriginal", 0x68030001,
                                                                         u"What Changed compares with")
        .hiddenByReference(),
    property<&KelCheck::get_ValueSaved, &KelCheck::put_ValueSaved>(u"ValueSaved", 0x68030000,
                                                                   u"What ChangedSaved compares with")
        .hiddenByReference(),
};

constexpr EventRow KelCheckEvents[] = {
    {u"Change", 1, u"The user has checked or unchecked the box"},
};

}  // namespace

constinit const EventRow KelCheck::Change = KelCheckEvents[0];

constinit const ClassModel KelCheckModel{
    .name = u"KelCheck",
    .help = u"Check box with change tracking",
    .members = KelCheckMembers,
    .events = KelCheckEvents,
    .makeControl = &makeControl<KelCheck>,
};

const ClassModel& KelCheck::model() const { return KelCheckModel; }

}  // namespace kel
