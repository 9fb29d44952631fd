#include "controls/text/KelText.h"

#include "values/Text.h"

namespace kel {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";

constexpr LayoutRule SingleLineLayout{.fixedHeight = false, .widenAlways = false};
constexpr LayoutRule MultiLineLayout{.fixedHeight = false, .widenAlways = false, .captionFillsHeight = true};
constexpr EntryKind TextKind{.layout = SingleLineLayout};

bool isBlank(std::u16string_view text, bool multiLine) {
    return text.find_last_not_of(multiLine ? u" \r\n" : u" ") == std::u16string_view::npos;
}

/// The first character, which hides a text also where it is only half of one.
char32_t maskOf(std::u16string_view text) {
    constexpr char32_t Replacement = 0xFFFD;
    if (text.empty()) return 0;
    const char32_t first = takeCodePoint(text);
    return first >= 0xD800 && first < 0xE000 ? Replacement : first;
}

}  // namespace

KelText::KelText(ControlHost& host) : Field_(host, *this, TextKind) {
    Text1_[0] = std::make_unique<TextBox>(host.widgets, static_cast<TextBoxListener&>(*this));
    Field_.add(*Text1_[0]);
    Field_.initInsertMode(true);
}

// ---- Properties

std::int32_t KelText::get_hWnd() const { return Field_.host().container.windowHandle(); }

std::u16string KelText::get_PasswordChar() const {
    std::u16string text;
    if (const char32_t character = Text1_[0]->passwordChar(); character != 0) appendCodePoint(text, character);
    return text;
}

void KelText::put_PasswordChar(const std::u16string& character) {
    const char32_t first = maskOf(character);
    for (const auto& box : Text1_)
        if (box) box->setPasswordChar(first);
    Field_.report<&KelText::put_PasswordChar>();
}

bool KelText::get_Changed() const { return activeBox().text() != TextOriginal_; }

bool KelText::get_ChangedSaved() const { return activeBox().text() != TextSaved_; }

bool KelText::get_Valid() const {
    if (activeBox().locked() || !Field_.get_Mandatory()) return true;
    return !isBlank(activeBox().text(), get_MultiLine());
}

// ---- Text

std::u16string KelText::get_Text() {
    if (!get_MultiLine()) return Text1_[0]->text();
    std::u16string text = Text1_[1]->text();
    while (text.ends_with(LineBreak)) {
        text.resize(text.size() - LineBreak.size());
        Text1_[1]->setText(text);
        text = Text1_[1]->text();  // the change event may have put another one
    }
    return text;
}

std::u16string KelText::get_TextRaw() const { return activeBox().text(); }

void KelText::put_Text(const std::u16string& text) {
    const EntryField::Deed deed(Field_);
    // A copy where the host passes TextOriginal itself, or the change event frees what it passed.
    std::u16string original = text;
    activeBox().setText(text);
    TextOriginal_ = std::move(original);
}

void KelText::put_MultiLine(bool multiLine) {
    const EntryField::Deed deed(Field_);
    const std::u16string text = get_Text();
    if (multiLine && !Text1_[1]) makeMultiLineBox();
    FieldIndex_ = multiLine ? 1 : 0;
    Field_.activate(activeBox(), multiLine ? MultiLineLayout : SingleLineLayout);
    Field_.report<&KelText::put_MultiLine>();
    Field_.showActive();
    put_Text(text);
    Resize();
}

void KelText::makeMultiLineBox() {
    Text1_[1] = std::make_unique<TextBox>(Field_.host().widgets, static_cast<TextBoxListener&>(*this), true);
    Text1_[1]->setPasswordChar(Text1_[0]->passwordChar());
    Field_.add(*Text1_[1]);
}

void KelText::InitProperties() {
    Field_.initInsertMode(true);
    Field_.initNew();
}

// ---- Focus, keys and mouse

void KelText::EnterFocus() { put_TextOriginal(activeBox().text()); }

void KelText::ExitFocus() { Field_.colorOnExit(); }

void KelText::Text1_GotFocus() {
    Field_.selectByTab();
    Field_.colorOnGotFocus();
}

void KelText::Text1_LostFocus() { activeBox().setSelStart(0); }

void KelText::Text1_Change() {
    Field_.tellChanged<&KelText::put_Text>();
    Field_.host().container.raiseEvent(Change, {});
}

void KelText::Text1_Click() { Field_.host().container.raiseEvent(Click, {}); }

void KelText::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    Field_.carryOut(EntryField::answerToKey(KeyCode, Shift, false), KeyCode);
}

KeyAnswer KelText::answerToCharacter(char32_t character) const {
    if (character == keys::Enter && get_MultiLine()) return KeyAnswer::Passes;
    return answerToControlCharacter(character).value_or(KeyAnswer::Writes);
}

void KelText::Text1_KeyPress(char32_t& KeyAscii) {
    const KeyAnswer answer = answerToCharacter(KeyAscii);
    Field_.carryOut(answer, KeyAscii);
    if (answer != KeyAnswer::Writes || !get_MultiLine() || !Field_.overwrites()) return;
    // Overwriting never joins two lines.
    TextBox& box = activeBox();
    if (box.selText().ends_with(u'\r')) box.setSelLength(box.selLength() - 1);
}

}  // namespace kel
