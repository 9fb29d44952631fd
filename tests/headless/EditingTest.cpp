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

/// A box with the focus, as it is drawn.
struct OneBox {
    OneBox(unsigned kind, const char* before)
        : placed(form.place(u"a", (kind & Multi) != 0 ? ProbeControl::MultiLine : ProbeControl::SingleLine)) {
        box.move({0, 0, 3000, ThreeLines});
        form.window().focus(placed);
        put(box, before);
        box.setLocked((kind & Locked) != 0);
        box.setPasswordChar((kind & Password) != 0 ? u'*' : u'\0');
        ProbeControl::takeLog();
    }

    TestForm form;
    PlacedControl& placed;
    TextBox& box = probe(placed).box();
};

void check(const EditCase& row) {
    SCOPED_TRACE(row.what);
    OneBox it(row.box, row.before);
    it.box.setMaxLength(row.maxLength);
    press(it.form.window(), row.keys);
    EXPECT_EQ(drawn(it.box), row.after);
    EXPECT_EQ(ProbeControl::countOf(ProbeControl::takeLog(), "Change"), row.changes);
}

TEST(Editing, CaretMovesByReadersCharactersWordsAndLines) {
    const EditCase rows[] = {
        {"a letter with its accent is one", Single, 0, "ae\u0301|x", "Left", "a|e\u0301x", 0},
        {"a pair is one", Single, 0, "a|\U0001F600b", "Right", "a\U0001F600|b", 0},
        {"a selection by code grows at its end", Single, 0, "1[2]34", "Shift+Right", "1[23]4", 0},
        {"a selection shrinks over its anchor", Single, 0, "12|34", "Shift+Right Shift+Left*2", "1[2]34", 0},
        {"by word", Single, 0, "|red green", "Ctrl+Right Ctrl+Shift+Right", "red [green]", 0},
        {"back by word, away from the selection's caret", Single, 0, "red [green]", "Ctrl+Left*2", "|red green", 0},
        {"a password is one word", Password, 0, "one| two", "Ctrl+Right Ctrl+Shift+Left", "[one two]", 0},
        {"a single line has no lines", Single, 0, "1\r\n2|3", "Up Down PageUp Home", "|1\r\n23", 0},
        {"locked is no bar to moving", Locked, 0, "12|", "Ctrl+A Left Shift+Right", "[1]2", 0},
        {"over a break at once", Multi, 0, "a|\r\nb", "Right Left Right", "a\r\n|b", 0},
        {"ends of the line and of the text", Multi, 0, "ab\r\nc|d\r\nef", "End Shift+Home", "ab\r\n[cd]\r\nef", 0},
        {"a line at a time", Multi, 0, "|1\r\n2\r\n3\r\n4", "Down*2 Up", "1\r\n|2\r\n3\r\n4", 0},
        {"the column outlives a short line", Multi, 0, "abc|\r\nd\r\nefg", "Down*2", "abc\r\nd\r\nefg|", 0},
        {"until something else moves", Multi, 0, "abc|\r\nd\r\nefg", "Down Left Down", "abc\r\nd\r\n|efg", 0},
        {"nothing above the first line", Multi, 0, "a[b]\r\nc", "Up", "a[b]\r\nc", 0},
        {"up and a selection", Multi, 0, "ab\r\ncd|", "Shift+Up", "ab[\r\ncd]", 0},
        {"a page", Multi, 0, "|1\r\n2\r\n3\r\n4\r\n5", "PageDown", "1\r\n2\r\n3\r\n|4\r\n5", 0},
        {"half a break ends no line", Multi, 0, "a\nb\rc|", "Up Home", "|a\nb\rc", 0},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, TypingAndDeleting) {
    const EditCase rows[] = {
        {"over a selection, in one change", Single, 0, "1[2.3]4", "'x'", "1x|4", 1},
        {"Enter means nothing in one line", Single, 0, "a|b", "Enter Escape F4 Alt+Left Ctrl+M", "a|b", 0},
        {"Enter breaks", Multi, 0, "a|b", "Enter", "a\r\n|b", 1},
        {"back, a whole pair", Single, 0, "a\U0001F600|", "Backspace*3", "|", 2},
        {"back, a whole break", Multi, 0, "a\r\n|b", "Backspace", "a|b", 1},
        {"back, half a break in one line", Single, 0, "a\r\n|b", "Backspace", "a\r|b", 1},
        {"forward, a pair, then a break", Multi, 0, "|\U0001F600\r\nb", "Delete*2", "|b", 2},
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
        {"the older keys", Single, 0, "a[bc]d", "Ctrl+Insert End Shift+Insert", "abcdbc|", 1},
        {"nothing selected, nothing copied", Single, 0, "ab|", "paste'x' Ctrl+C Ctrl+X Ctrl+V", "abxx|", 2},
        {"a password stays", Password, 0, "[ab]", "paste'x' Ctrl+A Ctrl+C Ctrl+X End Ctrl+V", "xx|", 2},
        {"a locked box lets copy", Locked, 0, "[ab]", "Ctrl+X Ctrl+C", "[ab]", 0},
        {"the first that there is", Single, 0, "a[b]c", "paste'\r\n\n1\r2'", "a1|c", 1},
        {"every line end into several", Multi, 0, "|", "paste'1\n2\r3\r\n4\u20295'", "1\r\n2\r\n3\r\n4\r\n5|", 1},
        {"an empty clipboard takes the selection", Single, 0, "a[b]c", "paste'' paste''", "a|c", 1},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, MaximumLengthBindsTheUser) {
    const EditCase rows[] = {
        {"a pair needs two", Single, 4, "123|", "'\U0001F600'", "123|", 0},
        {"a break needs two", Multi, 4, "123|", "Enter", "123|", 0},
        {"a paste is cut", Single, 5, "12[3]4", "paste'abcdef'", "12ab|4", 1},
        {"not inside a pair", Single, 4, "12|", "paste'3\U0001F600'", "123|", 1},
        {"a text by code stays, until it is shorter", Single, 3, "12345|", "'x' Backspace*3 'yz'", "12y|", 4},
        {"nothing fits but the selection goes", Single, 3, "1234[5]", "paste'x'", "1234|", 1},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, UndoAndRedo) {
    const EditCase rows[] = {
        {"a replaced selection with what was typed", Single, 0, "a[b]c", "'xyz' Ctrl+Z", "a[b]c", 4},
        {"deleted backwards together", Single, 0, "ab\U0001F600|", "Backspace*3 Ctrl+Z", "ab\U0001F600|", 4},
        {"another kind of edit apart", Single, 0, "|", "'abc' Backspace Ctrl+Z", "abc|", 5},
        {"typed where something was deleted", Single, 0, "ab|", "Backspace 'x' Ctrl+Z", "a|", 3},
        {"a move there and back", Single, 0, "|", "'a' Left Right 'b' Ctrl+Z", "a|", 3},
        {"a move up from the first line", Multi, 0, "|", "'a' Up 'b' Ctrl+Z", "a|", 3},
        {"a paste is one", Multi, 0, "a|", "paste'1\n2' Ctrl+Z", "a|", 2},
        {"all the way and back", Single, 0, "|", "'a' Left 'b' paste'c' Ctrl+Z*9 Ctrl+Y*9", "bc|a", 9},
        {"an edit forgets what was undone", Single, 0, "|", "'a' Ctrl+Z 'b' Ctrl+Y Ctrl+Z*2", "|", 4},
        {"a run that came to nothing", Single, 0, "[ab]", "'ab' Ctrl+Z", "[ab]", 2},
        {"and on from where it was", Multi, 0, "a|bc\r\n\r\ndef", "'x' Down Ctrl+Z Down*2", "abc\r\n\r\nd|ef", 2},
        {"not bound by the maximum", Single, 2, "[abcd]", "'x' Ctrl+Z", "[abcd]", 2},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(Editing, MouseButtonsGoDown) {
    using enum MouseButton;
    struct Case {
        const char* what;
        unsigned box;
        const char* before;
        MousePress press;
        const char* after;
    };
    const Case rows[] = {
        {"two clicks, a word without the blanks after it", Single, "|one two  3", {Left, 5, 2}, "one [two]  3"},
        {"the last word from its end", Single, "|one two", {Left, 99, 2}, "one [two]"},
        {"three, a line", Multi, "|1\r\ntwo 3\r\n4", {Left, 4, 3}, "1\r\n[two 3]\r\n4"},
        {"a password has no words", Password, "|one two", {Left, 1, 2}, "[one two]"},
        {"with Shift, to there", Single, "1|234", {Left, 3, 1, true}, "1[23]4"},
        {"not into a pair", Single, "|1\U0001F6004", {Left, 2, 1, true}, "[1]\U0001F6004"},
        {"the right one leaves the selection", Single, "1[23]4", {Right, 0}, "1[23]4"},
        {"the middle one does not", Single, "1[23]4", {Middle, 1}, "1|234"},
    };
    for (const Case& row : rows) {
        OneBox it(row.box, row.before);
        it.box.press(row.press);
        EXPECT_EQ(drawn(it.box), row.after) << row.what;
        it.box.releaseMouse(row.press.button != Left);
        it.box.releaseMouse(true);
        it.box.press(row.press);
        it.box.lostFocus();
        it.box.releaseMouse(true);
        EXPECT_EQ(ProbeControl::takeLog().find("Click"), std::string::npos)
            << "another button, let go elsewhere, or where the focus has gone";
    }
}

TEST(Editing, WhatIsSelectedIsDraggedElsewhere) {
    struct Case {
        unsigned box;
        std::size_t place;
        const char* after;
        const char* undone;
    };
    const Case rows[] = {{Single, 6, "abefcd|", "ab[cdef]"},
                         {Single, 1, "acd|bef", "a[bcd]ef"},
                         {Single, 2, "ab[cd]ef", "ab[cd]ef"},
                         {Single, 4, "ab[cd]ef", "ab[cd]ef"},
                         {Locked, 0, "ab[cd]ef", "ab[cd]ef"}};
    for (const Case& row : rows) {
        OneBox it(row.box, "ab[cd]ef");
        it.box.moveSelection(row.place);
        EXPECT_EQ(drawn(it.box), row.after);
        press(it.form.window(), "Ctrl+Z");
        EXPECT_EQ(drawn(it.box), row.undone) << "as one edit";
    }
}

TEST(Editing, InputMethodsPutWordsRight) {
    struct Case {
        unsigned box;
        const char* before;
        std::int32_t start, length;
        const char16_t* text;
        const char* after;
    };
    const Case rows[] = {{Single, "teh|", -2, 2, u"he", "the|"},
                         {Single, "ab|c", -1, 1, u"", "a|c"},
                         {Single, "1[2]3", -1, 0, u"x", "1x|3"},
                         {Locked, "1|", 0, 0, u"x", "1|"}};
    for (const Case& row : rows) {
        OneBox it(row.box, row.before);
        it.box.commitOver(row.start, row.length, row.text);
        EXPECT_EQ(drawn(it.box), row.after);
    }
}

TEST(Editing, OtherProgramsWriteByTheControlsRules) {
    const std::u16string face{0xD83D, 0xDE01};
    struct Case {
        const char* what;
        unsigned box;
        const char* before;
        std::size_t start, end;
        std::u16string text;
        const char* after;
        const char* told;
    };
    const Case rows[] = {
        {"a part", Single, "a[b]cd", 2, 3, u"x", "abx|d", "a.Paste a.Change"},
        {"erasing", Single, "a[b]cd", 0, 1, u"", "|bcd", "a.Change"},
        {"half a pair", Single, "|a\U0001F600b", 2, 3, face.substr(1), "a\U0001F601|b", "a.Paste a.Change"},
        {"the other half", Single, "|a\U0001FA01b", 1, 2, face.substr(0, 1), "a\U0001F601|b", "a.Paste a.Change"},
        {"into a break", Multi, "|a\r\nb", 2, 2, u"x", "a\r\nx\r\n|b", "a.Paste a.Change"},
        {"into a locked box", Locked, "1|", 0, 1, u"x", "1|", ""},
    };
    for (const Case& row : rows) {
        OneBox it(row.box, row.before);
        it.box.write(row.start, row.end, row.text);
        EXPECT_EQ(drawn(it.box), row.after) << row.what;
        EXPECT_EQ(ProbeControl::takeLog(), row.told) << row.what;
        it.box.setEnabled(false);
        ProbeControl::takeLog();
        it.box.write(0, 0, u"x");
        it.box.drop(0, u"x");
        EXPECT_EQ(ProbeControl::takeLog(), "") << "nor into a disabled one";
    }
}

TEST(Editing, AWheelOfFinerStepsCountsWholeNotches) {
    const std::pair<std::vector<std::int32_t>, const char*> rows[] = {
        {{40, 40, 40, 40}, "a.Wheel1"}, {{-200, -40}, "a.Wheel-1 a.Wheel-1"}, {{100, -100, -20}, "a.Wheel-1"},
        {{-100, 100, 20}, "a.Wheel1"},  {{100, 0, 20}, "a.Wheel1"},           {{360}, "a.Wheel3"}};
    for (const auto& [turns, log] : rows) {
        OneBox it(Single, "|");
        for (const std::int32_t turned : turns) EXPECT_EQ(it.box.turnWheelBy(turned), turned != 0);
        EXPECT_EQ(ProbeControl::takeLog(), log);
    }
    OneBox it(Single, "|");
    it.box.turnWheelBy(100);
    it.box.lostFocus();
    it.box.gotFocus();
    it.box.turnWheelBy(100);
    EXPECT_EQ(ProbeControl::takeLog(), "a.LostFocus a.GotFocus") << "another visit, another count";
}

TEST(Editing, KeysThatMeanNothingHereGoOn) {
    struct Case {
        KeyStroke stroke;
        unsigned box;
        bool claimed;  ///< ahead of the window's shortcuts
        bool used;
    };
    const Case rows[] = {{strokeFor(U'x'), Single, true, true},
                         {strokeFor(U'x'), Locked, false, false},
                         {{keys::Delete}, Single, true, true},
                         {{'V', 0, ControlKey}, Single, true, true},
                         {{'A', 0, ControlKey}, Locked, true, true},
                         {{'C', 0, ControlKey}, Locked, true, true},
                         {{'S', 0, ControlKey}, Single, false, false},
                         {{keys::Insert}, Single, true, false},
                         {{keys::Left}, Locked, true, true},
                         {{keys::Left, 0, AltKey}, Single, false, false},
                         {{keys::Up}, Multi | Locked, true, true},
                         {{keys::PageUp}, Multi, true, true},
                         {{keys::Up}, Single, true, false},
                         {{keys::Escape}, Single, false, false},
                         {{keys::Tab, 0, ControlKey}, Multi, false, false}};
    for (const Case& row : rows) {
        OneBox it(row.box, "1[2]3");
        EXPECT_EQ(it.box.claims(row.stroke), row.claimed) << row.stroke.code;
        EXPECT_EQ(it.box.strike(row.stroke), row.used) << row.stroke.code;
    }
}

TEST(Editing, AViewHearsOfAllThatItShows) {
    const std::pair<Change, std::function<void(OneBox&)>> rows[] = {
        {Change::Selection, [](OneBox& it) { it.box.setSelStart(0); }},
        {Change::Selection, [](OneBox& it) { it.box.setSelLength(1); }},
        {Change::Selection, [](OneBox& it) { it.box.dragTo(3); }},
        {Change::Selection, [](OneBox& it) { press(it.form.window(), "Left"); }},
        {Change::Selection, [](OneBox& it) { press(it.form.window(), "Ctrl+A"); }},
        {Change::Selection, [](OneBox& it) { press(it.form.window(), "'2'"); }},
        {Change::Text, [](OneBox& it) { press(it.form.window(), "'x'"); }},
        {Change::Locked, [](OneBox& it) { it.box.setLocked(true); }},
        {Change::Password, [](OneBox& it) { it.box.setPasswordChar(u'*'); }},
        {Change::Font, [](OneBox& it) { it.box.setFont(u"Sans", 9); }},
        {Change::Visible, [](OneBox& it) { it.box.setVisible(false); }},
        {Change::Place, [](OneBox& it) { it.box.move({}); }},
    };
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        OneBox it(Single, "1[2]3");
        it.box.takeChanges();
        rows[row].second(it);
        EXPECT_TRUE(it.box.takeChanges().has(rows[row].first)) << row;
    }
}

TEST(Editing, AMenuOffersWhatWouldDoSomething) {
    struct Case {
        const char* what;
        unsigned box;
        const char* before;
        const char* keys;
        const char* offered;
    };
    const Case rows[] = {
        {"an empty box", Single, "|", "", ""},
        {"what was edited, then undone", Single, "|", "'ab' Ctrl+Z", "redo "},
        {"a caret", Single, "1|2", "paste'x'", "undo paste all "},
        {"a selection", Single, "1[2]3", "", "cut copy delete all "},
        {"a password", Password, "[12]", "", "delete "},
        {"a locked box", Locked, "1[2]", "Ctrl+C", "copy all "},
    };
    constexpr std::pair<EditAction, const char*> Entries[] = {
        {EditAction::Undo, "undo "},    {EditAction::Redo, "redo "},   {EditAction::Cut, "cut "},
        {EditAction::Copy, "copy "},    {EditAction::Paste, "paste "}, {EditAction::EraseSelection, "delete "},
        {EditAction::SelectAll, "all "}};
    for (const Case& row : rows) {
        OneBox it(row.box, row.before);
        press(it.form.window(), row.keys);
        std::string offered;
        for (const auto& [action, name] : Entries)
            if (it.box.offers(action)) offered += name;
        EXPECT_EQ(offered, row.offered) << row.what;
    }
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
