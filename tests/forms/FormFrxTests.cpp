#include "FormTesting.h"

namespace kel {

namespace {

const std::string Reference = "Text = $\"a.frx\":";

std::string textIn(const TemporaryFolder& folder, const std::string& lines) {
    folder.write("a.frm", formWith(lines));
    return toUtf8(readFormFile(folder.file("a.frm")).text(1, u"Text"));
}

TEST(FormFrx, RecordsOfEveryLength) {
    const TemporaryFolder folder;
    for (const std::size_t length : {0U, 1U, 253U, 254U, 255U, 256U, 65534U, 65535U, 65536U, 200'000U}) {
        FormFile form = FormFile::parse(formWith(""), folder.file("b.frm"));
        std::u16string text(length, u'x');
        text += u'\n';
        form.set(1, u"Text", text);
        form.save(form.path());
        EXPECT_EQ(readFormFile(form.path()).text(1, u"Text"), text) << length;
    }
    const std::pair<std::string, std::string> records[] = {
        {std::string("\x03", 1) + "abc", "abc"},
        {std::string("\xFF\x02\x00", 3) + "abc", "ab"},
        {std::string("\xFF\xFF\xFF\x01\x00\x00\x00", 7) + "abc", "a"},
        {std::string("\x02\r\n"), "\r\n"},
    };
    for (const auto& [record, text] : records) {
        folder.write("a.frx", "0123" + record);
        EXPECT_EQ(textIn(folder, Reference + "0004\n"), text);
    }
}

TEST(FormFrx, ErrorsNameThePlaceAndTheFile) {
    const TemporaryFolder folder;
    const std::string place = folder.file("a.frm") + ":4: Text";
    folder.write("a.frx", std::string("\x06xyz\xFF\x10", 6));
    folder.write("other/b.frx", "\x01z");
    const std::pair<std::string, std::string> cases[] = {
        {Reference + "0000\n", ": a.frx ends in the middle of the text"},
        {Reference + "0004\n", ": a.frx ends in the middle of the text"},
        {Reference + "0006\n", ": a.frx is only 6 bytes long"},
        {"Text = $\"none.frx\":0000\n", ": none.frx is not there"},
        {"Text = $\"other/b.frx\":0000\n", ": other/b.frx is not there"},
        {"Text = $\"..\\a.frx\":0000\n", ": ..\\a.frx is not there"},
        {"Text = \"a.frx\":0000\n", " wants a value of type string, not \"a.frx\":0000"},
    };
    for (const auto& [line, message] : cases)
        EXPECT_EQ(errorOf([&, &text = line] { textIn(folder, text); }), place + message);
}

TEST(FormFrx, ReadsTheSampleWhateverTheCaseOfTheName) {
    const TemporaryFolder folder;
    folder.write("ORDERS.FRX", readBytes(sampleFile("orders.frx")));
    folder.write("orders.frm", readBytes(sampleFile("orders.frm")));
    const std::u16string text = u"First line\r\nSecond line, 12 \u20ac\r\n";
    EXPECT_EQ(readFormFile(folder.file("orders.frm")).text(3, u"Text"), text);
}

TEST(FormFrx, ATextOfSeveralLinesIsAddedToTheResourceFile) {
    const TemporaryFolder folder;
    const std::string frx = readBytes(sampleFile("orders.frx"));
    folder.write("orders.frx", frx);
    const std::string path = folder.write("orders.frm", readBytes(sampleFile("orders.frm")));
    FormFile form = readFormFile(path);
    form.set(2, u"Text", std::u16string(u"one\ntwo \u00e9"));
    form.save(path);

    const std::string saved = readBytes(folder.file("orders.frx"));
    EXPECT_EQ(saved, frx +
                         "\x09"
                         "one\ntwo \xE9");
    EXPECT_NE(readBytes(path).find("Text            =   $\"orders.frx\":0062\r\n"), std::string::npos);
    EXPECT_EQ(readFormFile(path).text(2, u"Text"), u"one\ntwo \u00e9");
    EXPECT_EQ(readFormFile(path).text(3, u"Text"), form.text(3, u"Text"));
    EXPECT_EQ(folder.count(), 2) << "nothing else is left behind";

    form.save(path);
    EXPECT_EQ(readBytes(folder.file("orders.frx")), saved) << "saving twice adds nothing";
}

TEST(FormFrx, SavingElsewhereTakesTheResourceFilesAlong) {
    const TemporaryFolder folder;
    const std::string frx = readBytes(sampleFile("orders.frx"));
    folder.write("orders.frx", frx);
    FormFile form = readFormFile(folder.write("orders.frm", readBytes(sampleFile("orders.frm"))));

    form.save(folder.file("copy.frm"));
    EXPECT_EQ(folder.count(), 3) << "beside the old one nothing is needed";
    form.save(folder.file("other/new.frm"));
    EXPECT_EQ(readBytes(folder.file("other/orders.frx")), frx);
    EXPECT_EQ(readBytes(folder.file("other/new.frm")), readBytes(sampleFile("orders.frm")));

    // A new text has its place in the new form's own file, old ones stay in the old.
    form.set(2, u"Text", std::u16string(u"\t"));
    form.save(folder.file("other/new.frm"));
    const FormFile moved = readFormFile(folder.file("other/new.frm"));
    EXPECT_EQ(moved.text(2, u"Text"), u"\t");
    EXPECT_EQ(moved.text(3, u"Text"), form.text(3, u"Text"));
    EXPECT_EQ(readBytes(folder.file("other/new.frx")), "\x01\t");
    EXPECT_EQ(readBytes(folder.file("other/orders.frx")), frx);
}

TEST(FormFrx, HalfAPairComesBack) {
    const TemporaryFolder folder;
    for (const char* const caption : {"a", "\xC3\xA9", "\xE9"}) {
        FormFile form = FormFile::parse(formWith(std::string("Caption = \"") + caption + "\"\n"), folder.file("a.frm"));
        for (const char16_t* const text : {u"a\xD83D", u"\xDE00\xD83D\xDE00\xD83D z", u"\u00ED\u00A0\u20AC\n"}) {
            form.set(1, u"Text", std::u16string(text));
            form.save(form.path());
            EXPECT_EQ(readFormFile(form.path()).text(1, u"Text"), text);
        }
    }
}

TEST(FormFrx, ANameThatIsNoUtf8HasItsResourceFileToo) {
    const TemporaryFolder folder;
    FormFile form = FormFile::parse(formWith(""), folder.file("Gr\xF6\xDF"
                                                              "e.frm"));
    for (const char16_t* const text : {u"one\n", u"two\n"}) {
        form.set(1, u"Text", std::u16string(text));
        form.save(form.path());
        EXPECT_EQ(readFormFile(form.path()).text(1, u"Text"), text);
        EXPECT_TRUE(std::filesystem::exists(folder.file("Gr\u00F6\u00DFe.frx")));
    }
}

TEST(FormFrx, AResourceFileOfAnotherFormIsNeverReplaced) {
    const TemporaryFolder folder;
    folder.write("orders.frx", readBytes(sampleFile("orders.frx")));
    folder.write("other/orders.frx", "of another form");
    const FormFile form = readFormFile(folder.write("orders.frm", readBytes(sampleFile("orders.frm"))));
    EXPECT_EQ(errorOf([&] { form.save(folder.file("other/new.frm")); }),
              folder.file("other/orders.frx") + ": would be replaced by another file of that name");
    EXPECT_FALSE(std::filesystem::exists(folder.file("other/new.frm")));
    form.save(folder.file("other/orders.frm"));
    EXPECT_EQ(readFormFile(folder.file("other/orders.frm")).text(3, u"Text"), form.text(3, u"Text"));
}

TEST(FormFrx, ATextIsNotAddedToAFileThatIsMissing) {
    const TemporaryFolder folder;
    FormFile form = FormFile::parse(formWith("Icon = \"A.frx\":0000\n"), folder.file("a.frm"));
    form.save(form.path());
    form.set(1, u"Text", std::u16string(u"\n"));
    EXPECT_EQ(errorOf([&] { form.save(form.path()); }),
              folder.file("A.frx") + ": is not there, so no text can be added to it");
    EXPECT_EQ(readBytes(form.path()), formWith("Icon = \"A.frx\":0000\n")) << "the old file stands";
}

TEST(FormFrx, OldTextsStayTheSameWhenTheEncodingChanges) {
    struct Case {
        const char* caption;
        const char* record;
        const char16_t* text;  ///< what the old record says
        const char16_t* newCaption;
    };
    const Case cases[] = {
        {"\xE9", "\x02\xC3\xA9", u"\u00c3\u00a9", u"\u0142"},  // Windows-1252 becomes UTF-8
        {"\xE9", "\x02\xC3\xA9", u"\u00c3\u00a9", u"plain"},   // its only letter goes
        {"a", "\x02\xC3\xA9", u"\u00e9", u"\u00fc"},           // ASCII becomes Windows-1252
        {"a", "\x02\xC5\x82", u"\u0142", u"\u00fc"},           // ... and cannot
    };
    for (const Case& c : cases) {
        const TemporaryFolder folder;
        folder.write("a.frx", c.record);
        const std::string path = folder.write(
            "a.frm", formWith(std::string("Caption = \"") + c.caption + "\"\n" + Reference + "0000\nX = \"\"\n"));
        FormFile form = readFormFile(path);
        ASSERT_EQ(form.text(1, u"Text"), c.text);
        form.set(1, u"Caption", std::u16string(c.newCaption));
        form.set(1, u"X", std::u16string(u"\u00c2\u00a9\n"));
        form.save(path);
        const FormFile again = readFormFile(path);
        EXPECT_EQ(again.text(1, u"Text"), c.text);
        EXPECT_EQ(again.text(1, u"Caption"), c.newCaption);
        EXPECT_EQ(again.text(1, u"X"), u"\u00c2\u00a9\n");
    }
}

TEST(FormFrx, AFileThatCannotBeWrittenIsNamedAndLeavesNothing) {
    const TemporaryFolder folder;
    FormFile form = parseWith("");
    form.set(1, u"Text", std::u16string(u"\n"));
    EXPECT_EQ(errorOf([&] { form.save(folder.file("none/a.frm")); }),
              folder.file("none/a.frx") + ": cannot be written: No such file or directory");
    std::filesystem::create_directories(folder.file("b.frm"));
    EXPECT_EQ(errorOf([&] { form.save(folder.file("b.frm")); }), folder.file("b.frm") + ": is a folder");
    EXPECT_EQ(folder.count(), 0);
}

}  // namespace

}  // namespace kel
