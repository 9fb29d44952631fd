#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/editing/EditAction.h"
#include "host/editing/EditHistory.h"

namespace kel {

/// A line of a text, as its reader sees it.
struct TextLine {
    std::size_t start = 0;
    std::size_t end = 0;   ///< where the caret goes at its end
    std::size_t next = 0;  ///< start of the line below
    bool isLast = false;
};

/// Where lines begin and end on the screen: a view may break them where the text does not.
class TextLines {
public:
    virtual TextLine lineAt(std::size_t position) const = 0;

protected:
    ~TextLines() = default;
};

/// The text of an edit box with its selection, its maximum length and its history. It knows of no widget and
/// tells nobody: every edit returns whether the text is another one than before. Neither the caret nor the
/// other end of the selection ever stands inside a surrogate pair or a line break.
class EditBuffer final : public TextLines {
public:
    explicit EditBuffer(bool multiLine) : MultiLine_(multiLine) {}

    bool multiLine() const { return MultiLine_; }
    const std::u16string& text() const { return Text_; }
    const Selection& selection() const { return Selection_; }
    std::u16string_view selectedText() const;
    /// From line break to line break.
    TextLine lineAt(std::size_t position) const override;

    // ---- By code

    /// Any length; the caret to 0, the history dropped.
    bool put(std::u16string_view text);
    /// Any length, in place of the selection.
    bool insert(std::u16string_view text);
    /// Drops the selection. Positions past an end are that end.
    void placeCaret(std::ptrdiff_t position);
    /// From the start of the selection; the caret at its end.
    void selectLength(std::ptrdiff_t length);

    /// 0: no limit. Binds `type`, `breakLine` and `paste`.
    std::size_t maximum() const { return Maximum_; }
    void setMaximum(std::size_t units) { Maximum_ = units; }

    /// A masked text gives away no words: it is passed over as one.
    void setMasked(bool masked) { Masked_ = masked; }

    // ---- By the user

    /// What is edited from now on is undone apart from what was.
    void beginStep() { History_.endRun(); }

    /// A move that stays in its line or goes by the order of the text; not one by lines.
    void move(EditAction motion, bool extend, const TextLines& view);
    /// Down, up when negative; as far as there are lines. The column is kept over lines that are shorter.
    void moveLines(std::ptrdiff_t lines, bool extend, const TextLines& view);
    void selectAll();
    /// With both ends where a caret can stand.
    void take(const Selection& selection) { select({snapped(selection.anchor), snapped(selection.caret)}); }

    /// Types, breaks a line, erases, undoes or redoes; `character` is what is typed. Erasing removes the selection
    /// where there is one.
    bool edit(EditAction action, char32_t character);
    /// What of a text from elsewhere can stand here: one line of it in a single-line box.
    std::u16string pasted(std::u16string_view text) const;
    /// As much of a text that can stand here as there is room for.
    bool paste(std::u16string_view text);
    bool canUndo() const { return History_.canUndo(); }
    bool canRedo() const { return History_.canRedo(); }

private:
    std::size_t destination(EditAction motion, const TextLines& view) const;
    std::size_t wordLeft() const;
    std::size_t wordRight() const;
    std::size_t columnIn(const TextLine& line, std::size_t position) const;
    std::size_t atColumn(const TextLine& line, std::size_t column) const;
    std::size_t snapped(std::size_t position) const;
    /// Units that may come in place of the selection.
    std::size_t room() const;
    std::u16string_view fitting(std::u16string_view text) const;
    void moveCaret(std::size_t position, bool extend);
    void select(const Selection& selection);
    bool type(char32_t character);
    bool erase(EditKind kind, std::size_t reach);
    bool replace(EditKind kind, std::size_t from, std::size_t to, std::u16string_view inserted);
    bool replaceSelection(EditKind kind, std::u16string_view inserted);
    bool carryOut(const std::optional<EditHistory::Replacement>& replacement);

    static constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);

    std::u16string Text_;
    Selection Selection_;
    EditHistory History_;
    std::size_t Maximum_ = 0;
    std::size_t Column_ = NoColumn;  ///< that moves by line keep, while nothing else moves the caret
    bool MultiLine_;
    bool Masked_ = false;
};

}  // namespace kel
