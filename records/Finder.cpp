#include "records/Finder.h"

#include <algorithm>

#include "values/CaseFolding.h"
#include "values/Text.h"

namespace kel::records {

namespace {

/// As many as are read and looked through in a few milliseconds.
constexpr std::int32_t AtOnce = 500;

struct PlainLetter {
    char32_t letter;
    char32_t plain;
};

#include "records/PlainLetters.inc"

constexpr char32_t FirstAccented = 0xC0;
constexpr char32_t FirstMark = 0x300;
constexpr char32_t LastMark = 0x36F;

/// Letters that Unicode takes for letters of their own, and people for one with something added, or for two.
struct Spelling {
    char32_t letter;
    std::u16string_view plain;
};
constexpr Spelling Spellings[] = {{0xDF, u"ss"},   {0xE6, u"ae"},    {0xF0, u"d"},    {0xF8, u"o"},    {0xFE, u"th"},
                                  {0x111, u"d"},   {0x127, u"h"},    {0x131, u"i"},   {0x142, u"l"},   {0x153, u"oe"},
                                  {0x167, u"t"},   {0x1E9E, u"ss"},  {0x130, u"i"},   {0xFB00, u"ff"}, {0xFB01, u"fi"},
                                  {0xFB02, u"fl"}, {0xFB03, u"ffi"}, {0xFB04, u"ffl"}};

/// Letters and digits as wide as those of Chinese and Japanese, in the order of the usual ones.
constexpr char32_t FirstWide = 0xFF01;
constexpr char32_t LastWide = 0xFF5E;
constexpr char32_t FromWide = FirstWide - U'!';

char32_t plainLetter(char32_t folded) {
    if (folded < FirstAccented) return folded;
    if (folded >= FirstWide && folded <= LastWide) return folded - FromWide;
    const auto* const found =
        std::lower_bound(std::begin(PlainLetters), std::end(PlainLetters), folded,
                         [](const PlainLetter& row, char32_t letter) { return row.letter < letter; });
    return found != std::end(PlainLetters) && found->letter == folded ? found->plain : folded;
}

void appendPlain(std::u16string& key, char32_t folded) {
    if (folded >= FirstMark && folded <= LastMark) return;
    const auto* const spelled = std::find_if(std::begin(Spellings), std::end(Spellings),
                                             [&](const Spelling& row) { return row.letter == folded; });
    if (folded >= FirstAccented && spelled != std::end(Spellings))
        key += spelled->plain;
    else
        appendCodePoint(key, plainLetter(folded));
}

}  // namespace

std::u16string searchKey(std::u16string_view text) {
    std::u16string key;
    key.reserve(text.size());
    while (!text.empty()) appendPlain(key, foldCase(takeCodePoint(text)));
    return key;
}

Finder::Finder(RecordStore& store, std::u16string_view text, const Order& order,
               std::shared_ptr<const SearchTexts> texts, TextsOf textsOf)
    : Store_(&store), Texts_(std::move(texts)), TextsOf_(std::move(textsOf)), Sought_(searchKey(text)), Order_(order) {}

bool Finder::isHit(const Record& record) const {
    const std::vector<std::u16string> found = TextsOf_(record);
    return std::any_of(found.begin(), found.end(), [&](const std::u16string& text) {
        return searchKey(text).find(Sought_) != std::u16string::npos;
    });
}

/// Hands over each record until `each` says false; false when it was stopped.
template <class Each>
bool Finder::forEach(const Record* from, Way way, const GoesOn& goesOn, Each each) const {
    std::optional<Record> last;
    if (from != nullptr) last = *from;
    for (;;) {
        std::vector<Record> some = Store_->walk(last ? &*last : nullptr, way, AtOnce, Order_);
        for (Record& record : some)
            if (!each(record)) return true;
        if (some.size() < static_cast<std::size_t>(AtOnce)) return true;
        last = std::move(some.back());
        if (!goesOn()) return false;
    }
}

std::optional<Record> Finder::nearest(const Record* from, Way way, const GoesOn& goesOn) const {
    std::optional<Record> hit;
    forEach(from, way, goesOn, [&](Record& record) {
        if (isHit(record)) hit = record;
        return !hit;
    });
    return hit;
}

// ---- By the texts

std::optional<Record> Finder::nearestOf(const std::vector<Cells>& keys, const Record* from, Way way) const {
    const auto isFurther = [&](const Record& record, const Record& than) {
        const Cells key = keyOf(Store_->table(), record);
        if (way == Way::Forward) return Store_->isBehind(key, than, Order_);
        return key != keyOf(Store_->table(), than) && !Store_->isBehind(key, than, Order_);
    };
    std::optional<Record> nearest;
    for (const Cells& key : keys) {
        std::optional<Record> record = Store_->read(key);
        // What they are found by is in the texts, and may be in no list of a field any more.
        if (!record || (from != nullptr && !isFurther(*record, *from))) continue;
        if (!nearest || isFurther(*nearest, *record)) nearest = std::move(record);
    }
    return nearest;
}

std::optional<Finder::Found> Finder::byTexts(const Record* from, Way way, const GoesOn& goesOn) const {
    if (Texts_ == nullptr) return std::nullopt;
    const Cells key = from == nullptr ? Cells{} : keyOf(Store_->table(), *from);
    const auto hits = Texts_->find(toUtf8(Sought_, HalfPairs::Kept), from == nullptr ? nullptr : &key, goesOn);
    if (!hits) return std::nullopt;
    Found found{{}, hits->count};
    std::vector<Cells> keys = hits->keys;
    if (Order_.column || Order_.descending) {
        // Which of many is the nearest in another order, the records themselves tell: it is not far.
        if (keys.size() == SearchTexts::Few) return Found{byRecords(from, way, goesOn), hits->count};
    } else {
        keys = hits->later;
        for (const std::optional<Cells>* const each : {&hits->first, &hits->last, &hits->before, &hits->behind})
            if (*each) keys.push_back(**each);
    }
    found.record = nearestOf(keys, from, way);
    if (!found.record && from != nullptr) found.record = nearestOf(keys, nullptr, way);
    return found;
}

std::optional<Record> Finder::byRecords(const Record* from, Way way, const GoesOn& goesOn) const {
    std::optional<Record> hit = nearest(from, way, goesOn);
    return hit || from == nullptr || !goesOn() ? hit : nearest(nullptr, way, goesOn);
}

Finder::Found Finder::nearestAround(const Record* from, Way way, const GoesOn& goesOn) const {
    if (auto found = byTexts(from, way, goesOn)) return std::move(*found);
    return {byRecords(from, way, goesOn), std::nullopt};
}

std::optional<std::int64_t> Finder::count(const GoesOn& goesOn) const {
    std::int64_t hits = 0;
    const bool isWhole = forEach(nullptr, Way::Forward, goesOn, [&](const Record& record) {
        hits += isHit(record) ? 1 : 0;
        return true;
    });
    return isWhole ? std::optional(hits) : std::nullopt;
}

}  // namespace kel::records
