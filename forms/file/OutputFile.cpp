#include "forms/file/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <share.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

namespace kel {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int reason = errno) { throw std::system_error(reason, std::generic_category()); }

int checked(int result) {
    if (result < 0) fail();
    return result;
}

constexpr std::size_t LargestPiece = std::size_t{1} << 20;

#ifdef _WIN32

int openForWriting(const fs::path& path, int flags, int sharing) {
    int file = -1;
    const int fault =
        _wsopen_s(&file, path.c_str(), flags | _O_WRONLY | _O_BINARY | _O_NOINHERIT, sharing, _S_IREAD | _S_IWRITE);
    if (fault != 0) fail(fault);
    return file;
}

int openAlone(const fs::path& path) { return openForWriting(path, _O_CREAT | _O_TRUNC, _SH_DENYRW); }
int openThrough(const fs::path& path) { return openForWriting(path, 0, _SH_DENYNO); }

void flushToDisk(int file) { checked(_commit(file)); }

bool mayWrite(const fs::path& file) { return _waccess(file.c_str(), 2) == 0; }

#else

/// Whether the name, looked up by `stat` or `lstat`, is that of the open file.
bool isNameOf(int file, const fs::path& path, int (*lookUp)(const char*, struct stat*)) {
    struct stat opened {};
    struct stat named {};
    return fstat(file, &opened) == 0 && lookUp(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino &&
           opened.st_dev == named.st_dev;
}

/// Locks the file while it is open; false when another program has. Where a disk knows no locks, all are alone.
bool lock(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

/// What a killed program left behind goes; what a living one is writing does not.
void removeLeftover(const fs::path& path) {
    const int leftover = open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    const bool isFree = leftover < 0 || lock(leftover);
    if (isFree && unlink(path.c_str()) != 0 && errno != ENOENT) fail();
    if (leftover >= 0) close(leftover);
    if (!isFree) fail(EBUSY);
}

int openAlone(const fs::path& path) {
    for (;;) {
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file < 0 && errno != EEXIST) fail();
        if (file < 0) {
            removeLeftover(path);
            continue;
        }
        // Between its making and its locking another program may have taken it for a leftover.
        if (lock(file) && isNameOf(file, path, lstat)) return file;
        close(file);
    }
}

int openThrough(const fs::path& path) {
    if (isStandardOutput(path)) return checked(dup(STDOUT_FILENO));
    return checked(open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
}

void flushToDisk(int file) { checked(fsync(file)); }

bool mayWrite(const fs::path& file) { return faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0; }

#endif

}  // namespace

OutputFile OutputFile::makeAlone(const fs::path& path) { return OutputFile(openAlone(path)); }
OutputFile OutputFile::openStream(const fs::path& path) { return OutputFile(openThrough(path)); }

OutputFile::OutputFile(OutputFile&& other) noexcept : Descriptor_(std::exchange(other.Descriptor_, -1)) {}

void OutputFile::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const auto length = static_cast<unsigned>(std::min(bytes.size(), LargestPiece));
        const auto written = ::write(Descriptor_, bytes.data(), length);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail();
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void OutputFile::sync() const { flushToDisk(Descriptor_); }

bool isWritable(const fs::path& file) {
    constexpr fs::perms Writing = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code fault;
    // An administrator may write everything; what somebody has marked read-only is not for the taking all the same.
    return (fs::status(file, fault).permissions() & Writing) != fs::perms::none && mayWrite(file);
}

void OutputFile::close() noexcept {
    if (Descriptor_ >= 0) ::close(std::exchange(Descriptor_, -1));
}

#ifdef _WIN32

// A new file takes the permissions of its folder.
void OutputFile::takeAccessOf(const fs::path& /*other*/) const {}

bool isStandardOutput(const fs::path& /*path*/) { return false; }

void syncFolder(const fs::path& /*folder*/) {}

#else

void OutputFile::takeAccessOf(const fs::path& other) const {
    struct stat theirs {};
    struct stat ours {};
    checked(stat(other.c_str(), &theirs));
    checked(fstat(Descriptor_, &ours));
    if (theirs.st_uid != ours.st_uid || theirs.st_gid != ours.st_gid)
        checked(fchown(Descriptor_, theirs.st_uid, theirs.st_gid));
    checked(fchmod(Descriptor_, theirs.st_mode & 07777));
}

bool isStandardOutput(const fs::path& path) { return isNameOf(STDOUT_FILENO, path, stat); }

void syncFolder(const fs::path& folder) {
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return;
    // Some disks have no such thing to do.
    const bool isSynced = fsync(opened) == 0 || errno == EINVAL || errno == EROFS;
    const int reason = errno;
    close(opened);
    if (!isSynced) fail(reason);
}

#endif

}  // namespace kel
