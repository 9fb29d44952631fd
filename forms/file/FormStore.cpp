#include "forms/file/FormStore.h"

#include <algorithm>
#include <fstream>
#include <vector>

#include "forms/file/FormError.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

fs::path absoluteFolder(const fs::path& folder) {
    std::error_code fault;
    const fs::path start = folder.empty() ? fs::path(".") : folder;
    const fs::path resolved = fs::weakly_canonical(fs::absolute(start, fault), fault);
    return fault ? start.lexically_normal() : resolved.lexically_normal();
}

}  // namespace

fs::path pathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string utf8Of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string readWholeFile(const fs::path& path) {
    std::error_code fault;
    if (fs::is_directory(path, fault)) throw FormError(utf8Of(path), 0, "is a folder");
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw FormError(utf8Of(path), 0, "cannot be opened");
    std::string bytes;
    std::vector<char> chunk(1 << 16);
    const std::uintmax_t size = fs::file_size(path, fault);
    if (!fault) bytes.reserve(static_cast<std::size_t>(std::min<std::uintmax_t>(size, LargestFile)));
    while (bytes.size() <= LargestFile &&
           stream.read(chunk.data(), static_cast<std::streamsize>(chunk.size())).gcount() > 0)
        bytes.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
    if (stream.bad()) throw FormError(utf8Of(path), 0, "cannot be read");
    if (bytes.size() > LargestFile) throw FormError(utf8Of(path), 0, "is larger than 2 GB");
    return bytes;
}

bool isSameFolder(const fs::path& left, const fs::path& right) { return absoluteFolder(left) == absoluteFolder(right); }

}  // namespace kel
