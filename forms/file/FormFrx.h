#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "forms/file/FormText.h"

/// Text records of the binary resource files that stand beside form files: a length, then that many bytes. The
/// length takes one byte below FF; else FF and two bytes below FFFF; else FF FF FF and four bytes.
namespace kel {

/// The files beside a form. The folder's names are read once, and anew when it has changed since: a form may name
/// thousands of texts in a folder of thousands of files.
class ResourceFolder {
public:
    explicit ResourceFolder(std::filesystem::path folder) : Folder_(std::move(folder)) {}

    const std::filesystem::path& path() const { return Folder_; }

    /// The file of that name, its case ignored where no file has exactly this name; nothing when there is none or
    /// when the name is not that of a file in this folder.
    std::optional<std::filesystem::path> find(const std::string& utf8Name) const;

private:
    void readNames() const;

    std::filesystem::path Folder_;
    mutable std::map<std::string, std::filesystem::path, NameOrder> Names_;
    mutable std::filesystem::file_time_type ReadAt_{};  ///< the folder's own time
};

/// The bytes of the record at `offset`. Throws FormFault when the file cannot be read or ends before them.
std::string readTextRecord(const std::filesystem::path& file, std::uint32_t offset);

std::string makeTextRecord(std::string_view bytes);

}  // namespace kel
