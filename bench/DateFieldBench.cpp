#include <benchmark/benchmark.h>

#include <QDateEdit>

#include "bench/Widgets.h"
#include "KelDateWidget.h"

namespace {

using namespace kel::bench;

BENCHMARK(makeControl<KelDateWidget>)->Name("DateWidget");
BENCHMARK(makeLabelAndEdit<QDateEdit>)->Name("LabelAndDateEdit");

const QDate Day(2013, 3, 15);

void pressKeysInDateWidget(benchmark::State& state, Strokes keys) {
    const FocusedEdit<KelDateWidget> shown;
    pressKeys(state, *shown.edit, std::move(keys), [field = shown.edit] {
        field->setValue(Day);
        selectAll();
    });
}

void pressKeysInDateEdit(benchmark::State& state, Strokes keys) {
    const FocusedEdit<QDateEdit> shown;
    QDateEdit& edit = *shown.edit;
    edit.setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    const auto restart = [&edit] {
        edit.setDate(Day);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
    };
    pressKeys(state, edit, std::move(keys), restart);
}

const QString AnotherDay = QStringLiteral("16042014");

void KeyIntoDateWidget(benchmark::State& state) { pressKeysInDateWidget(state, Strokes(AnotherDay)); }
BENCHMARK(KeyIntoDateWidget);
void KeyIntoDateEdit(benchmark::State& state) { pressKeysInDateEdit(state, Strokes(AnotherDay)); }
BENCHMARK(KeyIntoDateEdit);
void StepOfDateWidget(benchmark::State& state) { pressKeysInDateWidget(state, Strokes(Qt::Key_Up, 12)); }
BENCHMARK(StepOfDateWidget);
void StepOfDateEdit(benchmark::State& state) { pressKeysInDateEdit(state, Strokes(Qt::Key_Up, 12)); }
BENCHMARK(StepOfDateEdit);

}  // namespace
