#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Text records of the binary resource files that stand beside form files: a length, then that many bytes. The
/// length takes one byte below FF; else FF and two bytes below FFFF; else FF FF FF and four bytes.
namespace kel {

/// The file of that name in `folder`, its case ignored where no file has exactly this name; nothing when
/// there is none or when the name is not that of a file in this folder.
std::optional<std::filesystem::path> findResource(const std::filesystem::path& folder, const std::string& utf8Name);

/// The bytes of the record at `offset`. Throws FormFault when the file cannot be read or ends before them.
std::string readTextRecord(const std::filesystem::path& file, std::uint32_t offset);

std::string makeTextRecord(std::string_view bytes);

}  // namespace kel
