
#include "FormTesting.h"

namespace kel {

namespace {

const std::string Head = "VERSION 5.00\nBegin VB.Form f\n";

std::string parseError(std::string bytes) {
    return errorOf([&bytes] { FormFile::parse(std::move(bytes), "a.frm"); });
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) all += text;
    return all;
}

struct Mistake {
    std::string bytes;
    std::size_t line;
    std::string message;  ///< a part of it
};

void expectMistake(Mistake mistake) {
    const std::string start = mistake.bytes.substr(0, 200);
    const std::string error = parseError(std::move(mistake.bytes));
    const std::string place = "a.frm:" + std::to_string(mistake.line) + ": ";
    EXPECT_EQ(error.substr(0, place.size()), place) << error << "\n" << start;
    EXPECT_NE(error.find(mistake.message), std::string::npos) << error << "\nwants " << mistake.message;
}

void expectMistakes(const std::vector<Mistake>& mistakes) {
    for (const Mistake& mistake : mistakes) expectMistake(mistake);
}

TEST(FormErrors, OfTheWholeFile) {
    expectMistakes({
        {"", 1, "the file is empty"},
        {"Begin A b\nEnd\n", 1, "VERSION"},
        {"VERSION 4.00\nBegin A b\nEnd\n", 1, "only 5.00"},
        {"VERSION 1.0 CLASS\n", 1, "\"CLASS\" stands after the version"},
        {"VERSION 5.00\nVERSION 5.00\n", 2, "second VERSION"},
    });
}

TEST(FormErrors, OfBlocksAndGroups) {
    expectMistakes({
        {Head, 2, "\"Begin VB.Form f\" has no End: the file is cut off after line 2"},
        {Head + "Begin\nEnd\n", 3, "without a class and a name"},
        {Head + "EndProperty\n", 3, "EndProperty without BeginProperty"},
        {Head + "BeginProperty Font\nEnd\n", 4, "End inside \"BeginProperty Font\" of line 3"},
    });
}

TEST(FormErrors, OfProperties) {
    expectMistakes({
        {"VERSION 5.00\nWidth = 3\n", 2, "\"Width\" stands outside a block"},
        {"VERSION 5.00\nObject = 3\n", 2, "library in quotes"},
        {Head + "Attribute VB_Name\n", 3, "\"Attribute\" begins neither a property nor a block"},
        {Head + "X = \"abc\n", 3, "no closing quote"},
        {Head + "X = 12 34\n", 3, "\"34\" stands after the number"},
        {Head + "X = \"a.frx\":00G0\n", 3, "\"00G0\" is no hexadecimal offset"},
        {Head + "Width = 1\nLeft = 2\nwidth = 1\nEnd\n", 5, "\"Width\" stands in this block already, in line 3"},
        {Head + "BeginProperty A\nX = 1\nx = 2\nEndProperty\nEnd\n", 5, "in line 4"},
        {Head + std::string("X = \"a\0b\"\n", 10) + "End\n", 3, "NUL"},
    });
    EXPECT_EQ(parseError(Head + "X=1\nBeginProperty A\nX=1\nEndProperty\nBeginProperty B\nX=1\nEndProperty\nEnd\n"),
              "");
}

TEST(FormErrors, OfNamesThatAreTaken) {
    const auto block = [](const std::string& name, const std::string& index) {
        return "Begin A " + name + "\n" + (index.empty() ? "" : "Index = " + index + "\n") + "End\n";
    };
    expectMistakes({
        {Head + block("a", "") + block("b", "") + block("A", "") + "End\n", 7, "line 3"},
        {Head + block("a", "0") + block("a", "1") + block("a", "0") + "End\n", 9, "the index 0 is taken"},
        {Head + block("a", "0") + block("a", "") + "End\n", 6, "needs an Index in each"},
        {Head + "Begin B c\n" + block("a", "") + "End\n" + block("a", "") + "End\n", 7, "line 4"},
    });
    EXPECT_EQ(parseError(Head + block("f", "") + block("a", "1") + block("A", "2") + "End\n"), "");
}

TEST(FormErrors, LimitsAreExact) {
    const auto nested = [](std::size_t depth) {
        std::string bytes = "VERSION 5.00\n";
        for (std::size_t i = 0; i < depth; ++i) bytes += "Begin A b" + std::to_string(i) + "\n";
        return bytes + repeated("End\n", depth);
    };
    EXPECT_EQ(parseError(nested(64)), "");
    expectMistakes({{nested(65), 66, "nested deeper than 64"}, {nested(10'000), 66, "nested deeper than 64"}});

    const std::string longest = Head + "X=\"" + std::string((1 << 20) - 4, 'x') + "\"";
    EXPECT_EQ(parseError(longest + "\nEnd\n"), "");
    expectMistakes({{longest + " \nEnd\n", 3, "longer than 1 MiB"}});
}

std::string randomBytes(std::size_t size) {
    std::string bytes(size, '\0');
    std::uint32_t state = 1;
    for (char& byte : bytes) byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24);
    return bytes;
}

// Minutes or gigabytes spent on noise are a hang to whoever opened the wrong file.
TEST(FormErrors, NoiseOfAHundredMegabytesIsRefusedAtOnce) {
    constexpr std::size_t Size = 100'000'000;
    expectMistake({Head + randomBytes(Size), 3, ""});
    expectMistake({"VERSION 5.00" + std::string(Size, ' '), 1, "longer than 1 MiB"});
    expectMistake({Head + repeated("x=1\n", Size / 4), 1'000'001, "a million lines"});
}

TEST(FormErrors, NameTheFileThatCannotBeRead) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { readFormFile(folder.file("no.frm")); }), folder.file("no.frm") + ": cannot be opened");
    EXPECT_EQ(errorOf([&] { readFormFile(folder.file("other")); }), folder.file("other") + ": is a folder");
}

TEST(FormErrors, AFormCutAnywhereIsReadOrRefused) {
    const std::string bytes = readBytes(sampleFile("orders.frm"));
    const std::size_t codeStart = bytes.find("Attribute VB_Name");
    ASSERT_NE(codeStart, std::string::npos);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const bool isCut = length + 2 < codeStart;
        EXPECT_EQ(!errorOf([&] { FormFile::parse(bytes.substr(0, length), "test.frm"); }).empty(), isCut) << length;
    }
}

}  // namespace

}  // namespace kel
