#pragma once

#include "common/EntryMembers.h"
#include "controls/datetime/DateTimeField.h"

/// The rows of the members that date and time fields have in common. Each gives them its own words and defaults.
namespace kel::datetime {

constexpr auto changed(std::int32_t id) {
    return property<&DateTimeField::get_Changed>(u"Changed", id, u"The value differs from the original value");
}

constexpr auto changedSaved(std::int32_t id) {
    return property<&DateTimeField::get_ChangedSaved>(u"ChangedSaved", id, u"The value differs from the saved value");
}

constexpr auto format(std::u16string_view help, std::u16string_view byDefault,
                      std::span<const std::u16string_view> usual) {
    return property<&DateTimeField::get_Format, &DateTimeField::put_Format>(u"Format", 0x6803000A, help)
        .saved(byDefault)
        .in(Category::Format)
        .on(DesignPage::Format)
        .choices(usual);
}

constexpr auto maxValue(std::u16string_view help, Date byDefault) {
    return property<&DateTimeField::get_MaxValue, &DateTimeField::put_MaxValue>(u"MaxValue", 0x68030006, help)
        .saved(byDefault)
        .in(Category::Data);
}

constexpr auto minValue(std::u16string_view help, Date byDefault) {
    return property<&DateTimeField::get_MinValue, &DateTimeField::put_MinValue>(u"MinValue", 0x68030005, help)
        .saved(byDefault)
        .in(Category::Data);
}

constexpr auto valid() {
    return property<&DateTimeField::get_Valid>(
               u"Valid", 0x68030002, u"The value is in range, and there in a mandatory field, or the field is locked")
        .arguments(u"ShowMessage")
        .lastOptional();
}

/// Saved in a form of the control's own.
template <auto Load, auto Save, class Default>
constexpr auto value(std::u16string_view help, Default byDefault) {
    return property<&DateTimeField::get_Value, &DateTimeField::put_Value>(u"Value", DefaultMemberId, help)
        .template savedAs<Load, Save>(byDefault)
        .beforeWriting(u"UpDown")
        .in(Category::Data)
        .bound();
}

constexpr auto valueOriginal() {
    return entry::original<&DateTimeField::get_ValueOriginal, &DateTimeField::put_ValueOriginal>(u"ValueOriginal",
                                                                                                 0x68030001);
}

constexpr auto valueSaved() {
    return entry::saved<&DateTimeField::get_ValueSaved, &DateTimeField::put_ValueSaved>(u"ValueSaved", 0x68030000);
}

}  // namespace kel::datetime
