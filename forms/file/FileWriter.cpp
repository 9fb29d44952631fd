#include "forms/file/FileWriter.h"

#include <array>
#include <csignal>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "forms/file/FormError.h"
#include "forms/file/FormStore.h"
#include "forms/file/OutputFile.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

constexpr int MostLinks = 40;
/// So that the name of a pending file is not longer than a name may be.
constexpr std::size_t LongestNamePart = 200;

/// What asks the program to end (Ctrl+C, the system going down) is done when this goes.
class EndingHeld {
public:
    EndingHeld() {
        Wished_ = 0;
        for (std::size_t i = 0; i < Signals.size(); ++i) Before_[i] = std::signal(Signals[i], remember);
    }
    ~EndingHeld() {
        for (std::size_t i = 0; i < Signals.size(); ++i)
            if (Before_[i] != SIG_ERR) std::signal(Signals[i], Before_[i]);
        if (Wished_ != 0) std::raise(Wished_);
    }
    EndingHeld(const EndingHeld&) = delete;
    EndingHeld& operator=(const EndingHeld&) = delete;

private:
    static void remember(int signal) { Wished_ = signal; }

#ifdef SIGHUP
    static constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};
#else
    static constexpr std::array Signals{SIGINT, SIGTERM};
#endif
    static inline volatile std::sig_atomic_t Wished_ = 0;
    std::array<void (*)(int), Signals.size()> Before_{};
};

/// Does it, and says of which file it was when the system refuses.
template <class Action>
auto named(const fs::path& path, Action action) {
    try {
        return action();
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::device_or_resource_busy)
            throw FormError(utf8Of(path), 0, "is being written by another program");
        throw FormError(utf8Of(path), 0, "cannot be written: " + error.code().message());
    }
}

FormError refused(const fs::path& path, const char* reason) { return {utf8Of(path), 0, reason}; }

/// Where the links lead, whether something stands there or not.
fs::path followLinks(fs::path path) {
    std::error_code fault;
    for (int i = 0; fs::is_symlink(path, fault); ++i) {
        if (i == MostLinks) throw refused(path, "is a link that leads nowhere");
        path = path.parent_path() / fs::read_symlink(path, fault);
    }
    return path;
}

/// The file to be replaced or made. Throws when it is none that may be.
fs::path replaceable(const fs::path& named) {
    const fs::path target = followLinks(named);
    std::error_code fault;
    const fs::file_status status = fs::status(target, fault);
    if (!fs::exists(status)) return target;
    if (fs::is_directory(status)) throw refused(named, "is a folder");
    if (!fs::is_regular_file(status)) throw refused(named, "is no file that can be written");
    if (!isWritable(target)) throw refused(named, "may not be written");
    if (fs::hard_link_count(target, fault) > 1)
        throw refused(named, "has a second name, under which the old file would stay");
    return target;
}

/// A new file beside `target` that disappears again unless it takes the target's place.
class PendingFile {
public:
    explicit PendingFile(const fs::path& path)
        : Target_(replaceable(path)),
          Pending_(nameBeside(Target_)),
          File_(named(Target_, [this] { return OutputFile::makeAlone(Pending_); })) {
        try {
            named(Target_, [this] { takeAccess(); });
        } catch (...) {
            discard();
            throw;
        }
    }
    ~PendingFile() { discard(); }
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;
    PendingFile(PendingFile&& other) noexcept
        : Target_(std::move(other.Target_)),
          Pending_(std::exchange(other.Pending_, {})),
          File_(std::move(other.File_)) {}
    PendingFile& operator=(PendingFile&&) = delete;

    const fs::path& target() const { return Target_; }
    fs::path folder() const { return Target_.has_parent_path() ? Target_.parent_path() : fs::path("."); }

    void write(std::string_view bytes) const {
        named(Target_, [&] { File_.write(bytes); });
    }
    /// Until it is on the disk.
    void finish() const {
        named(Target_, [this] { File_.sync(); });
    }

    void takePlace() {
#ifdef _WIN32
        File_.close();  // an open file is not renamed there
#endif
        named(Target_, [this] { fs::rename(Pending_, Target_); });
        Pending_.clear();
    }

private:
    /// The same for each save of a file, so that the next one finds what a killed one left.
    static fs::path nameBeside(const fs::path& target) {
        fs::path name(".");
        name += target.filename().native().substr(0, LongestNamePart);
        name += ".kelforms";
        return target.parent_path() / name;
    }

    void takeAccess() const {
        std::error_code fault;
        if (fs::exists(Target_, fault)) File_.takeAccessOf(Target_);
    }

    void discard() {
        std::error_code ignored;
        if (!Pending_.empty()) fs::remove(Pending_, ignored);
    }

    fs::path Target_;
    fs::path Pending_;
    OutputFile File_;
};

/// Each once: a form and its resources are neighbours, and to wait for the disk takes long.
void syncFolders(const std::vector<PendingFile>& pending) {
    std::set<fs::path> synced;
    for (const PendingFile& file : pending)
        if (synced.insert(file.folder()).second) named(file.target(), [&] { syncFolder(file.folder()); });
}

void putInPlace(std::vector<PendingFile>& pending) {
    syncFolders(pending);
    for (PendingFile& file : pending) file.takePlace();
    syncFolders(pending);
}

}  // namespace

void writeTogether(const std::vector<FileToWrite>& files) {
    {
        const EndingHeld held;
        std::vector<PendingFile> pending;
        pending.reserve(files.size());
        for (const FileToWrite& file : files) {
            if (isStream(file.path)) continue;
            pending.emplace_back(file.path);
            pending.back().write(file.bytes);
            pending.back().finish();
        }
        putInPlace(pending);
    }
    for (const FileToWrite& file : files)
        if (isStream(file.path)) named(file.path, [&file] { OutputFile::openStream(file.path).write(file.bytes); });
}

void writeFile(const fs::path& path, std::string bytes) { writeTogether({{path, std::move(bytes)}}); }

bool writePieces(const fs::path& path, const std::function<bool(const Pieces& write)>& fill) {
    if (isStream(path)) {
        const OutputFile stream = named(path, [&] { return OutputFile::openStream(path); });
        return fill([&](std::string_view bytes) { named(path, [&] { stream.write(bytes); }); });
    }
    std::vector<PendingFile> pending;
    pending.emplace_back(path);
    if (!fill([&](std::string_view bytes) { pending.back().write(bytes); })) return false;
    const EndingHeld held;
    pending.back().finish();
    putInPlace(pending);
    return true;
}

bool isStream(const fs::path& path) {
    std::error_code fault;
    const fs::file_status status = fs::status(path, fault);
    return fs::is_character_file(status) || fs::is_block_file(status) || fs::is_fifo(status) || isStandardOutput(path);
}

}  // namespace kel
