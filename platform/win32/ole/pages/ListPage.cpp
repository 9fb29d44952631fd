#include "platform/win32/ole/pages/ListPage.h"

#include <commctrl.h>
#include <commdlg.h>

#include <array>

#include "controls/combo/ListText.h"
#include "platform/win32/base/AtEnd.h"
#include "platform/win32/base/Clipboard.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

constexpr std::u16string_view ListName = u"List";
constexpr std::u16string_view TagsName = u"ListTag";

constexpr DWORD ListId = 100;
constexpr DWORD EditorId = 101;
constexpr int Columns = 2;

constexpr short ListWidth = 184;
constexpr short ListHeight = 104;

struct Button {
    DWORD id;
    const wchar_t* text;
};
enum : DWORD { AddId = 110, RemoveId, UpId, DownId, ImportId, PasteId };
constexpr std::array Buttons{Button{AddId, L"&Add"},          Button{RemoveId, L"&Remove"},
                             Button{UpId, L"Move &up"},       Button{DownId, L"Move &down"},
                             Button{ImportId, L"&Import..."}, Button{PasteId, L"&Paste"}};

/// By the system's calls: streams would double the size of the server.
std::string bytesOfFile(const std::wstring& name) {
    HANDLE const file = CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw AutomationError(STG_E_FILENOTFOUND, "the file cannot be read");
    const AtEnd closed([file] { CloseHandle(file); });
    constexpr DWORD Largest = 64U << 20U;  // more than a full list comes to
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file, &size) == FALSE || size.QuadPart > Largest)
        throw AutomationError(STG_E_READFAULT, "the file is too large for a list");
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) == FALSE)
        throw AutomationError(STG_E_READFAULT, "the file cannot be read");
    bytes.resize(read);
    return bytes;
}

/// A file's text: UTF-16 or UTF-8 with a mark, UTF-8 without one, else in the characters of this machine.
std::u16string textOfFile(const std::wstring& name) {
    std::string bytes = bytesOfFile(name);
    if (bytes.starts_with("\xFF\xFE")) {
        std::u16string text((bytes.size() - 2) / 2, u'\0');
        std::memcpy(text.data(), bytes.data() + 2, text.size() * 2);
        return text;
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
    if (auto text = fromUtf8(bytes)) return *text;
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size)));
    return unwiden(text);
}

}  // namespace

// ---- The lists

void ListPage::takeObjects() {
    Items_.clear();
    Differ_ = false;
    std::array<std::u16string, 2> texts;
    for (const MemberRow* row : objects().rows(kind())) {
        const std::optional<Variant> value = objects().value(*row);
        if (!value) Differ_ = true;
        if (value && row->name == ListName) texts[0] = shownText(*value);
        if (value && row->name == TagsName) texts[1] = shownText(*value);
    }
    if (!Differ_) Items_ = taggedListOf(texts[0], texts[1]);
}

std::optional<std::u16string> ListPage::applyAll() {
    endEdit(true);
    for (const MemberRow* row : objects().rows(kind())) {
        if (row->name != ListName && row->name != TagsName) continue;
        auto wrong = objects().put(*row, row->name == ListName ? itemsOf(Items_) : tagsOf(Items_));
        if (wrong) return wrong;
    }
    Differ_ = false;
    return std::nullopt;
}

// ---- The window

void ListPage::layOut(DialogTemplate& dialog) {
    INITCOMMONCONTROLSEX needed{sizeof needed, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&needed);
    constexpr DWORD Report = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;
    dialog.add(WC_LISTVIEWW, L"", WS_TABSTOP | WS_CLIPSIBLINGS | Report, {Margin, Margin, ListWidth, ListHeight},
               ListId, WS_EX_CLIENTEDGE);
    const short left = 2 * Margin + ListWidth - 2;
    short top = Margin;
    for (const Button& button : Buttons) {
        dialog.add(L"BUTTON", button.text, WS_TABSTOP | BS_PUSHBUTTON,
                   {left, top, static_cast<short>(Width - Margin - left), 14}, button.id);
        top = static_cast<short>(top + 18);
    }
}

void ListPage::showAll() {
    HWND const list = item(ListId);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    RECT area{};
    GetClientRect(list, &area);
    const int width = area.right - GetSystemMetrics(SM_CXVSCROLL);
    std::array<std::wstring, Columns> names{L"Item", L"Tag"};
    for (int i = 0; i < Columns; ++i) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = names[static_cast<std::size_t>(i)].data();
        column.cx = i == 0 ? width * 3 / 5 : width - width * 3 / 5;
        column.iSubItem = i;
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
    SendMessageW(list, LVM_SETITEMCOUNT, static_cast<WPARAM>(count()), 0);
    if (count() > 0) select(0);
    showButtons();
    say(Differ_ ? u"The selected objects have different lists. What is entered here replaces all of them."
                : u"F2 or a double click edits, Tab goes on to the tag; Ins adds, Del removes, Ctrl+Up and Ctrl+Down "
                  u"move. Import and Paste take one item a line, with a tab in front of its tag.");
}

bool ListPage::edit(const MemberRow& row) {
    if (row.name != ListName && row.name != TagsName) return false;
    SetFocus(item(ListId));
    return true;
}

int ListPage::selected() const {
    return static_cast<int>(SendMessageW(item(ListId), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void ListPage::select(int row) {
    HWND const list = item(ListId);
    LVITEMW state{};
    state.state = state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
    SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void ListPage::changed() {
    SendMessageW(item(ListId), LVM_SETITEMCOUNT, static_cast<WPARAM>(count()), 0);
    InvalidateRect(item(ListId), nullptr, TRUE);
    setDirty(true);
    showButtons();
}

void ListPage::showButtons() const {
    const int row = selected();
    EnableWindow(item(RemoveId), row >= 0);
    EnableWindow(item(UpId), row > 0);
    EnableWindow(item(DownId), row >= 0 && row + 1 < count());
    EnableWindow(item(AddId), count() < MostListItems);
}

// ---- What is done to the list

void ListPage::command(DWORD id, UINT code) {
    if (id == EditorId && code == EN_KILLFOCUS) return endEdit(true);
    if (code != BN_CLICKED) return;
    switch (id) {
        case AddId: return addItem();
        case RemoveId: return removeItem();
        case UpId: return moveItem(-1);
        case DownId: return moveItem(1);
        case ImportId: return importFile();
        case PasteId: return import(Clipboard().text(window()));
        default: return;
    }
}

LRESULT ListPage::notify(const NMHDR& notice) {
    if (notice.idFrom != ListId) return 0;
    switch (notice.code) {
        case LVN_GETDISPINFOW: {
            LVITEMW& shown = const_cast<NMLVDISPINFOW&>(reinterpret_cast<const NMLVDISPINFOW&>(notice)).item;
            if ((shown.mask & LVIF_TEXT) == 0 || shown.iItem < 0 || shown.iItem >= count()) return 0;
            copyText(textIn({shown.iItem, shown.iSubItem}), static_cast<std::size_t>(shown.cchTextMax), shown.pszText);
            return 0;
        }
        case LVN_ITEMCHANGED: showButtons(); return 0;
        case LVN_BEGINSCROLL: endEdit(true); return 0;
        case NM_DBLCLK: {
            const auto& click = reinterpret_cast<const NMITEMACTIVATE&>(notice);
            LVHITTESTINFO hit{};
            hit.pt = click.ptAction;
            SendMessageW(item(ListId), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
            if (hit.iItem >= 0) beginEdit({hit.iItem, hit.iSubItem});
            return 0;
        }
        default: return 0;
    }
}

void ListPage::addItem() {
    endEdit(true);
    if (count() >= MostListItems) return say(u"The list is full.", true);
    const int row = selected() >= 0 ? selected() + 1 : count();
    Items_.insert(Items_.begin() + row, TaggedItem{});
    changed();
    select(row);
    beginEdit({row, 0});
}

void ListPage::removeItem() {
    const int row = selected();
    if (row < 0) return;
    Items_.erase(Items_.begin() + row);
    changed();
    if (count() > 0) select(std::min(row, count() - 1));
    showButtons();
    if (GetFocus() != nullptr && IsWindowEnabled(GetFocus()) == FALSE) SetFocus(item(ListId));
}

void ListPage::moveItem(int by) {
    const int row = selected();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= count()) return;
    std::swap(Items_[static_cast<std::size_t>(row)], Items_[static_cast<std::size_t>(target)]);
    changed();
    select(target);
}

void ListPage::import(const std::u16string& text) {
    TaggedList added = taggedLines(text);
    const auto room = static_cast<std::size_t>(MostListItems) - Items_.size();
    const bool cut = added.size() > room;
    if (cut) added.resize(room);
    const int first = count();
    Items_.insert(Items_.end(), added.begin(), added.end());
    if (!added.empty()) {
        changed();
        select(first);
    }
    const std::wstring number = wideNumber(added.size());
    say(unwiden(cut ? L"The list is full: " + number + L" items were added." : number + L" items were added."), cut);
}

void ListPage::importFile() {
    std::wstring name(MAX_PATH * 4, L'\0');
    OPENFILENAMEW asked{};
    asked.lStructSize = sizeof asked;
    asked.hwndOwner = window();
    asked.lpstrFilter = L"Text (*.txt;*.csv)\0*.txt;*.csv\0All files\0*.*\0";
    asked.lpstrFile = name.data();
    asked.nMaxFile = static_cast<DWORD>(name.size());
    asked.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (GetOpenFileNameW(&asked) == FALSE || window() == nullptr) return;
    try {
        import(textOfFile(name.c_str()));
    } catch (const AutomationError& error) {
        say(fromUtf8(error.what()).value_or(u""), true);
    }
}

// ---- Cells

std::u16string& ListPage::textIn(Cell cell) {
    TaggedItem& entry = Items_[static_cast<std::size_t>(cell.row)];
    return cell.column == 0 ? entry.item : entry.tag;
}

void ListPage::beginEdit(Cell cell) {
    endEdit(true);
    HWND const list = item(ListId);
    select(cell.row);
    RECT area{};
    area.top = cell.column;
    area.left = cell.column == 0 ? LVIR_LABEL : LVIR_BOUNDS;
    SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(cell.row), reinterpret_cast<LPARAM>(&area));
    MapWindowPoints(list, window(), reinterpret_cast<POINT*>(&area), 2);
    Edited_ = cell;
    Editor_ =
        CreateWindowExW(0, L"EDIT", wide(textIn(cell)).c_str(), WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL,
                        area.left, area.top, area.right - area.left, area.bottom - area.top, window(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(EditorId)), thisModule(), nullptr);
    if (Editor_ == nullptr) return;
    SendMessageW(Editor_, WM_SETFONT, static_cast<WPARAM>(SendMessageW(list, WM_GETFONT, 0, 0)), TRUE);
    SendMessageW(Editor_, EM_LIMITTEXT, 0, 0);
    SendMessageW(Editor_, EM_SETSEL, 0, -1);
    SetWindowPos(Editor_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetFocus(Editor_);
}

/// It loses the focus on its way out, which is told a second time.
void ListPage::endEdit(bool keep) {
    HWND const editor = std::exchange(Editor_, nullptr);
    if (editor == nullptr) return;
    const std::u16string typed = textOf(editor);
    const bool hadFocus = GetFocus() == editor;
    DestroyWindow(editor);
    if (keep && Edited_.row < count() && textIn(Edited_) != typed) {
        textIn(Edited_) = typed;
        changed();
    }
    if (hadFocus) SetFocus(item(ListId));
}

void ListPage::editNext(Cell cell) {
    if (cell.column < 0) cell = {cell.row - 1, Columns - 1};
    if (cell.column >= Columns) cell = {cell.row + 1, 0};
    endEdit(true);
    if (cell.row >= 0 && cell.row < count()) beginEdit(cell);
}

// ---- Keys

bool ListPage::takeKey(const MSG& message) {
    if (Editor_ != nullptr && message.hwnd == Editor_) return takeCellKey(message.wParam);
    return message.hwnd == item(ListId) && takeListKey(message.wParam);
}

bool ListPage::takeCellKey(WPARAM key) {
    const bool back = GetKeyState(VK_SHIFT) < 0;
    switch (key) {
        case VK_RETURN: endEdit(true); return true;
        case VK_ESCAPE: endEdit(false); return true;
        case VK_TAB: editNext({Edited_.row, Edited_.column + (back ? -1 : 1)}); return true;
        case VK_UP: editNext({Edited_.row - 1, Edited_.column}); return true;
        case VK_DOWN: editNext({Edited_.row + 1, Edited_.column}); return true;
        default: return false;
    }
}

bool ListPage::takeListKey(WPARAM key) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (key) {
        case VK_F2:
            if (selected() >= 0) beginEdit({selected(), 0});
            return true;
        case VK_INSERT: addItem(); return true;
        case VK_DELETE: removeItem(); return true;
        case VK_UP:
            if (control) moveItem(-1);
            return control;
        case VK_DOWN:
            if (control) moveItem(1);
            return control;
        case 'V':
            if (control) import(Clipboard().text(window()));
            return control;
        default: return false;
    }
}

}  // namespace kel::win32::ole
