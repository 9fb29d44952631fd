#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "records/Store.h"

namespace kel::records {

/// Where the records stand in their row: which number a record has, which record has a number, how many there are.
/// Counting a million anew for each step would take too long; here every thousandth is known as a landmark, from which
/// the few up to the next are counted. They are looked for a little at a time, while nobody waits; the more records
/// there are, the farther apart they stand, so that they never take more memory. What is not known yet is not guessed.
class Places {
public:
    /// The store outlives it.
    Places(RecordStore& store, const Order& order);

    const Order& order() const { return Order_; }

    /// Looks for some more, for a few milliseconds. False when all is known.
    bool lookOn();
    /// Until all is known.
    void finish();
    bool isWhole() const { return Count_.has_value(); }

    /// Nothing until it is known.
    std::optional<std::int64_t> count() const { return Count_; }
    /// How many stand before it, where that is known.
    std::optional<std::int64_t> placeOf(const Record& record) const;
    /// At most `count` records from a place on, which counts from 0: those that are known.
    std::vector<Record> rows(std::int64_t place, std::int32_t count) const;

    /// One record was stored or deleted here: `before` and `after` are what it was and is, nullptr where it was not or
    /// is not any more.
    void changed(const Record* before, const Record* after);
    /// Begins anew where the table has changed in another way, and says whether it does.
    bool refresh();

private:
    struct Landmark {
        std::int64_t place = 0;
        Record record;  ///< its key and what it is put in a row by
    };

    void beginAnew(const Version& version);
    void remember(std::int64_t place, Record record);
    /// How many landmarks stand at the record or before it.
    std::size_t landmarksUpTo(const Record& record) const;
    bool standsLike(const Record& left, const Record& right) const;
    void shift(const Record& record, std::int64_t by);

    RecordStore* Store_;
    Order Order_;
    Version Version_;
    std::vector<Landmark> Landmarks_;
    std::int64_t Spacing_ = 0;
    std::optional<std::int64_t> Count_;
    int Interrupted_ = 0;  ///< how often somebody came between since all was known
};

}  // namespace kel::records
