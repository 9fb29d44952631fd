#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "records/SearchTexts.h"

namespace kel::records {

/// Looks for records that have a text in one of those by which they are found. A long search is interrupted often:
/// `goesOn` is asked after every few hundred records, and ends it with false.
class Finder {
public:
    using GoesOn = std::function<bool()>;

    /// By the `texts` of all records, where these are given and are up to date; nullptr is by the records themselves.
    Finder(RecordStore& store, std::u16string_view text, const Order& order,
           std::shared_ptr<const SearchTexts> texts = nullptr, TextsOf textsOf = textsOfColumns);

    bool isHit(const Record& record) const;

    /// The nearest hit after `from`, or before it; from the end where it is nullptr. Nothing where there is none
    /// on that side, or where it was stopped.
    std::optional<Record> nearest(const Record* from, Way way, const GoesOn& goesOn) const;

    struct Found {
        std::optional<Record> record;
        std::optional<std::int64_t> hits;  ///< in all records, where that is known already
    };
    /// The same, and once around: where there is none on that side, the nearest from the other end.
    Found nearestAround(const Record* from, Way way, const GoesOn& goesOn) const;

    /// How many hits there are; nothing where it was stopped.
    std::optional<std::int64_t> count(const GoesOn& goesOn) const;

private:
    template <class Each>
    bool forEach(const Record* from, Way way, const GoesOn& goesOn, Each each) const;

    /// By reading them, once around.
    std::optional<Record> byRecords(const Record* from, Way way, const GoesOn& goesOn) const;
    /// Nothing where it cannot be told by the texts alone.
    std::optional<Found> byTexts(const Record* from, Way way, const GoesOn& goesOn) const;
    std::optional<Record> nearestOf(const std::vector<Cells>& keys, const Record* from, Way way) const;

    RecordStore* Store_;
    std::shared_ptr<const SearchTexts> Texts_;
    TextsOf TextsOf_;
    std::u16string Sought_;
    Order Order_;
};

}  // namespace kel::records
