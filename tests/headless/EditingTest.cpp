#include <gtest/gtest.h>

#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"

namespace kel::test {
namespace {

enum Box : unsigned { Single = 0, Multi = 1, Locked = 2, Password = 4 };

struct EditCase {
    const char* what;
    unsigned box;
    std::int32_t maxLength;
    const char* before;
    const char* keys;
    const char* after;
    int changes;
};

constexpr std::int32_t ThreeLines = 600;

void check(const EditCase& row) {
    SCOPED_TRACE(row.what);
    TestForm form;
    PlacedControl& placed =
        form.place(u"a", (row.box & Multi) != 0 ? ProbeControl::MultiLine : ProbeControl::SingleLine);
    TextBox& box = probe(placed).box();
    box.move({0, 0, 3000, ThreeLines});
    form.window().focus(placed);
    put(box, row.before);
    box.setMaxLength(row.maxLength);
    box.setLocked((row.box & Locked) != 0);
    box.setPasswordChar((row.box & Password) != 0 ? u'*' : u'\0');
    ProbeControl::takeLog();
    press(form.window(), row.keys);
    EXPECT_EQ(drawn(box), row.after);
    EXPECT_EQ(ProbeControl::countOf(ProbeControl::takeLog(), "Change"), row.changes);
}

TEST(Editing, CaretMovesByReadersCharactersWordsAndLines) {
    const EditCase rows[] = {
        {"a letter with its accent is one", Single, 0, "ae\u0301|x", "Left", "a|e\u0301x", 0},
        {"a pair is one", Single, 0, "a|\U0001F600b", "Right", "a\U0001F600|b", 0},
        {"left of a selection", Single, 0, "1[23]4", "Left", "1|234", 0},
        {"right of a selection", Single, 0, "1[23]4", "Right", "123|4", 0},
        {"a selection by code grows at its end", Single, 0, "1[2]34", "Shift+Right", "1[23]4", 0},
        {"a selection shrinks over its anchor", Single, 0, "12|34", "Shift+Right Shift+Left*2", "1[2]34", 0},
        {"by word", Single, 0, "|red green", "Ctrl+Right Ctrl+Shift+Right", "red [green]", 0},
        {"back by word, away from the selection's caret", Single, 0, "red [green]", "Ctrl+Left*2", "|red green", 0},
        {"a password is one word", Password, 0, "one| two", "Ctrl+Right Ctrl+Shift+Left", "[one two]", 0},
        {"the ends", Single, 0, "1|23", "Home Shift+End", "[123]", 0},
        {"a single line has no lines", Single, 0, "1\r\n2|3", "Up Down PageUp Home", "|1\r\n23", 0},
        {"locked is no bar to moving", Locked, 0, "12|", "Ctrl+A Left Shift+Right", "[1]2", 0},
        {"over a break at once", Multi, 0, "a|\r\nb", "Right Left Right", "a\r\n|b", 0},
        {"ends of the line and of the text", Multi, 0, "ab\r\nc|d\r\nef", "End Shift+Home", "ab\r\n[cd]\r\nef", 0},
        {"ends of the text", Multi, 0, "ab\r\nc|d", "Ctrl+Home Ctrl+Shift+End", "[ab\r\ncd]", 0},
        {"the column outlives a short line", Multi, 0, "abc|\r\nd\r\nefg", "Down*2", "abc\r\nd\r\nefg|", 0},
        {"until something else moves", Multi, 0, "abc|\r\nd\r\nefg", "Down Left Down", "abc\r\nd\r\n|efg", 0},
        {"nothing above the first line", Multi, 0, "a[b]\r\nc", "Up", "a[b]\r\nc", 0},
        {"nothing below the last", Multi, 0, "a\r\n|bc", "Down", "a\r\n|bc", 0},
        {"up and a selection", Multi, 0, "ab\r\ncd|", "Shift+Up", "ab[\r\ncd]", 0},
        {"a page", Multi, 0, "|1\r\n2\r\n3\r\n4\r\n5", "PageDown", "1\r\n2\r\n3\r\n|4\r\n5", 0},
        {"a page as far as there is one", Multi, 0, "1\r\n2\r\n3|", "PageUp", "1|\r\n2\r\n3", 0},
        {"half a break ends no line", Multi, 0, "a\nb\rc|", "Up Home", "|a\nb\rc", 0},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, TypingAndDeleting) {
    const EditCase rows[] = {
        {"over a selection, in one change", Single, 0, "1[2.3]4", "'x'", "1x|4", 1},
        {"the same again is no change", Single, 0, "1[2]3", "'2'", "12|3", 0},
        {"beyond the first plane", Single, 0, "|", "'\U0001F600'", "\U0001F600|", 1},
        {"Enter means nothing in one line", Single, 0, "a|b", "Enter Escape F4 Alt+Left Ctrl+M", "a|b", 0},
        {"Enter breaks", Multi, 0, "a|b", "Enter", "a\r\n|b", 1},
        {"back, an accent alone", Single, 0, "ae\u0301|", "Backspace", "ae|", 1},
        {"back, a whole pair", Single, 0, "a\U0001F600|", "Backspace*3", "|", 2},
        {"back, a whole break", Multi, 0, "a\r\n|b", "Backspace", "a|b", 1},
        {"back, half a break in one line", Single, 0, "a\r\n|b", "Backspace", "a\r|b", 1},
        {"forward, a pair, then a break", Multi, 0, "|\U0001F600\r\nb", "Delete*2", "|b", 2},
        {"a selection and no more", Single, 0, "1[2]3", "Delete", "1|3", 1},
        {"a selection, not the word", Single, 0, "on[e] two", "Ctrl+Delete", "on| two", 1},
        {"the rest of a word", Single, 0, "|red green", "Ctrl+Delete", "|green", 1},
        {"the beginning of a word", Single, 0, "red green|", "Ctrl+Backspace", "red |", 1},
        {"a password to its start", Password, 0, "one two|", "Ctrl+Backspace", "|", 1},
        {"nothing in a locked box", Locked | Multi, 0, "a|b", "'x' Enter Backspace Delete Ctrl+Z paste'y'", "a|b", 0},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, Clipboard) {
    const EditCase rows[] = {
        {"cut and paste", Single, 0, "a[bc]d", "Ctrl+X End Ctrl+V", "adbc|", 2},
        {"the older keys", Single, 0, "a[bc]d", "Ctrl+Insert Shift+Delete Shift+Insert*2", "abcbc|d", 3},
        {"nothing selected, nothing copied", Single, 0, "ab|", "paste'x' Ctrl+C Ctrl+X Ctrl+V", "abxx|", 2},
        {"a password stays", Password, 0, "[ab]", "paste'x' Ctrl+A Ctrl+C Ctrl+X End Ctrl+V", "xx|", 2},
        {"a locked box lets copy", Locked, 0, "[ab]", "Ctrl+X Ctrl+C", "[ab]", 0},
        {"the first line into one line", Single, 0, "a|b", "paste'1\n2'", "a1|b", 1},
        {"the first that there is", Single, 0, "a[b]c", "paste'\r\n\n1\r2'", "a1|c", 1},
        {"every line end into several", Multi, 0, "|", "paste'1\n2\r3\r\n4\u20295'", "1\r\n2\r\n3\r\n4\r\n5|", 1},
        {"an empty clipboard takes the selection", Single, 0, "a[b]c", "paste'' paste''", "a|c", 1},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, MaximumLengthBindsTheUser) {
    const EditCase rows[] = {
        {"no more when full", Single, 3, "123|", "'4'", "123|", 0},
        {"but in place of something", Single, 3, "1[2]3", "'xy'", "1x|3", 1},
        {"a pair needs two", Single, 4, "123|", "'\U0001F600'", "123|", 0},
        {"a break needs two", Multi, 4, "123|", "Enter", "123|", 0},
        {"a paste is cut", Single, 5, "12[3]4", "paste'abcdef'", "12ab|4", 1},
        {"not inside a pair", Single, 4, "12|", "paste'3\U0001F600'", "123|", 1},
        {"not inside a break", Multi, 4, "12|", "paste'3\n4'", "123|", 1},
        {"a text by code stays, until it is shorter", Single, 3, "12345|", "'x' Backspace*3 'yz'", "12y|", 4},
        {"nothing fits but the selection goes", Single, 3, "1234[5]", "paste'x'", "1234|", 1},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, UndoAndRedo) {
    const EditCase rows[] = {
        {"typed together", Single, 0, "|", "'abc' Ctrl+Z", "|", 4},
        {"a replaced selection with what was typed", Single, 0, "a[b]c", "'xyz' Ctrl+Z", "a[b]c", 4},
        {"deleted backwards together", Single, 0, "ab\U0001F600|", "Backspace*3 Ctrl+Z", "ab\U0001F600|", 4},
        {"deleted forwards together", Single, 0, "|abc", "Delete*2 Ctrl+Z", "|abc", 3},
        {"another kind of edit apart", Single, 0, "|", "'abc' Backspace Ctrl+Z", "abc|", 5},
        {"after a move apart", Single, 0, "|", "'ab' Left 'c' Ctrl+Z", "a|b", 4},
        {"a move there and back", Single, 0, "|", "'a' Left Right 'b' Ctrl+Z", "a|", 3},
        {"a move up from the first line", Multi, 0, "|", "'a' Up 'b' Ctrl+Z", "a|", 3},
        {"words apart", Single, 0, "one two|", "Ctrl+Backspace*2 Ctrl+Z", "one |", 3},
        {"a paste is one", Multi, 0, "a|", "paste'1\n2' Ctrl+Z", "a|", 2},
        {"redo stands behind", Single, 0, "a[b]c", "'xy' Ctrl+Z Ctrl+Y", "axy|c", 4},
        {"redo of deleting backwards", Single, 0, "abc|", "Backspace*2 Ctrl+Z*2 Ctrl+Shift+Z*2", "a|", 4},
        {"all the way and back", Single, 0, "|", "'a' Left 'b' paste'c' Ctrl+Z*9 Ctrl+Y*9", "bc|a", 9},
        {"an edit forgets what was undone", Single, 0, "|", "'a' Ctrl+Z 'b' Ctrl+Y Ctrl+Z*2", "|", 4},
        {"a run that came to nothing", Single, 0, "[ab]", "'ab' Ctrl+Z", "[ab]", 2},
        {"not bound by the maximum", Single, 2, "[abcd]", "'x' Ctrl+Z", "[abcd]", 2},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, ByCode) {
    TestForm form;
    PlacedControl& placed = form.place(u"a", ProbeControl::MultiLine);
    TextBox& box = probe(placed).box();
    const auto changes = [] { return ProbeControl::countOf(ProbeControl::takeLog(), "Change"); };

    put(box, "1\r\n\U0001F600|x");
    EXPECT_EQ(changes(), 1);
    struct {
        std::int32_t start, length;
        const char* drawing;
    } const rows[] = {
        {-5, -1, "|1\r\n\U0001F600x"}, {99, 9, "1\r\n\U0001F600x|"}, {2, 0, "1|\r\n\U0001F600x"},
        {4, 0, "1\r\n|\U0001F600x"},   {1, 3, "1[\r\n]\U0001F600x"}, {0, 2, "[1]\r\n\U0001F600x"},
        {3, 99, "1\r\n[\U0001F600x]"}, {3, 1, "1\r\n|\U0001F600x"},
    };
    for (const auto& row : rows) {
        box.setSelStart(row.start);
        box.setSelLength(row.length);
        EXPECT_EQ(drawn(box), row.drawing) << row.start << ", " << row.length;
    }

    box.setText(box.text());
    EXPECT_EQ(changes(), 0) << "the text that is there already";
    box.setMaxLength(2);
    box.setSelLength(1);
    box.setSelText(u"long");
    EXPECT_EQ(drawn(box), "long|\r\n\U0001F600x");
    EXPECT_EQ(changes(), 1);

    form.window().focus(placed);
    press(form.window(), "Ctrl+Z");
    EXPECT_EQ(drawn(box), "[1]\r\n\U0001F600x") << "put in place of the selection, it can be undone";
    box.setText(u"new");
    press(form.window(), "Ctrl+Y Ctrl+Z");
    EXPECT_EQ(drawn(box), "|new") << "a text by code has no history";

    const std::u16string halves{0xD83D, u'x', 0xDE00};
    box.setText(halves);
    press(form.window(), "Right Delete");
    EXPECT_EQ(drawn(box), "|\U0001F600") << "two halves that come together hold the caret out";
    press(form.window(), "Ctrl+Z");
    EXPECT_TRUE(box.text() == halves);
}

}  // namespace
}  // namespace kel::test
