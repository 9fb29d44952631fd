#include "common/SpinnerField.h"

#include "common/Persistence.h"

namespace kel {

namespace {

constexpr std::int32_t SpinnerWidth = 240;
constexpr std::int32_t InformationIcon = 64;

}  // namespace

SpinnerField::SpinnerField(ControlHost& host, TextBoxListener& boxListener, UpDownListener& spinnerListener)
    : Host_(host),
      Label1_(host.widgets.makeLabel()),
      Text1_(host.widgets.makeTextBox(boxListener, false)),
      UpDown1_(host.widgets.makeUpDown(spinnerListener)) {}

WidgetSet SpinnerField::widgets() const {
    return {.label = Label1_.get(), .field = Text1_.get(), .entry = Text1_.get(), .upDown = UpDown1_.get()};
}

// ---- Properties

void SpinnerField::putCaption(const std::u16string& caption) { kel::putCaption(Host_, *Label1_, caption); }

void SpinnerField::putCaptionWidth(std::int16_t twips) {
    if (kel::putCaptionWidth(Host_, *Label1_, twips)) layOut();
}

bool SpinnerField::enabled() const { return Host_.container.enabled(); }

void SpinnerField::putEnabled(bool enabled) {
    report(u"Enabled");
    Host_.container.setEnabled(enabled);
    Label1_->setEnabled(enabled);
    Text1_->setEnabled(enabled);
    applyStateLook();
}

void SpinnerField::putLocked(bool locked) {
    Text1_->setLocked(locked);
    report(u"Locked");
    applyStateLook();
}

void SpinnerField::applyStateLook() {
    const bool barred = locked() || !enabled();
    UpDown1_->setEnabled(!barred);
    Text1_->setBackColor(backOnStateChange(Host_.settings, barred, Text1_->backColor()).color);
}

void SpinnerField::putInsertMode(bool insert) {
    InsertMode_ = insert;
    report(u"InsertMode");
}

void SpinnerField::putMandatory(bool mandatory) {
    Mandatory_ = mandatory;
    report(u"Mandatory");
    Label1_->setForeColor(captionColor(mandatory));
}

void SpinnerField::putSelectOnFocus(bool select) {
    SelectOnFocus_ = select;
    report(u"SelectOnFocus");
}

void SpinnerField::putUpDown(bool shown) {
    UpDown_ = shown;
    report(u"UpDown");
    UpDown1_->setVisible(shown);
    layOut();
}

void SpinnerField::setToolTip(const std::u16string& text) {
    Text1_->setToolTip(text);
    Host_.container.setToolTipText(text);
}

// ---- The container

void SpinnerField::initNew(bool upDown) {
    UpDown_ = upDown;
    UpDown1_->setVisible(upDown);
    nameNewCaption(Host_, *Label1_);
    layOut();
}

void SpinnerField::load(Control& control, PropertyBag& bag) {
    const DepthGuard guard(LoadingDepth_);
    readPersisted(Host_, control, bag);
}

void SpinnerField::layOut() {
    if (LoadingDepth_ != 0 || !Host_.container.hasSize()) return;
    const DepthGuard guard(LoadingDepth_);
    const LayoutRule rule{.spinnerWidth = UpDown_ ? SpinnerWidth : 0};
    const FieldLayout layout = layOutField(rule, Host_.container.size(), Label1_->bounds().width);
    Host_.container.setSize(layout.control);
    sizeCaption(*Label1_, layout);
    Text1_->move(layout.field);
    UpDown1_->move(layout.spinner);
}

void SpinnerField::show() {
    setFieldFont(Host_, *Label1_);
    setFieldFont(Host_, *Text1_);
    takeToolTip(Host_, *Text1_);
}

// ---- Keys, mouse and messages

void SpinnerField::prepareOverwriting() {
    if (!InsertMode_ && !locked()) selectOverwritten(*Text1_);
}

int SpinnerField::answerSpinner() {
    Text1_->setFocus();
    switch (UpDown1_->value()) {
        case UpDown::Down: return -1;
        case UpDown::Up: return 1;
        default: return 0;
    }
}

void SpinnerField::complain(std::u16string_view prompt, std::u16string_view title) {
    Host_.system.messageBox(prompt, InformationIcon, title);
    Text1_->setFocus();
}

}  // namespace kel
