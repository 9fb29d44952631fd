#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "records/Store.h"

namespace kel::records {

/// A text as it is looked for: without regard to case and accents. "Düren" is "duren", "Straße" is "strasse".
std::u16string searchKey(std::u16string_view text);

/// Looks for records in which some column has a text in it. A long search is interrupted often: `goesOn` is asked after
/// every few hundred records, and ends it with false.
class Finder {
public:
    using GoesOn = std::function<bool()>;

    Finder(RecordStore& store, std::u16string_view text, const Order& order)
        : Store_(&store), Sought_(searchKey(text)), Order_(order) {}

    bool isHit(const Record& record) const;

    /// The nearest hit behind `from`, or in front of it; from the end where it is nullptr. Nothing where there is none
    /// on that side, or where it was stopped.
    std::optional<Record> nearest(const Record* from, Way way, const GoesOn& goesOn) const;

    /// The same, and once around: where there is none on that side, the nearest from the other end.
    std::optional<Record> nearestAround(const Record* from, Way way, const GoesOn& goesOn) const;

    /// How many hits there are; nothing where it was stopped.
    std::optional<std::int64_t> count(const GoesOn& goesOn) const;

private:
    template <class Each>
    bool forEach(const Record* from, Way way, const GoesOn& goesOn, Each each) const;

    RecordStore* Store_;
    std::u16string Sought_;
    Order Order_;
};

}  // namespace kel::records
