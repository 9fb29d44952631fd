#include "controls/combo/ListText.h"

#include <gtest/gtest.h>

#include "runtime/ListString.h"
#include "runtime/TaggedList.h"
#include "values/Text.h"

namespace kel {
namespace {

StringArray itemsOf(const ListItems& list) {
    StringArray items;
    for (std::int32_t i = 0; i < list.size(); ++i) items.emplace_back(list.item(i));
    return items;
}

TEST(ListText, SplitsAtCommasOutsideQuotes) {
    const struct {
        const char16_t* list;
        StringArray items;
    } cases[] = {
        {u"", {}},
        {u",", {u"", u""}},
        {u" a, b ,", {u" a", u" b ", u""}},
        {u"\"say \"\"hi\"\"\"", {u"say \"hi\""}},
        {u"a\",b", {u"a\",b"}},
        {u"a\"", {u"a"}},
        {u"\"a,b,c", {u"a,b,c"}},
        {u"\"", {u""}},
        {u"\"\"\"", {u"\""}},
        {u"a\"b\"c,d", {u"a\"b\"c", u"d"}},
        {u"a\"\"b", {u"a\"b"}},
        {u"\"a\",\"b", {u"a", u"b"}},
        {u"\"a\" ,b", {u"a\" ", u"b"}},
    };
    for (const auto& test : cases) EXPECT_EQ(itemsOf(listItemsOf(test.list)), test.items) << toUtf8(test.list);
}

/// Every text of a few characters that mean something, against the field reader, which reads the same language.
TEST(ListText, ReadsAsTheFieldReaderDoes) {
    constexpr std::u16string_view Alphabet = u",\"a ";
    constexpr int Longest = 7;
    for (std::size_t length = 1; length <= Longest; ++length) {
        std::u16string list(length, Alphabet[0]);
        for (std::size_t code = 0; code < std::size_t{1} << 2 * length; ++code) {
            for (std::size_t i = 0; i < length; ++i) list[i] = Alphabet[code >> 2 * i & 3];
            StringArray fields;
            for (std::int32_t position = 0;;) {
                std::u16string field = readListField(list, position, u',');
                if (position < 0) break;
                fields.push_back(std::move(field));
            }
            ASSERT_EQ(itemsOf(listItemsOf(list)), fields) << "number " << code << " of length " << length;
        }
    }
}

TEST(ListText, StopsAtTheMostItems) {
    const auto count = [](std::size_t commas, std::u16string_view last) {
        return listItemsOf(std::u16string(commas, u',').append(last)).size();
    };
    EXPECT_EQ(count(32765, u"x"), 32766);
    EXPECT_EQ(count(32766, u"x"), 32767);
    EXPECT_EQ(count(32767, u"x"), 32767);
    EXPECT_EQ(count(70000, u"\""), 32767);
    const ListItems full = listItemsOf(std::u16string(32766, u',').append(u"x,y"));
    EXPECT_EQ(full.item(32766), u"x");

    StringArray array(40000, u"a,\"b\"");
    array[32766] = u"last";
    const ListItems fromArray = listItemsOf(array);
    ASSERT_EQ(fromArray.size(), 32767);
    EXPECT_EQ(fromArray.item(0), u"a,\"b\"") << "an array's elements are taken as they are";
    EXPECT_EQ(fromArray.item(32766), u"last");
}

TEST(TaggedList, KeepsItemsAndTagsSideBySide) {
    const struct {
        const char16_t* items;
        const char16_t* tags;
        TaggedList list;
        const char16_t* keptTags;
    } cases[] = {
        {u"", u"1,2", {}, u""},
        {u"a,\"b,c\"", u"", {{u"a", u""}, {u"b,c", u""}}, u""},
        {u"a,b,c", u"\"\",2", {{u"a", u""}, {u"b", u"2"}, {u"c", u""}}, u"\"\",2"},
        {u"\"\"", u"1", {{u"", u"1"}}, u"1"},
        {u"a,", u"1,,3", {{u"a", u"1"}, {u"", u""}}, u"1"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(taggedListOf(test.items, test.tags), test.list) << toUtf8(test.items);
        EXPECT_EQ(itemsOf(test.list), test.items);
        EXPECT_EQ(tagsOf(test.list), test.keptTags) << toUtf8(test.items);
    }
}

TEST(TaggedList, TakesALineForEachItem) {
    const struct {
        const char16_t* text;
        TaggedList list;
    } cases[] = {
        {u"", {}},
        {u"\r\n\n", {}},
        {u"a\t1\r\nb\r\n", {{u"a", u"1"}, {u"b", u""}}},
        {u"a\n\nb\tx\ty", {{u"a", u""}, {u"", u""}, {u"b", u"x\ty"}}},
        {u"a\rb, c\t", {{u"a", u""}, {u"b, c", u""}}},
    };
    for (const auto& test : cases) EXPECT_EQ(taggedLines(test.text), test.list) << toUtf8(test.text);
}

}  // namespace
}  // namespace kel
