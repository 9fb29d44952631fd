#include <benchmark/benchmark.h>

#include <QComboBox>
#include <string>
#include <vector>

#include "bench/Names.h"
#include "controls/combo/ListText.h"

namespace {

using kel::bench::names;
using kel::bench::qtNames;

constexpr int ShortCount = 100;

std::u16string listText() {
    std::u16string list;
    for (const std::u16string& name : names(kel::MostListItems)) list.append(name).append(u",");
    list.pop_back();
    return list;
}

void LoadList(benchmark::State& state) {
    const std::u16string list = listText();
    for (auto _ : state) {
        kel::ListItems items = kel::listItemsOf(list);
        benchmark::DoNotOptimize(items);
    }
}
BENCHMARK(LoadList);

/// What any program does with such a text.
void SplitList(benchmark::State& state) {
    const std::u16string list = listText();
    for (auto _ : state) {
        std::vector<std::u16string> items;
        for (std::size_t start = 0, end = 0; end != std::u16string::npos; start = end + 1) {
            end = list.find(u',', start);
            items.push_back(list.substr(start, end - start));
        }
        benchmark::DoNotOptimize(items);
    }
}
BENCHMARK(SplitList);

void LoadListIntoComboBox(benchmark::State& state) {
    const QStringList list = qtNames(kel::MostListItems);
    for (auto _ : state) {
        QComboBox box;
        box.addItems(list);
        benchmark::DoNotOptimize(box);
    }
}
BENCHMARK(LoadListIntoComboBox);

void FirstSearch(benchmark::State& state) {
    const auto texts = names(kel::MostListItems);
    for (auto _ : state) {
        state.PauseTiming();
        const kel::ListItems fresh = kel::listItemsOf(texts);
        state.ResumeTiming();
        benchmark::DoNotOptimize(fresh.findPrefix(u"s"));
    }
}
BENCHMARK(FirstSearch);

/// Beginnings of items, each followed by a character that no item has there: a search cannot end early.
std::vector<std::u16string> refusedBeginnings(int count) {
    constexpr std::size_t Searched = 50, MostLetters = 8;
    const auto items = names(count);
    std::vector<std::u16string> beginnings;
    for (std::size_t i = 0; i < Searched; ++i)
        beginnings.push_back(items[i * items.size() / Searched].substr(0, 1 + i % MostLetters) + u'~');
    return beginnings;
}

void searchBeginnings(benchmark::State& state, int count) {
    const kel::ListItems items = kel::listItemsOf(names(count));
    const auto beginnings = refusedBeginnings(count);
    std::size_t next = 0;
    for (auto _ : state) benchmark::DoNotOptimize(items.findPrefix(beginnings[next++ % beginnings.size()]));
}

void FindBeginning(benchmark::State& state) { searchBeginnings(state, kel::MostListItems); }
BENCHMARK(FindBeginning);

void FindBeginningInShortList(benchmark::State& state) { searchBeginnings(state, ShortCount); }
BENCHMARK(FindBeginningInShortList);

void FindBeginningByComboBox(benchmark::State& state) {
    QComboBox box;
    box.addItems(qtNames(kel::MostListItems));
    QStringList beginnings;
    for (const std::u16string& text : refusedBeginnings(kel::MostListItems))
        beginnings += QString::fromStdU16String(text);
    qsizetype next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(box.findText(beginnings[next++ % beginnings.size()], Qt::MatchStartsWith));
}
BENCHMARK(FindBeginningByComboBox);

void FindItem(benchmark::State& state) {
    const auto texts = names(kel::MostListItems);
    const kel::ListItems items = kel::listItemsOf(texts);
    items.findExact(u"s");
    std::size_t item = 0;
    for (auto _ : state) {
        item = (item + 4099) % texts.size();
        benchmark::DoNotOptimize(items.findExact(texts[item]));
    }
}
BENCHMARK(FindItem);

void FindItemByComboBox(benchmark::State& state) {
    const QStringList texts = qtNames(kel::MostListItems);
    QComboBox box;
    box.addItems(texts);
    qsizetype item = 0;
    for (auto _ : state) {
        item = (item + 4099) % texts.size();
        benchmark::DoNotOptimize(box.findText(texts[item], Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
}
BENCHMARK(FindItemByComboBox);

}  // namespace
