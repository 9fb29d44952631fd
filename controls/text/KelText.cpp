#include "controls/text/KelText.h"

#include "common/FieldFrame.h"
#include "common/FieldLook.h"
#include "common/Persistence.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";

constexpr LayoutRule SingleLineLayout{.fixedHeight = false, .widenAlways = false};
constexpr LayoutRule MultiLineLayout{.fixedHeight = false, .widenAlways = false, .captionFillsHeight = true};

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

KelText::KelText(ControlHost& host) : Host_(host), Label1_(host.widgets.makeLabel()) {
    Text1_[0] = host.widgets.makeTextBox(*this, false);
}

// ---- Properties kept in the widgets

std::u16string KelText::get_Caption() const { return Label1_->caption(); }

void KelText::put_Caption(const std::u16string& caption) { putCaption(Host_, *Label1_, caption); }

std::int16_t KelText::get_CaptionWidth() const { return static_cast<std::int16_t>(Label1_->bounds().width); }

void KelText::put_CaptionWidth(std::int16_t twips) {
    if (putCaptionWidth(Host_, *Label1_, twips)) Resize();
}

bool KelText::get_Enabled() const { return Host_.container.enabled(); }

void KelText::put_Enabled(bool enabled) {
    reportChanged(u"Enabled");
    Host_.container.setEnabled(enabled);
    Label1_->setEnabled(enabled);
    forEachBox([enabled](TextBox& box) { box.setEnabled(enabled); });
    applyStateLook();
}

std::int32_t KelText::get_hWnd() const { return Host_.container.windowHandle(); }

bool KelText::get_Locked() const { return Text1_[0]->locked(); }

void KelText::put_Locked(bool locked) {
    forEachBox([locked](TextBox& box) { box.setLocked(locked); });
    reportChanged(u"Locked");
    applyStateLook();
}

std::int16_t KelText::get_MaxLength() const { return static_cast<std::int16_t>(Text1_[0]->maxLength()); }

void KelText::put_MaxLength(std::int16_t units) {
    if (units < 0) return;
    forEachBox([units](TextBox& box) { box.setMaxLength(units); });
    reportChanged(u"MaxLength");
}

std::u16string KelText::get_PasswordChar() const {
    std::u16string text;
    if (const char32_t character = Text1_[0]->passwordChar(); character != 0) appendCodePoint(text, character);
    return text;
}

void KelText::put_PasswordChar(const std::u16string& character) {
    const char32_t first = maskOf(character);
    forEachBox([first](TextBox& box) { box.setPasswordChar(first); });
    reportChanged(u"PasswordChar");
}

void KelText::TooltipSet(const std::u16string& tooltip) {
    forEachBox([&tooltip](TextBox& box) { box.setToolTip(tooltip); });
    Host_.container.setToolTipText(tooltip);
}

void KelText::Refresh() { activeBox().refresh(); }

// ---- Properties of the control's own

void KelText::put_InsertMode(bool insert) {
    InsertMode_ = insert;
    reportChanged(u"InsertMode");
}

void KelText::put_Mandatory(bool mandatory) {
    Mandatory_ = mandatory;
    reportChanged(u"Mandatory");
    Label1_->setForeColor(captionColor(mandatory));
}

void KelText::put_SelectOnFocus(bool select) {
    SelectOnFocus_ = select;
    reportChanged(u"SelectOnFocus");
}

bool KelText::get_Changed() const { return !activeBox().textEquals(TextOriginal_); }

bool KelText::get_ChangedSaved() const { return !activeBox().textEquals(TextSaved_); }

bool KelText::get_Valid() const {
    if (activeBox().locked() || !Mandatory_) return true;
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
    // A copy where the host passes TextOriginal itself, or the change event frees what it passed.
    std::u16string original = text;
    activeBox().setText(text);
    TextOriginal_ = std::move(original);
}

void KelText::put_MultiLine(bool multiLine) {
    const std::u16string text = get_Text();
    if (multiLine && !Text1_[1]) makeMultiLineBox();
    FieldIndex_ = multiLine ? 1 : 0;
    reportChanged(u"MultiLine");
    // First the one that shows from now on: it takes the focus over from the other.
    activeBox().setVisible(true);
    if (TextBox* const other = Text1_[multiLine ? 0 : 1].get()) other->setVisible(false);
    put_Text(text);
    Resize();
}

void KelText::makeMultiLineBox() {
    const TextBox& first = *Text1_[0];
    auto box = Host_.widgets.makeTextBox(*this, true);
    box->setVisible(false);
    box->setEnabled(first.enabled());
    box->setLocked(first.locked());
    box->setMaxLength(first.maxLength());
    box->setPasswordChar(first.passwordChar());
    box->setToolTip(first.toolTip());
    box->setBackColor(CommonBack_);
    if (Shown_) setFieldFont(Host_, *box);
    Text1_[1] = std::move(box);
}

// ---- Looks

void KelText::applyBack(const BackChange& change) {
    if (!change.everyField) {
        activeBox().setBackColor(change.color);
        return;
    }
    CommonBack_ = change.color;
    forEachBox([&change](TextBox& box) { box.setBackColor(change.color); });
}

void KelText::applyStateLook() {
    const bool barred = get_Locked() || !Host_.container.enabled();
    applyBack(backOnStateChange(Host_.settings, barred, activeBox().backColor()));
}

void KelText::Resize() {
    if (LoadingDepth_ != 0 || !Host_.container.hasSize()) return;
    const DepthGuard guard(LoadingDepth_);
    const LayoutRule& rule = get_MultiLine() ? MultiLineLayout : SingleLineLayout;
    const FieldLayout layout = layOutField(rule, Host_.container.size(), Label1_->bounds().width);
    Host_.container.setSize(layout.control);
    sizeCaption(*Label1_, layout);
    activeBox().move(layout.field);
}

void KelText::Show() {
    Shown_ = true;
    setCaptionFont(Host_, *Label1_);
    forEachBox([this](TextBox& box) {
        setFieldFont(Host_, box);
        takeToolTip(Host_, box);
    });
}

// ---- Design-time properties

void KelText::InitProperties() {
    InsertMode_ = true;
    Mandatory_ = true;
    SelectOnFocus_ = false;
    nameNewCaption(Host_, *Label1_);
    Resize();
}

void KelText::ReadProperties(PropertyBag& bag) {
    const DepthGuard guard(LoadingDepth_);
    readPersisted(Host_, *this, bag);
}

void KelText::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

// ---- Focus, keys and mouse

void KelText::EnterFocus() { TextOriginal_ = activeBox().text(); }

void KelText::ExitFocus() { applyBack(backOnExitFocus(Host_.settings, get_Locked())); }

void KelText::Text1_GotFocus() {
    TextBox& box = activeBox();
    if (SelectOnFocus_) selectOnFocus(box, Host_.system.tabKeyDown());
    applyBack(backOnGotFocus(Host_.settings, box.locked()));
}

void KelText::Text1_LostFocus() { activeBox().setSelStart(0); }

void KelText::Text1_Change() { Host_.container.raiseEvent(Change, {}); }

void KelText::Text1_Click() { Host_.container.raiseEvent(Click, {}); }

void KelText::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    if (togglesOverwriting(KeyCode, Shift)) InsertMode_ = !InsertMode_;
}

void KelText::Text1_KeyPress(char32_t& KeyAscii) {
    switch (KeyAscii) {
        case keys::Backspace:
        case keys::Escape: return;
        case keys::Enter:
            if (get_MultiLine()) return;
            KeyAscii = 0;
            moveFocusOn(Host_);
            return;
        default: break;
    }
    TextBox& box = activeBox();
    if (InsertMode_ || box.locked()) return;
    selectOverwritten(box);
    // Overwriting never joins two lines.
    if (get_MultiLine() && box.selText().ends_with(u'\r')) box.setSelLength(box.selLength() - 1);
}

WidgetSet KelText::widgets() { return {.label = Label1_.get(), .field = &activeBox(), .entry = &activeBox()}; }

}  // namespace kel
