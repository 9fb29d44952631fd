#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "forms/file/FormStore.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

/// No input takes longer by far, also with sanitizers on a busy machine.
constexpr unsigned LongestSeconds = 20;

std::vector<fs::path> filesIn(const fs::path& place) {
    if (!fs::is_directory(place)) return {place};
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(place))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

/// Plays the inputs that are named, or lie in folders that are named. Which one it plays is the last thing it says
/// before one of them ends it.
int main(int argc, char** argv) {
    std::size_t count = 0;
    try {
        for (int i = 1; i < argc; ++i) {
            for (const fs::path& file : filesIn(argv[i])) {
                std::fprintf(stderr, "%s\n", file.c_str());
                alarm(LongestSeconds);
                const std::string bytes = kel::readWholeFile(file);
                LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
                ++count;
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    std::printf("%zu inputs\n", count);
    return count > 0 ? 0 : 1;
}
