#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kel {

/// Where a selection was begun and where its caret stands; equal when nothing is selected.
struct Selection {
    std::size_t anchor = 0;
    std::size_t caret = 0;

    std::size_t start() const { return anchor < caret ? anchor : caret; }
    std::size_t end() const { return anchor < caret ? caret : anchor; }
    std::size_t length() const { return end() - start(); }
    bool empty() const { return anchor == caret; }
    friend bool operator==(const Selection&, const Selection&) = default;
};

/// What an edit was made by. Edits of one kind that follow one another closely are undone together; a
/// `Single` stands alone.
enum class EditKind : std::uint8_t { Typing, Backspace, Delete, Single };

/// The edits of one box, to be taken back and done again by the box itself. A platform's own histories are not
/// used: each widget cuts the steps differently, and some know a single step only.
class EditHistory {
public:
    /// A replacement for the box to carry out.
    struct Replacement {
        std::size_t position = 0;
        std::size_t length = 0;
        std::u16string_view text;  ///< of this history, until it is changed again
        Selection after;
        bool changesText = false;
    };

    /// `removed` at `position` gives way to `inserted`; `before` is the selection as it was. Forgets what had
    /// been undone.
    void record(EditKind kind, std::size_t position, std::u16string_view removed, std::u16string_view inserted,
                const Selection& before);

    /// The next edit begins a step of its own.
    void endRun() { RunOpen_ = false; }

    void clear();

    bool canUndo() const { return Done_ > 0; }
    bool canRedo() const { return Done_ < Steps_.size(); }
    std::optional<Replacement> undo();
    std::optional<Replacement> redo();

private:
    struct Step {
        EditKind kind;
        std::size_t position;
        std::u16string removed;
        std::u16string inserted;
        Selection before;
    };

    static bool extend(Step& run, EditKind kind, std::size_t position, std::u16string_view removed,
                       std::u16string_view inserted);

    std::vector<Step> Steps_;
    std::size_t Done_ = 0;  ///< steps not undone
    bool RunOpen_ = false;
};

}  // namespace kel
