#include <limits>

#include "FormTesting.h"

namespace kel {

namespace {

std::string outputOf(const FormFile& form) { return form.output(form.path()).form; }

/// The lines of block 1 after `set`.
std::string afterSet(const std::string& lines, std::u16string_view name, const Variant& value) {
    FormFile form = parseWith(lines);
    form.set(1, name, value);
    const std::string bytes = outputOf(form);
    const std::size_t start = formWith("").find("   End");
    const std::size_t end = formWith("").size() - start;
    EXPECT_EQ(bytes.substr(0, start) + bytes.substr(bytes.size() - end), formWith("")) << "other lines changed";
    return bytes.substr(start, bytes.size() - start - end);
}

TEST(FormEdit, AChangedLineKeepsItsLayout) {
    struct Case {
        const char* before;
        Variant value;
        const char* after;
    };
    const Case cases[] = {
        {"\tX\t=   5  \n", std::int32_t{7}, "\tX\t=   7\n"},
        {"x=5\r\n", std::int16_t{-7}, "x=-7\r\n"},
        {"X =   3  'Windows Default\n", std::int32_t{1}, "X =   1\n"},
        {"X   =   0   'False\r\n", true, "X   =   -1  'True\r\n"},
        {"X = 1\n", .75, "X = .75\n"},
        {"X = 1\n", 1E+20, "X = 1E+20\n"},
        {"X = 1\n", Date{41639}, "X = 41639\n"},
        {"X = \"a\"\n", std::u16string(u"say \"yes\" 'now'"), "X = \"say \"\"yes\"\" 'now'\"\n"},
    };
    for (const Case& c : cases) EXPECT_EQ(afterSet(c.before, u"x", c.value), c.after);
}

TEST(FormEdit, WhatCannotStandInAFileIsRefused) {
    FormFile form = parseWith("BeginProperty Font\nEndProperty\n");
    EXPECT_EQ(errorOf([&] { form.set(1, u"X", Null{}); }), "test.frm:3: X: such a value cannot stand in a form file");
    EXPECT_NE(errorOf([&] { form.set(1, u"X", std::numeric_limits<double>::infinity()); }), "");
    EXPECT_EQ(errorOf([&] { form.set(1, u"font", std::int32_t{1}); }), "test.frm:4: font is a group and has no value");
    EXPECT_FALSE(form.remove(1, u"Font"));
    EXPECT_EQ(outputOf(form), formWith("BeginProperty Font\nEndProperty\n"));
}

TEST(FormEdit, ANewLineStandsWhereSuchFilesHaveIt) {
    const std::string classic =
        "      Height          =   300\n"
        "      Left            =   120\n"
        "      _ExtentX        =   7064\n"
        "      _ExtentY        =   529\n"
        "      Caption         =   \"Name\"\n"
        "      BeginProperty Font\n"
        "         Name = \"Arial\"\n"
        "      EndProperty\n"
        "      Text            =   \"\"\n";
    struct Case {
        const char16_t* name;
        const char* before;  ///< the line it stands in front of
        const char* line;
    };
    const Case cases[] = {
        {u"Alpha", "      Caption", "      Alpha           =   1\n"},
        {u"CaptionWidth", "      BeginProperty", "      CaptionWidth    =   1\n"},
        {u"Locked", "      Text", "      Locked          =   1\n"},
        {u"VeryLongPropertyName", "", "      VeryLongPropertyName=   1\n"},
        {u"Index", "      Left", "      Index           =   1\n"},
        {u"DataMember", "      Height", "      DataMember      =   1\n"},
        {u"width", "      _ExtentX", "      width           =   1\n"},
    };
    for (const Case& c : cases) {
        std::string expected = classic;
        expected.insert(*c.before == '\0' ? classic.size() : classic.find(c.before), c.line);
        EXPECT_EQ(afterSet(classic, c.name, std::int32_t{1}), expected);
    }
}

TEST(FormEdit, ANewLineTakesTheLayoutOfItsNeighbours) {
    EXPECT_EQ(afterSet("\tCaption = \"a\"\r\n\tText = \"b\"\r\n", u"Locked", true),
              "\tCaption = \"a\"\r\n\tLocked = -1  'True\r\n\tText = \"b\"\r\n");
    EXPECT_EQ(afterSet("a=1\nc=1\n", u"b", std::int32_t{2}), "a=1\nb=2\nc=1\n");
    EXPECT_EQ(afterSet("' all of it\n", u"Text", std::u16string(u"x")),
              "      Text            =   \"x\"\n' all of it\n");

    // An empty block looks to the one around it, and a nested block stays behind the properties.
    FormFile form = readFormFile(sampleFile("stock.frm"));
    form.set(2, u"Caption", std::u16string(u"Aktywny"));
    form.set(0, u"ScaleMode", std::int32_t{1});
    const std::string bytes = outputOf(form);
    EXPECT_NE(bytes.find("KelCheck Aktiv\n      Caption = \"Aktywny\"\n   End"), std::string::npos);
    EXPECT_NE(bytes.find("ClientWidth = 4000\n   ScaleMode = 1\n   ' fields"), std::string::npos);
}

TEST(FormEdit, RemovingAndAddingAgain) {
    FormFile form = parseWith("A = 1\nB = 2\nC = 3\n");
    const FormFile untouched = form;
    EXPECT_TRUE(form.remove(1, u"b"));
    EXPECT_FALSE(form.remove(1, u"b"));
    EXPECT_FALSE(form.find(1, u"B"));
    EXPECT_EQ(outputOf(form), formWith("A = 1\nC = 3\n"));
    form.set(1, u"B", std::u16string(u"\r\n"));
    form.set(1, u"B", std::int32_t{5});
    EXPECT_EQ(form.integer(1, u"B"), 5);
    EXPECT_EQ(outputOf(form), formWith("A = 1\nB = 5\nC = 3\n"));
    EXPECT_EQ(outputOf(untouched), formWith("A = 1\nB = 2\nC = 3\n")) << "a copy is a file of its own";
}

// What is written must read back as the same text, whatever the encoding of the file was.
TEST(FormEdit, TheEncodingFollowsTheText) {
    struct Case {
        const char* caption;
        const char* code;
        const char16_t* text;
        const char* bytes;       ///< of the text afterwards
        const char* otherBytes;  ///< of caption and code afterwards
    };
    const Case cases[] = {
        {"a", "'b", u"\u00e9", "\xE9", "a'b"},
        {"a", "'b", u"\u0142", "\xC5\x82", "a'b"},
        {"\xE9", "'\x80", u"\u00fc", "\xFC", "\xE9'\x80"},
        {"\xE9", "'\x80\x81", u"\u0142", "\xC5\x82", "\xC3\xA9'\xE2\x82\xAC\xC2\x81"},
        {"\xC3\xA9", "'b", u"\u00fc", "\xC3\xBC", "\xC3\xA9'b"},
        // As Windows-1252 this text would read back as one letter of UTF-8.
        {"a", "'b", u"\u00c3\u00a9", "\xC3\x83\xC2\xA9", "a'b"},
    };
    for (const Case& c : cases) {
        FormFile form =
            FormFile::parse(formWith(std::string("Caption = \"") + c.caption + "\"\nText = \"\"\n") + c.code, "t.frm");
        const std::u16string caption = form.text(1, u"Caption");
        form.set(1, u"Text", std::u16string(c.text));
        const std::string bytes = outputOf(form);
        EXPECT_NE(bytes.find("Text = \"" + std::string(c.bytes) + "\"\n"), std::string::npos) << bytes;
        const FormFile again = FormFile::parse(bytes, "t.frm");
        EXPECT_EQ(again.text(1, u"Text"), c.text);
        EXPECT_EQ(again.text(1, u"Caption"), caption);
        std::string others = bytes.substr(bytes.find('"') + 1);
        others = others.substr(0, others.find('"')) + others.substr(others.find("End\nEnd\n") + 8);
        EXPECT_EQ(others, c.otherBytes);
    }
}

}  // namespace

}  // namespace kel
