#include "platform/win32/widgets/EditView.h"

#include <algorithm>
#include <utility>

#include "host/DepthGuard.h"
#include "host/editing/TextDifference.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/WideText.h"
#include "values/TextBoundaries.h"

namespace kel::win32 {

namespace {

constexpr DWORD LineStyle = ES_AUTOHSCROLL;
constexpr DWORD LinesStyle = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL;

const WindowClass& editClass() {
    static const WindowClass Class(L"KelControls8.Edit", L"EDIT");
    return Class;
}

/// The number of which `half` is the lower half, and which is nearest to `other`.
std::size_t nearest(std::size_t other, WORD half) {
    const auto from = static_cast<std::ptrdiff_t>(other);
    const std::ptrdiff_t found = from + static_cast<std::int16_t>(half - static_cast<WORD>(other));
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(found, 0));
}

}  // namespace

/// The window counts lines and characters in sixteen bits here: those that are meant are near what it shows.
std::size_t positionAt(HWND edit, POINT place, const TextEntry& entry) {
    const LRESULT found = SendMessageW(edit, EM_CHARFROMPOS, 0, MAKELPARAM(place.x, place.y));
    // Of several lines the first one that is seen, else the first character.
    auto first = static_cast<std::size_t>(SendMessageW(edit, EM_GETFIRSTVISIBLELINE, 0, 0));
    if (entry.multiLine()) {
        const LRESULT start = SendMessageW(edit, EM_LINEINDEX, nearest(first, HIWORD(found)), 0);
        first = static_cast<std::size_t>(std::max<LRESULT>(start, 0));
    }
    return std::min(nearest(first, LOWORD(found)), entry.text().size());
}

std::u16string displayed(std::u16string_view text, bool multiLine) {
    std::u16string shown(text);
    for (std::size_t at = 0; at < shown.size(); ++at) {
        const char16_t unit = shown[at];
        if (multiLine && unit == u'\r' && at + 1 < shown.size() && shown[at + 1] == u'\n')
            ++at;
        else if (unit == u'\0' || unit == u'\r' || unit == u'\n')
            shown[at] = u' ';
    }
    return shown;
}

void EditView::create(HWND parent, const RECT& place, DWORD style, WindowHandler& handler) {
    Base_ = editClass().baseProcedure();
    const DepthGuard changing(Changing_);
    CreateWindowExW(WS_EX_CLIENTEDGE, editClass().name(), L"", style | (Entry_.multiLine() ? LinesStyle : LineStyle),
                    place.left, place.top, widthOf(place), heightOf(place), parent, nullptr, thisModule(), &handler);
    if (Window_ != nullptr) showNothingYet();
}

void EditView::attach(HWND edit, WindowHandler& handler) {
    Window_ = edit;
    Base_ = putInFront(edit, handler);
    showNothingYet();
}

void EditView::showNothingYet() {
    Shown_.clear();
    ShownSelection_ = {};
    base(EM_SETLIMITTEXT, NoLimit);
}

LRESULT EditView::base(UINT message, WPARAM wide, LPARAM data) const {
    return Window_ != nullptr ? CallWindowProcW(Base_, Window_, message, wide, data) : 0;
}

void EditView::show(bool textToo) {
    IsTextOld_ |= textToo;
    if (Window_ == nullptr || changing()) return;
    const DepthGuard changing(Changing_);
    if (std::exchange(IsTextOld_, false)) showText(displayed(Entry_.text(), Entry_.multiLine()));
    showSelection(Entry_.selection());
}

/// Replaces no more than what differs, so that the window has little to paint.
void EditView::showText(std::u16string_view text) {
    if (text == Shown_) return;
    TextDifference change = differenceOf(Shown_, text, Entry_.selection().end());
    // The window must not see a line break come in two pieces.
    if (Entry_.multiLine() && change.start > 0 && text[change.start - 1] == u'\r') --change.start;
    replace(change.start, change.end, text.substr(change.start, change.newEnd - change.start));
}

void EditView::replace(std::size_t from, std::size_t to, std::u16string_view text) {
    const Selection replaced{from, to};
    const bool jumps = replaced != ShownSelection_ && IsWindowVisible(Window_) != FALSE;
    if (jumps) base(WM_SETREDRAW, FALSE);
    if (replaced != ShownSelection_) base(EM_SETSEL, from, static_cast<LPARAM>(to));
    const std::wstring inserted = wide(text);
    base(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(inserted.c_str()));
    // The window's own history only tells its menu whether there is anything to undo.
    if (!Entry_.buffer().canUndo()) base(EM_EMPTYUNDOBUFFER);
    Shown_.replace(from, to - from, text);
    ShownSelection_ = {from + text.size(), from + text.size()};
    if (!jumps) return;
    base(WM_SETREDRAW, TRUE);
    InvalidateRect(Window_, nullptr, TRUE);
}

void EditView::showSelection(const Selection& selection) {
    if (selection == ShownSelection_) {
        base(EM_SCROLLCARET);
        return;
    }
    ShownSelection_ = selection;
    base(EM_SETSEL, selection.anchor, static_cast<LPARAM>(selection.caret));
    base(EM_SCROLLCARET);
}

Selection EditView::windowSelection() const {
    DWORD start = 0;
    DWORD end = 0;
    base(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {start, end};
}

/// The window's ends come in order: the one that stood before is where the selection was begun.
void EditView::readSelection() {
    if (Window_ == nullptr) return;
    Selection seen = windowSelection();
    if (!seen.empty() && Entry_.selection().anchor == seen.end()) seen = {seen.caret, seen.anchor};
    ShownSelection_ = seen;
    if (seen != Entry_.selection()) Entry_.select(seen);
}

std::u16string EditView::windowText() const {
    std::wstring text(static_cast<std::size_t>(base(WM_GETTEXTLENGTH)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(base(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return unwiden(text);
}

/// What comes of it is the box's to say.
void EditView::readText() {
    if (changing()) return;
    std::u16string text = windowText();
    if (text == Shown_) return;
    ShownSelection_ = windowSelection();
    const TextDifference change = differenceOf(Shown_, text, ShownSelection_.end());
    const std::u16string written = text.substr(change.start, change.newEnd - change.start);
    Shown_ = std::move(text);
    show(true);
    Entry_.write(change.start, change.end, written);
}

POINT EditView::showPosition(std::int32_t position) {
    const auto place = static_cast<std::size_t>(std::clamp(position, 0, Entry_.textLength()));
    const DepthGuard changing(Changing_);
    showSelection({place, place});
    POINT caret{};
    GetCaretPos(&caret);
    return caret;
}

std::size_t EditView::startOfLine(LRESULT line) const {
    return static_cast<std::size_t>(std::max<LRESULT>(base(EM_LINEINDEX, static_cast<WPARAM>(line)), 0));
}

TextLine EditView::lineAt(std::size_t position) const {
    TextLine line = Entry_.buffer().lineAt(position);
    if (Window_ == nullptr) return line;
    const LRESULT seen = base(EM_LINEFROMCHAR, position);
    const std::size_t next = startOfLine(seen + 1);
    line.start = std::max(line.start, startOfLine(seen));
    if (next <= position || next > line.end) return line;
    line.next = next;
    line.end = previousCharacter(Entry_.text(), next, true);
    line.isLast = false;
    return line;
}

POINT EditView::textCorner() const {
    RECT area{};
    base(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    return {area.left, area.top};
}

}  // namespace kel::win32
