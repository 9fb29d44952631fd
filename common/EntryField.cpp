#include "common/EntryField.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>

#include "common/FieldFrame.h"
#include "common/Persistence.h"

namespace kel {

namespace {

constexpr std::int32_t SpinnerWidth = 240;
constexpr std::int32_t InformationIcon = 64;

}  // namespace

EntryField::EntryField(ControlHost& host, EntryControl& control, const EntryKind& kind)
    : Host_(host), Control_(control), Kind_(kind), Label1_(host.widgets), Layout_(kind.layout) {}

EntryField& EntryField::of(Object& control) { return static_cast<EntryControl&>(control).entry(); }

const EntryField& EntryField::of(const Object& control) { return static_cast<const EntryControl&>(control).entry(); }

const ClassModel& EntryField::model() const { return Control_.model(); }

// ---- Boxes

void EntryField::add(TextEntry& box) {
    if (Boxes_[0] == nullptr) {
        Boxes_[0] = Active_ = &box;
        return;
    }
    const TextEntry& first = *Boxes_[0];
    box.setVisible(false);
    box.setEnabled(first.enabled());
    box.setLocked(first.locked());
    box.setMaxLength(first.maxLength());
    box.setToolTip(first.toolTip());
    box.setBackColor(CommonBack_);
    if (Shown_) setFieldFont(Host_, box);
    Boxes_[1] = &box;
}

void EntryField::activate(TextEntry& box, const LayoutRule& layout) {
    Active_ = &box;
    Layout_ = layout;
}

void EntryField::showActive() {
    // First the one that shows from now on: it takes the focus over from the other.
    Active_->setVisible(true);
    forEachBox([this](TextEntry& other) {
        if (&other != Active_) other.setVisible(false);
    });
}

// ---- Members

void EntryField::put_Caption(const std::u16string& caption) {
    if (Label1_.caption() == caption) return;
    Label1_.setCaption(caption);
    report<&EntryField::put_Caption>();
}

void EntryField::put_CaptionWidth(std::int16_t twips) {
    if (twips < 0) return;
    CaptionWidthPut_ = true;
    const bool cut = Kind_.captionWithinControl && Host_.container.hasSize();
    setWidth(Label1_, cut ? std::min<std::int32_t>(twips, Host_.container.size().width) : twips);
    report<&EntryField::put_CaptionWidth>();
    Control_.Resize();
}

void EntryField::put_Enabled(bool enabled) {
    report<&EntryField::put_Enabled>();
    if (Kind_.disablesContainer) Host_.container.setEnabled(enabled);
    Label1_.setEnabled(enabled);
    forEachBox([enabled](TextEntry& box) { box.setEnabled(enabled); });
    applyStateLook();
}

void EntryField::put_FontBold(bool bold) {
    Label1_.setFontBold(bold);
    forEachBox([bold](TextEntry& box) { box.setFontBold(bold); });
    report<&EntryField::put_FontBold>();
}

void EntryField::put_InsertMode(bool insert) {
    InsertMode_ = insert;
    report<&EntryField::put_InsertMode>();
}

void EntryField::put_Locked(bool locked) {
    forEachBox([locked](TextEntry& box) { box.setLocked(locked); });
    report<&EntryField::put_Locked>();
    applyStateLook();
}

void EntryField::put_Mandatory(bool mandatory) {
    Mandatory_ = mandatory;
    report<&EntryField::put_Mandatory>();
    colorCaption();
}

void EntryField::put_MaxLength(std::int16_t units) {
    if (units < 0) return;
    forEachBox([units](TextEntry& box) { box.setMaxLength(units); });
    report<&EntryField::put_MaxLength>();
}

void EntryField::put_SelectOnFocus(bool select) {
    SelectOnFocus_ = select;
    report<&EntryField::put_SelectOnFocus>();
}

void EntryField::TooltipSet(const std::u16string& tooltip) {
    forEachBox([&tooltip](TextEntry& box) { box.setToolTip(tooltip); });
    Host_.container.setToolTipText(tooltip);
}

void EntryField::put_UpDown(bool shown) {
    UpDown_ = shown;
    report<&EntryField::put_UpDown>();
    UpDown1_->setVisible(shown);
    Control_.Resize();
}

// ---- Looks

void EntryField::applyBack(const BackChange& change) {
    if (!change.everyField) {
        Active_->setBackColor(change.color);
        return;
    }
    CommonBack_ = change.color;
    forEachBox([&change](TextEntry& box) { box.setBackColor(change.color); });
}

/// Where the container is not disabled with its widgets, a box that is disabled alone looks as if it were not.
void EntryField::applyStateLook() {
    const bool barred = get_Locked() || !Host_.container.enabled();
    if (UpDown1_) UpDown1_->setEnabled(!barred);
    applyBack(backOnStateChange(Host_.settings, barred, Active_->backColor()));
}

// ---- The container

void EntryField::initUpDown(bool shown) {
    UpDown_ = shown;
    UpDown1_->setVisible(shown);
}

void EntryField::initNew() {
    Mandatory_ = true;
    SelectOnFocus_ = false;
    Label1_.setCaption(Host_.container.displayName());
    setWidth(Label1_, NewCaptionWidth);
    Control_.Resize();
}

void EntryField::load(PropertyBag& bag) {
    const DepthGuard guard(LoadingDepth_);
    readPersisted(Host_, Control_, bag);
}

LayoutRule EntryField::layout() const {
    LayoutRule rule = Layout_;
    rule.spinnerWidth = UpDown_ ? SpinnerWidth : 0;
    return rule;
}

bool EntryField::layOut() {
    if (LoadingDepth_ != 0 || !Host_.container.hasSize()) return false;
    const DepthGuard guard(LoadingDepth_);
    const FieldLayout places = layOutField(layout(), Host_.container.size(), wantedCaptionWidth());
    Host_.container.setSize(places.control);
    const Rect caption = Label1_.bounds();
    Label1_.move({caption.left, caption.top, places.captionWidth, places.captionHeight});
    Active_->move(places.field);
    if (UpDown1_) UpDown1_->move(places.spinner);
    return true;
}

void EntryField::fitCaption(std::int32_t twips) {
    FittedCaption_ = twips;
    if (CaptionWidthPut_) return;
    setWidth(Label1_, twips);
    Control_.Resize();
}

void EntryField::show() {
    Shown_ = true;
    if (Kind_.hasCaptionFont)
        setCaptionFont(Host_, Label1_);
    else
        setFieldFont(Host_, Label1_);
    forEachBox([this](TextEntry& box) {
        setFieldFont(Host_, box);
        takeToolTip(Host_, box);
    });
}

WidgetSet EntryField::widgets() {
    return {.label = &Label1_, .field = Active_, .entry = Active_, .upDown = UpDown1_ ? &*UpDown1_ : nullptr};
}

// ---- Focus

void EntryField::selectByTab() {
    if (SelectOnFocus_) selectOnFocus(*Active_, Host_.system.tabKeyDown());
}

// ---- Keys, spinner and messages

KeyAnswer EntryField::answerToKey(std::int16_t keyCode, Modifiers shift, bool steps) {
    if (togglesOverwriting(keyCode, shift)) return KeyAnswer::TogglesInsertMode;
    if (steps && keyCode == keys::Up) return KeyAnswer::StepsUp;
    if (steps && keyCode == keys::Down) return KeyAnswer::StepsDown;
    return KeyAnswer::Passes;
}

void EntryField::carryOut(KeyAnswer answer) {
    switch (answer) {
        case KeyAnswer::Writes:
            if (overwrites()) selectOverwritten(*Active_);
            return;
        case KeyAnswer::TogglesInsertMode: InsertMode_ = !InsertMode_; return;
        case KeyAnswer::MovesOn: moveFocusOn(Host_); return;
        case KeyAnswer::Beeps: Host_.system.beep(); return;
        case KeyAnswer::StepsUp: Control_.step(1); return;
        case KeyAnswer::StepsDown: Control_.step(-1); return;
        case KeyAnswer::Passes:
        case KeyAnswer::Refused: return;
    }
}

void EntryField::UpDown1_Change() {
    FromSpinner_ = true;
    Active_->setFocus();
    const std::int32_t pressed = UpDown1_->value();
    if (pressed != UpDown::Up && pressed != UpDown::Down) return;
    Control_.step(pressed == UpDown::Up ? 1 : -1);
    UpDown1_->setValue(UpDown::Rest);
}

void EntryField::turn(std::int32_t notches) {
    for (std::int32_t left = std::abs(notches); left > 0; --left) Control_.step(notches > 0 ? 1 : -1);
}

void EntryField::complain(const MessageRow& message, std::u16string_view words) {
    assert(std::any_of(model().messages.begin(), model().messages.end(),
                       [&](const MessageRow& listed) { return listed.text == message.text; }));
    Host_.system.messageBox(words, InformationIcon, message.title);
    Active_->setFocus();
}

void EntryControl::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

Standing EntryControl::standing() {
    return {.required = entry().get_Mandatory(),
            .valid = isValid(),
            .locked = entry().get_Locked(),
            .changed = differsFromOriginal(),
            .range = range(),
            .moment = moment()};
}

}  // namespace kel
