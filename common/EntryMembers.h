#pragma once

#include "common/EntryField.h"
#include "library/TypeModel.h"

/// The rows of the members that entry controls have in common. Each control gives them its own identifiers, and its own
/// words and defaults where they differ.
namespace kel::entry {

constexpr auto caption(std::int32_t id) {
    return property<&EntryField::get_Caption, &EntryField::put_Caption>(u"Caption", id, u"Text of the caption")
        .saved(u"")
        .in(Category::Appearance);
}

constexpr auto captionWidth(std::int32_t id) {
    return property<&EntryField::get_CaptionWidth, &EntryField::put_CaptionWidth>(u"CaptionWidth", id,
                                                                                  u"Width of the caption in twips")
        .saved(0)
        .in(Category::Appearance);
}

constexpr auto enabled(std::int32_t id = EnabledId) {
    return property<&EntryField::get_Enabled, &EntryField::put_Enabled>(u"Enabled", id, u"The field takes input")
        .saved(true)
        .in(Category::Behavior);
}

constexpr auto fontBold(std::int32_t id) {
    return property<&EntryField::get_FontBold, &EntryField::put_FontBold>(u"FontBold", id,
                                                                          u"Caption and field are shown in bold")
        .saved(false)
        .in(Category::Appearance);
}

constexpr auto insertMode(std::int32_t id, bool byDefault) {
    return property<&EntryField::get_InsertMode, &EntryField::put_InsertMode>(
               u"InsertMode", id, u"Typing inserts instead of overwriting; the Insert key toggles it")
        .saved(byDefault)
        .in(Category::Behavior);
}

constexpr auto locked(std::int32_t id, std::u16string_view help) {
    return property<&EntryField::get_Locked, &EntryField::put_Locked>(u"Locked", id, help)
        .saved(false)
        .in(Category::Behavior);
}

constexpr auto mandatory(std::int32_t id, std::u16string_view help = u"The field must not be left empty") {
    return property<&EntryField::get_Mandatory, &EntryField::put_Mandatory>(u"Mandatory", id, help)
        .saved(true)
        .in(Category::Behavior);
}

constexpr auto maxLength(std::int32_t id) {
    return property<&EntryField::get_MaxLength, &EntryField::put_MaxLength>(
               u"MaxLength", id, u"Most UTF-16 units that can be typed or pasted; 0 for no limit")
        .saved(0)
        .in(Category::Behavior);
}

constexpr auto refresh(std::int32_t id) { return method<&EntryField::Refresh>(u"Refresh", id, u"Repaints the field"); }

constexpr auto selectOnFocus(std::int32_t id,
                             std::u16string_view help = u"Entering the field with the Tab key selects its text") {
    return property<&EntryField::get_SelectOnFocus, &EntryField::put_SelectOnFocus>(u"SelectOnFocus", id, help)
        .saved(false)
        .in(Category::Behavior);
}

constexpr auto tooltipSet(std::int32_t id) {
    return method<&EntryField::TooltipSet>(u"TooltipSet", id, u"Sets the tooltip of the field").arguments(u"Tooltip");
}

constexpr auto upDown(std::int32_t id, bool byDefault, std::u16string_view help = u"A spinner is shown") {
    return property<&EntryField::get_UpDown, &EntryField::put_UpDown>(u"UpDown", id, help)
        .saved(byDefault)
        .in(Category::Appearance);
}

/// A reference that a host keeps in the control.
template <auto Get, auto Put>
constexpr MemberRow original(std::u16string_view name, std::int32_t id) {
    return property<Get, Put>(name, id, u"What Changed compares with").hiddenByReference();
}
template <auto Get, auto Put>
constexpr MemberRow saved(std::u16string_view name, std::int32_t id) {
    return property<Get, Put>(name, id, u"What ChangedSaved compares with").hiddenByReference();
}

}  // namespace kel::entry
