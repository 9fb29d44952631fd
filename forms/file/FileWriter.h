#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Writing files: each is there whole afterwards, or is as it was. Mistakes are thrown as FormError, naming the file.
namespace kel {

struct FileToWrite {
    std::filesystem::path path;
    std::string bytes;
};

/// Puts each file in its place, in order, when all of them stand whole on the disk under other names. A file that is
/// replaced keeps its permissions and its owner, a link stays one, and what a killed program left is cleared away. A
/// device, a pipe and the standard output are written to. Refused is a file that may not be written, and one that has a
/// second name, which would keep the old bytes. A wish to end the program waits until the files are in place.
void writeTogether(const std::vector<FileToWrite>& files);

void writeFile(const std::filesystem::path& path, std::string bytes);

/// The same for one file that is too large to be held: `fill` hands its bytes over, piece by piece. Where it returns
/// false or throws, the file stays as it was, but for a stream.
using Pieces = std::function<void(std::string_view bytes)>;
bool writePieces(const std::filesystem::path& path, const std::function<bool(const Pieces& write)>& fill);

/// True where bytes are passed on and no file is kept, so that nothing can stand beside it: a device, a pipe, the
/// standard output.
bool isStream(const std::filesystem::path& path);

}  // namespace kel
