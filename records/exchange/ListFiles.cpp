#include "records/exchange/ListFiles.h"

#include <fstream>
#include <system_error>

#include "forms/file/FileWriter.h"
#include "forms/file/FormError.h"
#include "forms/file/FormStore.h"
#include "values/Text.h"

namespace kel::records {

namespace {

namespace fs = std::filesystem;

/// A file that is there when it is needed.
class LateFile {
public:
    explicit LateFile(fs::path path) : Path_(std::move(path)) {}

    void write(std::string_view text) {
        if (!File_.is_open()) File_.open(Path_, std::ios::binary | std::ios::trunc);
        if (!File_.write(text.data(), static_cast<std::streamsize>(text.size())))
            throw FormError(utf8Of(Path_), 0, "cannot be written, and it is to take what is rejected");
    }
    /// Empty when nothing was written.
    fs::path close() {
        if (!File_.is_open()) return {};
        File_.close();
        if (!File_) throw FormError(utf8Of(Path_), 0, "cannot be written to its end");
        return Path_;
    }

private:
    fs::path Path_;
    std::ofstream File_;
};

/// "members.csv": "members.rejects.csv".
fs::path rejectsOf(const fs::path& list) {
    fs::path name = list.stem();
    name += ".rejects";
    name += list.extension();
    return list.parent_path() / name;
}

}  // namespace

std::u16string counted(std::int64_t count, std::u16string_view one, std::u16string_view many) {
    return widen(std::to_string(count)) + u" " + std::u16string(count == 1 ? one : many);
}

std::u16string ImportReport::inWords() const {
    std::u16string words;
    if (!result.failure.empty()) words = fromUtf8(result.failure).value_or(u"The database failed.") + u"\n";
    if (result.isStopped) words += u"Stopped. ";
    words += counted(result.stored, u"record is", u"records are") + u" stored.";
    if (result.rejected > 0)
        words += u" " + counted(result.rejected, u"line was", u"lines were") +
                 u" not taken: each stands with its number and the reason in " +
                 fromUtf8(utf8Of(rejects)).value_or(u"the list of rejects") + u".";
    if (!result.passedOver.empty()) {
        words += u"\nNo field of the form is meant by:";
        for (const std::string& heading : result.passedOver)
            words += (&heading == &result.passedOver.front() ? u" " : u", ") + fromUtf8(heading).value_or(u"?");
    }
    return words;
}

ImportReport importFile(Importer& importer, const fs::path& list, const ListFormat& format, bool allOrNothing,
                        const Progress& progress) {
    std::ifstream file(list, std::ios::binary);
    std::error_code fault;
    if (!file || fs::is_directory(list, fault)) throw FormError(utf8Of(list), 0, "cannot be read");
    const auto size = static_cast<double>(fs::file_size(list, fault));
    LateFile rejects(rejectsOf(list));
    ImportReport report;
    report.result = importer.run(
        file, format, allOrNothing, [&](std::string_view line) { rejects.write(line); },
        [&](std::int64_t bytes) { return progress(fault || size <= 0 ? 0 : static_cast<double>(bytes) / size); });
    report.rejects = rejects.close();
    return report;
}

std::optional<std::int64_t> exportFile(Exporter& exporter, std::int64_t records, const fs::path& list,
                                       const ListFormat& format, const Progress& progress) {
    std::int64_t count = 0;
    const bool isWhole = writePieces(list, [&](const Pieces& write) {
        bool isStopped = false;
        count = exporter.run(format, write, [&](std::int64_t done) {
            isStopped = !progress(records <= 0 ? 0 : static_cast<double>(done) / static_cast<double>(records));
            return !isStopped;
        });
        return !isStopped;
    });
    return isWhole ? std::optional(count) : std::nullopt;
}

}  // namespace kel::records
