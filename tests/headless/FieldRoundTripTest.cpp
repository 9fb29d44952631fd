#include <gtest/gtest.h>

#include <random>

#include "controls/datetime/KelDate.h"
#include "controls/datetime/KelTime.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel::test {
namespace {

using Random = std::mt19937;

template <class Items>
const auto& anyOf(const Items& items, Random& random) {
    return items[random() % std::size(items)];
}

std::u16string anyFormat(Random& random) {
    constexpr std::u16string_view Names[] = {u"General Date", u"Long Date", u"Medium Date", u"Short Date",
                                             u"Long Time",    u"Standard",  u"Yes/No",      u"dd/mm/yy"};
    constexpr std::u16string_view Pieces[] = {
        u"d",    u"dd",     u"ddd",        u"dddd", u"ddddd", u"dddddd", u"m", u"mm",    u"mmm",  u"mmmm",
        u"oooo", u"aaaa",   u"yy",         u"y",    u"yyyy",  u"q",      u"w", u"ww",    u"h",    u"hh",
        u"n",    u"nn",     u"s",          u"ss",   u"c",     u"/",      u":", u"ttttt", u"AMPM", u"am/pm",
        u"a/p",  u"\"de\"", u"\"15 Uhr\"", u"\\d",  u"\"",    u"\\",     u" ", u"-",     u".",    u", ",
        u";",    u"0",      u"#",          u"x",    u"年",    u"\r\n"};
    if (random() % 8 == 0) return std::u16string(anyOf(Names, random));
    std::u16string format;
    for (std::size_t left = random() % 7 + 1; left > 0; --left) format += anyOf(Pieces, random);
    return format;
}

/// A field of any format that is entered and left.
class Passing {
public:
    Passing(const RegionalSettings& region, const ClassModel& model)
        : Region_(region), Form_({.region = &region}), Placed_(Form_.place(u"a", model)) {
        Form_.place(u"b", model);
        Form_.window().show();
    }

    void check(Date value, Random& random) {
        DateTimeField& field = DateTimeField::of(Placed_.control());
        field.put_Format(anyFormat(random));
        field.put_Value(value);
        const Variant before = field.get_Value();
        const std::u16string text = Placed_.control().widgets().entry->text();
        const std::u16string shown = field.get_Format();
        const char* way = "left";
        const auto expectSame = [&] {
            EXPECT_TRUE(field.get_Value() == before && Placed_.control().widgets().entry->text() == text)
                << toUtf8(text) << " by " << toUtf8(shown) << " in " << toUtf8(Region_.Name) << ' ' << way;
        };
        press(Form_.window(), "Tab Tab");
        expectSame();
        way = "read while edited";
        press(Form_.window(), "Shift+Tab End Left");
        EXPECT_TRUE(field.get_Valid(false));
        expectSame();
        way = "left after another format";
        field.put_Format(anyFormat(random));
        press(Form_.window(), "End Tab Shift+Tab Right");
        field.put_Format(shown);
        press(Form_.window(), "Tab Shift+Tab Shift+Tab");
        expectSame();
    }

private:
    const RegionalSettings& Region_;
    TestForm Form_;
    PlacedControl& Placed_;
};

TEST(DateAndTimeFields, LeaveAnUntouchedValueAlone) {
    Random random(12);
    for (const std::u16string_view name : regionNames()) {
        Passing dates(*findRegion(name), KelDateModel), times(*findRegion(name), KelTimeModel);
        for (int repeat = 0; repeat < 6; ++repeat) {
            const auto serial = static_cast<double>(static_cast<std::int64_t>(random() % 3615900) - 657434);
            dates.check({random() % 2 == 0 ? serial : static_cast<double>(random() % 80000)}, random);
            times.check({static_cast<double>(random() % SecondsPerDay) / SecondsPerDay}, random);
        }
    }
}

}  // namespace
}  // namespace kel::test
