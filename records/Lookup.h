#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "records/Store.h"

namespace kel::records {

/// Of the table that `column` points to, its key and the column that tells its records apart for a person: a text that
/// no two have in common, else one that none leaves out, else the first. Nothing where the column points to none, or
/// the table has no key of one column, or no text.
std::optional<Table> lookupTable(Store& store, const Column& column);

/// The records that a column may point to, as a list for a field: a text for each, no two alike, in the order of
/// letters without regard to case and accents; and their keys.
class Lookup {
public:
    /// As many as a combo field takes, and room for another one. Of a larger table those stand in the list that are
    /// around one by their texts, at first the first; of the others each is found by how its text begins.
    static constexpr std::int32_t MostRows = 32766;

    /// `table` as `lookupTable` gives it. Reads the list. Throws StoreError. The store outlives it.
    Lookup(Store& store, const Table& table);

    /// Reads the list again, of a larger table that around the record of this key, unless it is in the list; whether it
    /// is another one now. Throws StoreError.
    bool refresh(const std::u16string& key = {});

    /// Key and text.
    const Table& table() const { return Records_->table(); }
    const StringArray& texts() const { return Texts_; }
    const StringArray& keys() const { return Keys_; }
    /// Counted from 0.
    std::optional<std::size_t> find(const std::u16string& key) const;

    /// Whether the table has such a record.
    bool isThere(const std::u16string& key) const { return find(key) || other(key); }
    /// The text of a record, wherever it stands; the key alone where there is no such record. One that is not in the
    /// list is read, once until the list is.
    std::u16string textOf(const std::u16string& key) const;
    /// Puts a record at the end of the list that is not in it, in the place of the one before that was put there.
    void add(const std::u16string& key);
    /// Adds the first record whose text begins so. False when there is none that is not in the list. Throws StoreError.
    bool addBeginningWith(const std::u16string& text);
    /// The key of the only record whose text this is, wherever it stands. Throws StoreError.
    std::optional<std::u16string> keyOfText(const std::u16string& text) const;

private:
    std::vector<Record> rowsAround(const std::u16string& key);
    bool isAdded(const std::u16string& key) const { return HasAdded_ && Keys_.back() == key; }
    /// The text of a record that is not in the list; nothing where there is none.
    const std::optional<std::u16string>& other(const std::u16string& key) const;

    std::unique_ptr<RecordStore> Records_;
    std::vector<Record> Rows_;  ///< as they were read
    StringArray Texts_;
    StringArray Keys_;
    bool HasAdded_ = false;  ///< as the last
    bool IsPart_ = false;    ///< the table has more than are in the list
    bool IsFromFirst_ = true;
    std::unordered_map<std::u16string, std::size_t> Places_;  ///< by key
    /// Texts by key, of what is not in the list; nothing of what is not there at all.
    mutable std::unordered_map<std::u16string, std::optional<std::u16string>> Others_;
};

}  // namespace kel::records
