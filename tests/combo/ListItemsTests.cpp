#include "host/ListItems.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>
#include <utility>

#include "tests/Heap.h"
#include "values/CaseFolding.h"

namespace kel {
namespace {

ListItems listOf(std::initializer_list<std::u16string_view> texts) {
    ListItems list;
    for (const auto text : texts) list.add(text);
    return list;
}

/// Long enough for its indexes, with `texts` behind what nobody looks for.
ListItems longListOf(std::initializer_list<std::u16string_view> texts) {
    ListItems list;
    for (int i = 0; i < 40; ++i) list.add(u"~");
    for (const auto text : texts) list.add(text);
    return list;
}

std::u16string randomText(std::mt19937& random) {
    constexpr std::u16string_view Alphabet = u"aAbB\u00E9\u00C9\u0416\u0436\u00DFs";
    std::u16string text;
    for (std::size_t units = random() % 5; units > 0; --units) {
        text += random() % 12 == 0 ? std::u16string(random() % 2 == 0 ? u"\U00010400" : u"\U00010428")
                                   : std::u16string(1, Alphabet[random() % Alphabet.size()]);
    }
    return text;
}

TEST(ListItems, FindsWhatLookingThroughAllWouldFind) {
    std::mt19937 random(7);
    for (const int count : {0, 1, 2, 15, 16, 17, 33, 700}) {
        ListItems list;
        for (int i = 0; i < count; ++i) list.add(randomText(random));
        for (int round = 0; round < 400; ++round) {
            const std::u16string wanted = randomText(random);
            std::int32_t exact = ListItems::NotFound, prefix = ListItems::NotFound;
            for (std::int32_t i = list.size() - 1; i >= 0; --i) {
                if (list.item(i) == wanted) exact = i;
                if (!wanted.empty() && compareFoldedBeginning(list.item(i), wanted) == 0) prefix = i;
            }
            ASSERT_EQ(list.findExact(wanted), exact) << count << " items";
            ASSERT_EQ(list.findPrefix(wanted), prefix) << count << " items";
        }
    }
}

TEST(ListItems, BeginningsGoByTheListsOrderAndNotByCase) {
    const struct {
        const char* what;
        std::u16string_view beginning;
        std::u16string_view found;
    } cases[] = {
        {"the first of several, not the one in the same case", u"ap", u"APRICOT"},
        {"a whole item, though an earlier one begins with it", u"apple", u"Apple pie"},
        {"Greek with its final sigma", u"\u03BF\u03B4\u03BF\u03C3", u"\u03BF\u03B4\u03BF\u03C2"},
        {"letters in pairs", u"\U00010428", u"\U00010400x"},
        {"half a pair is no whole one", u"\xD801", u""},
        {"no accents are dropped", u"ete", u""},
    };
    for (const bool indexed : {false, true}) {
        const ListItems list = indexed ? longListOf({u"APRICOT", u"apricot", u"Apple pie", u"apple", u"\u00E9te",
                                                     u"\u03BF\u03B4\u03BF\u03C2", u"\U00010400x"})
                                       : listOf({u"APRICOT", u"apricot", u"Apple pie", u"apple", u"\u00E9te",
                                                 u"\u03BF\u03B4\u03BF\u03C2", u"\U00010400x"});
        for (const auto& test : cases) {
            SCOPED_TRACE(test.what);
            const std::int32_t found = list.findPrefix(test.beginning);
            if (test.found.empty())
                EXPECT_EQ(found, ListItems::NotFound);
            else
                EXPECT_TRUE(list.contains(found) && list.item(found) == test.found) << found;
        }
    }
}

TEST(ListItems, TextsAreKeptWhole) {
    ListItems list = longListOf({u"", std::u16string_view(u"a\0b", 3), u"a"});
    EXPECT_EQ(list.findExact(u""), 40);
    EXPECT_EQ(list.findExact(std::u16string_view(u"a\0b", 3)), 41);
    EXPECT_EQ(list.findPrefix(std::u16string_view(u"a\0", 2)), 41);
    EXPECT_EQ(list.findExact(u"a"), 42);
    EXPECT_EQ(list.findPrefix(u"b"), ListItems::NotFound);
    list.add(u"b");
    EXPECT_EQ(list.findPrefix(u"b"), 43) << "an index knows of items added later";
    EXPECT_EQ(list.findExact(u"b"), 43);
}

TEST(ListItems, CopiesAndMovesStandAlone) {
    ListItems list = longListOf({u"one", u"two"});
    EXPECT_EQ(list.findPrefix(u"T"), 41);
    ListItems copy = list;
    copy.add(u"tw");
    EXPECT_EQ(copy.findExact(u"tw"), 42);
    EXPECT_EQ(list.findExact(u"tw"), ListItems::NotFound);
    ListItems moved = std::move(list);
    EXPECT_EQ(moved.findPrefix(u"T"), 41);
    moved = std::move(copy);
    EXPECT_EQ(moved.findExact(u"tw"), 42);
    // NOLINTBEGIN(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    for (ListItems* const gone : {&list, &copy}) {
        EXPECT_EQ(gone->size(), 0);
        EXPECT_EQ(gone->findExact(u"two") + gone->findPrefix(u"two"), 2 * ListItems::NotFound);
        gone->add(u"new");
        EXPECT_EQ(gone->findPrefix(u"n"), 0);
    }
    // NOLINTEND(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
}

// As a combo box of Qt's needs: some 150 bytes an item.
TEST(ListItems, ALongListIsSmall) {
    constexpr int Count = 32767;
    constexpr std::size_t MostBytesAnItem = 100;
    const test::HeapUse use;
    ListItems list;
    for (int i = 0; i < Count; ++i) list.add(u"Item " + std::u16string(1, static_cast<char16_t>(0x4E00 + i % 0x5000)));
    list.findExact(u"none");
    list.findPrefix(u"none");
    EXPECT_LT(use.bytes() / Count, MostBytesAnItem);
}

}  // namespace
}  // namespace kel
