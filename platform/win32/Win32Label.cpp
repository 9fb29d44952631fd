#include "platform/win32/Win32Label.h"

#include "common/FieldLayout.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowClass.h"

namespace kel::win32 {

char16_t mnemonicIn(std::u16string_view caption) {
    for (std::size_t at = caption.find(u'&'); at != caption.npos && at + 1 < caption.size();
         at = caption.find(u'&', at + 2))
        if (caption[at + 1] != u'&') return caption[at + 1];
    return 0;
}

Win32Label::~Win32Label() {
    frame().setLabel(nullptr);
    if (Window_ != nullptr) DestroyWindow(Window_);
}

void Win32Label::makeWindow(int controlHeight) {
    if (Window_ != nullptr) return;
    Window_ =
        CreateWindowExW(0, L"STATIC", wide(Caption_).c_str(), WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SS_OWNERDRAW, 0,
                        0, 0, 0, frame().window(), nullptr, thisModule(), nullptr);
    place(controlHeight);
}

void Win32Label::place(int controlHeight) {
    if (Window_ == nullptr) return;
    const RECT area = pixels();
    SetWindowPos(Window_, nullptr, area.left, 0, widthOf(area), controlHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    InvalidateRect(Window_, nullptr, FALSE);
}

void Win32Label::setCaption(std::u16string_view caption) {
    if (caption == Caption_) return;
    const char16_t before = mnemonic();
    Caption_.assign(caption);
    if (Window_ != nullptr) SetWindowTextW(Window_, wide(Caption_).c_str());
    refresh();
    if (mnemonic() != before) frame().mnemonicChanged();
}

void Win32Label::draw(HDC context, const RECT& control, int baseline, bool enabled) const {
    if (Caption_.empty() || bounds().width <= 0) return;
    const SavedContext saved(context);
    RECT area = pixels();
    OffsetRect(&area, control.left, control.top);
    // The caption's own height is for the layout; its text may take that of the control.
    area.bottom = control.bottom;
    IntersectClipRect(context, area.left, control.top, area.right, area.bottom);

    SelectObject(context, font().handle());
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    area.top = control.top + baseline - metrics.tmAscent;
    SetTextColor(context, enabled && this->enabled() ? colorOf(foreColor()) : GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(context, TRANSPARENT);
    const bool severalLines = bounds().height > CaptionHeight;
    const UINT flags = DT_LEFT | DT_NOCLIP | (severalLines ? DT_WORDBREAK : DT_SINGLELINE) | readingOrder(context);
    const std::wstring text = wide(Caption_);
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area, flags);
}

}  // namespace kel::win32
