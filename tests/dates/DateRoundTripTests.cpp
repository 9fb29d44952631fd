#include <gtest/gtest.h>

#include <cmath>

#include "values/Calendar.h"
#include "values/DateReader.h"
#include "values/FormatExpression.h"
#include "values/Text.h"
#include "values/TimeReader.h"

namespace kel {

namespace {

const Date FirstDay = *dateOf({FirstYear, 1, 1}), LastDay = *dateOf({LastYear, 12, 31});
const Date FirstOfWindow = *dateOf({1950, 1, 1}), LastOfWindow = *dateOf({2049, 12, 31});

/// What a format shows of a day is that day when it is read again.
class DateRoundTrip {
public:
    DateRoundTrip(std::u16string_view format, const RegionalSettings& region)
        : Format_(format), Layout_(format), Expression_(format), Region_(region) {}

    void check(Date first, Date last) {
        // Every day of a year, and a day now and then in all years.
        checkEach(dateOf({2012, 1, 1})->Serial, dateOf({2012, 12, 31})->Serial, 1);
        checkEach(first.Serial, last.Serial, std::floor((last.Serial - first.Serial) / 101));
        checkEach(last.Serial, last.Serial, 1);
    }

private:
    void checkEach(double first, double last, double step) {
        for (double serial = first; serial <= last; serial += step) {
            const Date date{serial};
            const std::u16string text = Expression_.format(date, Region_);
            const auto read = readDate(text, Layout_, Today, TwoDigitYears::AnyTime, Region_);
            if (read == date) continue;
            ADD_FAILURE() << toUtf8(text) << " by " << toUtf8(Format_) << " in " << toUtf8(Region_.Name) << ": "
                          << serial;
            return;
        }
    }

    static constexpr Date Today{41348};
    std::u16string_view Format_;
    DateFormat Layout_;
    FormatExpression Expression_;
    const RegionalSettings& Region_;
};

TEST(RoundTrip, DatesReadBackAsTheyAreShown) {
    const std::u16string_view formats[] = {
        u"dd/mm/yyyy",  u"d/m/yyyy",     u"m/d/yyyy",       u"mm/dd/yyyy",       u"yyyy/mm/dd",      u"yyyy-mm-dd",
        u"yyyy/dd/mm",  u"dd.mm.yyyy",   u"d m yyyy",       u"ddmmyyyy",         u"mmddyyyy",        u"Long Date",
        u"dd mmm yyyy", u"d-mmm-yyyy",   u"mmm d, yyyy",    u"ddmmmyyyy",        u"yyyy mmm dd",     u"yyyy, d mmm",
        u"d mmmm yyyy", u"mmmm d, yyyy", u"ddd dd/mm/yyyy", u"dddd d mmmm yyyy", u"ddd d mmm yyyy",  u"ddddd",
        u"yyyymmdd",    u"yyyyddmm",     u"dd/mm/yyyy ddd", u"yyyy d mmm",       u"dd/mm/yyyy AMPM",
    };
    for (const std::u16string_view region : regionNames())
        for (const std::u16string_view format : formats)
            DateRoundTrip(format, *findRegion(region)).check(FirstDay, LastDay);
}

TEST(RoundTrip, TwoDigitYearsReadBackInTheirHundredYears) {
    for (const std::u16string_view region : regionNames())
        for (const std::u16string_view format :
             {u"dd/mm/yy", u"m/d/yy", u"yy-mm-dd", u"ddmmyy", u"yymmdd", u"Medium Date", u"d mmmm yy", u"mmm d yy"})
            DateRoundTrip(format, *findRegion(region)).check(FirstOfWindow, LastOfWindow);
}

TEST(RoundTrip, TimesReadBackAsTheyAreShown) {
    const std::u16string_view formats[] = {
        u"hh:nn:ss", u"h:nn:ss",  u"hh.nn.ss",    u"hhnnss",      u"hh:nn:ss am/pm", u"h:n:s A/P",    u"AMPM hh:nn:ss",
        u"ttttt",    u"",         u"Long Time",   u"h:nn:ssAMPM", u"hh nn ss",       u"hh:nn AM/PM",  u"hh:nn",
        u"hhnn",     u"h.nn a/p", u"Medium Time", u"Short Time",  u"d/m h:n:s AMPM", u"ddddd hhnnss", u"d mmm h:nn \\z",
        u"hh\"h\"nn"};
    for (const std::u16string_view name : regionNames()) {
        const RegionalSettings& region = *findRegion(name);
        for (const std::u16string_view format : formats) {
            const FormatExpression expression(format);
            const bool hasSeconds =
                expression.format(Date{59.0 / SecondsPerDay}, region) != expression.format(Date{}, region);
            for (std::int32_t second = 0; second < SecondsPerDay; second += 353) {
                const std::int32_t shown = hasSeconds ? second : second / 60 * 60;
                const Date time = *timeOf({second / 3600, second / 60 % 60, second % 60});
                const std::u16string text = expression.format(time, region);
                ASSERT_EQ(readTime(text, region), timeOf({shown / 3600, shown / 60 % 60, shown % 60}))
                    << toUtf8(text) << " by " << toUtf8(format) << " in " << toUtf8(name);
            }
        }
    }
}

}  // namespace
}  // namespace kel
