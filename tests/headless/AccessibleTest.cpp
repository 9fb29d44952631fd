// What those are told who cannot see, below every home.

#include <gtest/gtest.h>

#include "controls/datetime/KelDate.h"
#include "controls/datetime/KelTime.h"
#include "controls/number/KelNumber.h"
#include "host/Accessible.h"
#include "host/editing/ReadingUnit.h"
#include "tests/check/OneControl.h"
#include "values/Text.h"

namespace kel::test {
namespace {

TEST(Accessible, WhatItErasesIsCommitted) {
    OneControl form(KelNumberModel);
    auto& number = form.as<KelNumber>();
    form.placed().setBounds({0, 0, 4000, 300});
    number.put_Value(5.0);
    EXPECT_TRUE(enterText(number, u""));
    EXPECT_EQ(number.get_Value(), Variant(0.0));
    OneControl other(KelDateModel);
    auto& date = other.as<KelDate>();
    date.field().put_Value(Date{41348});
    EXPECT_TRUE(enterText(date, u""));
    EXPECT_EQ(date.field().get_Value(), Variant(Null{}));
}

TEST(Accessible, ANameIsTheCaptionOrElseTheToolTip) {
    OneControl form(KelNumberModel);
    auto& field = form.as<KelNumber>().entry();
    field.put_Caption(u"Q&ty");
    field.TooltipSet(u"How many");
    EXPECT_EQ(describe(form.placed().control()).name, u"Qty");
    EXPECT_EQ(describe(form.placed().control()).help, u"How many");
    field.put_Caption(u"");
    EXPECT_EQ(describe(form.placed().control()).name, u"How many");
    EXPECT_EQ(describe(form.placed().control()).help, u"");
}

TEST(Accessible, AMomentIsANumberToThoseWhoWantOne) {
    struct Case {
        const ClassModel& model;
        double value, least, most, step, other, beyond;
    };
    for (const Case& row : {Case{KelDateModel, 41348, 41300, 41400, 1, 41350, 41401},
                            Case{KelTimeModel, 0.5, 0.25, 0.75, 1.0 / 1440, 0.375, 0.76}}) {
        OneControl form(row.model);
        auto& field = DateTimeField::of(form.placed().control());
        form.placed().setBounds({0, 0, 4000, 300});
        field.entry().put_UpDown(true);
        field.put_MinValue(Date{row.least});
        field.put_MaxValue(Date{row.most});
        field.put_Value(Date{row.value});
        Control& control = form.placed().control();
        EXPECT_EQ(describe(control).moment, (NumberRange{row.value, row.least, row.most, row.step}));
        EXPECT_FALSE(describe(control).range.has_value());
        EXPECT_FALSE(control.enterNumber(row.beyond));
        EXPECT_TRUE(control.enterNumber(row.other));
        EXPECT_EQ(field.get_Value(), Variant(Date{row.other}));
        field.entry().put_Locked(true);
        EXPECT_FALSE(control.enterNumber(row.value));
    }
}

TEST(Reading, GoesUnitByUnit) {
    struct Case {
        const char* what;
        ReadingUnit unit;
        std::u16string_view text;
        ReadRange from;
        int count;
        int moved;
        ReadRange to;
        bool masked = false;
    };
    const Case rows[] = {
        {"an empty text has no characters", ReadingUnit::Character, u"", {0, 0}, 1, 0, {0, 0}},
        {"a line break is one", ReadingUnit::Character, u"a\r\nb", {0, 1}, 1, 1, {1, 3}},
        {"the last stays", ReadingUnit::Character, u"ab", {1, 2}, 5, 0, {1, 2}},
        {"as far as there are", ReadingUnit::Character, u"abc", {0, 1}, 5, 2, {2, 3}},
        {"back to the first", ReadingUnit::Word, u"one two", {4, 7}, -3, -1, {0, 4}},
        {"a hidden text is one word", ReadingUnit::Word, u"** **", {0, 5}, 1, 0, {0, 5}, true},
        {"the empty line behind a break counts", ReadingUnit::Line, u"a\r\n", {0, 3}, 5, 1, {3, 3}},
        {"a single line stays", ReadingUnit::Line, u"abc", {0, 3}, 1, 0, {0, 3}},
        {"what is in the middle begins anew", ReadingUnit::Word, u"one two", {1, 2}, 0, 0, {0, 4}},
        {"a caret stops at the end", ReadingUnit::Word, u"one two", {0, 0}, 9, 2, {7, 7}},
        {"and at the beginning", ReadingUnit::Paragraph, u"a\r\nb", {4, 4}, -9, -2, {0, 0}},
    };
    for (const Case& row : rows) {
        EditBuffer buffer(true);
        buffer.put(row.text);
        ReadRange range = row.from;
        EXPECT_EQ(moveByUnits({buffer.text(), buffer, true, row.masked}, row.unit, row.count, range), row.moved)
            << row.what;
        EXPECT_EQ(range, row.to) << row.what;
    }
}

}  // namespace
}  // namespace kel::test
