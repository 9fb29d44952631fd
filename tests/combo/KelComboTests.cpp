#include "controls/combo/KelCombo.h"

#include <gtest/gtest.h>

#include "platform/headless/HeadlessWindow.h"
#include "tests/check/OneControl.h"
#include "tests/headless/Keys.h"
#include "tests/Heap.h"
#include "values/Text.h"

namespace kel::test {
namespace {

class Combo : public testing::Test {
protected:
    /// Loaded as a form with these properties would, and entered.
    void load(std::map<std::u16string, Variant, std::less<>> saved) {
        TestBag bag;
        bag.Stored = std::move(saved);
        It.ReadProperties(bag);
        Form.window().focus(Form.placed());
        Form.told();
    }
    void play(std::string_view keys) { press(Form.window(), keys); }
    void atEachEvent(std::function<void()> deed) { Form.onEvent = std::move(deed); }
    std::string look() { return drawn(*It.widgets().entry); }

    OneControl Form{KelComboModel};
    KelCombo& It = Form.as<KelCombo>();
};

TEST_F(Combo, TheHostMayPutTheListWhileItIsTypedIn) {
    load({{u"LimitToList", false}});
    atEachEvent([this] { It.put_List(It.get_List().empty() ? u"Apple" : It.get_List() + u",x"); });
    play("'ab'");
    EXPECT_EQ(look(), "ab|");
    play("Backspace 'p'");
    EXPECT_EQ(look(), "Ap[ple]") << "the completion stays selected";
    It.put_LimitToList(true);
    atEachEvent([this] { It.put_List(u"new,newer"); });
    play("'r' Ctrl+A Delete 'n'");
    EXPECT_EQ(look(), "n[ew]");
    atEachEvent([this] { It.put_Text(u"new"); });
    play("'ewe'");
    EXPECT_EQ(It.get_TextOriginal(), u"new");
}

TEST_F(Combo, WhatComesWithoutAKeyIsTyping) {
    load({{u"List", u"Apple,Cherry"}, {u"MaxLength", std::int16_t{3}}});
    auto& window = dynamic_cast<headless::HeadlessWindow&>(Form.window());
    window.drop(Form.placed(), 0, u"Cherry");
    EXPECT_EQ(look(), "Che[rry]");
    EXPECT_EQ(Form.told(), (Lines{"ChangeEx!", "Change!"}));
    It.put_Text(u"");
    window.drop(Form.placed(), 0, u"x");
    EXPECT_EQ(look(), "|");
}

TEST_F(Combo, ASavedWidthIsReadByAnotherName) {
    load({{u"DropdownWidth", std::int16_t{2250}}});
    EXPECT_EQ(It.get_DropDownWidth(), 2250);
    load({{u"DropDownWidth", std::int16_t{2250}}});
    EXPECT_EQ(It.get_DropDownWidth(), 0) << "a bag that minds case finds none under the name it was written by";
    for (const std::int32_t wide : {2147483647, -2147483647}) {
        It.put_DropDownWidth(wide);
        EXPECT_EQ(It.get_DropDownWidth(), 0);
    }
}

TEST_F(Combo, ALoopOverAllTagsReadsEachAFewTimes) {
    constexpr std::int16_t Count = 2000;
    std::u16string tags;
    // So long that each that is read takes something from the heap.
    const auto tag = [](int item) { return fromUtf8("the tag of item " + std::to_string(item)).value(); };
    for (int item = 1; item < Count; ++item) tags += (item == 1 ? u"" : u",") + tag(item);
    const std::u16string list(Count - 1, u',');
    It.put_List(list);
    It.put_ListTag(tags);
    for (const char* reader : {"a run-time object for each call", "the one of the host"}) {
        SCOPED_TRACE(reader);
        const HeapUse use;
        for (std::int16_t item = 1; item < Count; ++item) {
            ASSERT_TRUE(It.get_ListTagItem(item) == tag(item)) << item;
            ASSERT_TRUE(It.get_ListTagItem(item) == tag(item)) << item << " asked for again";
        }
        EXPECT_LE(use.allocations(), std::size_t{12} * Count);
        load({{u"List", list}, {u"ListTag", tags}});
    }
    EXPECT_EQ(It.get_ListTagItem(Count), u"") << "there is one tag too few";
    for (const std::int16_t item : std::initializer_list<std::int16_t>{1999, 3, 2, 1000})
        EXPECT_EQ(It.get_ListTagItem(item), tag(item));
    It.put_ListTag(u"a,b");
    EXPECT_EQ(It.get_ListTagItem(2), u"b");
}

/// What a key takes from the heap in a list with so many items.
std::size_t allocationsOfKey(int count) {
    std::u16string list;
    for (int i = 0; i < count; ++i) list += u"item " + std::u16string(1, static_cast<char16_t>(0x4E00 + i)) + u",";
    OneControl form{KelComboModel};
    form.as<KelCombo>().put_List(list);
    form.window().focus(form.placed());
    form.window().press(strokeFor(U'i'));
    const KeyStroke letter = strokeFor(U't');
    const HeapUse use;
    form.window().press(letter);
    const std::size_t taken = use.allocations();
    EXPECT_EQ(drawn(*form.as<KelCombo>().widgets().entry), "it[em \u4E00]");
    return taken;
}

TEST(KelCombo, AKeyTakesNoMoreMemoryInALongList) { EXPECT_EQ(allocationsOfKey(32766), allocationsOfKey(20)); }

}  // namespace
}  // namespace kel::test
