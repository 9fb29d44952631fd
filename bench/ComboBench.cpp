#include <benchmark/benchmark.h>

#include <QComboBox>

#include "bench/Names.h"
#include "bench/Widgets.h"
#include "controls/combo/KelCombo.h"
#include "controls/combo/ListText.h"
#include "KelComboWidget.h"

namespace {

using namespace kel::bench;

kel::KelCombo& comboOf(const KelComboWidget& widget) { return static_cast<kel::KelCombo&>(widget.control()); }

/// As it stands, which asking the control for it would settle.
QString textOf(const KelComboWidget& widget) {
    return QString::fromStdU16String(comboOf(widget).widgets().comboBox->text());
}

class EditableComboBox final : public QComboBox {
public:
    explicit EditableComboBox(QWidget* parent) : QComboBox(parent) { setEditable(true); }
};

QString textOf(const QComboBox& box) { return box.currentText(); }

BENCHMARK(makeControl<KelComboWidget>)->Name("ComboWidget");
BENCHMARK(makeLabelAndEdit<EditableComboBox>)->Name("LabelAndComboBox");

/// Types names of the list one after the other, as a person does who knows them; `clear` empties `edit` between them,
/// outside the clock.
template <class Edit, class Clear>
void typeNames(benchmark::State& state, const Edit& edit, Clear clear) {
    constexpr std::size_t Stride = 4099;
    QWidget* const target = QApplication::focusWidget();
    if (target == nullptr || !(target == &edit || edit.isAncestorOf(target)))
        return state.SkipWithError("the field did not take the focus");
    const auto press = [target](char16_t character) {
        QKeyEvent key = typed(character);
        strike(*target, key);
    };
    // Both prepare themselves at the first key, which has a line of its own.
    press(u's');
    clear();
    const auto words = names(kel::MostListItems);
    std::size_t word = 0, letter = 0;
    for (auto _ : state) {
        press(words[word][letter]);
        if (++letter < words[word].size()) continue;
        state.PauseTiming();
        if (textOf(edit) != QString::fromStdU16String(words[word])) state.SkipWithError("the keys did not arrive");
        clear();
        letter = 0;
        word = (word + Stride) % words.size();
        state.ResumeTiming();
    }
}

void KeyIntoComboWidget(benchmark::State& state) {
    const FocusedEdit<KelComboWidget> shown;
    kel::KelCombo& combo = comboOf(*shown.edit);
    combo.ListFromArray(names(kel::MostListItems));
    typeNames(state, *shown.edit, [&combo] { combo.put_Text(u""); });
}
BENCHMARK(KeyIntoComboWidget);

/// With the completion that it has by itself.
void KeyIntoComboBox(benchmark::State& state) {
    const FocusedEdit<EditableComboBox> shown;
    shown.edit->addItems(qtNames(kel::MostListItems));
    typeNames(state, *shown.edit, [edit = shown.edit] { edit->clearEditText(); });
}
BENCHMARK(KeyIntoComboBox);

/// Nothing is kept of a list that was open, so that each opening is like the first.
void OpenList(benchmark::State& state) {
    const FocusedEdit<KelComboWidget> shown;
    comboOf(*shown.edit).ListFromArray(names(kel::MostListItems));
    kel::ComboBox& box = *comboOf(*shown.edit).widgets().comboBox;
    for (auto _ : state) {
        box.showDropDown(true);
        QCoreApplication::processEvents();
        state.PauseTiming();
        if (!box.isDropped()) state.SkipWithError("the list did not open");
        box.showDropDown(false);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenList)->Unit(benchmark::kNanosecond);

void PutList(benchmark::State& state) {
    std::u16string list;
    for (const std::u16string& name : names(kel::MostListItems)) list.append(name).append(u",");
    const FocusedEdit<KelComboWidget> shown;
    for (auto _ : state) comboOf(*shown.edit).put_List(list);
}
BENCHMARK(PutList);

void readList(benchmark::State& state, int count) {
    const KelComboWidget widget;
    comboOf(widget).ListFromArray(names(count));
    for (auto _ : state) benchmark::DoNotOptimize(comboOf(widget).get_List());
}

void ReadLongList(benchmark::State& state) { readList(state, kel::MostListItems); }
BENCHMARK(ReadLongList);
void ReadTenthOfList(benchmark::State& state) { readList(state, kel::MostListItems / 10); }
BENCHMARK(ReadTenthOfList);

}  // namespace
