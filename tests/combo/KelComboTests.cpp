#include "controls/combo/KelCombo.h"

#include <gtest/gtest.h>

#include "library/Dispatch.h"
#include "tests/combo/ComboForm.h"
#include "tests/Heap.h"

namespace kel::test {
namespace {

constexpr char16_t Fruit[] = u"Apple,Apricot,Banana,banana split,Cherry";

enum Mode : unsigned { Free = 0, Limited = 1, Optional = 2, Locked = 4, Refused = 8 };

struct EditCase {
    const char* what;
    unsigned mode;
    const char16_t* text;  ///< when the field is entered
    const char* script;    ///< "leave" at its end leaves the field
    const char* look;
    const char* events;
};

struct Scene {
    explicit Scene(unsigned mode, const char16_t* text = u"", const char16_t* list = Fruit) {
        form.load({{u"List", std::u16string(list)},
                   {u"LimitToList", (mode & Limited) != 0},
                   {u"Mandatory", (mode & Optional) == 0},
                   {u"Locked", (mode & Locked) != 0},
                   {u"Text", std::u16string(text)}});
        form.handled = (mode & Refused) == 0;
        form.enter();
    }

    ComboForm form;
    KelCombo& combo = form.combo();
    FakeBox& box = form.box();
};

void check(const EditCase& row) {
    SCOPED_TRACE(row.what);
    Scene scene(row.mode, row.text);
    std::string_view script = row.script;
    const bool leaves = script.ends_with("leave");
    if (leaves) script.remove_suffix(std::min(script.size(), sizeof "; leave" - 1));
    scene.box.play(script);
    if (leaves) scene.form.leave();
    EXPECT_EQ(scene.box.look(), row.look);
    EXPECT_EQ(scene.form.takeEvents(), row.events);
}

TEST(KelCombo, TypingCompletesToAnItem) {
    const EditCase limited[] = {
        {"the first that begins so", Limited, u"", "'a'", "A[pple] 0", "ChangeEx Change"},
        {"typed on over the completion", Limited, u"", "'apr'", "Apr[icot] 1", "ChangeEx Change ChangeEx Change"},
        {"to its end", Limited, u"", "'apple'", "Apple| 0", "ChangeEx Change"},
        {"a key that leads to no item goes back one place", Limited, u"", "'apx'", "Ap[ple] -1", "ChangeEx Change"},
        {"and leaves an empty field empty", Limited, u"", "'x'", "| -1", ""},
        {"the list's order counts, not its case", Limited, u"", "'BANANA'", "Banana| 2", "ChangeEx Change"},
        {"only what is in front of the caret is looked for", Limited, u"Cherry", "'b'", "B[anana] 2",
         "ChangeEx Change"},
        {"Backspace takes the completion away, which comes back", Limited, u"", "'ap' Backspace", "Ap[ple] 0",
         "ChangeEx Change"},
        {"Backspace behind a whole item", Limited, u"Apple", "End Backspace", "Appl[e] 0", ""},
        {"Delete in front of the caret's word", Limited, u"Apple", "Delete", "[Apple] -1", ""},
        {"paste", Limited, u"", "paste'Apr'", "Apr[icot] 1", "ChangeEx Change"},
        {"paste of what is no item", Limited, u"Cherry", "paste'xyz'", "Ch[erry] -1", ""},
        {"an input method types without keys", Limited, u"", "input 'ch'", "Ch[erry] 4", "ChangeEx Change"},
        {"a drop from elsewhere is no typing", Limited, u"", "drop 'ch'", "| -1", ""},
        {"all selected and deleted: the one way to empty it", Limited, u"Apple", "Ctrl+A Delete", "| -1",
         "ChangeEx Change"},
        {"a deleted part takes all with it", Limited, u"Apple", "End Shift+Left*2 Delete", "| -1", "ChangeEx Change"},
    };
    for (const EditCase& row : limited) check(row);

    const EditCase free[] = {
        {"completed in the item's own spelling", Free, u"", "'APP'", "App[le] 0",
         "ChangeEx Change ChangeEx Change ChangeEx Change"},
        {"what begins no item stays", Free, u"", "'ax'", "Ax| -1", "ChangeEx Change ChangeEx Change"},
        {"the whole text is looked for", Free, u"Cherry", "'b'", "b|Cherry -1", "ChangeEx Change"},
        {"Backspace goes back one character", Free, u"", "'ap' Backspace", "A[pple] 0",
         "ChangeEx Change ChangeEx Change ChangeEx Change"},
        {"and further until nothing is left", Free, u"", "'ap' Backspace*2", "| -1",
         "ChangeEx Change ChangeEx Change ChangeEx Change"},
        {"nothing in front to go back to", Free, u"Apple", "Backspace", "|Apple 0", ""},
        {"Delete takes the completion and leaves what was typed", Free, u"", "'ap' Delete", "Ap| -1",
         "ChangeEx Change ChangeEx Change ChangeEx Change ChangeEx Change"},
        {"back at the reference, nothing is told", Free, u"x", "End 'y' Backspace", "x| -1", "ChangeEx Change"},
        {"a list that is open closes", Free, u"", "F4 'a'", "A[pple] 0", "ChangeEx Change"},
    };
    for (const EditCase& row : free) check(row);
}

TEST(KelCombo, PickingTellsOfAnotherText) {
    const EditCase rows[] = {
        {"from the list", Limited, u"Apple", "F4; pick 2", "|Banana 2", "ChangeEx Click Change"},
        {"the item that is shown", Limited, u"Apple", "F4; pick 0", "|Apple 0", ""},
        {"by key", Free, u"Apple", "Down", "|Apricot 1", "ChangeEx Click Change"},
        {"by wheel", Free, u"Apple", "wheel -2", "|Banana 2", "ChangeEx Click Change"},
        {"a refused change keeps the text, and is measured anew", Free | Refused, u"Apple", "Down*2", "|Banana 2",
         "ChangeEx ChangeEx"},
        {"a refused typed change too", Limited | Refused, u"", "'ap'", "Ap[ple] 0", "ChangeEx ChangeEx"},
        {"after one that was told, back is another", Free, u"Apple", "Down Up", "|Apple 0",
         "ChangeEx Click Change ChangeEx Click Change"},
        {"a locked field is changed by nothing", Limited | Locked, u"Apple",
         "'b' Backspace Delete Ctrl+A Delete Down F4 Down Enter; wheel -1; pick 2; input 'b'; drop 'b'", "[Apple] 0",
         ""},
        {"nor a locked one that takes any text", Free | Locked, u"Apple", "End Backspace Shift+Home Delete",
         "[Apple] 0", ""},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(KelCombo, LeavingSettlesTheText) {
    const EditCase rows[] = {
        {"an item is selected whole", Limited, u"", "'ch'; leave", "|Cherry 4", "ChangeEx Change"},
        {"any text stays where any may", Free, u"", "'x'; leave", "|x -1", "ChangeEx Change"},
        {"a mandatory field is not left empty", Limited, u"Apple", "Ctrl+A Delete; leave", "| -1", "ChangeEx Change"},
        {"but what the host has not taken comes back", Limited | Refused, u"Apple", "Ctrl+A Delete; leave", "|Apple -1",
         "ChangeEx"},
        {"an optional one is", Limited | Optional | Refused, u"Apple", "Ctrl+A Delete; leave", "| -1", "ChangeEx"},
        {"a mandatory free field gets its text back", Free, u"x", "Ctrl+A Delete; leave", "|x -1", "ChangeEx Change"},
    };
    for (const EditCase& row : rows) check(row);
}

TEST(KelCombo, TextIsShownAsFarAsTheListAllows) {
    Scene scene(Limited);
    KelCombo& combo = scene.combo;
    scene.form.takeReports();
    combo.put_Text(u"Banana");
    EXPECT_EQ(scene.box.look(), "|Banana 2");
    EXPECT_EQ(combo.get_TextOriginal(), u"Banana");
    combo.put_Text(u"banana");
    EXPECT_EQ(combo.get_Text(), u"");
    EXPECT_EQ(combo.get_TextOriginal(), u"");
    combo.put_LimitToList(false);
    combo.put_Text(u"other");
    EXPECT_EQ(scene.box.look(), "|other -1");
    combo.put_LimitToList(true);
    EXPECT_EQ(combo.get_Text(), u"");
    EXPECT_EQ(combo.get_TextOriginal(), u"other");
    EXPECT_TRUE(combo.get_Changed());
    combo.put_Text(combo.get_TextOriginal());
    EXPECT_EQ(combo.get_TextOriginal(), u"");
    EXPECT_EQ(scene.form.takeReports(), "Text,Text,LimitToList,Text,LimitToList,Text");
    EXPECT_EQ(scene.form.takeEvents(), "") << "what code does raises nothing";
}

TEST(KelCombo, ReadingTheTextSettlesIt) {
    Scene scene(Free);
    scene.box.play("'zz' Left");
    scene.combo.put_TextSaved(u"ZZ");
    EXPECT_TRUE(scene.combo.get_ChangedSaved()) << "case counts";
    EXPECT_EQ(scene.box.look(), "z|z -1") << "and comparing settles nothing";
    EXPECT_EQ(scene.combo.get_Text(), u"zz");
    EXPECT_EQ(scene.box.look(), "|zz -1");
    scene.box.setSelStart(1);
    EXPECT_EQ(scene.combo.get_Text(), u"zz");
    EXPECT_EQ(scene.box.look(), "z|z -1") << "settled once, it stays as it is";
    scene.box.play("'q'");
    scene.combo.put_LimitToList(true);
    EXPECT_EQ(scene.combo.get_Text(), u"");
}

TEST(KelCombo, TheHostMayDoAnythingInAnEvent) {
    Scene scene(Limited);
    scene.form.onEvent = [&scene](const EventRow& event) {
        if (event.name == u"Change") scene.combo.put_List(u"new,newer");
    };
    scene.box.play("'a'");
    EXPECT_EQ(scene.box.look(), "| -1");
    scene.form.onEvent = [&scene](const EventRow& event) {
        if (event.name == u"ChangeEx") scene.combo.put_Text(u"new");
    };
    scene.box.play("'newe'");
    EXPECT_EQ(scene.combo.get_TextOriginal(), u"new");
    scene.form.onEvent = [&scene](const EventRow& event) {
        if (event.name == u"Click") scene.combo.put_Locked(true);
    };
    scene.box.play("F4; pick 1; pick 0");
    EXPECT_EQ(scene.combo.get_Text(), u"newer");
}

TEST(KelCombo, ItemsAndTagsAreCountedFromOne) {
    Scene scene(Limited, u"b", u"a,b,c");
    KelCombo& combo = scene.combo;
    combo.put_ListTag(u"1,\"2,5\"");
    EXPECT_EQ(combo.get_ListIndex(), 2);
    EXPECT_EQ(combo.get_ListItem(0), u"a") << "left out, the item before the selected one";
    EXPECT_EQ(combo.get_ListTagItem(0), u"2,5") << "left out, the selected item's own";
    const struct {
        std::int16_t item;
        std::u16string_view text;
        std::u16string_view tag;
    } cases[] = {{1, u"a", u"1"}, {2, u"b", u"2,5"}, {3, u"c", u""}, {4, u"", u""}, {-1, u"", u""}, {-32768, u"", u""}};
    for (const auto& test : cases) {
        EXPECT_EQ(combo.get_ListItem(test.item), test.text) << test.item;
        EXPECT_EQ(combo.get_ListTagItem(test.item), test.tag) << test.item;
    }
    combo.put_ListIndex(3);
    EXPECT_EQ(scene.box.look(), "|c 2");
    EXPECT_EQ(combo.get_TextOriginal(), u"c");
    for (const std::int16_t none : std::initializer_list<std::int16_t>{0, 4, -1}) combo.put_ListIndex(none);
    EXPECT_EQ(scene.box.look(), "|c 2");
    combo.put_ListIndex(1);
    EXPECT_EQ(combo.get_ListItem(0), u"") << "before the first there is none";
    combo.put_LimitToList(false);
    EXPECT_EQ(combo.get_ListIndex(), -1);
    combo.put_Text(u"none");
    EXPECT_EQ(combo.get_ListItem(0), u"");
    EXPECT_EQ(combo.get_ListTagItem(0), u"");
    EXPECT_EQ(scene.form.takeEvents(), "");
}

TEST(KelCombo, ANewListKeepsTheTextItAllows) {
    Scene scene(Limited, u"b", u"a,b");
    KelCombo& combo = scene.combo;
    scene.form.takeReports();
    combo.put_List(u"\"x,y\",b,\"say \"\"hi\"\"\",");
    EXPECT_EQ(scene.box.look(), "|b 1");
    EXPECT_EQ(combo.get_ListCount(), 4);
    EXPECT_EQ(combo.get_List(), u"\"x,y\",b,\"say \"\"hi\"\"\",");
    combo.ListFromArray({u"a,b", u"\"c\""});
    EXPECT_EQ(combo.get_Text(), u"");
    EXPECT_EQ(combo.get_List(), u"\"a,b\",\"\"\"c\"\"\"");
    EXPECT_EQ(scene.form.takeReports(), "Text,List,Text,List");
    combo.put_LimitToList(false);
    combo.put_Text(u"free");
    combo.put_List({});
    EXPECT_EQ(combo.get_Text(), u"free");
    EXPECT_EQ(combo.get_ListCount(), 0);
    EXPECT_EQ(combo.get_List(), u"");
}

TEST(KelCombo, TheListsWidthIsTheFieldsUnlessSet) {
    ComboForm form;
    form.load({{u"CaptionWidth", std::int16_t{1000}}});
    KelCombo& combo = form.combo();
    EXPECT_EQ(form.box().droppedWidth(), 200);
    const struct {
        std::int32_t twips;
        std::int32_t stored;
        std::int32_t pixels;
        const char* reports;
    } cases[] = {
        {3007, 3007, 200, "DropDownWidth"}, {3008, 3008, 201, "DropDownWidth"},
        {3000, 0, 200, "DropDownWidth"},    {9000, 0, 200, ""},
        {8000, 8000, 533, "DropDownWidth"}, {8000, 8000, 533, ""},
        {8001, 0, 200, "DropDownWidth"},    {1, 1, 0, "DropDownWidth"},
        {0, 0, 200, "DropDownWidth"},       {-5, 0, 200, ""},
        {2147483647, 0, 200, ""},
    };
    for (const auto& test : cases) {
        combo.put_DropDownWidth(test.twips);
        EXPECT_EQ(combo.get_DropDownWidth(), test.stored) << test.twips;
        EXPECT_EQ(form.box().droppedWidth(), test.pixels) << test.twips;
        EXPECT_EQ(form.takeReports(), test.reports) << test.twips;
    }
    form.resize({7000, 300});
    EXPECT_EQ(form.box().droppedWidth(), 400) << "it follows the field";
    combo.put_DropDownWidth(3000);
    form.resize({8000, 300});
    EXPECT_EQ(form.box().droppedWidth(), 200) << "a width of its own stays";
}

TEST(KelCombo, SavedFormsComeBack) {
    const auto read = [](std::u16string_view name) {
        ComboForm form;
        form.load({{u"Caption", u"Town"},
                   {std::u16string(name), std::int16_t{2250}},
                   {u"List", u"b,a"},
                   {u"Text", u"a"},
                   {u"MaxLength", std::int16_t{2}}});
        EXPECT_EQ(form.combo().get_TextOriginal(), u"a") << "the text is read last, and the list allows it";
        return form.combo().get_DropDownWidth();
    };
    EXPECT_EQ(read(u"DropdownWidth"), 2250);
    EXPECT_EQ(read(u"DropDownWidth"), 0) << "a bag that minds case finds no width under the name it was written by";

    struct Written final : PropertyBag {
        Variant readProperty(const PersistedRow& row) override { return toVariant(row.readDefault); }
        void writeProperty(const PersistedRow& row, const Variant& value) override {
            if (equalsDefault(value, row.writeDefault)) return;
            Names += (Names.empty() ? u"" : u",") + std::u16string(row.name);
            if (row.name == u"Text") Text = std::get<std::u16string>(value);
        }
        std::u16string Names;
        std::u16string Text;
    } bag;
    Scene scene(Free);
    scene.combo.put_DropDownWidth(100);
    scene.box.play("'apricot'");
    scene.combo.WriteProperties(bag);
    EXPECT_EQ(bag.Names, u"DropDownWidth,LimitToList,List,Text");
    EXPECT_EQ(bag.Text, u"Apricot");
    EXPECT_EQ(scene.box.look(), "|Apricot 1") << "saving settles the text";
}

TEST(KelCombo, LayoutAndLooks) {
    ComboForm form;
    form.load({{u"CaptionWidth", std::int16_t{1200}}});
    FakeBox& box = form.box();
    EXPECT_EQ(box.bounds(), (Rect{1200, 0, 2800, 300}));
    form.resize({4000, 500});
    EXPECT_EQ(box.bounds(), (Rect{1200, 0, 2800, 300}));
    form.resize({50, 300});
    EXPECT_EQ(box.bounds(), (Rect{100, 0, 0, 300}));
    form.resize({4000, 300});

    const SharedSettings& colours = form.settings();
    form.enter();
    EXPECT_EQ(box.backColor(), colours.FieldBackFocus);
    form.combo().put_Locked(true);
    EXPECT_EQ(box.backColor(), colours.FieldBackFocusLocked);
    form.leave();
    EXPECT_EQ(box.backColor(), colours.FieldBackLocked);
    form.combo().put_Locked(false);
    form.combo().put_Enabled(false);
    EXPECT_FALSE(box.enabled());
    EXPECT_FALSE(form.combo().get_Enabled());
    EXPECT_EQ(box.backColor(), colours.FieldBackNormal) << "the colour goes by the control, which is enabled";
    EXPECT_EQ(form.takeReports(), "Locked,Locked,Enabled");
}

TEST(KelCombo, EnteringSelectsOnDemand) {
    const struct {
        bool selectOnFocus;
        bool byTab;
        const char* look;
    } cases[] = {{true, true, "[Apple] 0"}, {true, false, "|Apple 0"}, {false, true, "[A]pple 0"}};
    for (const auto& test : cases) {
        ComboForm form;
        form.load({{u"List", std::u16string(Fruit)}, {u"Text", u"Apple"}, {u"SelectOnFocus", test.selectOnFocus}});
        form.box().setSelLength(1);
        form.combo().put_TextOriginal(u"other");
        form.enter(test.byTab);
        EXPECT_EQ(form.box().look(), test.look);
        EXPECT_FALSE(form.combo().get_Changed()) << "entering takes the text as the reference";
        form.leave();
        EXPECT_EQ(form.box().look(), "|Apple 0");
    }
}

TEST(KelCombo, EnterMovesOn) {
    Scene scene(Limited);
    scene.box.play("F4 Down*2 Enter Enter");
    EXPECT_EQ(scene.box.look(), "|Apricot 1");
    EXPECT_EQ(scene.form.tabsSent(), 2);
}

TEST(KelCombo, ValidAsksMandatoryFieldsForAText) {
    Scene scene(Free);
    KelCombo& combo = scene.combo;
    EXPECT_FALSE(combo.get_Valid());
    combo.put_Text(u"  ");
    EXPECT_FALSE(combo.get_Valid());
    combo.put_Text(u" x ");
    EXPECT_TRUE(combo.get_Valid());
    combo.put_Text(u"");
    combo.put_Locked(true);
    EXPECT_TRUE(combo.get_Valid());
    combo.put_Locked(false);
    combo.put_Mandatory(false);
    EXPECT_TRUE(combo.get_Valid());
}

TEST(KelCombo, ANewOneIsEmptyAndMandatory) {
    ComboForm form;
    form.combo().InitProperties();
    EXPECT_EQ(form.combo().get_Caption(), u"cboTown");
    EXPECT_EQ(form.combo().get_CaptionWidth(), NewCaptionWidth);
    EXPECT_EQ(form.combo().widgets().label->foreColor(), colors::SystemHighlight);
    EXPECT_EQ(form.takeReports(), "");
    form.combo().put_List(u"\"a,b\"");
    EXPECT_EQ(form.combo().get_List(), u"\"a,b\"") << "no run-time object has been handed over";
    EXPECT_FALSE(form.settings().Runtime);
}

/// What a key takes from the heap in a list with so many items.
std::size_t allocationsOfKey(int count) {
    std::u16string list;
    for (int i = 0; i < count; ++i) list += u"item " + std::u16string(1, static_cast<char16_t>(0x4E00 + i)) + u",";
    Scene scene(Limited, u"", list.c_str());
    scene.box.play("'i'");
    const KeyStroke letter = strokeFor(U't');
    const HeapUse use;
    scene.box.strike(letter);
    EXPECT_EQ(scene.box.look(), "it[em \u4E00] 0");
    return use.allocations();
}

TEST(KelCombo, AKeyTakesNoMoreMemoryInALongList) { EXPECT_EQ(allocationsOfKey(32766), allocationsOfKey(20)); }

}  // namespace
}  // namespace kel::test
