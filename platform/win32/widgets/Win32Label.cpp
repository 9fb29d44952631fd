#include "platform/win32/widgets/Win32Label.h"

#include "common/FieldLayout.h"
#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

Win32Label::~Win32Label() {
    Frame_.setLabel(nullptr);
    if (Window_ != nullptr) DestroyWindow(Window_);
}

void Win32Label::makeWindow(int controlHeight) {
    if (Window_ != nullptr) return;
    Window_ = CreateWindowExW(0, L"STATIC", wide(Label_.caption()).c_str(),
                              WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SS_OWNERDRAW, 0, 0, 0, 0, Frame_.window(),
                              nullptr, thisModule(), nullptr);
    place(controlHeight);
}

void Win32Label::place(int controlHeight) {
    if (Window_ == nullptr) return;
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

void Win32Label::draw(HDC context, const RECT& control, int baseline, bool enabled) const {
    const Rect bounds = Label_.bounds();
    if (Label_.caption().empty() || bounds.width <= 0) return;
    const SavedContext saved(context);
    RECT area = Frame_.grid().pixels(bounds);
    OffsetRect(&area, control.left, control.top);
    // The caption's own height is for the layout; its text may take that of the control.
    area.bottom = control.bottom;
    IntersectClipRect(context, area.left, control.top, area.right, area.bottom);

    SelectObject(context, Font_.handle());
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    area.top = control.top + baseline - metrics.tmAscent;
    SetTextColor(context, enabled && Label_.enabled() ? colorOf(Label_.foreColor()) : GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(context, TRANSPARENT);
    const bool severalLines = bounds.height > CaptionHeight;
    const UINT flags = DT_LEFT | DT_NOCLIP | (severalLines ? DT_WORDBREAK : DT_SINGLELINE) | readingOrder(context);
    const std::wstring text = wide(Label_.caption());
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area, flags);
}

}  // namespace kel::win32
