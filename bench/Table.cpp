#include "bench/Table.h"

#include <cstdio>

namespace kel::bench {

namespace {

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

void printTable(const std::vector<Line>& lines, const std::map<std::string, double>& medians) {
    std::printf("%-58s %12s %12s %8s %10s\n", "what", "ours", "peer", "ratio", "at most");
    for (const Line& line : lines) printLine(line, medians);
}

}  // namespace kel::bench
