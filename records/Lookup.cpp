#include "records/Lookup.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

#include "records/Finder.h"
#include "values/Coercion.h"

namespace kel::records {

namespace {

constexpr std::size_t KeyPlace = 0;
constexpr std::size_t TextPlace = 1;
constexpr std::int32_t FewAlike = 100;  ///< texts that differ in case, or in what follows

int rankAsText(const Column& column) { return (column.unique ? 2 : 0) + (column.notNull ? 1 : 0); }

std::optional<std::size_t> textColumnOf(const Table& table) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].type != ColumnType::Text || table.isKey(i) || table.columns[i].reference) continue;
        if (!best || rankAsText(table.columns[i]) > rankAsText(table.columns[*best])) best = i;
    }
    // A table of codes may have nothing but them.
    if (!best && table.columns[table.key.front()].type == ColumnType::Text) best = table.key.front();
    return best;
}

/// On one line; a blank at an end would not be seen.
std::u16string lineOf(const Cell& cell) {
    std::u16string text = textOf(cell);
    std::replace_if(
        text.begin(), text.end(), [](char16_t unit) { return unit < u' '; }, u' ');
    const std::size_t begin = std::min(text.find_first_not_of(u' '), text.size());
    return text.substr(begin, text.find_last_not_of(u' ') + 1 - begin);
}

/// As the column has it; nothing where it can have no such value.
std::optional<Cell> keyCell(const Column& column, const std::u16string& key) {
    if (column.type != ColumnType::Integer) return key;
    double number = 0;
    if (!readPlainNumber(key, defaultRegion(), number) || std::abs(number) > LargestExactWhole) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

std::u16string withKey(const std::u16string& text, const std::u16string& key) {
    return text + (text.empty() ? u"(" : u" (") + key + u')';
}

struct Item {
    std::u16string sorted;  ///< without case and accents
    std::u16string text;
    std::u16string key;
};

/// In order. Records of the same text, or of none, are told apart by their keys.
std::vector<Item> itemsOf(const std::vector<Record>& rows) {
    std::vector<Item> items;
    std::unordered_map<std::u16string, int> counts;
    for (const Record& row : rows) {
        std::u16string text = lineOf(row.cells[TextPlace]);
        ++counts[text];
        items.push_back({searchKey(text), std::move(text), textOf(row.cells[KeyPlace])});
    }
    const auto isClear = [&](const std::u16string& text) { return !text.empty() && counts[text] == 1; };
    std::unordered_set<std::u16string> taken;
    for (const Item& item : items)
        if (isClear(item.text)) taken.insert(item.text);
    for (Item& item : items) {
        if (isClear(item.text)) continue;
        do item.text = withKey(item.text, item.key);
        while (!taken.insert(item.text).second);
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const Item& left, const Item& right) { return left.sorted < right.sorted; });
    return items;
}

}  // namespace

std::optional<Table> lookupTable(Store& store, const Column& column) {
    if (!column.reference) return std::nullopt;
    const std::optional<Table> there = store.table(column.reference->table);
    if (!there || there->key.size() != 1) return std::nullopt;
    const Column& key = there->columns[there->key.front()];
    if (!column.reference->column.empty() && !isSameName(column.reference->column, key.name)) return std::nullopt;
    const std::optional<std::size_t> text = textColumnOf(*there);
    if (!text) return std::nullopt;
    Table table;
    table.name = there->name;
    table.columns = {key, there->columns[*text]};
    table.key = {KeyPlace};
    return table;
}

Lookup::Lookup(Store& store, const Table& table) : Records_(store.open(table)) { refresh(); }

std::vector<Record> Lookup::rowsAround(const std::u16string& key) {
    constexpr Order ByText{TextPlace, false};
    const std::optional<Cell> cell = key.empty() ? std::nullopt : keyCell(Records_->table().columns[KeyPlace], key);
    const std::optional<Record> middle = cell && IsPart_ ? Records_->read({*cell}) : std::nullopt;
    std::vector<Record> rows;
    if (middle) {
        rows = Records_->walk(&*middle, Way::Backward, MostRows / 2, ByText);
        std::reverse(rows.begin(), rows.end());
        rows.push_back(*middle);
    }
    IsFromFirst_ = !middle;
    const auto missing = MostRows - static_cast<std::int32_t>(rows.size());
    std::vector<Record> more = Records_->walk(middle ? &*middle : nullptr, Way::Forward, missing, ByText);
    if (!middle) IsPart_ = more.size() == static_cast<std::size_t>(MostRows);
    rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    return rows;
}

bool Lookup::refresh(const std::u16string& key) {
    // To read so much anew may take a while, and a person waits for the list.
    if (IsPart_ && (key.empty() ? IsFromFirst_ : find(key) && !isAdded(key))) return false;
    std::vector<Record> rows = rowsAround(key);
    Others_.clear();
    if (rows == Rows_ && !Places_.empty()) return false;
    Rows_ = std::move(rows);
    std::vector<Item> items = itemsOf(Rows_);
    Texts_.clear();
    Keys_.clear();
    Places_.clear();
    HasAdded_ = false;
    for (Item& item : items) {
        Places_.emplace(item.key, Texts_.size());
        Texts_.push_back(std::move(item.text));
        Keys_.push_back(std::move(item.key));
    }
    return true;
}

std::optional<std::size_t> Lookup::find(const std::u16string& key) const {
    const auto place = Places_.find(key);
    return place == Places_.end() ? std::nullopt : std::optional(place->second);
}

const std::optional<std::u16string>& Lookup::other(const std::u16string& key) const {
    if (const auto known = Others_.find(key); known != Others_.end()) return known->second;
    const std::optional<Cell> cell = keyCell(Records_->table().columns[KeyPlace], key);
    // Only what could be read is known from now on.
    const std::optional<Record> row = cell ? Records_->read({*cell}) : std::nullopt;
    return Others_.emplace(key, row ? std::optional(lineOf(row->cells[TextPlace])) : std::nullopt).first->second;
}

std::u16string Lookup::textOf(const std::u16string& key) const {
    if (key.empty()) return {};
    if (const auto place = find(key)) return Texts_[*place];
    // Another record may have the same text.
    return withKey(other(key).value_or(u""), key);
}

bool Lookup::addBeginningWith(const std::u16string& text) {
    if (!IsPart_ || text.empty()) return false;
    const std::vector<Record> found = Records_->startingWith(TextPlace, text, 1);
    if (found.empty() || find(records::textOf(found.front().cells[KeyPlace]))) return false;
    add(records::textOf(found.front().cells[KeyPlace]));
    return true;
}

std::optional<std::u16string> Lookup::keyOfText(const std::u16string& text) const {
    std::optional<std::u16string> key;
    if (!IsPart_) return key;
    for (const Record& record : Records_->startingWith(TextPlace, text, FewAlike)) {
        if (records::textOf(record.cells[TextPlace]) != text) continue;
        if (key) return std::nullopt;
        key = records::textOf(record.cells[KeyPlace]);
    }
    return key;
}

void Lookup::add(const std::u16string& key) {
    if (key.empty() || find(key)) return;
    if (HasAdded_) {
        Places_.erase(Keys_.back());
        Keys_.pop_back();
        Texts_.pop_back();
    }
    HasAdded_ = true;
    Texts_.push_back(textOf(key));
    Keys_.push_back(key);
    Places_.emplace(key, Keys_.size() - 1);
}

}  // namespace kel::records
