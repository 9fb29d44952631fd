#include "platform/win32/home/ForeignWindows.h"

#include <algorithm>
#include <cstdlib>

#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

namespace {

struct SystemWindow {
    const wchar_t* className;
    DWORD style;
};

SystemWindow systemWindowFor(const ForeignBlock& block) {
    switch (block.kind) {
        case ForeignBlock::Kind::Label: return {L"STATIC", SS_LEFT};
        case ForeignBlock::Kind::Button: return {L"BUTTON", BS_PUSHBUTTON};
        case ForeignBlock::Kind::Line:
            return {L"STATIC", static_cast<DWORD>(block.line.height == 0 ? SS_ETCHEDHORZ : SS_ETCHEDVERT)};
        default: return {L"STATIC", SS_CENTER | SS_CENTERIMAGE | SS_NOPREFIX | WS_BORDER};
    }
}

HWND makeWindow(const wchar_t* className, DWORD style, const wchar_t* text, const RECT& place, HWND parent) {
    return CreateWindowExW(0, className, text, WS_CHILD | WS_CLIPSIBLINGS | style, place.left, place.top,
                           widthOf(place), heightOf(place), parent, nullptr, thisModule(), nullptr);
}

const WindowClass& panelClass() {
    static const WindowClass Class(L"KelControls8.Panel");
    return Class;
}

}  // namespace

/// A line may be drawn from either end; it is never thinner than it shows.
RECT foreignPlace(const ForeignBlock& block, const TwipGrid& grid) {
    if (block.kind != ForeignBlock::Kind::Line) return grid.pixels(block.placement.bounds);
    constexpr int Thickness = 2;
    const Rect& line = block.line;
    RECT place = grid.pixels({std::min(line.left, line.left + line.width), std::min(line.top, line.top + line.height),
                              std::abs(line.width), std::abs(line.height)});
    place.right = std::max<LONG>(place.right, place.left + Thickness);
    place.bottom = std::max<LONG>(place.bottom, place.top + Thickness);
    return place;
}

HWND makeForeignWindow(const ForeignBlock& block, const TwipGrid& grid, HWND parent) {
    const bool unknown = block.kind == ForeignBlock::Kind::Other;
    const SystemWindow description = systemWindowFor(block);
    const DWORD visible = block.placement.visible ? WS_VISIBLE : 0;
    return makeWindow(description.className, description.style | visible,
                      wide(unknown ? block.className : block.caption).c_str(), foreignPlace(block, grid), parent);
}

PanelWindows makePanel(const ForeignBlock& block, const TwipGrid& grid, HWND parent) {
    const DWORD visible = block.placement.visible ? WS_VISIBLE : 0;
    const RECT place = foreignPlace(block, grid);
    PanelWindows windows;
    // It paints behind its frame too, which has nothing inside.
    windows.panel = makeWindow(panelClass().name(), visible, L"", place, parent);
    windows.frame = makeWindow(L"BUTTON", BS_GROUPBOX | WS_VISIBLE, wide(block.caption).c_str(),
                               {0, 0, place.right - place.left, place.bottom - place.top}, windows.panel);
    return windows;
}

}  // namespace kel::win32
