#include "forms/file/FormFrx.h"

#include <array>
#include <fstream>

#include "forms/file/FormError.h"
#include "forms/file/FormStore.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t ByteLimit = 0xFF;
constexpr std::uint32_t WordLimit = 0xFFFF;

bool isPlainName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find_first_of("/\\:") == std::string::npos;
}

class RecordReader {
public:
    RecordReader(const fs::path& file, std::uint32_t offset) : Stream_(file, std::ios::binary) {
        Stream_.seekg(0, std::ios::end);
        const std::streamoff size = Stream_.tellg();
        if (!Stream_ || size < 0) throw FormFault{"cannot be read"};
        if (offset >= size) throw FormFault{"is only " + std::to_string(size) + " bytes long"};
        Left_ = static_cast<std::uint64_t>(size) - offset;
        Stream_.seekg(offset);
    }

    std::string read() {
        std::uint32_t length = takeNumber(1);
        if (length == ByteLimit)
            length = takeNumber(2);
        else
            return take(length);
        return take(length == WordLimit ? takeNumber(4) : length);
    }

private:
    std::uint32_t takeNumber(std::size_t size) {
        const std::string bytes = take(size);
        std::uint32_t number = 0;
        for (std::size_t i = size; i-- > 0;) number = (number << 8) | static_cast<unsigned char>(bytes[i]);
        return number;
    }

    std::string take(std::size_t size) {
        if (size > Left_) throw FormFault{"ends in the middle of the text"};
        Left_ -= size;
        std::string bytes(size, '\0');
        Stream_.read(bytes.data(), static_cast<std::streamsize>(size));
        if (!Stream_) throw FormFault{"cannot be read"};
        return bytes;
    }

    std::ifstream Stream_;
    std::uint64_t Left_ = 0;
};

void appendNumber(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

}  // namespace

void ResourceFolder::readNames() const {
    std::error_code fault;
    const fs::path folder = Folder_.empty() ? fs::path(".") : Folder_;
    const fs::file_time_type changed = fs::last_write_time(folder, fault);
    if (fault || changed == ReadAt_) return;
    ReadAt_ = changed;
    Names_.clear();
    for (fs::directory_iterator entry(folder, fault), end; !fault && entry != end; entry.increment(fault))
        if (std::error_code ignored; entry->is_regular_file(ignored))
            Names_.emplace(utf8Of(entry->path().filename()), Folder_ / entry->path().filename());
}

std::optional<fs::path> ResourceFolder::find(const std::string& utf8Name) const {
    if (!isPlainName(utf8Name)) return std::nullopt;
    std::error_code ignored;
    const fs::path exact = Folder_ / pathOf(utf8Name);
    if (fs::is_regular_file(exact, ignored)) return exact;
    readNames();
    const auto found = Names_.find(utf8Name);
    return found == Names_.end() ? std::nullopt : std::optional(found->second);
}

std::string readTextRecord(const fs::path& file, std::uint32_t offset) { return RecordReader(file, offset).read(); }

std::string makeTextRecord(std::string_view bytes) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    std::string record;
    if (length < ByteLimit) {
        appendNumber(record, length, 1);
    } else if (length < WordLimit) {
        appendNumber(record, ByteLimit, 1);
        appendNumber(record, length, 2);
    } else {
        appendNumber(record, ByteLimit, 1);
        appendNumber(record, WordLimit, 2);
        appendNumber(record, length, 4);
    }
    return record.append(bytes);
}

}  // namespace kel
