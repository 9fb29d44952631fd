#include <benchmark/benchmark.h>

#include <QDateEdit>

#include "bench/Widgets.h"
#include "KelDateWidget.h"

namespace {

using namespace kel::bench;

BENCHMARK(makeControl<KelDateWidget>)->Name("DateWidget");
BENCHMARK(makeLabelAndEdit<QDateEdit>)->Name("LabelAndDateEdit");

const QDate Day(2013, 3, 15);

void pressKeyInDateWidget(benchmark::State& state, const KeyPress& key) {
    const FocusedEdit<KelDateWidget> shown;
    pressKey(
        state, *shown.edit, key, [field = shown.edit] { field->setValue(Day); },
        [field = shown.edit] { return shownText(*field); });
}

void pressKeyInDateEdit(benchmark::State& state, const KeyPress& key) {
    const FocusedEdit<QDateEdit> shown;
    QDateEdit& edit = *shown.edit;
    edit.setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    const auto restart = [&edit] {
        edit.setDate(Day);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
    };
    pressKey(state, edit, key, restart, [&edit] { return edit.text(); });
}

const KeyPress Digit = typed(Qt::Key_2, u'2');
const KeyPress Up{Qt::Key_Up};

void KeyIntoDateWidget(benchmark::State& state) { pressKeyInDateWidget(state, Digit); }
BENCHMARK(KeyIntoDateWidget);
void KeyIntoDateEdit(benchmark::State& state) { pressKeyInDateEdit(state, Digit); }
BENCHMARK(KeyIntoDateEdit);
void StepOfDateWidget(benchmark::State& state) { pressKeyInDateWidget(state, Up); }
BENCHMARK(StepOfDateWidget);
void StepOfDateEdit(benchmark::State& state) { pressKeyInDateEdit(state, Up); }
BENCHMARK(StepOfDateEdit);

}  // namespace
