#pragma once

#include <filesystem>
#include <string_view>

namespace kel {

/// A file open for writing, as the system has it. Throws std::system_error with the system's reason.
class OutputFile {
public:
    /// A new file that no other program is writing; one of that name that a program left is removed. Throws
    /// std::errc::device_or_resource_busy when another program is at it.
    static OutputFile makeAlone(const std::filesystem::path& path);
    /// A device or a pipe.
    static OutputFile openStream(const std::filesystem::path& path);

    ~OutputFile() { close(); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    OutputFile(OutputFile&& other) noexcept;
    OutputFile& operator=(OutputFile&&) = delete;

    /// Gives the file the permissions and the owner of another one.
    void takeAccessOf(const std::filesystem::path& other) const;
    void write(std::string_view bytes) const;
    /// Returns when the bytes are on the disk.
    void sync() const;
    /// Ends being alone with the file.
    void close() noexcept;

private:
    explicit OutputFile(int descriptor) : Descriptor_(descriptor) {}

    int Descriptor_;
};

/// Whether anybody who may, may write this file: it is not marked read-only, and the system lets this program.
bool isWritable(const std::filesystem::path& file);

/// Whether writing there writes to the program's standard output.
bool isStandardOutput(const std::filesystem::path& path);

/// Returns when the names in the folder are on the disk.
void syncFolder(const std::filesystem::path& folder);

}  // namespace kel
