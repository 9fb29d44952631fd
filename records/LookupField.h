#pragma once

#include <string>

#include "forms/Home.h"
#include "records/Lookup.h"

namespace kel::records {

/// A combo field whose list is another table's, and which stands for one of its records by that one's key. The list is
/// brought up to date before it opens; what is typed is looked for in the other table, too, where that has more records
/// than a list.
class LookupField {
public:
    /// The control outlives it.
    LookupField(PlacedControl& combo, Lookup lookup, const RegionalSettings& region);
    LookupField(const LookupField&) = delete;
    LookupField& operator=(const LookupField&) = delete;
    ~LookupField();

    /// Also a record that is not in the list; the empty key is none.
    void show(const std::u16string& key);
    /// A record by its key, or by its text as it stands in the list; false when there is none.
    bool take(const std::u16string& text);
    /// Of what stands in the field, taken as if it was left; empty for none.
    std::u16string key() const;
    /// The key now is the one that is stored.
    void markStored() { StoredKey_ = key(); }

    const Table& table() const { return Lookup_.table(); }
    std::u16string textOf(const std::u16string& key) const { return Lookup_.textOf(key); }
    /// Only of what is in the list, which needs no reading.
    std::optional<std::u16string> listedTextOf(const std::u16string& key) const {
        const auto place = Lookup_.find(key);
        return place ? std::optional(Lookup_.texts()[*place]) : std::nullopt;
    }

private:
    void fill();
    void refresh();
    bool addBeginningWith(std::u16string_view typed);

    PlacedControl& Combo_;
    const RegionalSettings& Region_;
    Lookup Lookup_;
    std::u16string StoredKey_;
};

}  // namespace kel::records
