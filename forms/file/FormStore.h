#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/// Reading and writing the files of a form. Mistakes are thrown as FormError, naming the file.
namespace kel {

std::filesystem::path pathOf(const std::string& utf8);
std::string utf8Of(const std::filesystem::path& path);

/// No file of a form is larger: their offsets are kept in 32 bits.
inline constexpr std::size_t LargestFile = std::size_t{1} << 31;

std::string readWholeFile(const std::filesystem::path& path);

struct FileToWrite {
    std::filesystem::path path;
    std::string bytes;
};

/// Puts each file in its place, in order, when all of them have been written whole under other names. A file
/// that is replaced keeps its permissions, a link stays one.
void writeTogether(const std::vector<FileToWrite>& files);

/// True for two names of one folder, existing or not.
bool isSameFolder(const std::filesystem::path& left, const std::filesystem::path& right);

}  // namespace kel
