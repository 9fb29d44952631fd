#include <gtest/gtest.h>
#include <QChar>

#include "values/CaseFolding.h"

TEST(CaseFoldingAgainstQt, EveryCharacterFoldsToTheSame) {
    for (char32_t point = 0; point < 0x110000; ++point) {
        if (QChar::isSurrogate(point)) continue;
        ASSERT_EQ(kel::foldCase(point), QChar::toCaseFolded(point)) << std::hex << unsigned{point};
    }
}
