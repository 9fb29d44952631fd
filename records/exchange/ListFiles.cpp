#include "records/exchange/ListFiles.h"

#include <fstream>
#include <system_error>

#include "forms/file/FileWriter.h"
#include "forms/file/FormError.h"
#include "forms/file/FormStore.h"
#include "forms/file/OutputFile.h"
#include "values/Text.h"

namespace kel::records {

namespace {

namespace fs = std::filesystem;

std::u16string counted(std::int64_t count, std::u16string_view one, std::u16string_view many) {
    return widen(std::to_string(count)) + u" " + std::u16string(count == 1 ? one : many);
}

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

std::int64_t exportFile(Exporter& exporter, std::int64_t records, const fs::path& list, const ListFormat& format,
                        const Progress& progress) {
    const auto goesOn = [&](std::int64_t done) {
        return progress(records <= 0 ? 0 : static_cast<double>(done) / static_cast<double>(records));
    };
    try {
        if (isStream(list)) {
            const OutputFile stream = OutputFile::openStream(list);
            return exporter.run(
                format, [&](std::string_view lines) { stream.write(lines); }, goesOn);
        }
        fs::path pending = list;
        pending += ".part";
        std::int64_t count = 0;
        try {
            OutputFile file = OutputFile::makeAlone(pending);
            count = exporter.run(
                format, [&](std::string_view lines) { file.write(lines); }, goesOn);
            file.sync();
            file.close();
            fs::rename(pending, list);
        } catch (...) {
            std::error_code ignored;
            fs::remove(pending, ignored);
            throw;
        }
        return count;
    } catch (const std::system_error& error) {
        throw FormError(utf8Of(list), 0, "cannot be written: " + error.code().message());
    }
}

}  // namespace kel::records
