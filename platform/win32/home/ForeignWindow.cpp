#include "platform/win32/home/ForeignWindow.h"

#include <algorithm>

#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

namespace {

const WindowClass& panelClass() {
    static const WindowClass Class(L"KelControls8.Panel");
    return Class;
}

struct WindowKind {
    const wchar_t* className;
    DWORD style;
};

WindowKind kindOf(const ForeignBlock& block) {
    switch (block.kind) {
        case ForeignBlock::Kind::Label: return {L"STATIC", SS_LEFT};
        case ForeignBlock::Kind::Button: return {L"BUTTON", BS_PUSHBUTTON};
        case ForeignBlock::Kind::Panel: return {panelClass().name(), 0};
        case ForeignBlock::Kind::Line:
            return {L"STATIC", static_cast<DWORD>(block.placement.bounds.height == 0 ? SS_ETCHEDHORZ : SS_ETCHEDVERT)};
        case ForeignBlock::Kind::Other: break;
    }
    return {L"STATIC", SS_CENTER | SS_CENTERIMAGE | SS_NOPREFIX | WS_BORDER};
}

HWND makeWindow(const WindowKind& kind, const std::u16string& text, const RECT& place, HWND parent) {
    return CreateWindowExW(0, kind.className, wide(text).c_str(), WS_CHILD | WS_CLIPSIBLINGS | kind.style, place.left,
                           place.top, widthOf(place), heightOf(place), parent, nullptr, thisModule(), nullptr);
}

}  // namespace

ForeignWindow::ForeignWindow(ForeignBlock block, const TwipGrid& grid, HWND parent) : Block_(std::move(block)) {
    const RECT place = placeIn(grid);
    WindowKind kind = kindOf(Block_);
    if (Block_.placement.visible) kind.style |= WS_VISIBLE;
    Window_ =
        makeWindow(kind, Block_.kind == ForeignBlock::Kind::Other ? Block_.className : Block_.caption, place, parent);
    // The panel paints behind its frame too, which has nothing inside.
    if (Block_.kind == ForeignBlock::Kind::Panel)
        Frame_ = makeWindow({L"BUTTON", BS_GROUPBOX | WS_VISIBLE}, Block_.caption,
                            {0, 0, widthOf(place), heightOf(place)}, Window_);
}

/// A line is never thinner than it shows.
RECT ForeignWindow::placeIn(const TwipGrid& grid) const {
    RECT place = grid.pixels(Block_.placement.bounds);
    if (Block_.kind != ForeignBlock::Kind::Line) return place;
    constexpr int Thickness = 2;
    place.right = std::max<LONG>(place.right, place.left + Thickness);
    place.bottom = std::max<LONG>(place.bottom, place.top + Thickness);
    return place;
}

void ForeignWindow::place(const TwipGrid& grid) {
    const RECT place = placeIn(grid);
    MoveWindow(Window_, place.left, place.top, widthOf(place), heightOf(place), TRUE);
    if (Frame_ != nullptr) MoveWindow(Frame_, 0, 0, widthOf(place), heightOf(place), TRUE);
}

void ForeignWindow::setFont(HFONT font) {
    SendMessageW(Frame_ != nullptr ? Frame_ : Window_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void ForeignWindow::sendFrameBack() {
    if (Frame_ != nullptr) SetWindowPos(Frame_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace kel::win32
