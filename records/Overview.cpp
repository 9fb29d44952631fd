#include "records/Overview.h"

#include <algorithm>

namespace kel::records {

namespace {

constexpr std::size_t MostOrders = 2;  ///< that of the form and that of the list

}  // namespace

Places& Overview::places(const Order& order) {
    const auto found = std::find_if(Places_.begin(), Places_.end(),
                                    [&](const std::unique_ptr<Places>& each) { return each->order() == order; });
    if (found != Places_.end()) {
        std::rotate(Places_.begin(), found, found + 1);
    } else {
        if (Places_.size() == MostOrders) Places_.pop_back();
        Places_.insert(Places_.begin(), std::make_unique<Places>(*Store_, order));
    }
    return *Places_.front();
}

void Overview::wantTexts() {
    if (!Texts_ || !Texts_->hasRoom()) Texts_ = std::make_shared<SearchTexts>(*Store_, TextsOf_);
}

bool Overview::lookOn() {
    for (const auto& each : Places_)
        if (!each->isWhole()) return each->lookOn() || Places_.size() > 1 || Texts_ != nullptr;
    return Texts_ != nullptr && Texts_->writeOn();
}

void Overview::changed(const Record* before, const Record* after) {
    try {
        for (const auto& each : Places_) each->changed(before, after);
        if (Texts_) Texts_->changed(before, after);
    } catch (const StoreError&) {
        // What was stored is stored, whether it can be found out just now where it stands or not.
        Places_.clear();
        Texts_.reset();
    }
}

bool Overview::refresh() {
    bool isAnew = false;
    for (const auto& each : Places_) isAnew = each->refresh() || isAnew;
    if (!Texts_ || !Texts_->refresh()) return isAnew;
    // Through a network all records are read for the next search, and not after each change of somebody's.
    if (!Store_->isNear()) Texts_.reset();
    return true;
}

}  // namespace kel::records
