#include "tests/headless/TestForm.h"

#include <utility>

#include "platform/headless/HeadlessHome.h"
#include "values/Text.h"

namespace kel::test {

namespace {

std::string Log;

void note(const std::u16string& who, const std::string& what) {
    if (!Log.empty()) Log += ' ';
    Log += toUtf8(who) + '.' + what;
}

template <bool MultiLine>
std::unique_ptr<Control> makeProbe(ControlHost& host) {
    return std::make_unique<ProbeControl>(host, MultiLine);
}

}  // namespace

const ClassModel ProbeControl::SingleLine{.name = u"Probe", .help = {}, .members = {}, .makeControl = makeProbe<false>};
const ClassModel ProbeControl::MultiLine{.name = u"Probe", .help = {}, .members = {}, .makeControl = makeProbe<true>};

ProbeControl::ProbeControl(ControlHost& host, bool multiLine)
    : Host_(host), Box_(host.widgets, *this, multiLine), UpDown_(host.widgets, *this) {}

void ProbeControl::tell(const std::string& what) {
    note(Host_.container.displayName(), what);
    // A copy: a handler may replace itself.
    if (const Handler handler = Handlers_[what]) handler();
}

void ProbeControl::Text1_KeyDown(std::int16_t& KeyCode, Modifiers /*Shift*/) {
    if (changeCode) KeyCode = changeCode(KeyCode);
    tell("KeyDown");
}

void ProbeControl::Text1_KeyPress(char32_t& KeyAscii) {
    if (changeKey) KeyAscii = changeKey(KeyAscii);
    tell("KeyPress");
}

bool ProbeControl::Text1_Paste(std::u16string& Text) {
    auto changed = changePaste ? changePaste(Text) : Text;
    if (changed) Text = *changed;
    tell("Paste");
    return changed.has_value();
}

void ProbeControl::UpDown1_Change() {
    Box_.setFocus();
    tell("Spin" + std::to_string(UpDown_.value()));
    UpDown_.setValue(UpDown::Rest);
}

void ProbeControl::Text1_MouseDown(MouseButton Button) {
    tell(Button == MouseButton::Right ? "MouseDownRight" : "MouseDown");
}

std::string ProbeControl::takeLog() { return std::exchange(Log, {}); }

int ProbeControl::countOf(std::string_view log, std::string_view what) {
    int count = 0;
    for (std::size_t at = log.find(what); at != std::string_view::npos; at = log.find(what, at + 1)) ++count;
    return count;
}

TestForm::TestForm(const HomeOptions& options) : Home_(headless::makeHome(options)) {
    Window_ = Home_->makeWindow({}, Home_->system());
    Log.clear();
}

PlacedControl& TestForm::place(std::u16string name, const ClassModel& model, Placement placement) {
    placement.name = std::move(name);
    return Window_->place(model, placement, *this);
}

std::string TestForm::focused() const {
    const PlacedControl* const holder = Window_->focused();
    return holder == nullptr ? "nowhere" : toUtf8(holder->name());
}

void TestForm::controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> /*arguments*/) {
    note(control.name(), toUtf8(event.name));
}

}  // namespace kel::test
