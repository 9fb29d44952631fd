#include "values/DateReader.h"

#include <gtest/gtest.h>

#include <limits>

#include "values/Calendar.h"
#include "values/Text.h"

namespace kel {
namespace {

constexpr std::u16string_view DayFirst = u"dd/mm/yyyy";

/// "2013-03-15", "none".
std::string read(std::u16string_view text, std::u16string_view format, std::u16string_view region,
                 const DateParts& today = {2013, 3, 10}, TwoDigitYears years = TwoDigitYears::AnyTime) {
    const auto date = readDate(text, DateFormat(format), withTime(*dateOf(today), 0.75), years, *findRegion(region));
    if (!date) return "none";
    const DateParts parts = datePartsOf(*date);
    EXPECT_EQ(*date, dayOf(*date));
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", parts.year, parts.month, parts.day);
    return buffer;
}

struct ReaderCase {
    std::u16string_view text;
    std::string_view date;
    std::u16string_view format = DayFirst;
    std::u16string_view region = u"en-GB";
};

void checkRead(const std::vector<ReaderCase>& cases) {
    for (const ReaderCase& test : cases)
        EXPECT_EQ(read(test.text, test.format, test.region), test.date)
            << toUtf8(test.text) << " by " << toUtf8(test.format) << " in " << toUtf8(test.region);
}

TEST(DateReader, ReadsNumbersInTheOrderOfTheFormat) {
    checkRead({
        {u"15/03/2013", "2013-03-15"},
        {u" 15. 3. 2013 ", "2013-03-15"},
        {u"(15)\u200F/3 / 2013!", "2013-03-15"},
        {u"13/3/15", "2013-03-15", u"yyyy-mm-dd"},
        {u"3.15.2013", "2013-03-15", u"hh:nn", u"en-US"},
        {u"13 3 15", "2013-03-15", u"c", u"sv-SE"},
        {u"١٥/3/٢٠١٣", "2013-03-15", DayFirst, u"ar-EG"},
        {u"2013/4/5", "2013-04-05"},
        {u"15/03/2013", "2013-03-15", u"yyyy/mm/dd"},
        {u"15/03/2013", "2013-03-15", u"yyyy/mm"},
        {u"3/15/2013", "2013-03-15", u"yyyy/mm/dd", u"en-US"},
        {u"15/03/2013", "none", u"yyyy/mm/dd", u"en-US"},
        {u"15/03/013", "none", u"yyyy/mm/dd"},
        {u"1/1/49", "2049-01-01"},
    });
}

TEST(DateReader, FillsInWhatIsNotWritten) {
    checkRead({
        {u"15", "2013-03-15"},
        {u"5", "2013-05-10", u"mm/yyyy"},
        {u"15/4", "2013-04-15"},
        {u"4/12", "2012-04-01", u"mm/yy"},
        {u"4/12", "2012-04-01", u"mm/yyyy"},
        {u"2012", "2012-03-10", u"yyyy"},
        {u"april", "2013-04-10"},
        {u"apr 2012", "2012-04-01"},
        {u"apr 15", "2015-04-01", u"mmm yy"},
        {u"now", "2013-03-10"},
        {u" Today.", "2013-03-10"},
    });
    EXPECT_EQ(read(u"29", DayFirst, u"en-GB", {2013, 2, 1}), "none") << "that February has no such day";
    EXPECT_EQ(read(u"february", DayFirst, u"en-GB", {2013, 1, 31}), "none");
    EXPECT_EQ(read(u"feb 2013", DayFirst, u"en-GB", {2013, 1, 31}), "2013-02-01");
}

TEST(DateReader, SplitsDigitsByTheirNumber) {
    checkRead({
        {u"15032013", "2013-03-15"},
        {u"15032013", "2013-03-15", u"yyyy-mm-dd"},
        {u"04052013", "2013-04-05", u"mm/dd/yyyy"},
        {u"20121205", "2012-12-05", u"yyyy-mm-dd"},
        {u"15032013", "2013-03-15", u"mm/yyyy", u"ja-JP"},
        {u"31122013", "2013-12-31", u"mmddyyyy"},
        {u"٠٤٠٥٢٠١٣", "2013-04-05", u"mm/dd/yyyy", u"ar-EG"},
        {u"20131231", "none"},
        {u"1503987", "0987-03-15"},
        {u"1532013", "none"},
        {u"150313", "2013-03-15"},
        {u"201203", "2012-03-01", u"yyyy/mm", u"en-US"},
        {u"150313", "none", u"mm/yyyy"},
        {u"0312", "2012-03-01", u"mmyy"},
        {u"1504", "2013-04-15"},
        {u"2013", "none"},
        {u"0000000015", "none"},
    });
}

TEST(DateReader, KnowsNames) {
    checkRead({
        {u"15 March 2013", "2013-03-15"},
        {u"15mar2013", "2013-03-15"},
        {u"mar 15 13", "2013-03-15", u"mm/dd/yyyy"},
        {u"13 mar 15", "2013-03-15", u"yyyy-mm-dd"},
        {u"15 marchx 2013", "none"},
        {u"15 sept 2013", "2013-09-15"},
        {u"friday", "none"},
        {u"15 3 mar 2013", "none"},
        {u"15. März 2013", "2013-03-15", DayFirst, u"de-DE"},
        {u"15 mrz 2013", "none", DayFirst, u"de-DE"},
        {u"15 FEVRIER 2013", "2013-02-15", DayFirst, u"fr-FR"},
        {u"mar. 15 mars 2013", "2013-03-15", DayFirst, u"fr-FR"},
        {u"mar 15 mar 2013", "2013-03-15", DayFirst, u"it-IT"},
        {u"vie, 15 de marzo de 2013", "2013-03-15", DayFirst, u"es-ES"},
        {u"март 2013", "2013-03-01", DayFirst, u"ru-RU"},
        {u"15 ΜΑΡΤΙΟΥ 2013", "2013-03-15", DayFirst, u"el-GR"},
        {u"červen 2013", "2013-06-01", DayFirst, u"cs-CZ"},
        {u"15 KASIM 2013", "2013-11-15", DayFirst, u"tr-TR"},
        {u"15 mar 2013", "2013-11-15", DayFirst, u"fi-FI"},
        {u"יום שישי, 15 במרץ 2013", "2013-03-15", DayFirst, u"he-IL"},
        {u"2013年3月15日金曜日", "2013-03-15", DayFirst, u"ja-JP"},
        {u"2013年十一月15日", "2013-11-15", DayFirst, u"zh-CN"},
        {u"15/03/2013", "2013-03-15", u"\\l\\e dd/mm/yyyy (ww) hh:nn am/pm"},
        {u"le 15/03/2013 (11) 10:20 pm", "2013-03-15", u"\\l\\e dd/mm/yyyy (ww) hh:nn am/pm"},
    });
}

TEST(DateReader, MakesNothingUp) {
    checkRead({
        {u"", "none"},
        {u"31/02/2013", "none"},
        {u"03/15/2013", "none"},
        {u"00/03/2013", "none"},
        {u"15/03/0099", "none"},
        {u"015/03/2013", "none"},
        {u"1/2/3/4", "none"},
        {u"15/03/2013 x", "none"},
        {u"১৫/03/2013", "none"},
        {u"10:15", "none", u"hh:nn"},
        {u"nowadays", "none"},
    });
}

TEST(DateReader, PutsDatesOfBirthIntoThePast) {
    const struct {
        std::u16string_view text;
        std::string_view date;
    } cases[] = {
        {u"15/03/13", "1913-03-15"}, {u"14/03/13", "2013-03-14"},  {u"010149", "1949-01-01"},
        {u"1/1/50", "1950-01-01"},   {u"15 mar 20", "1920-03-15"}, {u"15/03/2020", "2020-03-15"},
        {u"15/12", "2013-12-15"},    {u"29/02/16", "1916-02-29"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(read(test.text, DayFirst, u"en-GB", {2013, 3, 14}, TwoDigitYears::NotAfterDefault), test.date)
            << toUtf8(test.text);
    EXPECT_EQ(read(u"29/02/00", DayFirst, u"en-GB", {1999, 1, 1}, TwoDigitYears::NotAfterDefault), "none");
    EXPECT_EQ(read(u"1/1/13", DayFirst, u"en-GB", {150, 1, 1}, TwoDigitYears::NotAfterDefault), "0113-01-01");
    EXPECT_EQ(read(u"1/1/99", DayFirst, u"en-GB", {150, 1, 1}, TwoDigitYears::NotAfterDefault), "none");
}

TEST(DateReader, PutsTwoDigitYearsWhereTheRegionWants) {
    RegionalSettings region = defaultRegion();
    for (const auto& [last, year] : {std::pair{2029, 1930}, {2030, 2030}, {99, 0}, {-5, 0}, {32767, 32730}}) {
        region.TwoDigitYearMax = static_cast<std::int16_t>(last);
        const auto date = readDate(u"1/1/30", DateFormat(DayFirst), {}, TwoDigitYears::AnyTime, region);
        EXPECT_EQ(date, dateOf({year, 1, 1})) << last;
    }
}

TEST(DateReader, IsNotUpsetByTheEndlessAndTheStrange) {
    constexpr std::size_t Megabyte = 1 << 20;
    std::u16string words;
    while (words.size() < Megabyte) words += u"de mar ";
    std::u16string numbers;
    while (numbers.size() < Megabyte) numbers += u"1/";
    const std::u16string digits(Megabyte, u'1');
    const std::u16string letters(Megabyte, u'm');
    const std::u16string halves(Megabyte, u'\xD83A');
    const std::u16string blanks(Megabyte, u' ');
    for (const std::u16string& text : {words, numbers, digits, letters, halves, blanks})
        EXPECT_EQ(read(text, DayFirst, u"es-ES"), "none");
    for (const std::u16string& format : {words, digits, letters, halves, blanks})
        EXPECT_EQ(read(words, format, u"es-ES"), "none");
    EXPECT_EQ(read(blanks + u"15/3/2013" + blanks, DayFirst, u"es-ES"), "2013-03-15");
}

}  // namespace
}  // namespace kel
