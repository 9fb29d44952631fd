#include "examples/import/AddressList.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace addresses {

namespace {

std::string nextField(std::string& line) {
    const std::size_t end = std::min(line.find(';'), line.size());
    std::string field = line.substr(0, end);
    line.erase(0, std::min(end + 1, line.size()));
    return field;
}

Address addressIn(std::string line) {
    Address address;
    address.name = nextField(line);
    address.street = nextField(line);
    address.town = nextField(line);
    return address;
}

}  // namespace

std::int32_t countLines(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return -1;
    std::int32_t lines = 0;
    for (std::string line; std::getline(file, line);) ++lines;
    return lines;
}

Result takeIn(const std::string& path, const Choices& choices, const std::function<bool(std::int32_t line)>& step) {
    Result result;
    std::ifstream file(path, std::ios::binary);
    std::unordered_set<std::string> known;
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) line.pop_back();
        ++result.lines;
        const bool isAddress = result.lines > 1 || !choices.firstLineNamesFields;
        if (isAddress && choices.skipDuplicates && !known.insert(line).second)
            ++result.skipped;
        else if (isAddress)
            result.addresses.push_back(addressIn(line));
        if (!step(result.lines)) break;
    }
    return result;
}

bool writeSample(const std::string& path, std::int32_t addresses) {
    static constexpr const char* Names[] = {"Anders", "Brandt", "Cole", "Dietz", "Evers", "Falk", "Grant"};
    static constexpr const char* Streets[] = {"Harbour Lane", "Mill Road", "Am Alten Hafen", "High Street",
                                              "Rue Verte"};
    static constexpr const char* Towns[] = {"Bremen", "Dover", "Lille", "Ghent"};
    constexpr std::int32_t Twice = 1000;  ///< each so many-th is the one before it once more
    std::ofstream file(path, std::ios::binary);
    file << "name;street;town\n";
    for (std::int32_t i = 0; i < addresses; ++i) {
        const auto it = static_cast<std::size_t>(i % Twice == Twice - 1 ? i - 1 : i);
        file << Names[it % std::size(Names)] << ' ' << it << ';' << Streets[it % std::size(Streets)] << ' '
             << 1 + it % 97 << ';' << Towns[it % std::size(Towns)] << '\n';
    }
    return static_cast<bool>(file.flush());
}

}  // namespace addresses
