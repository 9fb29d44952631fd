#include <benchmark/benchmark.h>
#include <unicode/decimfmt.h>
#include <unicode/numfmt.h>

#include <memory>
#include <QDoubleSpinBox>
#include <QLocale>

#include "bench/Widgets.h"
#include "controls/number/NumberText.h"
#include "KelNumberWidget.h"
#include "runtime/Numbers.h"
#include "values/FormatExpression.h"

namespace {

using namespace kel::bench;

constexpr double Amount = 1234567.891;
constexpr int Decimals = 2;
constexpr char16_t AmountText[] = u"1,234,567.89";

void DisplayNumber(benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    double amount = Amount;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        std::u16string text = kel::displayText(amount, Decimals, true, region);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayNumber);

/// A number whose shortest text has all its 17 digits.
void DisplayLongNumber(benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    double amount = Amount / 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        std::u16string text = kel::displayText(amount, Decimals, true, region);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayLongNumber);

void FormatByExpression(benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    const kel::FormatExpression expression(u"#,##0.00;(#,##0.00)");
    double amount = Amount;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        std::u16string text = expression.format(amount, region);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(FormatByExpression);

void DisplayNumberByQLocale(benchmark::State& state) {
    const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    double amount = Amount;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        QString text = locale.toString(amount, 'f', Decimals);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayNumberByQLocale);

void DisplayLongNumberByQLocale(benchmark::State& state) {
    const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    double amount = Amount / 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        QString text = locale.toString(amount, 'f', Decimals);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayLongNumberByQLocale);

std::unique_ptr<icu::NumberFormat> icuFormat() {
    UErrorCode error = U_ZERO_ERROR;
    std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(icu::Locale("en", "GB"), error));
    if (U_FAILURE(error)) return nullptr;
    format->setMinimumFractionDigits(Decimals);
    format->setMaximumFractionDigits(Decimals);
    return format;
}

void DisplayNumberByIcu(benchmark::State& state) {
    const auto format = icuFormat();
    if (!format) return state.SkipWithError("ICU has no such locale");
    double amount = Amount;
    for (auto _ : state) {
        benchmark::DoNotOptimize(amount);
        icu::UnicodeString text;
        format->format(amount, text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DisplayNumberByIcu);

void ReadNumber(benchmark::State& state) {
    const kel::RegionalSettings& region = kel::defaultRegion();
    kel::Variant text = std::u16string(AmountText);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        double amount = kel::numberFromValue(text, Decimals, region);
        benchmark::DoNotOptimize(amount);
    }
}
BENCHMARK(ReadNumber);

void ReadNumberByQLocale(benchmark::State& state) {
    const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    const QString text = QString::fromUtf16(AmountText);
    bool isNumber = false;
    for (auto _ : state) {
        double amount = locale.toDouble(text, &isNumber);
        benchmark::DoNotOptimize(amount);
    }
    if (!isNumber) state.SkipWithError("QLocale did not read the number");
}
BENCHMARK(ReadNumberByQLocale);

void ReadNumberByIcu(benchmark::State& state) {
    const auto format = icuFormat();
    if (!format) return state.SkipWithError("ICU has no such locale");
    const icu::UnicodeString text(AmountText);
    for (auto _ : state) {
        icu::Formattable amount;
        UErrorCode error = U_ZERO_ERROR;
        format->parse(text, amount, error);
        benchmark::DoNotOptimize(amount);
    }
}
BENCHMARK(ReadNumberByIcu);

BENCHMARK(makeControl<KelNumberWidget>)->Name("NumberWidget");
BENCHMARK(makeLabelAndEdit<QDoubleSpinBox>)->Name("LabelAndDoubleSpinBox");

const QString Digits = QStringLiteral("123456789012");

void KeyIntoNumberWidget(benchmark::State& state) {
    const FocusedEdit<KelNumberWidget> shown;
    pressKeys(state, *shown.edit, Strokes(Digits), [field = shown.edit] {
        field->setValue(0.0);
        selectAll();
    });
}
BENCHMARK(KeyIntoNumberWidget);

void KeyIntoDoubleSpinBox(benchmark::State& state) {
    const FocusedEdit<QDoubleSpinBox> shown;
    QDoubleSpinBox& box = *shown.edit;
    box.setRange(0, 1e15);
    pressKeys(state, box, Strokes(Digits), [&box] {
        box.setValue(0);
        selectAll();
    });
}
BENCHMARK(KeyIntoDoubleSpinBox);

}  // namespace
