#include "bench/Table.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>

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

std::string inUnits(double nanoseconds) {
    char text[32];
    if (nanoseconds < 1e4)
        std::snprintf(text, sizeof text, "%.1f ns", nanoseconds);
    else if (nanoseconds < 1e7)
        std::snprintf(text, sizeof text, "%.1f us", nanoseconds / 1e3);
    else
        std::snprintf(text, sizeof text, "%.2f ms", nanoseconds / 1e6);
    return text;
}

void printLine(const Line& line, const std::map<std::string, double>& medians) {
    const auto ours = medians.find(line.ours);
    if (ours == medians.end()) return;
    double peers = 0;
    for (const std::string& name : line.peers) {
        const auto peer = medians.find(name);
        if (peer == medians.end()) return;
        peers += peer->second;
    }
    const double measured = line.peers.empty() ? ours->second : ours->second / peers;
    char ratio[32] = "-", most[32];
    if (!line.peers.empty()) std::snprintf(ratio, sizeof ratio, "%.2f", measured);
    std::snprintf(most, sizeof most, "%.2f", line.most);
    std::printf("%-58s %12s %12s %8s %10s %s\n", line.what.c_str(), inUnits(ours->second).c_str(),
                line.peers.empty() ? "-" : inUnits(peers).c_str(), ratio,
                line.peers.empty() ? inUnits(line.most).c_str() : most, measured <= line.most ? "" : "OVER");
}

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
    std::printf("%-58s %12s %12s %8s %10s\n", "what", "ours", "peer", "ratio", "at most");
    for (const Line& line : lines) printLine(line, keeper.Medians);
    for (const auto& [name, fault] : keeper.Faults) std::fprintf(stderr, "%s: %s\n", name.c_str(), fault.c_str());
    return keeper.Faults.empty() ? 0 : 1;
}

}  // namespace kel::bench
