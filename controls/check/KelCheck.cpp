#include "controls/check/KelCheck.h"

#include "common/FieldState.h"
#include "common/KeyAnswer.h"
#include "common/Persistence.h"

namespace kel {

namespace {

constexpr std::int32_t BoxHeight = 240;

}  // namespace

KelCheck::KelCheck(ControlHost& host) : Host_(host), Check1_(host.widgets, *this) {}

// ---- Properties

void KelCheck::put_Caption(const std::u16string& caption) {
    if (get_Caption() == caption) return;
    Check1_.setCaption(caption);
    report<&KelCheck::put_Caption>();
}

void KelCheck::put_Enabled(bool enabled) {
    Enabled_ = enabled;
    report<&KelCheck::put_Enabled>();
    applyEnabled();
    applyTextColor();
}

void KelCheck::put_Locked(bool locked) {
    Locked_ = locked;
    report<&KelCheck::put_Locked>();
    applyEnabled();
}

void KelCheck::applyEnabled() {
    Host_.container.setEnabled(Enabled_ && !Locked_);
    Check1_.setEnabled(Enabled_);
}

void KelCheck::applyTextColor() { Check1_.setForeColor(Enabled_ ? captionColor(Mandatory_) : colors::SystemGrayText); }

void KelCheck::put_FontBold(bool bold) {
    Check1_.setFontBold(bold);
    report<&KelCheck::put_FontBold>();
}

void KelCheck::put_Mandatory(bool mandatory) {
    Mandatory_ = mandatory;
    report<&KelCheck::put_Mandatory>();
    applyTextColor();
}

void KelCheck::TooltipSet(const std::u16string& tooltip) {
    Check1_.setToolTip(tooltip);
    Host_.container.setToolTipText(tooltip);
}

void KelCheck::put_Value(bool value) {
    {
        const DepthGuard guard(EventDepth_);
        Check1_.setValue(value ? CheckBox::Checked : CheckBox::Unchecked);
    }
    ValueOriginal_ = value;
    report<&KelCheck::put_Value>();
    Host_.container.standingMayDiffer();
}

// ---- The container

void KelCheck::InitProperties() { Check1_.setCaption(Host_.container.displayName()); }

void KelCheck::ReadProperties(PropertyBag& bag) { readPersisted(Host_, *this, bag); }

void KelCheck::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

void KelCheck::Resize() {
    if (LayoutDepth_ != 0 || !Host_.container.hasSize()) return;
    const DepthGuard guard(LayoutDepth_);
    Host_.container.setSize({Host_.container.size().width, FieldHeight});
    const Size size = Host_.container.size();
    Check1_.move({0, (size.height - BoxHeight) / 2, size.width, BoxHeight});
}

void KelCheck::Show() {
    setFieldFont(Host_, Check1_);
    takeToolTip(Host_, Check1_);
}

// ---- The check box

bool KelCheck::Check1_Toggle() { return Host_.container.mayChange(model().rowPutBy<&KelCheck::put_Value>()); }

void KelCheck::Check1_Click() {
    if (EventDepth_ != 0) return;
    Host_.container.boundChanged(model().rowPutBy<&KelCheck::put_Value>());
    Host_.container.raiseEvent(Change, {});
    Host_.container.standingMayDiffer();
}

void KelCheck::Check1_KeyPress(char32_t& KeyAscii) {
    if (answerToControlCharacter(KeyAscii) != KeyAnswer::MovesOn) return;
    KeyAscii = 0;
    moveFocusOn(Host_);
}

}  // namespace kel
