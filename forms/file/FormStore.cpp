#include "forms/file/FormStore.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <random>
#include <utility>

#include "forms/file/FormError.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

/// A new file beside `target` that disappears again unless it takes the target's place.
class PendingFile {
public:
    explicit PendingFile(const FileToWrite& file) : Target_(targetOf(file.path)), Pending_(nameBeside(Target_)) {
        std::error_code fault;
        if (fs::is_directory(Target_, fault)) throw FormError(utf8Of(Target_), 0, "is a folder");
        std::ofstream stream(Pending_, std::ios::binary | std::ios::trunc);
        stream.write(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
        stream.close();
        if (stream) return;
        discard();
        throw FormError(utf8Of(Target_), 0, "cannot be written");
    }
    ~PendingFile() { discard(); }
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    PendingFile(PendingFile&& other) noexcept
        : Target_(std::move(other.Target_)), Pending_(std::exchange(other.Pending_, {})) {}
    PendingFile& operator=(PendingFile&&) = delete;

    void takePlace() {
        std::error_code fault;
        const fs::file_status old = fs::status(Target_, fault);
        if (fs::is_regular_file(old)) fs::permissions(Pending_, old.permissions(), fault);
        fs::rename(Pending_, Target_, fault);
        if (fault) throw FormError(utf8Of(Target_), 0, "cannot be written: " + fault.message());
        Pending_.clear();
    }

private:
    static fs::path targetOf(const fs::path& path) {
        std::error_code fault;
        if (!fs::is_symlink(path, fault)) return path;
        const fs::path target = fs::canonical(path, fault);
        return fault ? path : target;
    }

    static fs::path nameBeside(const fs::path& target) {
        std::random_device random;
        fs::path name = target;
        name += ".new" + std::to_string(random());
        return name;
    }

    void discard() const {
        std::error_code ignored;
        if (!Pending_.empty()) fs::remove(Pending_, ignored);
    }

    fs::path Target_;
    fs::path Pending_;
};

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
    std::array<char, 1 << 16> chunk;
    const std::uintmax_t size = fs::file_size(path, fault);
    if (!fault) bytes.reserve(static_cast<std::size_t>(std::min<std::uintmax_t>(size, LargestFile)));
    while (bytes.size() <= LargestFile && stream.read(chunk.data(), chunk.size()).gcount() > 0)
        bytes.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
    if (stream.bad()) throw FormError(utf8Of(path), 0, "cannot be read");
    if (bytes.size() > LargestFile) throw FormError(utf8Of(path), 0, "is larger than 2 GB");
    return bytes;
}

void writeTogether(const std::vector<FileToWrite>& files) {
    std::vector<PendingFile> pending;
    pending.reserve(files.size());
    for (const FileToWrite& file : files) pending.emplace_back(file);
    for (PendingFile& file : pending) file.takePlace();
}

bool isSameFolder(const fs::path& left, const fs::path& right) { return absoluteFolder(left) == absoluteFolder(right); }

}  // namespace kel
