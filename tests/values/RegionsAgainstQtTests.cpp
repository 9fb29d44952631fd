#include <gtest/gtest.h>
#include <algorithm>
#include <QLocale>
#include <QString>

#include "platform/qt/home/QtRegion.h"
#include "values/Text.h"

using namespace kel;

TEST(RegionTable, HoldsWhatQtKnows) {
    for (const std::u16string_view name : regionNames()) {
        SCOPED_TRACE(toUtf8(name));
        const RegionalSettings fromQt = qt::regionFromLocale(QLocale(QString::fromUtf16(name.data(), 5)));
        EXPECT_TRUE(fromQt == *findRegion(name)) << "generate values/RegionData.inc anew";
    }
}

TEST(RegionFromLocale, EveryLocaleIsFitForEntryFields) {
    const auto letters = [](std::u16string text) {
        text.erase(std::remove_if(text.begin(), text.end(), [](char16_t unit) { return unit < u'a' || unit > u'z'; }),
                   text.end());
        text.erase(std::unique(text.begin(), text.end()), text.end());
        return text;
    };
    const std::u16string_view orders[] = {u"dmy", u"mdy", u"ymd", u"ydm"};
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        SCOPED_TRACE(locale.name().toStdString());
        const RegionalSettings region = qt::regionFromLocale(locale);
        EXPECT_NE(std::find(std::begin(orders), std::end(orders), letters(region.ShortDateFormat)), std::end(orders))
            << toUtf8(region.ShortDateFormat);
        EXPECT_NE(region.ShortDateFormat.find(u"yyyy"), std::u16string::npos) << toUtf8(region.ShortDateFormat);
        EXPECT_EQ(letters(region.TimeFormat), u"hns") << toUtf8(region.TimeFormat);
        EXPECT_FALSE(region.DateSeparator.empty());
        EXPECT_FALSE(region.TimeSeparator.empty());
        EXPECT_FALSE(region.DecimalSeparator.empty());
        EXPECT_TRUE(region.FirstDayOfWeek >= 1 && region.FirstDayOfWeek <= 7);
        EXPECT_EQ(std::count(region.LongDateFormat.begin(), region.LongDateFormat.end(), u'"') % 2, 0)
            << toUtf8(region.LongDateFormat);
    }
}
