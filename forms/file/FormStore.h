#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

/// Reading files, and their names. Mistakes are thrown as FormError, naming the file.
namespace kel {

std::filesystem::path pathOf(const std::string& utf8);
std::string utf8Of(const std::filesystem::path& path);

/// No file of a form is larger: their offsets are kept in 32 bits.
inline constexpr std::size_t LargestFile = std::size_t{1} << 31;

std::string readWholeFile(const std::filesystem::path& path);

/// True for two names of one folder, existing or not.
bool isSameFolder(const std::filesystem::path& left, const std::filesystem::path& right);

}  // namespace kel
