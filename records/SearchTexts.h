#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/Store.h"

namespace kel::records {

/// A text as it is looked for: without regard to case and accents. "Düren" is "duren", "Straße" is "strasse".
std::u16string searchKey(std::u16string_view text);

/// The texts by which a record is found: what stands in its columns, and what a person sees of that.
using TextsOf = std::function<std::vector<std::u16string>(const Record& record)>;
/// What stands in the columns alone.
std::vector<std::u16string> textsOfColumns(const Record& record);

/// What all records of a table have to be found by, written down once one after another, as looking a text through is
/// a hundred times as fast as reading records. It stands in a temporary file, which is gone with the program, and is
/// written a little at a time, while nobody waits. A record that is stored or deleted here is kept up with; where
/// another program has changed something, all of it is written anew.
class SearchTexts {
public:
    /// The store outlives it. Throws StoreError.
    SearchTexts(RecordStore& store, TextsOf textsOf);
    SearchTexts(const SearchTexts&) = delete;
    SearchTexts& operator=(const SearchTexts&) = delete;

    /// Writes some more, for a few milliseconds. False when all records are there.
    bool writeOn();
    bool isWhole() const { return IsWhole_; }
    /// False where no file could be made or the disk was full; nothing is written any more until all begins anew.
    bool hasRoom() const { return File_ != nullptr; }

    /// As `Places` are told.
    void changed(const Record* before, const Record* after);
    bool refresh();

    struct Hits {
        std::int64_t count = 0;
        std::vector<Cells> keys;  ///< of all, where they are few
        // Of those that stand in the file as they stand in the table:
        std::optional<Cells> first;
        std::optional<Cells> last;
        std::optional<Cells> before;  ///< the nearest ones around a record
        std::optional<Cells> behind;
        std::vector<Cells> later;  ///< those that were stored since
    };
    /// How many hits are few.
    static constexpr std::size_t Few = 1000;

    using GoesOn = std::function<bool()>;
    /// The records that are found by the text, which is a `searchKey` as UTF-8; around `from` where that
    /// is not nullptr. Nothing where it was stopped, or where nobody knows where `from` stands.
    std::optional<Hits> find(std::string_view sought, const Cells* from, const GoesOn& goesOn) const;

private:
    struct Landmark {
        std::int64_t offset = 0;
        Cells key;
    };
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void beginAnew(const Version& version);
    std::string entryOfRecord(const Record& record) const;
    void append(const Record& record, std::vector<Landmark>& noted);
    /// Writes down how the record of this key stands now.
    void settle(const Cells& key);
    bool isWholeNow();
    /// Where the entry of a record begins and ends, or where it would stand; nothing where nobody knows.
    std::optional<std::pair<std::int64_t, std::int64_t>> placeOf(Cells key) const;
    std::optional<std::pair<std::int64_t, std::int64_t>> entryOf(const Cells& key) const;
    std::size_t landmarksUpTo(const Cells& key) const;
    void blank(const Cells& key);
    void write(std::int64_t offset, std::string_view bytes);
    void read(std::int64_t offset, std::span<char> bytes) const;
    std::string read(std::int64_t begin, std::int64_t end) const;
    template <class Each>
    bool forEachHit(std::string_view sought, const GoesOn& goesOn, Each each) const;
    /// Of the bytes of a text, but one, that which is written least often.
    std::size_t rarest(std::string_view sought, std::size_t but) const;

    RecordStore* Store_;
    TextsOf TextsOf_;
    std::unique_ptr<std::FILE, Closer> File_;
    Version Version_;
    bool IsWhole_ = false;
    std::optional<Record> Last_;  ///< that was written
    std::int64_t Written_ = 0;
    std::int64_t End_ = 0;             ///< of the file
    std::int64_t RowsEnd_ = 0;         ///< of the entries that stand as the table's records do
    std::vector<Landmark> Landmarks_;  ///< among these
    std::vector<Landmark> Later_;      ///< all entries after them
    std::vector<Cells> Pending_;       ///< keys of what was changed before all was written
    std::int64_t Spacing_ = 0;
    std::array<std::int64_t, 256> Frequency_{};  ///< of each byte
};

}  // namespace kel::records
