#include "values/TimeReader.h"

#include <gtest/gtest.h>

#include "values/Calendar.h"
#include "values/Text.h"

namespace kel {
namespace {

std::string read(std::u16string_view text, std::u16string_view region = u"en-GB") {
    const auto time = readTime(text, *findRegion(region));
    if (!time) return "none";
    const TimeParts parts = timePartsOf(*time);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%d:%02d:%02d", parts.hour, parts.minute, parts.second);
    return buffer;
}

TEST(TimeReader, ReadsWhatPeopleWrite) {
    const struct {
        std::u16string_view text;
        std::string_view time;
        std::u16string_view region = u"en-GB";
    } cases[] = {
        {u"9", "9:00:00"},
        {u"930", "9:30:00"},
        {u"093015", "9:30:15"},
        {u" 9 30  15\t", "9:30:15"},
        {u"23:59:59", "23:59:59"},
        {u"9:30pm", "21:30:00"},
        {u"9 p. m.", "21:00:00"},
        {u"p.m.9", "21:00:00"},
        {u"12am", "0:00:00"},
        {u"0 pm", "12:00:00"},
        {u"13 am", "13:00:00"},
        {u"21:30 pm", "21:30:00"},
        {u"9:30 du.", "21:30:00", u"hu-HU"},
        {u"9:30 p.\u00A0m.", "21:30:00", u"es-ES"},
        {u"오후 9:30", "21:30:00", u"ko-KR"},
        {u"9:30 אחה״צ", "21:30:00", u"he-IL"},
        {u"٩:٣٠ م", "21:30:00", u"ar-EG"},
        {u"9h30-15", "9:30:15"},
        {u"٩h٣٠", "9:30:00", u"ar-EG"},
    };
    for (const auto& test : cases) EXPECT_EQ(read(test.text, test.region), test.time) << toUtf8(test.text);
}

TEST(TimeReader, PassesOverWordsBehind) {
    const struct {
        std::u16string_view text;
        std::string_view time;
        std::u16string_view region = u"en-GB";
    } cases[] = {
        {u"09:30 Uhr", "9:30:00"}, {u"9 o'clock pm", "21:00:00"},
        {u"930x", "9:30:00"},      {u"9:30 아침", "9:30:00", u"ko-KR"},
        {u"9 pm a", "none"},       {u"9: Uhr", "none"},
        {u"15 March", "none"},
    };
    for (const auto& test : cases) EXPECT_EQ(read(test.text, test.region), test.time) << toUtf8(test.text);
}

TEST(TimeReader, PassesOverADateInFront) {
    const struct {
        std::u16string_view text;
        std::string_view time;
        std::u16string_view region = u"en-GB";
    } cases[] = {
        {u"15/03 09:30", "9:30:00"},
        {u"15/03 9: 20", "9:20:00"},
        {u"15.03.2013, 9:30 pm", "21:30:00"},
        {u"2013-03-15  09-30-15", "9:30:15"},
        {u"15 mar 13 9:30", "9:30:00"},
        {u"sábado, 30 de diciembre de 1899 9:30", "9:30:00", u"es-ES"},
        {u"2013. 3. 15. 오후 9:30", "21:30:00", u"ko-KR"},
        {u"\u200F١٥/٣ ٩:٣٠ م", "21:30:00", u"ar-EG"},
        {u"15/03", "none"},
        {u"31/13 09:30", "none"},
        {u"x 09:30", "none"},
        {u"15/03 24:00", "none"},
        {u"9:30 10:15", "none"},
        {u"100 9:30", "none"},
    };
    for (const auto& test : cases) EXPECT_EQ(read(test.text, test.region), test.time) << toUtf8(test.text);
}

TEST(TimeReader, SaysWhatIsNoTime) {
    for (const std::u16string_view text :
         {u"",        u" ",     u":",     u"24:00",   u"0:60",  u"0:0:60",    u"99",      u"24",
          u"2400",    u"0960",  u"12345", u"1234567", u"9:",    u"9.",        u"9:30:",   u"9-",
          u":30",     u"9::30", u"9:.30", u"9hh30",   u"9h-30", u"9:30:15:1", u"100:00",  u"9:300",
          u"009:30",  u"-9",    u"9,30",  u"9/30",    u"pm",    u"am 9 pm",   u"9 pm pm", u"x9",
          u"9 am 30", u"24 am", u"9٣0",   u"১",       u"9:.pm", u"9.p"})
        EXPECT_EQ(read(text), "none") << toUtf8(text);
}

TEST(TimeReader, IsNotUpsetByTheEndlessAndTheStrange) {
    constexpr std::size_t Megabyte = 1 << 20;
    for (const char16_t unit : u": 9.pa\x0661\xD83A\xDC00")
        for (const std::u16string_view region : {u"en-GB", u"ar-EG"})
            EXPECT_EQ(read(std::u16string(Megabyte, unit), region), "none");
    std::u16string dates;
    while (dates.size() < Megabyte) dates += u"de 1/3 ";
    EXPECT_EQ(read(dates, u"es-ES"), "none");
    const std::u16string blanks(Megabyte, u' ');
    EXPECT_EQ(read(blanks + u"9" + blanks + u"30" + blanks + u"p" + blanks), "21:30:00");
}

}  // namespace
}  // namespace kel
