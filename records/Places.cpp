#include "records/Places.h"

#include <algorithm>
#include <chrono>

#include "records/Landmarks.h"

namespace kel::records {

namespace {

constexpr std::int64_t FirstSpacing = 1000;
constexpr int MostInterrupted = 3;

}  // namespace

Places::Places(RecordStore& store, const Order& order) : Store_(&store), Order_(order) { beginAnew(store.version()); }

void Places::beginAnew(const Version& version) {
    Version_ = version;
    Landmarks_.clear();
    Spacing_ = FirstSpacing;
    Count_.reset();
}

// ---- Looking for them

bool Places::lookOn() {
    const auto end = std::chrono::steady_clock::now() + Slice;
    while (!Count_) {
        const Record* const last = Landmarks_.empty() ? nullptr : &Landmarks_.back().record;
        const std::int64_t place = last == nullptr ? 0 : Landmarks_.back().place;
        if (auto next = Store_->skip(last, Spacing_, Order_)) {
            remember(place + Spacing_, std::move(*next));
        } else {
            const std::int64_t count = (last == nullptr ? 0 : place + 1) + Store_->countBetween(last, nullptr, Order_);
            // Somebody may have come between. Where others store all the time, what was true while it was counted is
            // all that can be known.
            if (Interrupted_ < MostInterrupted && refresh()) {
                ++Interrupted_;
            } else {
                Count_ = count;
                Interrupted_ = 0;
            }
        }
        if (std::chrono::steady_clock::now() > end) break;
    }
    return !Count_;
}

void Places::finish() {
    while (lookOn()) {
    }
}

void Places::remember(std::int64_t place, Record record) {
    for (std::size_t i = 0; i < record.cells.size(); ++i)
        if (i != Order_.column && !Store_->table().isKey(i)) record.cells[i] = Null{};
    Landmarks_.push_back({place, std::move(record)});
    if (thinned(Landmarks_, 1)) Spacing_ *= 2;
}

// ---- What is known

std::size_t Places::landmarksUpTo(const Record& record) const {
    const auto found = std::partition_point(Landmarks_.begin(), Landmarks_.end(), [&](const Landmark& landmark) {
        return !Store_->isBehind(keyOf(Store_->table(), landmark.record), record, Order_);
    });
    return static_cast<std::size_t>(found - Landmarks_.begin());
}

std::optional<std::int64_t> Places::placeOf(const Record& record) const {
    const std::size_t before = landmarksUpTo(record);
    if (before == Landmarks_.size() && !isWhole()) return std::nullopt;
    if (before == 0) return Store_->countBetween(nullptr, &record, Order_);
    const Landmark& nearest = Landmarks_[before - 1];
    if (standsLike(nearest.record, record)) return nearest.place;
    return nearest.place + 1 + Store_->countBetween(&nearest.record, &record, Order_);
}

std::vector<Record> Places::rows(std::int64_t place, std::int32_t count) const {
    const std::int64_t end = Count_ ? *Count_ : Landmarks_.empty() ? Spacing_ : Landmarks_.back().place;
    if (place < 0 || place >= end || count <= 0) return {};
    const auto behind = std::partition_point(Landmarks_.begin(), Landmarks_.end(),
                                             [&](const Landmark& landmark) { return landmark.place < place; });
    const Landmark* const from = behind == Landmarks_.begin() ? nullptr : &*(behind - 1);
    std::optional<Record> first =
        Store_->skip(from == nullptr ? nullptr : &from->record, from == nullptr ? place : place - from->place, Order_);
    if (!first) return {};
    std::vector<Record> rows = Store_->walk(&*first, Way::Forward, count - 1, Order_);
    rows.insert(rows.begin(), std::move(*first));
    return rows;
}

// ---- What changes

bool Places::refresh() {
    const Version now = Store_->version();
    if (now == Version_) return false;
    beginAnew(now);
    return true;
}

bool Places::standsLike(const Record& left, const Record& right) const {
    const Table& table = Store_->table();
    return (!Order_.column || left.cells[*Order_.column] == right.cells[*Order_.column]) &&
           keyOf(table, left) == keyOf(table, right);
}

void Places::changed(const Record* before, const Record* after) {
    const Version now = Store_->version();
    const bool isOnlyThis = now.others == Version_.others && now.own == Version_.own + 1;
    if (!isOnlyThis || !isWhole()) return beginAnew(now);
    Version_ = now;
    if (before != nullptr && after != nullptr && standsLike(*before, *after)) return;
    if (before != nullptr) {
        std::erase_if(Landmarks_, [&](const Landmark& landmark) { return standsLike(landmark.record, *before); });
        shift(*before, -1);
    }
    if (after != nullptr) shift(*after, 1);
}

void Places::shift(const Record& record, std::int64_t by) {
    for (std::size_t i = landmarksUpTo(record); i < Landmarks_.size(); ++i) Landmarks_[i].place += by;
    *Count_ += by;
}

}  // namespace kel::records
