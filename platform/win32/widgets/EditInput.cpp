#include <windows.h>
// The input methods' header stands on the system's.
#include <imm.h>

#include <algorithm>

#include "platform/win32/base/AtEnd.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/widgets/EditInput.h"
#include "values/Text.h"

namespace kel::win32 {

namespace {

bool isControl(char32_t character) { return character < U' ' || character == keys::DeleteCharacter; }

char32_t takeFirst(std::u16string_view& units) { return units.empty() ? 0 : takeCodePoint(units); }

POINT placeIn(LPARAM data) { return {static_cast<SHORT>(LOWORD(data)), static_cast<SHORT>(HIWORD(data))}; }

/// The action that a message of the edit window asks for.
EditAction actionOf(UINT message) {
    switch (message) {
        case WM_CUT: return EditAction::Cut;
        case WM_COPY: return EditAction::Copy;
        case WM_PASTE: return EditAction::Paste;
        case WM_CLEAR: return EditAction::EraseSelection;
        case WM_UNDO:
        case EM_UNDO: return EditAction::Undo;
        default: return EditAction::None;
    }
}

}  // namespace

std::u16string textIn(LPARAM data) {
    return data != 0 ? unwiden(reinterpret_cast<const wchar_t*>(data)) : std::u16string();
}

std::u16string takeCharacters(HWND window, LPARAM pressData) {
    std::u16string units;
    MSG message{};
    while (PeekMessageW(&message, window, WM_CHAR, WM_CHAR, PM_NOREMOVE | PM_NOYIELD) != FALSE &&
           message.lParam == pressData) {
        PeekMessageW(&message, window, WM_CHAR, WM_CHAR, PM_REMOVE | PM_NOYIELD);
        units += static_cast<char16_t>(message.wParam);
    }
    return units;
}

Modifiers modifiersDown() {
    Modifiers modifiers = NoModifier;
    if (GetKeyState(VK_SHIFT) < 0) modifiers = modifiers | ShiftKey;
    if (GetKeyState(VK_CONTROL) < 0) modifiers = modifiers | ControlKey;
    if (GetKeyState(VK_MENU) < 0) modifiers = modifiers | AltKey;
    return modifiers;
}

LRESULT EditInput::handle(UINT message, WPARAM wide, LPARAM data) {
    if (const Answer answer = handleText(message, wide, data)) return *answer;
    if (const Answer answer = handleKey(message, wide, data)) return *answer;
    if (const Answer answer = handleInputMethod(message, wide, data)) return *answer;
    if (const Answer answer = handleMouse(message, wide, data)) return *answer;
    const LRESULT result = View_.base(message, wide, data);
    switch (message) {
        case WM_SETFOCUS: Frame_.arrived(Field_); break;
        case WM_KILLFOCUS: Frame_.departed(reinterpret_cast<HWND>(wide)); break;
        case WM_NCDESTROY: View_.adopt(nullptr); break;
        default: break;
    }
    return result;
}

LRESULT EditInput::defaultFor(UINT message, WPARAM wide, LPARAM data) const {
    return DefWindowProcW(window(), message, wide, data);
}

// ---- Text and selection

EditInput::Answer EditInput::handleText(UINT message, WPARAM wide, LPARAM data) {
    if (View_.changing()) return std::nullopt;
    if (const EditAction action = actionOf(message); action != EditAction::None) {
        const bool offered = Entry_.offers(action);
        Entry_.perform(action);
        return offered;
    }
    switch (message) {
        case WM_SETTEXT:
            // A program has the control's property to put a text. Who knows only windows, as readers' tools and those
            // that fill in forms do, writes for the person.
            if (const std::u16string text = textIn(data); text != Entry_.text())
                Entry_.write(0, Entry_.text().size(), text);
            return TRUE;
        case WM_GETTEXTLENGTH: return Entry_.textLength();
        case WM_GETTEXT:
            // The system knows which other programs may not read a password.
            if (Entry_.isPassword() && InSendMessage() != FALSE) return std::nullopt;
            return static_cast<LRESULT>(copyText(Entry_.text(), wide, reinterpret_cast<wchar_t*>(data)));
        case EM_SETSEL: selectFromOutside(wide, data); return 0;
        case EM_REPLACESEL:
            if (data != 0) Entry_.replaceSelection(textIn(data));
            return 0;
        case EM_SETLIMITTEXT: Entry_.setMaxLength(static_cast<std::int32_t>(std::min<WPARAM>(wide, NoLimit))); return 0;
        case EM_GETLIMITTEXT: return Entry_.maxLength() > 0 ? Entry_.maxLength() : NoLimit;
        case EM_SETREADONLY: Entry_.setLocked(wide != 0); return TRUE;
        case EM_CANUNDO: return Entry_.offers(EditAction::Undo);
        default: return std::nullopt;
    }
}

/// -1 is no selection as a start, and the end of the text as an end.
void EditInput::selectFromOutside(WPARAM start, LPARAM end) {
    const auto place = [this](std::int32_t position) {
        return position < 0 ? Entry_.text().size() : static_cast<std::size_t>(position);
    };
    const auto from = static_cast<std::int32_t>(start);
    const std::size_t caret = Entry_.selection().caret;
    Entry_.select(from < 0 ? Selection{caret, caret} : Selection{place(from), place(static_cast<std::int32_t>(end))});
}

// ---- Keys

bool wantsKey(const TextEntry& entry, const KeyStroke& stroke) {
    if ((stroke.modifiers & AltKey) != 0) return false;
    const bool movesCaret = stroke.code >= keys::PageUp && stroke.code <= keys::Down;
    const bool enters = stroke.code == keys::Enter && (stroke.modifiers & ControlKey) == 0;
    return movesCaret || enters || entry.claims(stroke);
}

EditInput::Answer EditInput::handleKey(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_GETDLGCODE: return dialogCode(reinterpret_cast<const MSG*>(data));
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (wide != VK_PROCESSKEY && keyDown(static_cast<std::int16_t>(wide), data)) return 0;
            return defaultFor(message, wide, data);
        case WM_KEYUP:
        case WM_SYSKEYUP:
        case WM_SYSCHAR: return defaultFor(message, wide, data);
        case WM_CHAR:
        case WM_IME_CHAR: unitTyped(static_cast<char16_t>(wide)); return 0;
        case WM_UNICHAR:
            if (wide != UNICODE_NOCHAR) Entry_.strikeCharacter(static_cast<char32_t>(wide), NoModifier);
            return wide == UNICODE_NOCHAR;
        default: return std::nullopt;
    }
}

LRESULT EditInput::dialogCode(const MSG* asked) const {
    constexpr LRESULT Always = DLGC_WANTARROWS | DLGC_WANTCHARS;
    const bool ends = asked != nullptr && (asked->wParam == VK_RETURN || asked->wParam == VK_ESCAPE);
    const auto code = static_cast<std::int16_t>(ends ? asked->wParam : 0);
    return ends && wantsKey(Entry_, {code, 0, NoModifier}) ? Always | DLGC_WANTMESSAGE : Always;
}

/// The key together with what it types, so that handlers that swallow the one swallow the other, and a message
/// box that a handler opens does not find the character in the queue. False when it is the system's to handle.
bool EditInput::keyDown(std::int16_t code, LPARAM data) {
    const std::u16string units = takeCharacters(window(), data);
    const Modifiers modifiers = modifiersDown();
    std::u16string_view rest = units;
    const char32_t character = takeFirst(rest);
    return Entry_.strike({code, isControl(character) ? 0 : character, modifiers}, rest);
}

/// A character that came without a key.
void EditInput::unitTyped(char16_t unit) {
    if (isHighSurrogate(unit)) {
        FirstHalf_ = unit;
        return;
    }
    const char16_t pair[] = {std::exchange(FirstHalf_, u'\0'), unit};
    std::u16string_view units(pair + (pair[0] == 0 || !isLowSurrogate(unit) ? 1 : 0), pair + 2);
    Entry_.strikeCharacter(takeCodePoint(units), modifiersDown());
}

// ---- Input methods

/// The method shows what is being composed in a window of its own; only what is finished comes in here.
EditInput::Answer EditInput::handleInputMethod(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_IME_STARTCOMPOSITION: placeInputMethod(); break;
        case WM_IME_COMPOSITION:
            if ((data & GCS_RESULTSTR) != 0) takeCommitted();
            data &= ~static_cast<LPARAM>(GCS_RESULTSTR);
            if (data == 0) return 0;
            break;
        case WM_IME_ENDCOMPOSITION:
        case WM_IME_NOTIFY: break;
        default: return std::nullopt;
    }
    return defaultFor(message, wide, data);
}

void EditInput::placeInputMethod() const {
    HIMC const context = ImmGetContext(window());
    if (context == nullptr) return;
    const AtEnd release([&] { ImmReleaseContext(window(), context); });
    COMPOSITIONFORM place{};
    place.dwStyle = CFS_POINT;
    GetCaretPos(&place.ptCurrentPos);
    ImmSetCompositionWindow(context, &place);
    LOGFONTW description{};
    if (GetObjectW(reinterpret_cast<HFONT>(View_.base(WM_GETFONT)), sizeof description, &description) != 0)
        ImmSetCompositionFontW(context, &description);
}

void EditInput::takeCommitted() {
    HIMC const context = ImmGetContext(window());
    if (context == nullptr) return;
    const LONG bytes = std::max(ImmGetCompositionStringW(context, GCS_RESULTSTR, nullptr, 0), LONG{0});
    std::wstring text(static_cast<std::size_t>(bytes) / sizeof(wchar_t), L'\0');
    ImmGetCompositionStringW(context, GCS_RESULTSTR, text.data(), static_cast<DWORD>(bytes));
    ImmReleaseContext(window(), context);
    if (!text.empty()) Entry_.typeCommitted(unwiden(text));
}

// ---- Mouse

EditInput::Answer EditInput::handleMouse(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN: pressed(message, wide, data); return 0;
        case WM_MOUSEWHEEL: return wheelTurned(wide, data);
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
        case WM_TIMER: {
            const LRESULT result = View_.base(message, wide, data);
            if (message != WM_MOUSEMOVE || (wide & MK_LBUTTON) != 0) View_.readSelection();
            if (message == WM_LBUTTONUP) released(placeIn(data));
            return result;
        }
        default: return std::nullopt;
    }
}

void EditInput::released(POINT place) {
    RECT area{};
    GetClientRect(window(), &area);
    Entry_.releaseMouse(PtInRect(&area, place) != FALSE);
}

/// The focus comes first, with all that the field does then; the caret is set into what stands there after it. Of a
/// second press and a third the system's window hears nothing: it would take the blank after a word along, and knows no
/// third one.
void EditInput::pressed(UINT message, WPARAM wide, LPARAM data) {
    const POINT place = placeIn(data);
    const int clicks = clicksOf(message, place);
    Entry_.pressedAnywhere();
    Entry_.setFocus();
    if (window() == nullptr || !Entry_.takesInput()) return;
    if (clicks > 1) {
        Entry_.press({.position = static_cast<std::int32_t>(positionAt(window(), place, Entry_)), .clicks = clicks});
        return;
    }
    View_.base(message, wide, data);
    if (message == WM_LBUTTONDOWN) View_.readSelection();
    Entry_.pressMouse(message == WM_LBUTTONDOWN   ? MouseButton::Left
                      : message == WM_RBUTTONDOWN ? MouseButton::Right
                                                  : MouseButton::Middle);
}

int EditInput::clicksOf(UINT message, POINT place) {
    if (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK) return 1;
    return Clicks_.count({message == WM_LBUTTONDBLCLK, place.x, place.y, GetMessageTime()},
                         {GetDoubleClickTime(), GetSystemMetrics(SM_CXDOUBLECLK) / 2});
}

/// Without the focus the wheel is for what is around the box.
LRESULT EditInput::wheelTurned(WPARAM wide, LPARAM data) {
    if (GetFocus() != window() || !Entry_.takesInput()) return defaultFor(WM_MOUSEWHEEL, wide, data);
    if (Entry_.multiLine()) View_.base(WM_MOUSEWHEEL, wide, data);
    if (Entry_.turnWheelBy(GET_WHEEL_DELTA_WPARAM(wide)) || Entry_.multiLine()) return 0;
    return defaultFor(WM_MOUSEWHEEL, wide, data);
}

}  // namespace kel::win32
