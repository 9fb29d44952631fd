#include "platform/win32/ole/pages/DialogTemplate.h"

#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32::ole {

namespace {

constexpr std::size_t CountOfItems = 8;  ///< where it stands, in words
constexpr unsigned FontPoints = 8;

}  // namespace

DialogTemplate::DialogTemplate(short width, short height) {
    word(1);
    word(0xFFFF);  // the extended form
    doubleWord(0);
    doubleWord(WS_EX_CONTROLPARENT);
    doubleWord(WS_CHILD | WS_CLIPSIBLINGS | DS_CONTROL | DS_SHELLFONT);
    word(0);
    place({0, 0, width, height});
    text(L"");
    text(L"");
    text(L"");
    word(FontPoints);
    word(FW_NORMAL);
    word(static_cast<unsigned>(DEFAULT_CHARSET) << 8U);
    text(L"MS Shell Dlg");
}

void DialogTemplate::add(std::wstring_view windowClass, std::wstring_view shown, DWORD style, DialogBox box, DWORD id,
                         DWORD extendedStyle) {
    if (Words_.size() % 2 != 0) word(0);
    ++Words_[CountOfItems];
    doubleWord(0);
    doubleWord(extendedStyle);
    doubleWord(WS_CHILD | WS_VISIBLE | style);
    place(box);
    doubleWord(id);
    text(windowClass);
    text(shown);
    word(0);
}

HWND DialogTemplate::create(HWND parent, DLGPROC procedure, LPARAM argument) {
    const auto* const made = reinterpret_cast<const DLGTEMPLATE*>(Words_.data());
    return CreateDialogIndirectParamW(thisModule(), made, parent, procedure, argument);
}

void DialogTemplate::doubleWord(DWORD value) {
    word(value & 0xFFFFU);
    word(value >> 16U);
}

void DialogTemplate::place(const DialogBox& box) {
    for (const short side : {box.left, box.top, box.width, box.height}) word(static_cast<WORD>(side));
}

void DialogTemplate::text(std::wstring_view value) {
    Words_.insert(Words_.end(), value.begin(), value.end());
    word(0);
}

std::u16string textOf(HWND editor) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(editor)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(editor, text.data(), static_cast<int>(text.size()))));
    return unwiden(text);
}

}  // namespace kel::win32::ole
