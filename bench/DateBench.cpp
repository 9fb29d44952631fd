#include <benchmark/benchmark.h>

#include <ctime>
#include <QDate>
#include <QString>

#include "values/DateReader.h"
#include "values/FormatExpression.h"

namespace {

constexpr kel::Date Friday{41348};
constexpr char16_t FridayText[] = u"15/03/2013";
constexpr std::u16string_view Format = u"dd/mm/yyyy";

void DisplayDate(benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    const kel::FormatExpression expression(Format);
    kel::Date date = Friday;
    for (auto _ : state) {
        benchmark::DoNotOptimize(date);
        std::u16string text = expression.format(date, region);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayDate);

void DisplayDateByQDate(benchmark::State& state) {
    const QString format = QStringLiteral("dd/MM/yyyy");
    QDate date(2013, 3, 15);
    for (auto _ : state) {
        benchmark::DoNotOptimize(date);
        QString text = date.toString(format);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayDateByQDate);

void DisplayDateByStrftime(benchmark::State& state) {
    std::tm date{};
    date.tm_mday = 15;
    date.tm_mon = 2;
    date.tm_year = 113;
    for (auto _ : state) {
        benchmark::DoNotOptimize(date);
        char text[32];
        std::size_t length = std::strftime(text, sizeof text, "%d/%m/%Y", &date);
        benchmark::DoNotOptimize(length);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayDateByStrftime);

void readOften(std::u16string_view text, benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    const kel::DateFormat format(Format);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        auto date = kel::readDate(text, format, Friday, kel::TwoDigitYears::AnyTime, region);
        benchmark::DoNotOptimize(date);
    }
}

void ReadDate(benchmark::State& state) { readOften(FridayText, state); }
BENCHMARK(ReadDate);

/// A text that has not the layout of the format.
void ReadWrittenDate(benchmark::State& state) { readOften(u"15 March 2013", state); }
BENCHMARK(ReadWrittenDate);

void ReadDateByQDate(benchmark::State& state) {
    const QString text = QString::fromUtf16(FridayText);
    const QString format = QStringLiteral("dd/MM/yyyy");
    QDate date;
    for (auto _ : state) {
        date = QDate::fromString(text, format);
        benchmark::DoNotOptimize(date);
    }
    if (!date.isValid()) state.SkipWithError("QDate did not read the date");
}
BENCHMARK(ReadDateByQDate);

void ReadDateByStrptime(benchmark::State& state) {
    const char* text = "15/03/2013";
    const char* end = nullptr;
    for (auto _ : state) {
        std::tm date{};
        benchmark::DoNotOptimize(text);
        end = strptime(text, "%d/%m/%Y", &date);
        benchmark::DoNotOptimize(date);
    }
    if (end == nullptr) state.SkipWithError("strptime did not read the date");
}
BENCHMARK(ReadDateByStrptime);

}  // namespace
