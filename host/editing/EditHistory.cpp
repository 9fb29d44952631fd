#include "host/editing/EditHistory.h"

namespace kel {

void EditHistory::record(EditKind kind, std::size_t position, std::u16string_view removed, std::u16string_view inserted,
                         const Selection& before) {
    Steps_.erase(Steps_.begin() + static_cast<std::ptrdiff_t>(Done_), Steps_.end());
    if (RunOpen_ && extend(Steps_.back(), kind, position, removed, inserted)) return;
    Steps_.push_back({kind, position, std::u16string(removed), std::u16string(inserted), before});
    Done_ = Steps_.size();
    RunOpen_ = true;
}

bool EditHistory::extend(Step& run, EditKind kind, std::size_t position, std::u16string_view removed,
                         std::u16string_view inserted) {
    if (kind != run.kind) return false;
    switch (kind) {
        case EditKind::Typing:
            if (!removed.empty() || position != run.position + run.inserted.size()) return false;
            run.inserted += inserted;
            return true;
        case EditKind::Backspace:
            if (position + removed.size() != run.position) return false;
            run.removed.insert(0, removed);
            run.position = position;
            return true;
        case EditKind::Delete:
            if (position != run.position) return false;
            run.removed += removed;
            return true;
        case EditKind::Single: break;
    }
    return false;
}

void EditHistory::clear() {
    Steps_.clear();
    Done_ = 0;
    RunOpen_ = false;
}

std::optional<EditHistory::Replacement> EditHistory::undo() {
    endRun();
    if (!canUndo()) return std::nullopt;
    const Step& step = Steps_[--Done_];
    return Replacement{step.position, step.inserted.size(), step.removed, step.before, step.removed != step.inserted};
}

std::optional<EditHistory::Replacement> EditHistory::redo() {
    endRun();
    if (!canRedo()) return std::nullopt;
    const Step& step = Steps_[Done_++];
    const std::size_t after = step.position + step.inserted.size();
    return Replacement{
        step.position, step.removed.size(), step.inserted, {after, after}, step.removed != step.inserted};
}

}  // namespace kel
