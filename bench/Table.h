#pragma once

#include <map>
#include <string>
#include <vector>

namespace kel::bench {

/// One line of the table: a benchmark of ours, and either a peer's with the most it may cost against it or
/// a limit of its own.
struct Line {
    std::string what;
    std::string ours;
    std::vector<std::string> peers;  ///< their times are added up
    double most = 0;                 ///< times the peers' sum, or nanoseconds without peers
};

/// Prints the lines whose figures are there, by their names in nanoseconds; says which one is over its limit.
void printTable(const std::vector<Line>& lines, const std::map<std::string, double>& medians);

/// Runs every registered benchmark and prints the table of their medians. The exit status is 0 all the same, as speed
/// depends on the machine; 1 where a benchmark could not do its work.
int runTable(int argc, char** argv, const std::vector<Line>& lines);

}  // namespace kel::bench
