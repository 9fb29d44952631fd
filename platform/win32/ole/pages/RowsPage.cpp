#include "platform/win32/ole/pages/RowsPage.h"

#include <algorithm>
#include <cwctype>

#include "library/AutomationError.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/home/Win32Services.h"
#include "platform/win32/ole/pages/Sample.h"
#include "values/Calendar.h"

namespace kel::win32::ole {

namespace {

constexpr DWORD FirstEditor = 100;
constexpr DWORD SampleId = 800;
constexpr short Switches = 166;  ///< where they begin, beside the other editors
constexpr double SampleNumber = -1234.5;

/// The first letter of a name that marks no other one; 0 where there is none left.
wchar_t takeMnemonic(std::u16string_view name, std::wstring& taken) {
    for (const char16_t unit : name) {
        const auto letter = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(unit)));
        if (taken.find(letter) != std::wstring::npos) continue;
        taken += letter;
        return static_cast<wchar_t>(unit);
    }
    return 0;
}

Date now() {
    const Win32System system;
    return Date{system.today().Serial + system.timer() / SecondsPerDay};
}

}  // namespace

std::vector<RowEditor> RowsPage::makeEditors() const {
    std::vector<RowEditor> editors;
    std::wstring taken;
    DWORD id = FirstEditor;
    for (const MemberRow* row : objects().rows(kind()))
        editors.emplace_back(*row, objects(), id++, takeMnemonic(row->name, taken));
    return editors;
}

void RowsPage::takeObjects() { Editors_ = makeEditors(); }

void RowsPage::layOut(DialogTemplate& dialog) {
    short top = Margin;
    for (const RowEditor& editor : Editors_) {
        if (editor.isSwitch()) continue;
        editor.layOut(dialog, Margin, top, Switches - 2 * Margin);
        top = static_cast<short>(top + editor.height());
    }
    top = Margin;
    for (const RowEditor& editor : Editors_) {
        if (!editor.isSwitch()) continue;
        editor.layOut(dialog, Switches, top, Width - Switches - Margin);
        top = static_cast<short>(top + editor.height());
    }
    if (!hasSample()) return;
    dialog.add(L"STATIC", L"Sample", SS_LEFT, {Switches, top, Width - Switches - Margin, 9}, 0);
    dialog.add(L"STATIC", L"", SS_NOPREFIX, {Switches, static_cast<short>(top + 11), Width - Switches - Margin, 44},
               SampleId, WS_EX_CLIENTEDGE);
}

void RowsPage::showAll() {
    Showing_ = true;
    for (const RowEditor& editor : Editors_) editor.show(window());
    Showing_ = false;
    showSample();
}

std::optional<std::u16string> RowsPage::applyAll() {
    for (RowEditor& editor : Editors_) {
        if (!editor.typed()) continue;
        auto wrong = objects().put(editor.row(), *editor.typed());
        if (wrong) {
            if (window() != nullptr) editor.focus(window());
            return wrong;
        }
        editor.applied(objects());
    }
    // One put may lead to others, as a bound takes the other one along; and a switch may give a text several lines.
    const std::vector<RowEditor> before = std::exchange(Editors_, makeEditors());
    const bool isAsHigh = std::equal(before.begin(), before.end(), Editors_.begin(), Editors_.end(),
                                     [](const auto& a, const auto& b) { return a.height() == b.height(); });
    if (window() != nullptr && isAsHigh) showAll();
    if (window() != nullptr && !isAsHigh) layOutAnew();
    return std::nullopt;
}

bool RowsPage::edit(const MemberRow& row) {
    const auto found = std::find_if(Editors_.begin(), Editors_.end(),
                                    [&row](const RowEditor& editor) { return editor.row().name == row.name; });
    if (found != Editors_.end()) found->focus(window());
    return found != Editors_.end();
}

void RowsPage::command(DWORD id, UINT code) {
    if (Showing_ || id < FirstEditor || id >= FirstEditor + Editors_.size()) return;
    RowEditor& editor = Editors_[id - FirstEditor];
    if (editor.hears(window(), code)) {
        setDirty(true);
        showSample();
    }
    say(editor.help());
}

// ---- Sample

std::u16string RowsPage::sample() const {
    Sample made(objects().type());
    try {
        for (const RowEditor& editor : Editors_)
            if (editor.current()) made.put(editor.row(), *editor.current());
        if (kind() == DesignPage::Format) return made.shown(now());
        std::u16string text = made.shown(SampleNumber);
        for (const RowEditor& editor : Editors_)
            if (editor.row().design.category == Category::Data && editor.current())
                text += u"\r\n" + std::u16string(editor.row().name) + u" " +
                        made.shown(typedValue(editor.row(), *editor.current(), Variant()));
        return text;
    } catch (const AutomationError&) {
        return u"?";
    }
}

void RowsPage::showSample() const {
    if (hasSample()) SetDlgItemTextW(window(), SampleId, wide(sample()).c_str());
}

}  // namespace kel::win32::ole
