#pragma once

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

/// Runs every registered benchmark, prints medians side by side, and says which line is over its limit.
/// The exit status is 0 all the same, as speed depends on the machine; 1 where a benchmark could not do its work.
int runTable(int argc, char** argv, const std::vector<Line>& lines);

}  // namespace kel::bench
