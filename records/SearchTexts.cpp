#include "records/SearchTexts.h"

#include <algorithm>
#include <chrono>
#include <cstring>

#include "records/Landmarks.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::int32_t RecordsAtOnce = 200;
constexpr std::int64_t FirstEntrySpacing = 500;
constexpr std::size_t MostLater = 1000;
constexpr std::size_t Chunk = std::size_t{256} << 10U;  ///< what a processor has at hand

// An entry is the texts of a record's columns, its key, and an end; between them stand bytes that no text has.
constexpr char AfterPart = '\xFB';
constexpr char Blank = '\xFC';
constexpr char AfterColumn = '\xFD';
constexpr char BeforeKey = '\xFE';
constexpr char AfterEntry = '\xFF';

std::string wordOf(const Cell& cell) {
    struct WordWriter {
        std::string operator()(Null) const { return "n"; }
        std::string operator()(std::int64_t whole) const { return "i" + std::to_string(whole); }
        std::string operator()(double number) const {
            char text[40];
            std::snprintf(text, sizeof text, "d%.17g", number);
            return text;
        }
        std::string operator()(const std::u16string& text) const { return "t" + toUtf8(text, HalfPairs::Kept); }
        std::string operator()(const Bytes& bytes) const {
            std::string text = "x";
            for (const std::uint8_t byte : bytes.bytes) {
                constexpr char Digits[] = "0123456789abcdef";
                text += Digits[byte >> 4U];
                text += Digits[byte & 15U];
            }
            return text;
        }
    };
    return std::visit(WordWriter{}, cell);
}

Cell cellOf(std::string_view word) {
    const std::string rest(word.substr(1));
    switch (word.front()) {
        case 'i': return static_cast<std::int64_t>(std::stoll(rest));
        case 'd': return std::stod(rest);
        case 't': return fromUtf8(rest, HalfPairs::Kept).value_or(u"");
        case 'x': {
            Bytes bytes;
            for (std::size_t i = 0; i + 1 < rest.size(); i += 2)
                bytes.bytes.push_back(static_cast<std::uint8_t>(std::stoi(rest.substr(i, 2), nullptr, 16)));
            return bytes;
        }
        default: return Null{};
    }
}

std::string wordsOf(const Cells& key) {
    std::string words;
    for (const Cell& cell : key) words += wordOf(cell) + AfterPart;
    return words;
}

Cells keyIn(std::string_view words) {
    Cells key;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(AfterPart), words.size());
        key.push_back(cellOf(words.substr(0, end)));
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return key;
}

/// A record of which nothing is known but its key, which is all that its place among the others wants.
Record recordOfKey(const Table& table, const Cells& key) {
    Record record;
    record.cells.resize(table.columns.size());
    for (std::size_t i = 0; i < key.size(); ++i) record.cells[table.key[i]] = key[i];
    return record;
}

}  // namespace

std::vector<std::u16string> textsOfColumns(const Record& record) {
    std::vector<std::u16string> texts;
    texts.reserve(record.cells.size());
    for (const Cell& cell : record.cells)
        if (!isNull(cell)) texts.push_back(textOf(cell));
    return texts;
}

SearchTexts::SearchTexts(RecordStore& store, TextsOf textsOf) : Store_(&store), TextsOf_(std::move(textsOf)) {
    beginAnew(store.version());
}

std::string SearchTexts::entryOfRecord(const Record& record) const {
    std::string entry;
    for (const std::u16string& text : TextsOf_(record)) {
        entry += toUtf8(searchKey(text), HalfPairs::Kept);
        entry += AfterColumn;
    }
    return entry + BeforeKey + wordsOf(keyOf(Store_->table(), record)) + AfterEntry;
}

void SearchTexts::beginAnew(const Version& version) {
    Version_ = version;
    // One that is there is written over: to give a large one back to the disk takes its time.
    if (!File_) File_.reset(std::tmpfile());
    IsWhole_ = false;
    Last_.reset();
    Written_ = End_ = RowsEnd_ = 0;
    Landmarks_.clear();
    Later_.clear();
    Pending_.clear();
    Spacing_ = FirstEntrySpacing;
    Frequency_ = {};
}

// ---- Writing

void SearchTexts::write(std::int64_t offset, std::string_view bytes) {
    if (std::fseek(File_.get(), static_cast<long>(offset), SEEK_SET) != 0 ||
        std::fwrite(bytes.data(), 1, bytes.size(), File_.get()) != bytes.size()) {
        // Nobody knows how much of it has come to the disk, and the others want the room.
        File_.reset();
        IsWhole_ = false;
        throw StoreError(StoreError::Kind::Full, "There is no room for the texts of the search.");
    }
}

void SearchTexts::append(const Record& record, std::vector<Landmark>& noted) {
    const std::string entry = entryOfRecord(record);
    for (const char each : entry) ++Frequency_[static_cast<unsigned char>(each)];
    write(End_, entry);
    if (&noted == &Later_ || Written_ % Spacing_ == 0) noted.push_back({End_, keyOf(Store_->table(), record)});
    End_ += static_cast<std::int64_t>(entry.size());
    ++Written_;
    if (thinned(Landmarks_, 0)) Spacing_ *= 2;
}

bool SearchTexts::writeOn() {
    const auto end = std::chrono::steady_clock::now() + Slice;
    while (!IsWhole_ && File_) {
        const std::vector<Record> some = Store_->walk(Last_ ? &*Last_ : nullptr, Way::Forward, RecordsAtOnce, {});
        for (const Record& record : some) append(record, Landmarks_);
        if (!some.empty()) Last_ = some.back();
        if (some.size() < static_cast<std::size_t>(RecordsAtOnce)) IsWhole_ = isWholeNow();
        if (std::chrono::steady_clock::now() > end) break;
    }
    return !IsWhole_ && File_;
}

bool SearchTexts::isWholeNow() {
    if (refresh()) return false;
    RowsEnd_ = End_;
    for (const Cells& key : Pending_) settle(key);
    Pending_.clear();
    return true;
}

// ---- What changes

bool SearchTexts::refresh() {
    const Version now = Store_->version();
    if (now == Version_) return false;
    beginAnew(now);
    return true;
}

void SearchTexts::changed(const Record* before, const Record* after) {
    const Version now = Store_->version();
    const bool isOnlyThis = now.others == Version_.others && now.own == Version_.own + 1;
    if (!isOnlyThis || Later_.size() + Pending_.size() > MostLater) return beginAnew(now);
    Version_ = now;
    for (const Record* const record : {before, after}) {
        if (record == nullptr ||
            (record == after && before != nullptr && keyOf(Store_->table(), *before) == keyOf(Store_->table(), *after)))
            continue;
        if (IsWhole_)
            settle(keyOf(Store_->table(), *record));
        else
            Pending_.push_back(keyOf(Store_->table(), *record));
    }
}

void SearchTexts::settle(const Cells& key) {
    blank(key);
    if (const auto now = Store_->read(key)) append(*now, Later_);
}

void SearchTexts::blank(const Cells& key) {
    const auto blankOut = [&](std::int64_t begin, std::int64_t end) {
        const std::size_t length = std::min(read(begin, end).find(BeforeKey), static_cast<std::size_t>(end - begin));
        write(begin, std::string(length, Blank));
        --Written_;
    };
    if (const auto entry = entryOf(key)) blankOut(entry->first, entry->second);
    for (std::size_t i = 0; i < Later_.size(); ++i)
        if (Later_[i].key == key) blankOut(Later_[i].offset, i + 1 < Later_.size() ? Later_[i + 1].offset : End_);
}

// ---- Finding

void SearchTexts::read(std::int64_t offset, std::span<char> bytes) const {
    if (std::fseek(File_.get(), static_cast<long>(offset), SEEK_SET) != 0 ||
        std::fread(bytes.data(), 1, bytes.size(), File_.get()) != bytes.size())
        throw StoreError(StoreError::Kind::Wrong, "The texts of the search cannot be read.");
}

std::string SearchTexts::read(std::int64_t begin, std::int64_t end) const {
    std::string bytes(static_cast<std::size_t>(end - begin), '\0');
    read(begin, std::span(bytes));
    return bytes;
}

std::size_t SearchTexts::landmarksUpTo(const Cells& key) const {
    const Record record = recordOfKey(Store_->table(), key);
    const auto behind = std::partition_point(Landmarks_.begin(), Landmarks_.end(), [&](const Landmark& landmark) {
        return !Store_->isBehind(landmark.key, record, {});
    });
    return static_cast<std::size_t>(behind - Landmarks_.begin());
}

std::optional<std::pair<std::int64_t, std::int64_t>> SearchTexts::entryOf(const Cells& key) const {
    const std::size_t behind = landmarksUpTo(key);
    if (behind == 0) return std::nullopt;
    const std::int64_t begin = Landmarks_[behind - 1].offset;
    const std::int64_t end = behind < Landmarks_.size() ? Landmarks_[behind].offset : RowsEnd_;
    const std::string entries = read(begin, end);
    const std::size_t found = entries.find(BeforeKey + wordsOf(key) + AfterEntry);
    if (found == std::string::npos) return std::nullopt;
    const std::size_t before = entries.rfind(AfterEntry, found);
    return std::pair(begin + (before == std::string::npos ? 0 : static_cast<std::int64_t>(before) + 1),
                     begin + static_cast<std::int64_t>(entries.find(AfterEntry, found)) + 1);
}

/// One that is new stands after its nearest neighbour that is not.
std::optional<std::pair<std::int64_t, std::int64_t>> SearchTexts::placeOf(Cells key) const {
    if (const auto entry = entryOf(key)) return entry;
    for (std::size_t i = 0; i <= MostLater; ++i) {
        const Record record = recordOfKey(Store_->table(), key);
        const std::vector<Record> neighbour = Store_->walk(&record, Way::Backward, 1, {});
        if (neighbour.empty()) return std::pair<std::int64_t, std::int64_t>(0, 0);
        key = keyOf(Store_->table(), neighbour.front());
        if (const auto entry = entryOf(key)) return std::pair(entry->second, entry->second);
    }
    return std::nullopt;
}

std::size_t SearchTexts::rarest(std::string_view sought, std::size_t but) const {
    std::size_t found = but == 0 && sought.size() > 1 ? 1 : 0;
    const auto frequency = [&](std::size_t i) { return Frequency_[static_cast<unsigned char>(sought[i])]; };
    for (std::size_t i = 0; i < sought.size(); ++i)
        if (i != but && frequency(i) < frequency(found)) found = i;
    return found;
}

/// Hands over where each hit is, and the words of its record's key; false when it was stopped.
template <class Each>
bool SearchTexts::forEachHit(std::string_view sought, const GoesOn& goesOn, Each each) const {
    // Most places are told apart by its two rarest bytes alone.
    const std::size_t rare = rarest(sought, sought.size());
    const std::size_t second = rarest(sought, rare);
    const auto search = [&](std::string_view entries, std::int64_t offset) {
        std::size_t from = rare;
        while (from < entries.size()) {
            const std::size_t at = entries.find(sought[rare], from);
            if (at == std::string_view::npos) return;
            from = at + 1;
            const std::size_t begin = at - rare;
            if (begin + sought.size() > entries.size()) return;
            if (entries[begin + second] != sought[second] || entries.compare(begin, sought.size(), sought) != 0)
                continue;
            const std::size_t end = entries.find(AfterEntry, at);
            const std::string_view rest = entries.substr(at, end - at);
            const std::size_t key = rest.find(BeforeKey);
            if (key != std::string_view::npos) each(offset + static_cast<std::int64_t>(at), rest.substr(key + 1));
            from = end + 1 + rare;  // one hit is enough
        }
    };
    std::string buffer(Chunk, '\0');
    std::int64_t offset = 0;
    std::size_t held = 0;  // in the buffer, from the offset on
    while (offset + static_cast<std::int64_t>(held) < End_) {
        if (held == buffer.size()) buffer.resize(2 * buffer.size());  // an entry is longer than all that
        const std::int64_t next = offset + static_cast<std::int64_t>(held);
        const auto more = std::min(buffer.size() - held, static_cast<std::size_t>(End_ - next));
        read(next, std::span(buffer).subspan(held, more));
        held += more;
        const std::string_view entries = std::string_view(buffer).substr(0, held);
        const std::size_t end = entries.rfind(AfterEntry) + 1;  // 0 where there is none
        search(entries.substr(0, end), offset);
        std::copy(buffer.begin() + static_cast<std::ptrdiff_t>(end), buffer.begin() + static_cast<std::ptrdiff_t>(held),
                  buffer.begin());
        held -= end;
        offset += static_cast<std::int64_t>(end);
        if (!goesOn()) return false;
    }
    return true;
}

std::optional<SearchTexts::Hits> SearchTexts::find(std::string_view sought, const Cells* from,
                                                   const GoesOn& goesOn) const {
    if (!IsWhole_ || sought.empty()) return std::nullopt;
    std::pair<std::int64_t, std::int64_t> around{0, 0};
    if (from != nullptr) {
        const auto place = placeOf(*from);
        if (!place) return std::nullopt;
        around = *place;
    }
    Hits hits;
    std::string first;
    std::string last;
    std::string before;
    std::string behind;
    const bool isWhole = forEachHit(sought, goesOn, [&](std::int64_t at, std::string_view key) {
        ++hits.count;
        if (hits.keys.size() < Few) hits.keys.push_back(keyIn(key));
        if (at >= RowsEnd_) return hits.later.push_back(keyIn(key));
        if (first.empty()) first = key;
        if (at < around.first) before = key;
        if (at >= around.second && behind.empty()) behind = key;
        last = key;
    });
    if (!isWhole) return std::nullopt;
    const auto keyOrNothing = [](const std::string& words) {
        return words.empty() ? std::nullopt : std::optional(keyIn(words));
    };
    hits.first = keyOrNothing(first);
    hits.last = keyOrNothing(last);
    hits.before = keyOrNothing(before);
    hits.behind = keyOrNothing(behind);
    return hits;
}

}  // namespace kel::records
