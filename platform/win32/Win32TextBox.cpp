#include "platform/win32/Win32TextBox.h"

#include <algorithm>

#include "platform/win32/Clipboard.h"
#include "platform/win32/ControlWindow.h"
#include "platform/win32/WideText.h"
#include "values/TextBoundaries.h"

namespace kel::win32 {

namespace {

constexpr int EdgeWidth = 2;  ///< of the sunken edge, pixels
constexpr int TextGap = 1;    ///< between edge and text, pixels

}  // namespace

Win32TextBox::Win32TextBox(ControlFrame& frame, TextBoxListener& listener, bool multiLine)
    : EditedTextBox(listener, *this, multiLine, frame, multiLine), Input_(frame, *this, View_, Editor_) {
    frame.addField(*this);
}

Win32TextBox::~Win32TextBox() {
    frame().removeField(*this);
    View_.destroy();
}

// ---- The window

void Win32TextBox::makeWindow() {
    if (window() != nullptr) return;
    View_.create(frame().window(), pixels(), *this);
    if (window() == nullptr) return;
    SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font().handle()), FALSE);
    View_.base(EM_SETREADONLY, locked());
    showPasswordChar();
    View_.show(buffer());
    showState();
}

void Win32TextBox::placeChanged() {
    placeWindow(window());
    frame().captionChanged();
}

void Win32TextBox::fontChanged() {
    if (window() != nullptr) SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font().handle()), TRUE);
    frame().captionChanged();
}

void Win32TextBox::rescale() {
    rescaleFont();
    placeChanged();
}

void Win32TextBox::setLocked(bool locked) {
    if (locked == this->locked()) return;
    Editor_.setLocked(locked);
    if (window() != nullptr) View_.base(EM_SETREADONLY, locked);
    refresh();
}

void Win32TextBox::setPasswordChar(char32_t character) {
    if (character == passwordChar()) return;
    Editor_.setPasswordChar(character);
    showPasswordChar();
    refresh();
}

void Win32TextBox::showPasswordChar() {
    if (window() != nullptr && !buffer().multiLine()) View_.base(EM_SETPASSWORDCHAR, Editor_.mask());
}

void Win32TextBox::refresh() {
    if (window() != nullptr) InvalidateRect(window(), nullptr, TRUE);
    frame().viewChanged();
}

// ---- Around the buffer

void Win32TextBox::bufferChanged() {
    View_.show(buffer());
    frame().viewChanged();
}

std::u16string Win32TextBox::clipboardText() { return frame().clipboard().text(window()); }

void Win32TextBox::setClipboardText(std::u16string_view text) { frame().clipboard().setText(window(), text); }

/// The window breaks long lines at its edge.
TextLine Win32TextBox::lineAt(std::size_t position) const {
    const TextLine whole = buffer().lineAt(position);
    if (window() == nullptr) return whole;
    TextLine line = whole;
    line.start = std::max(line.start, View_.lineStart(position));
    const std::size_t next = View_.nextLineStart(position);
    if (next <= position || next > whole.end) return line;
    line.next = next;
    line.end = previousCharacter(buffer().text(), next, true);
    line.isLast = false;
    return line;
}

std::ptrdiff_t Win32TextBox::linesOfPage() const {
    return std::max(
        1, (heightOf(pixels()) - 2 * (EdgeWidth + TextGap)) / std::max(1, static_cast<int>(textMetrics().tmHeight)));
}

LRESULT Win32TextBox::notified(UINT notification, LPARAM /*details*/) {
    if (notification == EN_CHANGE) Input_.windowChanged();
    return 0;
}

LRESULT Win32TextBox::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (View_.window() == nullptr) View_.adopt(window);
    ControlWindowOwner& owner = frame().owner();
    owner.holdOpen();
    const LRESULT result = atEdge([&] { return Input_.handle(message, wide, data); });
    owner.letGo();
    return result;
}

// ---- Picture

int Win32TextBox::baseline() const {
    const int top = EdgeWidth + (window() != nullptr ? View_.textTop() : TextGap);
    return static_cast<int>(pixels().top) + top + static_cast<int>(textMetrics().tmAscent);
}

std::wstring Win32TextBox::drawnText() const {
    return Editor_.isPassword() ? std::wstring(buffer().text().size(), static_cast<wchar_t>(Editor_.mask()))
                                : wide(displayed(buffer().text(), buffer().multiLine()));
}

void Win32TextBox::draw(HDC context, POINT origin) const {
    const SavedContext saved(context);
    RECT area = pixels();
    OffsetRect(&area, origin.x, origin.y);
    if (area.right <= area.left || area.bottom <= area.top) return;
    FillRect(context, &area, colors(context));
    DrawEdge(context, &area, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    IntersectClipRect(context, area.left, area.top, area.right, area.bottom);
    InflateRect(&area, -TextGap, -TextGap);
    SelectObject(context, font().handle());
    SetBkMode(context, TRANSPARENT);
    const std::wstring text = drawnText();
    const UINT flags = DT_NOPREFIX | (buffer().multiLine() ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE);
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area, flags);
}

}  // namespace kel::win32
