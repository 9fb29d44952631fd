#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

/// A list of addresses in a text file, one a line, as programs exchange them: `name;street;town`.
namespace addresses {

struct Address {
    std::string name;
    std::string street;
    std::string town;
};

struct Choices {
    bool firstLineNamesFields = true;
    bool skipDuplicates = false;
};

struct Result {
    std::int32_t lines = 0;  ///< that were read
    std::int32_t skipped = 0;
    std::vector<Address> addresses;
};

/// -1 when the file cannot be read.
std::int32_t countLines(const std::string& path);

/// Tells `step` the number of each line when it is done, from 1; stops when it returns false.
Result takeIn(const std::string& path, const Choices& choices, const std::function<bool(std::int32_t line)>& step);

/// Writes a list of so many addresses, of which some are there twice, under a line that names the fields.
bool writeSample(const std::string& path, std::int32_t addresses);

}  // namespace addresses
