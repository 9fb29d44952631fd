#include <windows.h>
// The input methods' header stands on the system's.
#include <imm.h>

#include "platform/win32/base/WideText.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Stage.h"

/// What other programs, input methods and menus do to the edit window.
namespace kel::tests {

namespace {

/// The edit window shows text and selection of the box, and says so.
void expectShown(Stage& stage, const std::wstring& picture) {
    EXPECT_EQ(drawn(stage.box()), picture);
    const std::wstring text = win32::wide(stage.box().text());
    EXPECT_EQ(shownLine(stage.edit()), text);
    EXPECT_EQ(textOf(stage.edit()), text);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(stage.edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(static_cast<std::int32_t>(start), stage.box().selStart());
    EXPECT_EQ(static_cast<std::int32_t>(end - start), stage.box().selLength());
}

void putClipboard(HWND window, const std::wstring& text) {
    EXPECT(OpenClipboard(window));
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy(text.c_str(), text.c_str() + text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

struct MessageCase {
    const wchar_t* before;
    std::int32_t caret;
    std::int32_t length;
    UINT message;
    WPARAM wide;
    const wchar_t* data;
    const wchar_t* after;
    const wchar_t* log;
};

}  // namespace

TEST(text_from_outside_goes_through_the_box) {
    const MessageCase cases[] = {
        {L"old", 2, 0, WM_SETTEXT, 0, L"new", L"new|", L"paste:new change"},
        {L"old", 2, 0, WM_SETTEXT, 0, L"", L"|", L"change"},
        {L"old", 2, 0, WM_SETTEXT, 0, L"old", L"ol|d", L""},
        {L"abc", 1, 1, EM_REPLACESEL, TRUE, L"xyz", L"axyz|c", L"change"},
        {L"abc", 1, 1, WM_CLEAR, 0, nullptr, L"a|c", L"change"},
        {L"abc", 1, 1, WM_CUT, 0, nullptr, L"a|c", L"change"},
        {L"abc", 1, 0, WM_CHAR, L'x', nullptr, L"ax|bc", L"key:120 change"},
        {L"abc", 1, 0, WM_CHAR, VK_BACK, nullptr, L"|bc", L"key:8 change"},
        {L"abc", 1, 0, WM_UNICHAR, 0xE9, nullptr, L"a\u00E9|bc", L"key:233 change"},
        {L"abc", 1, 0, WM_IME_CHAR, 0x3042, nullptr, L"a\u3042|bc", L"key:12354 change"},
        {L"abc", 1, 1, EM_UNDO, 0, nullptr, L"a[b]c", L""},
    };
    for (const MessageCase& row : cases) {
        Stage stage;
        stage.box().setText(win32::unwiden(row.before));
        stage.box().setSelStart(row.caret);
        stage.box().setSelLength(row.length);
        stage.takeLog();
        SendMessageW(stage.edit(), row.message, row.wide, reinterpret_cast<LPARAM>(row.data));
        EXPECT_EQ(stage.takeLog(), row.log);
        expectShown(stage, row.after);
    }
}

TEST(limits_and_locks_from_outside_are_the_boxs) {
    Stage stage;
    SendMessageW(stage.edit(), EM_SETLIMITTEXT, 2, 0);
    EXPECT_EQ(SendMessageW(stage.edit(), EM_GETLIMITTEXT, 0, 0), 2);
    SetWindowTextW(stage.edit(), L"longer");
    expectShown(stage, L"lo|");
    stage.box().setText(u"longer by code");
    expectShown(stage, L"|longer by code");
    SendMessageW(stage.edit(), EM_SETREADONLY, TRUE, 0);
    EXPECT(stage.box().locked());
    SetWindowTextW(stage.edit(), L"x");
    expectShown(stage, L"|longer by code");
    SendMessageW(stage.edit(), EM_SETPASSWORDCHAR, L'*', 0);
    EXPECT(stage.box().passwordChar() == u'*');
}

TEST(pairs_come_in_two_messages_and_go_as_one) {
    Stage stage;
    SendMessageW(stage.edit(), WM_CHAR, 0xD83D, 1);
    SendMessageW(stage.edit(), WM_CHAR, 0xDE00, 1);
    EXPECT_EQ(stage.takeLog(), L"key:128512 change");
    EXPECT_EQ(stage.box().textLength(), 2);
    SendMessageW(stage.edit(), WM_CHAR, VK_BACK, 1);
    EXPECT_EQ(stage.box().textLength(), 0);
}

TEST(half_line_breaks_are_kept_and_shown_as_blanks) {
    Stage line;
    line.box().setText(u"a\r\nb");
    EXPECT_EQ(textOf(line.edit()), L"a\r\nb");
    EXPECT_EQ(shownLine(line.edit()), L"a  b");

    Stage lines(true);
    lines.box().setText(u"a\nb\r\r\nc");
    EXPECT_EQ(textOf(lines.edit()), L"a\nb\r\r\nc");
    EXPECT_EQ(shownLine(lines.edit(), 0), L"a b ");
    EXPECT_EQ(shownLine(lines.edit(), 1), L"c");
}

TEST(any_sequence_of_edits_leaves_box_and_window_the_same) {
    Stage stage(true);
    unsigned seed = 12345;
    const auto random = [&seed](unsigned below) {
        seed = seed * 1103515245U + 12345U;
        return (seed >> 16) % below;
    };
    for (int step = 0; step < 600; ++step) {
        const auto length = static_cast<unsigned>(stage.box().textLength());
        switch (random(6)) {
            case 0: stage.box().setSelStart(static_cast<std::int32_t>(random(length + 1))); break;
            case 1: stage.box().setSelLength(static_cast<std::int32_t>(random(4))); break;
            case 2: SendMessageW(stage.edit(), WM_CHAR, VK_RETURN, 1); break;
            case 3: SendMessageW(stage.edit(), WM_CHAR, VK_BACK, 1); break;
            case 4: SendMessageW(stage.edit(), WM_UNDO, 0, 0); break;
            default: SendMessageW(stage.edit(), WM_CHAR, L'a' + random(2), 1);
        }
        std::wstring shown;
        const auto lines = static_cast<int>(SendMessageW(stage.edit(), EM_GETLINECOUNT, 0, 0));
        for (int line = 0; line < lines; ++line) shown += (line == 0 ? L"" : L"\r\n") + shownLine(stage.edit(), line);
        EXPECT_EQ(shown, textOf(stage.edit()));
    }
}

TEST(up_and_down_go_by_the_lines_that_the_window_shows) {
    Stage stage(true);
    std::u16string text;
    for (int word = 0; word < 40; ++word) text += u"word ";
    stage.box().setText(text);
    EXPECT(SendMessageW(stage.edit(), EM_GETLINECOUNT, 0, 0) > 2);
    const auto second = static_cast<std::int32_t>(SendMessageW(stage.edit(), EM_LINEINDEX, 1, 0));
    SetFocus(stage.edit());
    stage.box().setSelStart(2);
    strike(stage.edit(), VK_DOWN);
    EXPECT_EQ(stage.box().selStart(), second + 2);
    strike(stage.edit(), VK_HOME);
    EXPECT_EQ(stage.box().selStart(), second);
    strike(stage.edit(), VK_UP);
    strike(stage.edit(), VK_END);
    EXPECT_EQ(stage.box().selStart(), second - 1);
}

TEST(an_input_method_commits_character_by_character) {
    Stage stage;
    stage.enter();
    HIMC context = ImmGetContext(stage.edit());
    EXPECT(context != nullptr);
    wchar_t composed[] = L"\u3042\u3044";
    EXPECT(ImmSetCompositionStringW(context, SCS_SETSTR, composed, sizeof composed - sizeof *composed, nullptr, 0));
    EXPECT_EQ(stage.box().textLength(), 0);
    ImmNotifyIME(context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
    ImmReleaseContext(stage.edit(), context);
    settle();
    EXPECT_EQ(stage.takeLog(), L"key:12354 change key:12356 change");
    expectShown(stage, L"\u3042\u3044|");
}

namespace {

/// Presses keys in the menu that is about to open, one a tick.
void CALLBACK pressInMenu(HWND window, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    if ((info.flags & GUI_INMENUMODE) == 0) return;
    KillTimer(window, timer);
    PostMessageW(info.hwndMenuOwner, WM_CHAR, L'p', 1);
}

void CALLBACK closeMenu(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) { EndMenu(); }

}  // namespace

TEST(the_context_menu_pastes_through_the_box_and_takes_no_focus) {
    Stage stage;
    stage.box().setText(u"ab");
    stage.box().setMaxLength(4);
    SetFocus(stage.edit());
    stage.box().setSelStart(1);
    settle();
    putClipboard(stage.host().window(), L"xyz\r\nsecond line");
    stage.takeLog();
    SetTimer(stage.host().window(), 7, 20, &pressInMenu);
    SetTimer(stage.host().window(), 8, 2000, &closeMenu);
    SendMessageW(stage.edit(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(stage.edit()), MAKELPARAM(150, 10));
    KillTimer(stage.host().window(), 7);
    KillTimer(stage.host().window(), 8);
    settle();
    EXPECT_EQ(stage.takeLog(), L"paste:xyz change");
    expectShown(stage, L"axy|b");
}

namespace {

/// A key with Ctrl or Shift down.
void strikeWith(int modifier, HWND target, WPARAM code) {
    BYTE keys[256]{};
    keys[modifier] = 0x80;
    SetKeyboardState(keys);
    strike(target, code);
    keys[modifier] = 0;
    SetKeyboardState(keys);
}

/// As code that knows the system's own edit window reaches past ours.
void putPastTheBox(HWND edit, const wchar_t* text) {
    WNDCLASSEXW system{};
    system.cbSize = sizeof system;
    GetClassInfoExW(nullptr, L"EDIT", &system);
    CallWindowProcW(system.lpfnWndProc, edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
}

}  // namespace

TEST(nothing_is_pasted_past_the_control) {
    struct Way {
        const char* name;
        void (*paste)(HWND edit);
    };
    const Way ways[] = {
        {"message", [](HWND edit) { SendMessageW(edit, WM_PASTE, 0, 0); }},
        {"control and V", [](HWND edit) { strikeWith(VK_CONTROL, edit, 'V'); }},
        {"shift and insert", [](HWND edit) { strikeWith(VK_SHIFT, edit, VK_INSERT); }},
        {"character", [](HWND edit) { SendMessageW(edit, WM_CHAR, 22, 1); }},
        {"past the box", [](HWND edit) { putPastTheBox(edit, L"12.5"); }},
    };
    for (const Way& way : ways) {
        Stage stage;
        stage.box().setText(u"abc");
        SetFocus(stage.edit());
        stage.box().setSelStart(1);
        stage.box().setSelLength(1);
        putClipboard(stage.host().window(), L"12.5");
        bool asked = false;
        stage.onPaste = [&asked](std::u16string& text) {
            asked = text == u"12.5";
            text = u"12";
            return true;
        };
        way.paste(stage.edit());
        if (!asked) fail(__FILE__, __LINE__, std::string(way.name) + " asks nobody");
        expectShown(stage, L"a12|c");
    }
}

}  // namespace kel::tests
