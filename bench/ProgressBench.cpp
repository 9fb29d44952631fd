#include <benchmark/benchmark.h>

#include "controls/progress/KelProgressBar.h"
#include "forms/Home.h"
#include "platform/headless/HeadlessHome.h"

namespace {

class NullObserver final : public kel::ControlObserver {
    void controlEvent(kel::PlacedControl&, const kel::EventRow&, std::span<kel::Variant>) override {}
    void propertyReported(kel::PlacedControl&, std::u16string_view) override {}
};

/// A job of so many steps that the bar does not move by as much as a twip.
void stepLongJob(benchmark::State& state, bool showTime) {
    const auto home = kel::headless::makeHome({});
    const auto window = home->makeWindow({}, home->system());
    NullObserver observer;
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

}  // namespace
