#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "records/exchange/Exporter.h"
#include "records/exchange/Importer.h"

/// Lists in files. Mistakes are thrown as FormError, naming the file.
namespace kel::records {

/// Told how far it is, from 0 to 1, often; false stops it.
using Progress = std::function<bool(double share)>;

struct ImportReport {
    Importer::Result result;
    std::filesystem::path rejects;  ///< beside the list, replaced if it was there; empty when no record was rejected

    /// What has become of the list, in a few sentences for the person.
    std::u16string inWords() const;
};

/// Throws what the importer throws, too.
ImportReport importFile(Importer& importer, const std::filesystem::path& list, const ListFormat& format,
                        bool allOrNothing, const Progress& progress);

/// The number of records; nothing where it was stopped. The file takes its place when all of it is on the disk; else
/// what was there stays. A device, a pipe and the standard output are written to at once.
std::optional<std::int64_t> exportFile(Exporter& exporter, std::int64_t records, const std::filesystem::path& list,
                                       const ListFormat& format, const Progress& progress);

/// "1 record is", "2 records are"
std::u16string counted(std::int64_t count, std::u16string_view one, std::u16string_view many);

}  // namespace kel::records
