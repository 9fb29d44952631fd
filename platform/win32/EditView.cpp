#include "platform/win32/EditView.h"

#include <algorithm>

#include "host/editing/TextDifference.h"
#include "platform/win32/Look.h"
#include "platform/win32/WideText.h"

namespace kel::win32 {

namespace {

constexpr WPARAM NoLimit = 0x7FFFFFFE;
constexpr DWORD LineStyle = ES_AUTOHSCROLL;
constexpr DWORD LinesStyle = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL;

const WindowClass& editClass() {
    static const WindowClass Class(L"KelControls8.Edit", L"EDIT");
    return Class;
}

class ChangingScope {
public:
    explicit ChangingScope(bool& changing) : Changing_(changing), Before_(std::exchange(changing, true)) {}
    ~ChangingScope() { Changing_ = Before_; }
    ChangingScope(const ChangingScope&) = delete;
    ChangingScope& operator=(const ChangingScope&) = delete;

private:
    bool& Changing_;
    bool Before_;
};

/// Units at `at` that the window shows as they are; 0 when it cannot.
std::size_t displayableUnits(std::u16string_view text, std::size_t at, bool multiLine) {
    switch (text[at]) {
        case u'\0':
        case u'\n': return 0;
        case u'\r': return multiLine && at + 1 < text.size() && text[at + 1] == u'\n' ? 2 : 0;
        default: return 1;
    }
}

}  // namespace

bool isDisplayable(std::u16string_view text, bool multiLine) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t units = displayableUnits(text, at, multiLine);
        if (units == 0) return false;
        at += units;
    }
    return true;
}

std::u16string displayed(std::u16string_view text, bool multiLine) {
    std::u16string shown(text);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t units = displayableUnits(text, at, multiLine);
        if (units == 0) shown[at] = u' ';
        at += std::max<std::size_t>(units, 1);
    }
    return shown;
}

void EditView::showNothingYet() {
    Shown_.clear();
    ShownSelection_ = {};
}

void EditView::create(HWND parent, const RECT& place, WindowHandler& handler) {
    showNothingYet();
    Base_ = editClass().baseProcedure();
    const ChangingScope changing(Changing_);
    CreateWindowExW(WS_EX_CLIENTEDGE, editClass().name(), L"",
                    WS_CHILD | WS_TABSTOP | (MultiLine_ ? LinesStyle : LineStyle), place.left, place.top,
                    widthOf(place), heightOf(place), parent, nullptr, thisModule(), &handler);
    if (Window_ != nullptr) base(EM_SETLIMITTEXT, NoLimit);
}

void EditView::attach(HWND edit, WindowHandler& handler) {
    showNothingYet();
    Window_ = edit;
    Base_ = putInFront(edit, handler);
    base(EM_SETLIMITTEXT, NoLimit);
}

void EditView::destroy() {
    if (Window_ != nullptr) DestroyWindow(std::exchange(Window_, nullptr));
}

LRESULT EditView::base(UINT message, WPARAM wide, LPARAM data) const {
    return CallWindowProcW(Base_, Window_, message, wide, data);
}

void EditView::show(const EditBuffer& buffer) {
    if (Window_ == nullptr || Changing_) return;
    const ChangingScope changing(Changing_);
    if (isDisplayable(buffer.text(), MultiLine_))
        showText(buffer.text(), buffer);
    else
        showText(displayed(buffer.text(), MultiLine_), buffer);
    showSelection(buffer.selection());
}

/// Replaces no more than what differs, so that the window has little to paint.
void EditView::showText(std::u16string_view text, const EditBuffer& buffer) {
    if (text == Shown_) return;
    TextDifference change = differenceOf(Shown_, text, buffer.selection().end());
    // The window must not see a line break come in two pieces.
    if (MultiLine_ && change.start > 0 && text[change.start - 1] == u'\r') --change.start;
    replace(change.start, change.end, text.substr(change.start, change.newEnd - change.start), buffer.canUndo());
}

void EditView::replace(std::size_t from, std::size_t to, std::u16string_view text, bool undoable) {
    const Selection replaced{from, to};
    const bool jumps = replaced != ShownSelection_ && IsWindowVisible(Window_) != FALSE;
    if (jumps) base(WM_SETREDRAW, FALSE);
    if (replaced != ShownSelection_) base(EM_SETSEL, from, static_cast<LPARAM>(to));
    const std::wstring inserted = wide(text);
    base(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(inserted.c_str()));
    // The window's own history only tells its menu whether there is anything to undo.
    if (!undoable) base(EM_EMPTYUNDOBUFFER);
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

Selection EditView::selection() const {
    DWORD start = 0;
    DWORD end = 0;
    base(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {start, end};
}

std::u16string EditView::windowText() const {
    std::wstring text(static_cast<std::size_t>(base(WM_GETTEXTLENGTH)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(base(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return unwiden(text);
}

TextChange EditView::takeForeignChange() {
    std::u16string text = windowText();
    if (text == Shown_) return {};
    const Selection now = selection();
    const TextDifference change = differenceOf(Shown_, text, now.end());
    Shown_ = std::move(text);
    ShownSelection_ = now;
    return {change.start, change.end - change.start, Shown_.substr(change.start, change.newEnd - change.start)};
}

POINT EditView::showPosition(std::size_t position) {
    const ChangingScope changing(Changing_);
    showSelection({position, position});
    POINT place{};
    GetCaretPos(&place);
    return place;
}

std::size_t EditView::lineStart(std::size_t position) const {
    const LRESULT line = base(EM_LINEFROMCHAR, position);
    return static_cast<std::size_t>(std::max<LRESULT>(base(EM_LINEINDEX, static_cast<WPARAM>(line)), 0));
}

std::size_t EditView::nextLineStart(std::size_t position) const {
    const LRESULT line = base(EM_LINEFROMCHAR, position);
    return static_cast<std::size_t>(std::max<LRESULT>(base(EM_LINEINDEX, static_cast<WPARAM>(line + 1)), 0));
}

int EditView::textTop() const {
    RECT area{};
    base(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    return static_cast<int>(area.top);
}

}  // namespace kel::win32
