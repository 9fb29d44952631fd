#include "forms/file/FormBag.h"
#include "FormTesting.h"

namespace kel {

namespace {

PersistedRow row(std::u16string_view name, TypeTag type, PropertyDefault byDefault) {
    return {.name = name, .readName = name, .type = type, .readDefault = byDefault, .writeDefault = byDefault};
}

PersistedRow dropDownRow() {
    PersistedRow dropDown = row(u"DropDownWidth", TypeTag::Integer16, std::int16_t{0});
    dropDown.readName = u"DropdownWidth";
    return dropDown;
}

/// Written always: no number equals a text.
PersistedRow numberRow() {
    PersistedRow number = row(u"Value", TypeTag::Double, 0.0);
    number.writeDefault = u"";
    return number;
}

const PersistedRow Caption = row(u"Caption", TypeTag::String, u"");
const PersistedRow Width = row(u"CaptionWidth", TypeTag::Integer16, std::int16_t{0});
const PersistedRow Enabled = row(u"Enabled", TypeTag::Boolean, true);
const PersistedRow MaxValue = row(u"MaxValue", TypeTag::Date, Date{2958465});
const PersistedRow Value = row(u"Value", TypeTag::Any, std::int16_t{0});
const PersistedRow DropDown = dropDownRow();
const PersistedRow Number = numberRow();

Variant read(const std::string& lines, const PersistedRow& row) {
    const FormFile form = parseWith(lines);
    return ControlBag(form, 1).readProperty(row);
}

TEST(FormBag, ReadsExactlyTheTypeOfTheRow) {
    struct Case {
        const char* lines;
        const PersistedRow& row;
        Variant value;
    };
    const Case cases[] = {
        {"", Caption, std::u16string()},
        {"caption = \"a\"\n", Caption, std::u16string(u"a")},
        {"Caption = .5\n", Caption, std::u16string(u"0.5")},
        {"CaptionWidth = 2.5\n", Width, std::int16_t{2}},
        {"Enabled = 0   'False\n", Enabled, false},
        {"MaxValue = .75\n", MaxValue, Date{.75}},
        {"Value = \"10:15\"\n", Value, std::u16string(u"10:15")},
        {"Value = 70000\n", Value, std::int32_t{70000}},
        {"DropDownWidth = 200\n", DropDown, std::int16_t{200}},
        {"Value = 2\n", Number, 2.0},
    };
    for (const Case& c : cases) EXPECT_EQ(read(c.lines, c.row), c.value) << c.lines;
}

TEST(FormBag, RefusesWrongValues) {
    struct Case {
        const char* line;
        const PersistedRow& row;
        const char* message;
    };
    const Case cases[] = {
        {"CaptionWidth = 32768\n", Width, "CaptionWidth wants a value of type 16-bit integer, not 32768"},
        {"CaptionWidth = \"5\"\n", Width, "CaptionWidth wants a value of type 16-bit integer, not \"5\""},
        {"Enabled = True\n", Enabled, "Enabled wants a value of type boolean, not True"},
        {"MaxValue = 2958466\n", MaxValue, "MaxValue wants a value of type date, not 2958466"},
        {"Value = ^W\n", Value, "Value wants a value of type variant, not ^W"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(errorOf([&c] { read(c.line, c.row); }), std::string("test.frm:4: ") + c.message);
}

/// The lines of a control after it has written `value`.
std::string written(const std::string& lines, const PersistedRow& row, const Variant& value) {
    FormFile form = parseWith(lines);
    ControlBag bag(form, 1);
    bag.writeProperty(row, value);
    bag.applyTo(form, 1);
    return form.output("test.frm").form;
}

TEST(FormBag, ChangesOnlyWhatDiffers) {
    struct Case {
        const char* before;
        const PersistedRow& row;
        Variant value;
        const char* after;
    };
    const std::u16string text = u"a";
    const Case cases[] = {
        // Said in another way, it stays.
        {"ENABLED =  7 'yes\n", Enabled, true, "ENABLED =  7 'yes\n"},
        {"CaptionWidth = &H0A&\n", Width, std::int16_t{10}, "CaptionWidth = &H0A&\n"},
        {"MaxValue = 2958465.0\n", MaxValue, Date{2958465}, "MaxValue = 2958465.0\n"},
        {"Value=0.0\n", Number, 0.0, "Value=0.0\n"},
        {"", Number, 0.0, ""},
        // Another value changes the line, a default removes it.
        {"Enabled = 1\nX = 1\n", Enabled, false, "Enabled = 0   'False\nX = 1\n"},
        {"Enabled = 0\nX = 1\n", Enabled, true, "X = 1\n"},
        {"Caption = \"b\"\nX = 1\n", Caption, text, "Caption = \"a\"\nX = 1\n"},
        {"X = 1\n", MaxValue, Date{.25}, "MaxValue = .25\nX = 1\n"},
        {"X = 1\n", Value, std::u16string(u"00:00:00"), "Value = \"00:00:00\"\nX = 1\n"},
        {"dropdownwidth = 3\n", DropDown, std::int16_t{4}, "dropdownwidth = 4\n"},
        {"Value = 5\n", Number, 0.0, "Value = 0\n"},
    };
    for (const Case& c : cases) EXPECT_EQ(written(c.before, c.row, c.value), formWith(c.after)) << c.before;
}

}  // namespace

}  // namespace kel
