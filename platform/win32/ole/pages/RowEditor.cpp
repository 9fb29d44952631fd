#include "platform/win32/ole/pages/RowEditor.h"

#include "platform/win32/base/WideText.h"

namespace kel::win32::ole {

namespace {

constexpr short LineHeight = 13;
constexpr short SwitchHeight = 10;
constexpr short Gap = 3;
constexpr short LinesHeight = 37;
constexpr short ChoicesHeight = 73;
constexpr short NameWidth = 56;

std::wstring withMnemonic(std::u16string_view name, wchar_t mnemonic) {
    std::wstring text = wide(name);
    if (mnemonic != 0) text.insert(text.find(mnemonic), 1, L'&');
    return text;
}

}  // namespace

RowEditor::RowEditor(const MemberRow& row, const SelectedObjects& objects, DWORD id, wchar_t mnemonic)
    : Row_(row), Id_(id), Mnemonic_(mnemonic), Value_(objects.value(row)) {
    if (row.design.linesWhere.empty()) return;
    const MemberRow* const lines = findMember(objects.type().model, row.design.linesWhere);
    HasLines_ = lines != nullptr && objects.value(*lines) == Variant(true);
}

RowEditor::Kind RowEditor::kind() const {
    if (isSwitch()) return Kind::Switch;
    if (!Row_.design.choices.empty()) return Row_.type == TypeTag::String ? Kind::Choices : Kind::Names;
    return HasLines_ ? Kind::Lines : Kind::Line;
}

short RowEditor::height() const {
    switch (kind()) {
        case Kind::Switch: return SwitchHeight + Gap;
        case Kind::Choices: return ChoicesHeight + Gap;
        case Kind::Lines: return LinesHeight + Gap;
        case Kind::Names:
        case Kind::Line: break;
    }
    return LineHeight + Gap;
}

void RowEditor::layOut(DialogTemplate& dialog, short left, short top, short width) const {
    const std::wstring name = withMnemonic(Row_.name, Mnemonic_);
    if (isSwitch()) {
        dialog.add(L"BUTTON", name, WS_TABSTOP | BS_3STATE | BS_NOTIFY, {left, top, width, SwitchHeight}, Id_);
        return;
    }
    const auto right = static_cast<short>(left + NameWidth);
    const DialogBox box{right, top, static_cast<short>(width - NameWidth), static_cast<short>(height() - Gap)};
    dialog.add(L"STATIC", name, SS_LEFT, {left, static_cast<short>(top + 2), NameWidth, 9}, 0);
    constexpr DWORD Line = WS_TABSTOP | ES_AUTOHSCROLL;
    constexpr DWORD Lines = WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL;
    constexpr DWORD Choices = WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL;
    switch (kind()) {
        case Kind::Names:
            dialog.add(L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
                       {box.left, box.top, box.width, ChoicesHeight}, Id_);
            return;
        case Kind::Choices: dialog.add(L"COMBOBOX", L"", Choices | CBS_SIMPLE, box, Id_); return;
        case Kind::Lines: dialog.add(L"EDIT", L"", Lines, box, Id_, WS_EX_CLIENTEDGE); return;
        default: dialog.add(L"EDIT", L"", Line, box, Id_, WS_EX_CLIENTEDGE); return;
    }
}

void RowEditor::show(HWND page) const {
    HWND const editor = GetDlgItem(page, static_cast<int>(Id_));
    const std::optional<Variant>& value = current();
    if (kind() == Kind::Switch) {
        const WPARAM state = !value ? BST_INDETERMINATE : *value == Variant(true) ? BST_CHECKED : BST_UNCHECKED;
        SendMessageW(editor, BM_SETCHECK, state, 0);
        return;
    }
    if (SendMessageW(editor, CB_GETCOUNT, 0, 0) == 0)
        for (const std::u16string_view choice : Row_.design.choices)
            SendMessageW(editor, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(choice).c_str()));
    if (kind() == Kind::Names) {
        const auto* const number = value ? std::get_if<std::int32_t>(&*value) : nullptr;
        SendMessageW(editor, CB_SETCURSEL, static_cast<WPARAM>(number != nullptr ? *number : -1), 0);
        return;
    }
    SendMessageW(editor, EM_LIMITTEXT, 0, 0);
    SetWindowTextW(editor, wide(value ? shownText(*value) : std::u16string()).c_str());
}

void RowEditor::focus(HWND page) const {
    HWND const editor = GetDlgItem(page, static_cast<int>(Id_));
    SendMessageW(page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(editor), TRUE);
}

bool RowEditor::hears(HWND page, UINT code) {
    const Kind now = kind();
    const bool changes = now == Kind::Switch    ? code == BN_CLICKED
                         : now == Kind::Names   ? code == CBN_SELCHANGE
                         : now == Kind::Choices ? code == CBN_EDITCHANGE || code == CBN_SELCHANGE
                                                : code == EN_CHANGE;
    if (changes) Typed_ = read(page, code);
    return changes;
}

Variant RowEditor::read(HWND page, UINT code) const {
    HWND const editor = GetDlgItem(page, static_cast<int>(Id_));
    if (kind() == Kind::Switch) {
        // What the objects differ in becomes one thing or the other.
        const bool set = current() != std::optional<Variant>(true);
        SendMessageW(editor, BM_SETCHECK, set ? BST_CHECKED : BST_UNCHECKED, 0);
        return set;
    }
    const LRESULT picked = SendMessageW(editor, CB_GETCURSEL, 0, 0);
    if (kind() == Kind::Names) return static_cast<std::int32_t>(picked);
    // The text of the box is still the old one when an item is picked.
    const bool isPick = kind() == Kind::Choices && code == CBN_SELCHANGE && picked >= 0;
    return isPick ? std::u16string(Row_.design.choices[static_cast<std::size_t>(picked)]) : textOf(editor);
}

void RowEditor::applied(const SelectedObjects& objects) {
    Typed_.reset();
    Value_ = objects.value(Row_);
}

std::u16string RowEditor::help() const {
    std::u16string text = std::u16string(Row_.name) + u", " + std::u16string(nameOf(Row_.type)) + u": ";
    text += Row_.help;
    return current() ? text : text + u". The selected objects differ.";
}

}  // namespace kel::win32::ole
