#include "forms/play/Script.h"

#include <gtest/gtest.h>

#include "forms/play/PlaySystem.h"
#include "forms/ScriptValue.h"
#include "tests/check/OneControl.h"
#include "values/Text.h"

namespace kel {
namespace {

std::u16string rewritten(std::u16string_view text) {
    std::string error;
    std::u16string_view rest = text;
    const auto value = takeScriptValue(rest, error);
    if (!value) return u"! " + widen(error);
    return writeScriptValue(*value) + (rest.empty() ? u"" : u" …");
}

TEST(ScriptValue, WritesWhatItReads) {
    for (const std::u16string_view text :
         {u"\"\"", u"\"a\\\"b\\\\c\\r\\n\\t\"", u"\"é😀\"", u"\"\\u{1}\"", u"\"\\u{D800}\"", u"12", u"-12", u"12.5",
          u"True", u"False", u"Empty", u"Null", u"#2013-03-15#", u"#0100-01-01#", u"#9999-12-31#",
          u"#2013-03-15 10:15:30#", u"#1850-07-04 18:00:00#"})
        EXPECT_EQ(rewritten(text), text) << toUtf8(text);
    EXPECT_EQ(rewritten(u"\"\\u{1F600}\""), u"\"😀\"");
    EXPECT_EQ(rewritten(u".75"), u"0.75");
    EXPECT_EQ(rewritten(u"2147483648"), u"2147483648");
    EXPECT_EQ(writeScriptValue(Date{0.5}, true), u"#12:00:00#");
}

TEST(ScriptValue, SaysWhatIsWrong) {
    for (const std::u16string_view text :
         {u"", u"abc", u"\"open", u"\"\\x\"", u"\"\\u{110000}\"", u"\"\\u12\"", u"#2013-02-29#", u"#24:00:00#",
          u"#0099-12-31#", u"#13-3#", u"[\"a\"", u"[1]", u"true", u"1e400"})
        EXPECT_TRUE(rewritten(text).starts_with(u"! ")) << toUtf8(text);
}

TEST(ScriptValue, DrawsTheCaret) {
    EXPECT_EQ(drawScriptText(u"12.34", 3, 0), u"\"12.|34\"");
    EXPECT_EQ(drawScriptText(u"12.34", 1, 3), u"\"1[2.3]4\"");
    EXPECT_EQ(drawScriptText(u"a|[b]", 5, 0), u"\"a\\u{7C}\\u{5B}b\\u{5D}|\"");
    EXPECT_EQ(drawScriptText(u"ab", 9, 9), u"\"ab|\"");
}

std::string faultOf(std::string_view text) {
    try {
        readScript("s.play", text);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "fine";
}

TEST(Script, NamesTheLineThatIsWrong) {
    EXPECT_EQ(faultOf("tab\n\n# note\nbackTab\n"), "s.play:4: there is no command \"backTab\"");
    EXPECT_EQ(faultOf("tab x"), "s.play:1: the number: a whole number is wanted, not \"x\"");
    EXPECT_EQ(faultOf("key Retrun"), "s.play:1: there is no key \"Retrun\"");
    EXPECT_EQ(faultOf("get one"), "s.play:1: NAME.MEMBER is wanted, not \"one\"");
    EXPECT_EQ(faultOf("set one.Text"), "s.play:1: a value is missing");
    EXPECT_EQ(faultOf("clock 25:00:00"), "s.play:1: the time is written HH:MM:SS");
    EXPECT_EQ(faultOf("> early\ntab"), "s.play:1: no command stands above what is to be printed");
    EXPECT_EQ(faultOf("tab\n> a\n\n> b"), "s.play:4: what a command prints stands in one piece");
    EXPECT_EQ(faultOf("type \xFF"), "s.play:1: the line is not valid UTF-8");
    EXPECT_EQ(faultOf("type\nkey Ctrl+Shift+A 3\r\npaste \"a\\n\""), "fine");
}

TEST(Script, UpdateReplacesOnlyWhatIsPrinted) {
    const Script script = readScript("s.play", "# head\n\ntab\n> old\n> older\nwhere\n# tail\n> stray\n");
    EXPECT_EQ(script.expected(script.commands[0]), (std::vector<std::string>{"old", "older"}));
    EXPECT_EQ(writeScript(script, {{"new"}, {"focus one", ""}}),
              "# head\n\ntab\n> new\nwhere\n> focus one\n> \n# tail\n");
}

TEST(PlaySystem, TheClockStandsStillAndPassesMidnight) {
    test::TestSystem machine;
    std::vector<std::u16string> printed;
    PlaySystem system(machine, [&printed](const std::u16string& line) { printed.push_back(line); });
    EXPECT_EQ(system.timer(), machine.Clock);
    system.setTimer(86399.5);
    system.advance(1);
    EXPECT_EQ(system.timer(), 0.5);
    EXPECT_EQ(system.today(), Date{41349});
    system.advance(-1);
    EXPECT_EQ(system.timer(), 86399.5);
    EXPECT_EQ(system.today(), Date{41348});
    system.messageBox(u"Say \"yes\"", 64, u"Title");
    system.beep();
    EXPECT_EQ(printed, (std::vector<std::u16string>{u"message 64 \"Title\" \"Say \\\"yes\\\"\"", u"beep"}));
}

}  // namespace
}  // namespace kel
