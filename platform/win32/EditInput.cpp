#include <windows.h>
#include <windowsx.h>
// The input methods' header stands on the system's.
#include <imm.h>

#include <algorithm>

#include "platform/win32/EditInput.h"
#include "platform/win32/WideText.h"
#include "values/Text.h"

namespace kel::win32 {

namespace {

constexpr std::int32_t NoLimit = 0x7FFFFFFE;  ///< as the edit window says it

bool isControl(char32_t character) { return character < U' ' || character == DeleteCharacter; }

bool isTab(std::int16_t code, Modifiers modifiers) { return code == keys::Tab && (modifiers & ControlKey) == 0; }

char32_t takeFirst(std::u16string_view& units) { return units.empty() ? 0 : takeCodePoint(units); }

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

class InputContext {
public:
    explicit InputContext(HWND window) : Window_(window), Context_(ImmGetContext(window)) {}
    ~InputContext() {
        if (Context_ != nullptr) ImmReleaseContext(Window_, Context_);
    }
    InputContext(const InputContext&) = delete;
    InputContext& operator=(const InputContext&) = delete;

    HIMC get() const { return Context_; }

private:
    HWND Window_;
    HIMC Context_;
};

}  // namespace

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
    LRESULT result = 0;
    if (handleText(message, wide, data, result) || handleKey(message, wide, data, result) ||
        handleInputMethod(message, wide, data, result) || handleMouse(message, wide, data, result))
        return result;
    switch (message) {
        case WM_SETFOCUS:
            result = View_.base(message, wide, data);
            Frame_.arrived(Field_);
            return result;
        case WM_KILLFOCUS:
            result = View_.base(message, wide, data);
            WheelRest_ = 0;
            Frame_.departed(Field_, reinterpret_cast<HWND>(wide));
            return result;
        case WM_NCDESTROY:
            result = View_.base(message, wide, data);
            View_.forget();
            return result;
        default: return View_.base(message, wide, data);
    }
}

LRESULT EditInput::defaultFor(UINT message, WPARAM wide, LPARAM data) const {
    return DefWindowProcW(window(), message, wide, data);
}

// ---- Text and selection

bool EditInput::handleText(UINT message, WPARAM wide, LPARAM data, LRESULT& result) {
    if (View_.changing()) return false;
    if (const EditAction action = actionOf(message); action != EditAction::None) {
        result = Editor_.offers(action);
        Editor_.perform(action);
        return true;
    }
    switch (message) {
        case WM_SETTEXT:
            Field_.textSent(data != 0 ? unwiden(reinterpret_cast<const wchar_t*>(data)) : std::u16string());
            result = TRUE;
            return true;
        case WM_GETTEXTLENGTH: result = static_cast<LRESULT>(buffer().text().size()); return true;
        case WM_GETTEXT:
            // The system knows which other programs may not read a password.
            if (Editor_.isPassword() && InSendMessage() != FALSE) return false;
            result = static_cast<LRESULT>(copyText(buffer().text(), wide, reinterpret_cast<wchar_t*>(data)));
            return true;
        case EM_SETSEL: selectFromOutside(wide, data); return true;
        case EM_REPLACESEL:
            if (data == 0) return true;
            Editor_.listener().Text1_Edit(EditAction::Paste);
            Editor_.setSelText(unwiden(reinterpret_cast<const wchar_t*>(data)));
            return true;
        case EM_SETLIMITTEXT: Field_.limitSent(static_cast<std::int32_t>(std::min<WPARAM>(wide, NoLimit))); return true;
        case EM_GETLIMITTEXT: result = Editor_.maxLength() > 0 ? Editor_.maxLength() : NoLimit; return true;
        case EM_SETPASSWORDCHAR: Field_.passwordCharSent(static_cast<char16_t>(wide)); return true;
        case EM_SETREADONLY:
            Field_.lockSent(wide != 0);
            result = TRUE;
            return true;
        case EM_CANUNDO: result = Editor_.offers(EditAction::Undo); return true;
        default: return false;
    }
}

void EditInput::selectFromOutside(WPARAM start, LPARAM end) {
    const auto from = static_cast<std::int32_t>(start);
    const auto to = static_cast<std::int32_t>(end);
    const Selection now = buffer().selection();
    const auto place = [this](std::int32_t position) {
        return position < 0 ? buffer().text().size() : static_cast<std::size_t>(position);
    };
    Editor_.select(from < 0 ? Selection{now.caret, now.caret} : Selection{place(from), place(to)});
}

/// What somebody has put into the window past us comes in as what is dropped does, and what was taken out as
/// what is erased.
void EditInput::windowChanged() {
    if (View_.changing()) return;
    const TextChange change = View_.takeForeignChange();
    if (change.removed == 0 && change.inserted.empty()) return;
    Editor_.select({change.at, change.at + change.removed});
    if (change.inserted.empty())
        Editor_.perform(EditAction::EraseSelection);
    else
        Editor_.paste(change.inserted);
}

POINT EditInput::showPosition(std::int32_t position) const {
    const auto length = static_cast<std::int32_t>(buffer().text().size());
    return View_.showPosition(static_cast<std::size_t>(std::clamp(position, 0, length)));
}

// ---- Keys

bool EditInput::wantsKey(const KeyStroke& stroke) const {
    if (isTab(stroke.code, stroke.modifiers) || (stroke.modifiers & AltKey) != 0) return false;
    if (stroke.code == keys::Enter) return (stroke.modifiers & ControlKey) == 0;
    const bool movesCaret = stroke.code >= keys::PageUp && stroke.code <= keys::Down;
    return movesCaret || claimsKey(stroke, Editor_.locked());
}

bool EditInput::handleKey(UINT message, WPARAM wide, LPARAM data, LRESULT& result) {
    switch (message) {
        case WM_GETDLGCODE: result = dialogCode(reinterpret_cast<const MSG*>(data)); return true;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (wide == VK_PROCESSKEY || !keyDown(static_cast<std::int16_t>(wide), data))
                result = defaultFor(message, wide, data);
            return true;
        case WM_KEYUP:
        case WM_SYSKEYUP:
        case WM_SYSCHAR: result = defaultFor(message, wide, data); return true;
        case WM_CHAR:
        case WM_IME_CHAR: unitTyped(static_cast<char16_t>(wide)); return true;
        case WM_UNICHAR:
            result = wide == UNICODE_NOCHAR;
            if (wide != UNICODE_NOCHAR) Editor_.strikeCharacter(static_cast<char32_t>(wide), NoModifier);
            return true;
        default: return false;
    }
}

LRESULT EditInput::dialogCode(const MSG* asked) const {
    constexpr LRESULT Always = DLGC_WANTARROWS | DLGC_WANTCHARS;
    const bool ends = asked != nullptr && (asked->wParam == VK_RETURN || asked->wParam == VK_ESCAPE);
    const auto code = static_cast<std::int16_t>(ends ? asked->wParam : 0);
    return ends && Field_.wantsKey({code, 0, NoModifier}) ? Always | DLGC_WANTMESSAGE : Always;
}

/// The key together with what it types, so that handlers that swallow the one swallow the other, and a message
/// box that a handler opens does not find the character in the queue. False when it is the system's to handle.
bool EditInput::keyDown(std::int16_t code, LPARAM data) {
    const std::u16string units = takeCharacters(window(), data);
    const Modifiers modifiers = modifiersDown();
    if (isTab(code, modifiers)) return false;
    std::u16string_view rest = units;
    const char32_t character = takeFirst(rest);
    const bool used = Editor_.strike({code, isControl(character) ? 0 : character, modifiers});
    // A key of a rich layout may make several characters.
    if (!isControl(character)) Editor_.typeCommitted(rest);
    return used;
}

/// A character that came without a key.
void EditInput::unitTyped(char16_t unit) {
    if (isHighSurrogate(unit)) {
        FirstHalf_ = unit;
        return;
    }
    const char16_t pair[] = {std::exchange(FirstHalf_, u'\0'), unit};
    std::u16string_view units(pair + (pair[0] == 0 || !isLowSurrogate(unit) ? 1 : 0), pair + 2);
    if (unit != keys::Tab && unit != DeleteCharacter) Editor_.strikeCharacter(takeCodePoint(units), modifiersDown());
}

// ---- Input methods

/// The method shows what is being composed in a window of its own; only what is finished comes in here.
bool EditInput::handleInputMethod(UINT message, WPARAM wide, LPARAM data, LRESULT& result) {
    switch (message) {
        case WM_IME_STARTCOMPOSITION: placeInputMethod(); break;
        case WM_IME_COMPOSITION:
            if ((data & GCS_RESULTSTR) != 0) takeCommitted();
            data &= ~static_cast<LPARAM>(GCS_RESULTSTR);
            if (data == 0) return true;
            break;
        case WM_IME_ENDCOMPOSITION:
        case WM_IME_NOTIFY: break;
        default: return false;
    }
    result = defaultFor(message, wide, data);
    return true;
}

void EditInput::placeInputMethod() const {
    const InputContext context(window());
    if (context.get() == nullptr) return;
    COMPOSITIONFORM place{};
    place.dwStyle = CFS_POINT;
    GetCaretPos(&place.ptCurrentPos);
    ImmSetCompositionWindow(context.get(), &place);
    LOGFONTW description{};
    if (GetObjectW(Field_.fontHandle(), sizeof description, &description) != 0)
        ImmSetCompositionFontW(context.get(), &description);
}

void EditInput::takeCommitted() {
    std::wstring text;
    {
        const InputContext context(window());
        if (context.get() == nullptr) return;
        const LONG bytes = ImmGetCompositionStringW(context.get(), GCS_RESULTSTR, nullptr, 0);
        if (bytes <= 0) return;
        text.resize(static_cast<std::size_t>(bytes) / sizeof(wchar_t));
        ImmGetCompositionStringW(context.get(), GCS_RESULTSTR, text.data(), static_cast<DWORD>(bytes));
    }
    Editor_.typeCommitted(unwiden(text));
}

// ---- Mouse

bool EditInput::handleMouse(UINT message, WPARAM wide, LPARAM data, LRESULT& result) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN: pressed(message, wide, data); return true;
        case WM_LBUTTONUP: {
            result = View_.base(message, wide, data);
            readSelection();
            RECT area{};
            GetClientRect(window(), &area);
            const POINT place{GET_X_LPARAM(data), GET_Y_LPARAM(data)};
            if (std::exchange(LeftPressed_, false) && PtInRect(&area, place) != FALSE) Editor_.click();
            return true;
        }
        case WM_MOUSEWHEEL: result = wheelTurned(wide, data); return true;
        case WM_MOUSEMOVE:
        case WM_LBUTTONDBLCLK:
        case WM_TIMER:
            result = View_.base(message, wide, data);
            if (message != WM_MOUSEMOVE || (wide & MK_LBUTTON) != 0) readSelection();
            return true;
        default: return false;
    }
}

/// The focus comes first, with all that the field does then; the caret is set into what stands there after it.
void EditInput::pressed(UINT message, WPARAM wide, LPARAM data) {
    if (GetFocus() != window() && Field_.acceptsInput()) SetFocus(window());
    if (window() == nullptr || !Field_.acceptsInput()) return;
    const bool left = message == WM_LBUTTONDOWN;
    View_.base(message, wide, data);
    if (left) readSelection();
    LeftPressed_ = left;
    if (left)
        Editor_.pressMouse(MouseButton::Left);
    else
        Editor_.pressMouse(message == WM_RBUTTONDOWN ? MouseButton::Right : MouseButton::Middle);
}

/// Fine wheels turn by less than a notch at a time. Without the focus the wheel is for what is around the box.
LRESULT EditInput::wheelTurned(WPARAM wide, LPARAM data) {
    if (GetFocus() != window() || !Field_.acceptsInput()) return defaultFor(WM_MOUSEWHEEL, wide, data);
    if (buffer().multiLine()) View_.base(WM_MOUSEWHEEL, wide, data);
    if (!Editor_.listener().Text1_UsesWheel()) return buffer().multiLine() ? 0 : defaultFor(WM_MOUSEWHEEL, wide, data);
    const int turned = GET_WHEEL_DELTA_WPARAM(wide);
    if ((turned < 0) != (WheelRest_ < 0)) WheelRest_ = 0;
    WheelRest_ += turned;
    const int notches = WheelRest_ / WHEEL_DELTA;
    WheelRest_ %= WHEEL_DELTA;
    if (notches != 0) Editor_.listener().Text1_Wheel(notches);
    return 0;
}

/// The window's ends come in order: the one that stood before is where the selection was begun.
void EditInput::readSelection() {
    if (window() == nullptr) return;
    Selection seen = View_.selection();
    if (!seen.empty() && buffer().selection().anchor == seen.end()) seen = {seen.caret, seen.anchor};
    View_.selectionIs(seen);
    if (seen != buffer().selection()) Editor_.select(seen);
}

}  // namespace kel::win32
