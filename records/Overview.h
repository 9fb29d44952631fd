#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "records/Places.h"
#include "records/SearchTexts.h"

namespace kel::records {

/// Records that are not sorted and searched in a moment without an index.
constexpr std::int64_t Many = 10'000;

/// What is known of a whole table: the places of its records in the orders that they are looked at, and the texts that
/// they are found by. It is found out while nobody waits.
class Overview {
public:
    /// The store outlives it.
    Overview(RecordStore& store, TextsOf textsOf) : Store_(&store), TextsOf_(std::move(textsOf)) {}

    /// The places in an order, which are kept until two others have been asked for.
    Places& places(const Order& order);
    /// Records are to be found by their texts, as soon as these are written.
    void wantTexts();
    /// nullptr while they are not wanted; on a server they are no more after somebody has changed something, but for
    /// whoever has them.
    std::shared_ptr<const SearchTexts> texts() const { return Texts_; }

    /// Goes on for a few milliseconds with what is missing. False when nothing is.
    bool lookOn();

    /// As `Places` are told.
    void changed(const Record* before, const Record* after);
    bool refresh();

private:
    RecordStore* Store_;
    TextsOf TextsOf_;
    std::vector<std::unique_ptr<Places>> Places_;  ///< the last that was asked for first
    std::shared_ptr<SearchTexts> Texts_;
};

}  // namespace kel::records
