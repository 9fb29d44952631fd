#include <benchmark/benchmark.h>

#include <QApplication>
#include <QProgressBar>

#include "controls/progress/KelProgressBar.h"
#include "forms/Home.h"
#include "KelProgressBarWidget.h"
#include "platform/headless/HeadlessHome.h"

namespace {

/// A job of so many steps that the bar does not move by as much as a twip.
void stepLongJob(benchmark::State& state, bool showTime) {
    const auto home = kel::headless::makeHome({});
    const auto window = home->makeWindow({}, home->system());
    kel::SilentObserver observer;
    kel::PlacedControl& placed = window->place(kel::KelProgressBarModel, {.name = u"job"}, observer);
    placed.setBounds({0, 0, 4500, 300});
    auto& job = static_cast<kel::KelProgressBar&>(placed.control());
    job.put_Max(2'000'000'000);
    job.put_ShowTime(showTime);
    job.Start();
    job.put_Value(1);
    std::int32_t step = 0;
    for (auto _ : state) {
        job.put_Value(++step);
        if (step == 200'000) step = 0;
    }
    if (job.widgets().picture->picture().barWidth != 0) state.SkipWithError("the bar moved");
}

void StepOfJob(benchmark::State& state) { stepLongJob(state, true); }
BENCHMARK(StepOfJob);

void StepOfJobWithoutTime(benchmark::State& state) { stepLongJob(state, false); }
BENCHMARK(StepOfJobWithoutTime);

constexpr int Moves = 1500;

/// A bar in a window, whose value goes up by one step of `Moves` each time and is painted at once.
template <class Bar, class Step>
void moveBar(benchmark::State& state, Bar& bar, QWidget& window, Step step) {
    bar.setGeometry(0, 0, 300, 20);
    window.resize(300, 40);
    window.show();
    QCoreApplication::processEvents();
    int value = 0;
    for (auto _ : state) {
        value = value % Moves + 1;
        step(value);
    }
}

void MoveProgressBarWidget(benchmark::State& state) {
    QWidget window;
    KelProgressBarWidget bar(&window);
    bar.setMax(Moves);
    bar.start();
    moveBar(state, bar, window, [&bar](int value) { bar.setValue(value); });
}
BENCHMARK(MoveProgressBarWidget);

void MoveProgressBar(benchmark::State& state) {
    QWidget window;
    QProgressBar bar(&window);
    bar.setRange(1, Moves);
    // Of itself it repaints only what differs in pixels, and a hidden percentage not at all.
    moveBar(state, bar, window, [&bar](int value) {
        bar.setValue(value);
        bar.repaint();
    });
}
BENCHMARK(MoveProgressBar);

}  // namespace
