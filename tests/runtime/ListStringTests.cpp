#include "runtime/ListString.h"

#include <gtest/gtest.h>

#include <vector>

namespace kel {
namespace {

using Items = std::vector<std::u16string>;

std::u16string listOf(const Items& items) {
    std::u16string list;
    for (const auto& item : items) appendListItem(list, item);
    return list;
}

Items fieldsOf(std::u16string_view text) {
    Items fields;
    for (std::int32_t position = 0;;) {
        std::u16string field = readListField(text, position, u',');
        if (position < 0) return fields;
        fields.push_back(std::move(field));
    }
}

TEST(ListString, WritesOnlyTheQuotesItNeeds) {
    EXPECT_EQ(listOf({u"a", u"b c", u"", u"d"}), u"a,b c,,d");
    EXPECT_EQ(listOf({u"x,y", u"say \"hi\""}), u"\"x,y\",\"say \"\"hi\"\"\"");
    EXPECT_EQ(listOf({u""}), u"\"\"");
}

TEST(ListString, ReadsWhatOthersWrote) {
    EXPECT_EQ(fieldsOf(u"a,"), (Items{u"a", u""}));
    EXPECT_EQ(fieldsOf(u"\"a,b"), (Items{u"a,b"}));
    EXPECT_EQ(fieldsOf(u"1;2"), (Items{u"1;2"}));
    std::int32_t position = 0;
    EXPECT_EQ(readListField(u"1;2", position, u';'), u"1");
    EXPECT_EQ(readListField(u"1;2", position, u';'), u"2");
    EXPECT_GE(position, 0);
    EXPECT_EQ(readListField(u"1;2", position, u';'), u"");
    EXPECT_LT(position, 0);
}

}  // namespace
}  // namespace kel
