#include "platform/win32/widgets/Win32Label.h"

#include <utility>

#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/drawing/CanvasText.h"

namespace kel::win32 {

Win32Label::~Win32Label() {
    Frame_.setLabel(nullptr);
    if (Window_ != nullptr) DestroyWindow(Window_);
}

void Win32Label::makeWindow(int controlHeight) {
    if (Window_ != nullptr || Label_.caption().empty() || Frame_.window() == nullptr) return;
    const RECT area = Frame_.grid().pixels(Label_.bounds());
    Window_ = CreateWindowExW(0, L"STATIC", wide(Label_.caption()).c_str(),
                              WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SS_OWNERDRAW, area.left, 0, widthOf(area),
                              controlHeight, Frame_.window(), nullptr, thisModule(), nullptr);
}

void Win32Label::place(int controlHeight) {
    if (Window_ == nullptr) {
        makeWindow(controlHeight);
        if (Window_ != nullptr) SetWindowPos(Window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return;
    }
    if (Label_.caption().empty()) {
        DestroyWindow(std::exchange(Window_, nullptr));
        return;
    }
    const RECT area = Frame_.grid().pixels(Label_.bounds());
    placeWindow(Window_, {area.left, 0, area.right, controlHeight});
    InvalidateRect(Window_, nullptr, FALSE);
}

void Win32Label::outOfDate() {
    const Changes changes = Label_.takeChanges();
    if (changes.has(Change::Font)) Font_.choose(Label_.font(), Frame_.grid());
    if (changes.has(Change::Caption) && Window_ != nullptr) SetWindowTextW(Window_, wide(Label_.caption()).c_str());
    paintAgain();
    if (changes.has(Change::Mnemonic)) Frame_.mnemonicChanged();
}

void Win32Label::draw(const Canvas& canvas, LONG bottom, int baseline, bool enabled) const {
    if (!Label_.isSeen()) return;
    const SavedContext saved(canvas.context());
    // The caption's own height is for the layout; its text may take that of the control.
    RECT area = canvas.area({Label_.bounds().left, 0, Label_.bounds().width, 0});
    area.bottom = bottom;
    canvas.clip(area);
    const CanvasText text(canvas, Font_);
    area.top = baseline - text.ascent();
    const COLORREF ink = enabled && Label_.enabled() ? colorOf(Label_.foreColor()) : GetSysColor(COLOR_GRAYTEXT);
    text.caption(area, Label_.caption(), ink, Label_.wraps(), true);
}

}  // namespace kel::win32
