#include "platform/win32/widgets/Win32TextEntry.h"

#include "platform/win32/base/WideText.h"
#include "platform/win32/control/ControlWindowOwner.h"
#include "platform/win32/drawing/CanvasText.h"

namespace kel::win32 {

// ---- The window

void Win32TextEntry::makeWindow() {
    if (wholeWindow() == nullptr && createWindow()) show(shownAnew());
}

/// What a window that has just been made shows otherwise by itself.
Changes Win32TextEntry::shownAnew() const {
    Changes changes = Change::Font | Change::ToolTip;
    changes |= ownChanges();
    if (Entry_.locked()) changes |= Change::Locked;
    if (Entry_.isPassword()) changes |= Change::Password;
    if (!Entry_.text().empty()) changes |= Change::Text;
    return changes;
}

DWORD Win32TextEntry::style() const {
    return WS_CHILD | WS_TABSTOP | (Entry_.visible() ? WS_VISIBLE : 0U) | (Entry_.enabled() ? 0U : WS_DISABLED);
}

void Win32TextEntry::destroy() {
    Frame_.remove(*this);
    if (wholeWindow() != nullptr) DestroyWindow(wholeWindow());
}

void Win32TextEntry::outOfDate() {
    const Changes changes = Entry_.takeChanges();
    if (changes.has(Change::Font)) Font_.choose(Entry_.font(), Frame_.grid());
    if (wholeWindow() != nullptr) show(changes);
    if (changes.has(Change::Colors | Change::Enabled | Change::Locked | Change::Password)) paintAgain();
    if (changes.has(Change::Font | Change::Place | Change::Visible))
        Frame_.captionChanged();
    else
        Frame_.viewChanged();
}

void Win32TextEntry::show(Changes changes) {
    HWND const whole = wholeWindow();
    if (changes.has(Change::Font))
        SendMessageW(whole, WM_SETFONT, reinterpret_cast<WPARAM>(Font_.handle()), IsWindowVisible(whole));
    if (changes.has(Change::Font | Change::Place)) showPlace();
    if (changes.has(Change::Locked)) View_.base(EM_SETREADONLY, Entry_.locked());
    if (changes.has(Change::Password) && !Entry_.multiLine()) View_.base(EM_SETPASSWORDCHAR, Entry_.mask());
    if (changes.has(Change::Text | Change::Selection)) View_.show(changes.has(Change::Text));
    showOwn(changes);
    if (changes.has(Change::Enabled)) EnableWindow(whole, Entry_.enabled());
    if (changes.has(Change::ToolTip)) showToolTip();
    if (changes.has(Change::Visible)) ShowWindow(whole, Entry_.visible() ? SW_SHOWNA : SW_HIDE);
}

void Win32TextEntry::showToolTip() {
    const std::wstring text = wide(Entry_.toolTip());
    Frame_.setToolTip(window(), text.c_str());
    if (wholeWindow() != window()) Frame_.setToolTip(wholeWindow(), text.c_str());
}

void Win32TextEntry::rescale() {
    Font_.rescale(Frame_.grid());
    if (wholeWindow() != nullptr) show(Change::Font);
    Frame_.captionChanged();
}

void Win32TextEntry::paintAgain() {
    if (wholeWindow() != nullptr)
        RedrawWindow(wholeWindow(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    Frame_.viewChanged();
}

LRESULT Win32TextEntry::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    return heldOpen(Frame_.owner(), [&] {
        const auto answered = has(window) ? Frame_.answerReader(window, message, wide, data) : std::nullopt;
        return answered ? *answered : handle(window, message, wide, data);
    });
}

// ---- Picture

HBRUSH Win32TextEntry::colors(HDC context) const {
    return setColors(context, Entry_, Entry_.enabled() && Frame_.enabled());
}

int Win32TextEntry::baseline(const Canvas& canvas) const {
    return static_cast<int>(canvas.area(Entry_.bounds()).top) + canvas.down(static_cast<int>(textCorner().y)) +
           CanvasText(canvas, Font_).ascent();
}

RECT Win32TextEntry::drawGround(const Canvas& canvas) const {
    const RECT area = canvas.area(Entry_.bounds());
    canvas.fill(area, colorOf(Entry_.backColor()));
    canvas.clip(area);
    return area;
}

void Win32TextEntry::drawText(const Canvas& canvas, RECT area) const {
    const RECT whole = canvas.area(Entry_.bounds());
    const POINT corner = textCorner();
    area.left = whole.left + canvas.across(static_cast<int>(corner.x));
    area.top = whole.top + canvas.down(static_cast<int>(corner.y));
    const CanvasText text(canvas, Font_);
    const std::wstring shown = wide(displayed(Entry_.shownText(), Entry_.multiLine()));
    const COLORREF ink = inkOf(Entry_, Entry_.enabled() && Frame_.enabled());
    if (Entry_.multiLine())
        text.lines(area, shown, ink);
    else
        text.line({area.left, area.top}, shown, ink);
}

}  // namespace kel::win32
