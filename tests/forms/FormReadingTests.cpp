#include "FormTesting.h"

namespace kel {

namespace {

std::string rewritten(const std::string& bytes) { return FormFile::parse(bytes, "test.frm").output("test.frm").form; }

TEST(FormReading, WritesWhatItReadByteForByte) {
    for (const char* name : {"orders.frm", "stock.frm", "mixed.frm"}) {
        const std::string bytes = readBytes(sampleFile(name));
        ASSERT_FALSE(bytes.empty()) << name;
        EXPECT_EQ(rewritten(bytes), bytes) << name;
    }
    const std::string texts[] = {
        "VERSION 5.00\nBegin A b\nEnd",
        "VERSION 5.00\r\nBegin A b\r\nEnd\r",
        "\xEF\xBB\xBFVERSION 5.00   'by hand\n\n\t'\nBegin A b  \nEnd  'over\n\n\n",
        "VERSION 5.00\nBegin A b\n x=\n y =  {00-11}  \n z\t=\"\"\"\"\nEnd\nBegin A b\nEnd\nEnd\n",
        formWith("Caption = \"\xE4\"\n"),
    };
    for (const std::string& text : texts) EXPECT_EQ(rewritten(text), text);
}

TEST(FormReading, BlocksNestAsInTheFile) {
    const FormFile form = readFormFile(sampleFile("orders.frm"));
    std::string tree;
    for (const FormBlock& block : form.blocks()) {
        tree += toUtf8(block.name);
        if (block.index) tree += "(" + std::to_string(*block.index) + ")";
        if (block.parent != NoFormBlock) tree += "<" + toUtf8(form.block(block.parent).name);
        tree += isLibraryClass(block) ? "* " : " ";
    }
    EXPECT_EQ(tree,
              "frmOrders fraCustomer<frmOrders txtName<fraCustomer* txtNotes<fraCustomer* optPaid(0)<fraCustomer "
              "optPaid(1)<fraCustomer numTotal<frmOrders* linBottom<frmOrders mnuFile<frmOrders mnuFileClose<mnuFile ");
    EXPECT_EQ(form.block(0).children, (std::vector<FormBlockId>{1, 6, 7, 8}));
    EXPECT_EQ(form.block(2).className, u"KelControls8.KelText");
    EXPECT_EQ(form.block(2).line, 34U);
    ASSERT_EQ(form.objects().size(), 2U);
    EXPECT_EQ(form.objects()[0].library, u"{6A2F1C30-5D0B-4E55-9B54-0C9E1E0F7A11}#1.4#0");
    EXPECT_EQ(form.objects()[0].file, u"KelControls8.ocx");
}

TEST(FormReading, PropertiesOfABlockAreItsOwnAndInOrder) {
    const FormFile form = readFormFile(sampleFile("mixed.frm"));
    std::u16string names;
    for (const FormProperty& property : form.properties(0)) names += property.name + u" ";
    EXPECT_EQ(names, u"caption Tag ClientWidth Columns(0).Width Columns(1).Width Left ");
    EXPECT_FALSE(form.find(0, u"NumButtons")) << "stands in a group";
    EXPECT_FALSE(form.find(0, u"End")) << "stands in a nested block";
    EXPECT_EQ(form.find(0, u"LEFT")->line, 24U);
}

TEST(FormReading, ValuesKeepTheirKinds) {
    struct Case {
        const char* written;
        FormValue value;
    };
    const Case cases[] = {
        {"12", 12},
        {"-1  'True", -1},
        {"2147483648", 2147483648.0},
        {".75", .75},
        {"1E+20", 1E+20},
        {"&H00C0C0C0&", 0xC0C0C0},
        {"&H80000005&", INT32_MIN + 5},
        {"&hffff", -1},
        {"&H100000000&", FormRaw{u"&H100000000&"}},
        {"\"a \"\"b\"\" 'c\"  'd", u"a \"b\" 'c"},
        {"\"\"\"\"", u"\""},
        {"$\"a b.frx\":04fE", FormReference{u"a b.frx", 0x4FE, true}},
        {"\"A.FRX\":0 'icon", FormReference{u"A.FRX", 0, false}},
        {"{0713E8A2-850A}  ", FormRaw{u"{0713E8A2-850A}"}},
        {"1E999", FormRaw{u"1E999"}},
        {"+-1", FormRaw{u"+-1"}},
        {"", FormRaw{}},
    };
    for (const Case& c : cases) {
        const auto property = parseWith(std::string("X = ") + c.written + "\n").find(1, u"x");
        ASSERT_TRUE(property) << c.written;
        EXPECT_EQ(property->value, c.value) << c.written;
    }
}

TEST(FormReading, TextIsUtf8WhereItIsValidAndWindows1252Elsewhere) {
    const FormFile classic = readFormFile(sampleFile("orders.frm"));
    EXPECT_EQ(classic.text(0, u"Caption"), u"Orders for Caf\u00e9 \"Z\u00fcrich\"");
    const FormFile utf8 = readFormFile(sampleFile("stock.frm"));
    EXPECT_EQ(utf8.text(1, u"List"), u"\u0141\u00f3d\u017a,Krak\u00f3w");
    // One byte in the code that is no UTF-8 makes the whole file Windows-1252.
    const FormFile mixed = FormFile::parse(formWith("X = \"\xC3\xA4\"\n") + "' \xE4", "test.frm");
    EXPECT_EQ(mixed.text(1, u"X"), u"\u00c3\u00a4");
}

TEST(FormReading, GeometryAndDefaults) {
    const FormFile form = readFormFile(sampleFile("orders.frm"));
    EXPECT_EQ(form.bounds(1), (Rect{120, 120, 6975, 2295}));
    EXPECT_EQ(form.clientSize(0), (Size{7200, 4500}));
    EXPECT_FALSE(form.boolean(0, u"MaxButton", true));
    EXPECT_TRUE(form.boolean(0, u"MinButton", true));
    EXPECT_EQ(form.integer(6, u"UpDownChange", 7), 0) << "halves and less go to the even neighbour";
    EXPECT_EQ(form.text(6, u"Text", u"none"), u"none");
    EXPECT_EQ(errorOf([&] { form.integer(6, u"MaxValue"); }),
              form.path() + ":90: MaxValue wants a value of type 32-bit integer, not 1E+20");
}

}  // namespace

}  // namespace kel
