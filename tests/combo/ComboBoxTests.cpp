#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "controls/combo/ListText.h"
#include "tests/combo/WorkedBox.h"

namespace kel::test {
namespace {

/// Writes down what it is told, and does nothing but what a test wants.
class Listener final : public ComboBoxListener {
public:
    std::string takeLog() { return std::exchange(Log_, {}); }

    std::function<void()> onClick;
    std::function<void(std::int16_t&)> onKeyDown;

private:
    void Combo1_Change() override { note("Change"); }
    void Combo1_Click() override {
        note("Click");
        if (onClick) onClick();
    }
    void Combo1_KeyDown(std::int16_t& KeyCode, Modifiers) override {
        if (onKeyDown) onKeyDown(KeyCode);
    }
    bool Combo1_Edit(EditAction /*Action*/) override { return true; }
    void Combo1_KeyPress(char32_t& KeyAscii) override {
        if (KeyAscii == keys::Enter) note("Enter");
    }
    void Combo1_GotFocus() override { note("GotFocus"); }
    void Combo1_LostFocus() override { note("LostFocus"); }

    void note(const char* what) { Log_ += Log_.empty() ? what : std::string(" ") + what; }

    std::string Log_;
};

struct EditorCase {
    const char* what;
    const char* script;
    const char* look;
    const char* told;
    bool locked = false;
};

struct Scene {
    Listener listener;
    WorkedBox worked{listener};
    ComboBox& box = worked.box();

    explicit Scene(std::u16string_view list) {
        box.setItems(listItemsOf(list));
        box.gotFocus();
        listener.takeLog();
    }
};

constexpr char16_t Fruit[] = u"Apple,Banana,Cherry,Damson,Elder,Fig,Grape,Banana";

void check(const EditorCase& row, std::u16string_view list = Fruit) {
    SCOPED_TRACE(row.what);
    Scene scene(list);
    scene.box.setLocked(row.locked);
    scene.worked.play(row.script);
    EXPECT_EQ(scene.worked.look(), row.look);
    EXPECT_EQ(scene.listener.takeLog(), row.told);
}

TEST(ComboBox, AClosedListIsOpenedAndNothingElse) {
    const EditorCase rows[] = {
        {"by F4", "F4", "| -1 open -1", ""},
        {"by Alt and an arrow", "Alt+Up", "| -1 open -1", ""},
        {"and closed by either", "Alt+Down Alt+Up Alt+Down*2", "| -1", ""},
        {"by Down", "Down", "| -1 open -1", ""},
        {"by its button", "button", "| -1 open -1", ""},
        {"by no other key", "Up PageUp PageDown Ctrl+Down Alt+F4 Ctrl+F4", "| -1", ""},
        {"nor by the wheel", "Down*3 F4; wheel -1; wheel 1", "|Banana 1", "Click Click"},
        {"at the selected item", "Down*4 F4*2", "|Cherry 2 open 2", "Click Click Click"},
        {"at the item that is the text", "'Fig' F4", "Fig| -1 open 5", "Change Change Change"},
        {"at the first of equal ones", "'Banana' F4", "Banana| -1 open 1", "Change Change Change Change Change Change"},
        {"at the one of them that was picked", "F4; pick 7; F4", "|Banana 7 open 7", "Click"},
        {"at the first that begins with the text", "'d' F4", "d| -1 open 3", "Change"},
        {"the edit box keeps its own keys", "Down*2 F4 End Shift+Left Home Right Delete", "A|ple -1", "Click Change"},
    };
    for (const EditorCase& row : rows) check(row);
    check({"at the text rather than at one that begins with it", "'x' F4", "x| -1 open 1", "Change"}, u"xy,x");
}

TEST(ComboBox, AnOpenListPicksAsItIsWalked) {
    const EditorCase rows[] = {
        {"from nothing the first", "F4 Down", "|Apple 0 open 0", "Click"},
        {"nothing in front of the first", "F4 Down Up PageUp", "|Apple 0 open 0", "Click"},
        {"nothing behind the last", "F4 Down PageDown*9 Down", "|Banana 7 open 7", "Click Click"},
        {"pages", "F4; hover 3; PageDown PageUp", "|Apple 0 open 0", "Click Click"},
        {"the pointer only highlights", "F4; hover 5", "| -1 open 5", ""},
        {"and keys go on from there", "F4; hover 5; Up", "|Elder 4 open 4", "Click"},
        {"an end that is not picked yet", "F4; hover 7; Down", "|Banana 7 open 7", "Click"},
        {"the wheel scrolls, which is the list's own affair", "F4 Down; wheel -1", "|Apple 0 open 0", "Click"},
        {"Escape keeps what was picked", "F4 Down*2; hover 5; Escape", "|Banana 1", "Click Click"},
        {"so does Enter, and is passed on", "F4 Down*2; hover 5; Enter", "|Banana 1", "Click Click Enter"},
        {"also what is picked", "F4 Down; pick 0", "|Apple 0", "Click Click"},
        {"a click beside the rows closes", "F4; pick 8", "| -1", ""},
        {"typing goes into the text", "F4 Down*2 'x'", "x|Banana -1 open 1", "Click Click Change"},
        {"locked, it drops and is walked, but gives nothing", "F4 Down Enter F4 Down; pick 2", "| -1", "Enter", true},
    };
    for (const EditorCase& row : rows) check(row);
    check({"one item", "F4 Down", "|x 0 open 0", "Click"}, u"x");
    check({"no items, nothing to pick", "F4 Down Up PageDown Enter; wheel -1", "| -1", "Enter"}, u"");
}

TEST(ComboBox, CodeSelectsInSilence) {
    Scene scene(Fruit);
    ComboBox& box = scene.box;
    scene.worked.play("'abc' Left");
    scene.listener.takeLog();

    box.setListIndex(2);
    EXPECT_EQ(scene.worked.look(), "|Cherry 2");
    box.setText(u"Cherry");
    EXPECT_EQ(scene.worked.look(), "|Cherry -1") << "a text by code selects nothing, not even the item it is";
    box.setListIndex(8);
    EXPECT_EQ(scene.worked.look(), "| -1");
    box.setListIndex(7);
    box.showDropDown(true);
    box.setItems(listItemsOf(u"x,y"));
    EXPECT_EQ(scene.worked.look(), "|Banana -1") << "another list leaves the text";
    EXPECT_EQ(scene.listener.takeLog(), "");

    box.setListIndex(1);
    box.showDropDown(true);
    scene.worked.play("hover 0; End");
    box.setListIndex(1);
    EXPECT_EQ(scene.worked.look(), "y| 1 open 0") << "what is there already moves neither caret nor highlight";
    box.setText(u"y");
    EXPECT_EQ(scene.worked.look(), "y| -1 open 0");
    box.setListIndex(0);
    EXPECT_EQ(scene.worked.look(), "|x 0 open 0");
    box.setListIndex(1);
    EXPECT_EQ(scene.worked.look(), "|y 1 open 1");
    EXPECT_EQ(scene.listener.takeLog(), "");

    box.setText(u"x");
    EXPECT_EQ(scene.listener.takeLog(), "Change");
    box.setSelLength(1);
    box.setSelText(u"");
    EXPECT_EQ(scene.listener.takeLog(), "Change");
}

TEST(ComboBox, ABoxThatTakesNoInputKeepsItsListClosed) {
    Scene scene(Fruit);
    scene.box.setEnabled(false);
    scene.box.showDropDown(true);
    EXPECT_FALSE(scene.box.isDropped());
    scene.box.setEnabled(true);
    scene.worked.play("F4; hover 3");
    scene.box.lostFocus();
    EXPECT_EQ(scene.worked.look(), "| -1") << "a list that loses the focus picks nothing";
}

TEST(ComboBox, WithNobodyToWorkItNothingComesOfADeed) {
    const std::pair<const char*, void (*)(Scene&)> deeds[] = {
        {"key", [](Scene& it) { it.worked.play("'x'"); }},
        {"character", [](Scene& it) { it.box.strikeCharacter(U'x', NoModifier); }},
        {"input method", [](Scene& it) { it.box.commitOver(0, 0, u"x"); }},
        {"menu", [](Scene& it) { it.box.perform(EditAction::Cut); }},
        {"paste", [](Scene& it) { it.worked.play("paste'x'"); }},
        {"drop", [](Scene& it) { it.box.drop(0, u"x"); }},
        {"assistance", [](Scene& it) { it.box.write(0, 1, u"x"); }},
        {"button", [](Scene& it) { it.worked.play("button"); }},
    };
    for (const auto& [what, deed] : deeds) {
        SCOPED_TRACE(what);
        Scene scene(Fruit);
        scene.box.setListIndex(0);
        scene.box.select({0, 5});
        scene.listener.takeLog();
        scene.worked.setAttended(false);
        deed(scene);
        EXPECT_EQ(scene.worked.look(), "[Apple] 0");
        EXPECT_EQ(scene.listener.takeLog(), "");
        scene.worked.setAttended(true);
        deed(scene);
        EXPECT_NE(scene.worked.look(), "[Apple] 0");
    }
}

TEST(ComboBox, HandlersMayInterfere) {
    Scene scene(Fruit);
    ComboBox& box = scene.box;
    scene.listener.onKeyDown = [](std::int16_t& code) { code = 0; };
    scene.worked.play("F4");
    EXPECT_EQ(scene.worked.look(), "| -1") << "a swallowed key";
    scene.listener.onKeyDown = [&box](std::int16_t&) { box.setEnabled(false); };
    scene.worked.play("Down");
    EXPECT_EQ(scene.worked.look(), "| -1") << "a key that disabled the box";
    box.setEnabled(true);
    scene.listener.onKeyDown = {};
    scene.listener.onClick = [&box] { box.setItems(listItemsOf(u"other")); };
    scene.worked.play("F4 Down Up");
    EXPECT_EQ(scene.worked.look(), "|Apple -1") << "the list is replaced while an item of it is picked";
}

TEST(ComboBox, AViewHearsOfAllThatItShows) {
    static constexpr std::int16_t ButtonWidth = 16;
    const std::pair<Change, void (*)(Scene&)> rows[] = {
        {Change::Items, [](Scene& scene) { scene.box.setItems({}); }},
        {Change::List, [](Scene& scene) { scene.worked.play("F4"); }},
        {Change::List, [](Scene& scene) { scene.worked.play("hover 5"); }},
        {Change::List, [](Scene& scene) { scene.box.setDroppedWidth(200); }},
        {Change::Frame, [](Scene& scene) { scene.box.installFrame(ButtonWidth); }},
        {Change::Text, [](Scene& scene) { scene.box.setListIndex(2); }},
    };
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        Scene scene(Fruit);
        scene.worked.play("F4");
        scene.box.takeChanges();
        rows[row].second(scene);
        EXPECT_TRUE(scene.box.takeChanges().has(rows[row].first)) << row;
    }
}

TEST(ComboBox, NoShortcutTakesItsKeys) {
    Scene scene(Fruit);
    ComboBox& box = scene.box;
    const KeyStroke drop{keys::Down, 0, AltKey}, f4{keys::F4, 0, NoModifier}, closeWindow{keys::F4, 0, AltKey};
    const KeyStroke escape{keys::Escape, 0, NoModifier}, enter{keys::Enter, 0, NoModifier}, down{keys::Down};
    for (const KeyStroke& stroke : {drop, f4, down}) EXPECT_TRUE(box.claims(stroke)) << stroke.code;
    for (const KeyStroke& stroke : {f4, KeyStroke{keys::Up}, KeyStroke{keys::PageUp}, f4})
        EXPECT_TRUE(box.strike(stroke)) << stroke.code;
    for (const KeyStroke& stroke : {closeWindow, escape}) EXPECT_FALSE(box.claims(stroke)) << stroke.code;
    EXPECT_FALSE(box.strike(escape)) << "a closed box leaves Escape to the window";
    box.showDropDown(true);
    EXPECT_TRUE(box.claims(escape));
    EXPECT_TRUE(box.claims(enter));
    EXPECT_TRUE(box.strike(escape)) << "an open list keeps Escape from closing the window too";
}

}  // namespace
}  // namespace kel::test
