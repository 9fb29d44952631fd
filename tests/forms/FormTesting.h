#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "forms/file/FormFile.h"
#include "values/Text.h"

namespace kel {

inline std::string sampleFile(const std::string& name) { return std::string(FORM_FILES) + "/" + name; }

inline std::string readBytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A folder of its own for a test, gone when the test is over.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        Path_ = std::filesystem::temp_directory_path() / ("forms-" + std::to_string(random()));
        std::filesystem::create_directories(Path_ / "other");
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string file(const std::string& name) const { return (Path_ / name).string(); }

    std::string write(const std::string& name, const std::string& bytes) const {
        std::ofstream(file(name), std::ios::binary) << bytes;
        return file(name);
    }

    /// How many files stand in the folder itself.
    std::ptrdiff_t count() const {
        return std::count_if(std::filesystem::directory_iterator(Path_), {},
                             [](const auto& entry) { return entry.is_regular_file(); });
    }

private:
    std::filesystem::path Path_;
};

/// A form with one control of the library in it, block 1, that holds `lines`.
inline std::string formWith(const std::string& lines) {
    return "VERSION 5.00\nBegin VB.Form frm\n   Begin KelControls8.KelText txt\n" + lines + "   End\nEnd\n";
}

inline FormFile parseWith(const std::string& lines) { return FormFile::parse(formWith(lines), "test.frm"); }

/// What is wrong with a form, "" when nothing is.
template <class Action>
std::string errorOf(Action action) {
    try {
        action();
        return "";
    } catch (const FormError& error) {
        return error.what();
    }
}

}  // namespace kel
