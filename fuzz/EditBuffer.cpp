#include "host/editing/EditBuffer.h"

#include "fuzz/Fuzz.h"
#include "host/editing/TextDifference.h"
#include "values/Text.h"

namespace kel::fuzz {
namespace {

/// The letters that stand for actions; all other characters are typed.
constexpr struct {
    char16_t letter;
    EditAction action;
} Letters[] = {
    {u'<', EditAction::Left},
    {u'>', EditAction::Right},
    {u'(', EditAction::WordLeft},
    {u')', EditAction::WordRight},
    {u'{', EditAction::LineStart},
    {u'}', EditAction::LineEnd},
    {u'[', EditAction::TextStart},
    {u']', EditAction::TextEnd},
    {u'^', EditAction::LineUp},
    {u'_', EditAction::LineDown},
    {u'N', EditAction::PageDown},
    {u'A', EditAction::SelectAll},
    {u'\n', EditAction::BreakLine},
    {u'B', EditAction::EraseBack},
    {u'D', EditAction::EraseForward},
    {u'W', EditAction::EraseWordBack},
    {u'E', EditAction::EraseWordForward},
    {u'X', EditAction::Cut},
    {u'V', EditAction::Paste},
    {u'U', EditAction::Undo},
    {u'R', EditAction::Redo},
};

EditAction actionOf(char32_t character) {
    for (const auto& row : Letters)
        if (row.letter == character) return row.action;
    return EditAction::None;
}

class Editor {
public:
    Editor(bool multiLine, std::u16string_view text, std::size_t maximum) : Buffer_(multiLine) {
        Buffer_.put(text);
        Buffer_.setMaximum(maximum);
    }

    void play(std::u16string_view keys) {
        const std::u16string first = Buffer_.text();
        Longest_ = std::max(first.size(), Buffer_.maximum());
        for (; !keys.empty() && Steps_ < MostSteps; ++Steps_) {
            const std::u16string before = Buffer_.text();
            act(takeCodePoint(keys));
            checkPlace(before);
        }
        redoAll();
        const std::u16string last = Buffer_.text();
        while (Buffer_.canUndo()) step(EditAction::Undo);
        require(Buffer_.text() == first, "all that is undone leaves the first text", {first, last, Buffer_.text()});
        redoAll();
        require(Buffer_.text() == last, "all that is redone leaves the last text", {first, last, Buffer_.text()});
    }

private:
    static constexpr std::size_t MostSteps = 500;

    void act(char32_t character) {
        switch (const EditAction action = actionOf(character)) {
            case EditAction::None:
                if (character == U'#') {
                    Extends_ = !Extends_;
                } else if (character == U'|') {
                    Buffer_.beginStep();
                } else {
                    Buffer_.edit(EditAction::Type, character);
                }
                break;
            case EditAction::LineUp: Buffer_.moveLines(-1, Extends_, Buffer_); break;
            case EditAction::LineDown: Buffer_.moveLines(1, Extends_, Buffer_); break;
            case EditAction::PageDown: Buffer_.moveLines(10, Extends_, Buffer_); break;
            case EditAction::SelectAll: Buffer_.selectAll(); break;
            case EditAction::Cut:
                Clipboard_ = Buffer_.selectedText();
                Buffer_.edit(EditAction::EraseSelection, 0);
                break;
            case EditAction::Paste:
                if (Buffer_.text().size() < LongestPastedInto) Buffer_.paste(Buffer_.pasted(Clipboard_));
                break;
            default:
                if (moves(action))
                    Buffer_.move(action, Extends_, Buffer_);
                else
                    Buffer_.edit(action, 0);
        }
    }

    static constexpr std::size_t LongestPastedInto = 1 << 14;

    void checkPlace(const std::u16string& before) const {
        const std::u16string& text = Buffer_.text();
        for (const std::size_t place : {Buffer_.selection().anchor, Buffer_.selection().caret})
            require(place <= text.size() && !splitsPair(text, place), "the caret stands in the text, and in no pair",
                    {text});
        require(Buffer_.maximum() == 0 || text.size() <= Longest_, "no text grows over its maximum", {text});
        const TextDifference difference = differenceOf(before, text, Buffer_.selection().caret);
        std::u16string made = before;
        made.replace(difference.start, difference.end - difference.start, text, difference.start,
                     difference.newEnd - difference.start);
        require(made == text, "the difference of two texts makes one of the other", {before, text});
    }

    void step(EditAction undoOrRedo) {
        const std::u16string before = Buffer_.text();
        Buffer_.edit(undoOrRedo, 0);
        checkPlace(before);
    }

    void redoAll() {
        while (Buffer_.canRedo()) step(EditAction::Redo);
    }

    EditBuffer Buffer_;
    std::u16string Clipboard_ = u"a\r\nb\n\U0001F600";
    std::size_t Longest_ = 0;
    std::size_t Steps_ = 0;
    bool Extends_ = false;
};

}  // namespace
}  // namespace kel::fuzz

/// A maximum length or 0, then a line with the text that there is, its breaks as \, then what is done.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    const auto maximum = static_cast<std::size_t>(std::abs(lines.whole() % 1000));
    std::u16string text;
    for (const char16_t unit : lines.next()) text += unit == u'\\' ? u"\r\n" : std::u16string(1, unit);
    const std::u16string keys = lines.rest();
    for (const bool multiLine : {false, true}) Editor(multiLine, text, maximum).play(keys);
    return 0;
}
