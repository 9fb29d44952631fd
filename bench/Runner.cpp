#include <benchmark/benchmark.h>

#include <cstdio>

#include "bench/Table.h"

namespace kel::bench {

namespace {

/// "OpenForm/300" of a benchmark that was given 300.
std::string nameOf(const benchmark::BenchmarkReporter::Run& run) {
    const std::string& arguments = run.run_name.args;
    return run.run_name.function_name + (arguments.empty() ? "" : "/" + arguments);
}

double nanosecondsOf(const benchmark::BenchmarkReporter::Run& run) {
    return run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
}

/// Keeps the median of each benchmark's repetitions, in nanoseconds.
class MedianKeeper final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) Faults[nameOf(run)] = run.error_message;
            if (run.aggregate_name == "median") Medians[nameOf(run)] = nanosecondsOf(run);
        }
    }
    std::map<std::string, double> Medians;
    std::map<std::string, std::string> Faults;
};

}  // namespace

int runTable(int argc, char** argv, const std::vector<Line>& lines) {
    std::vector<char*> arguments(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=9";
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char brief[] = "--benchmark_min_time=0.05";
    for (char* fixed : {repetitions, interleaved, brief}) arguments.insert(arguments.begin() + 1, fixed);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    MedianKeeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    printTable(lines, keeper.Medians);
    for (const auto& [name, fault] : keeper.Faults) std::fprintf(stderr, "%s: %s\n", name.c_str(), fault.c_str());
    return keeper.Faults.empty() ? 0 : 1;
}

}  // namespace kel::bench
