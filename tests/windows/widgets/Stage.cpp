#include "tests/windows/widgets/Stage.h"

namespace kel::tests {

namespace {

constexpr int StageWidth = 300;
constexpr int StageHeight = 60;

}  // namespace

Stage::Stage(bool multiLine)
    : Scene(StageWidth, StageHeight), Label_(control().widgets()), Box_(control().widgets(), *this, multiLine) {
    UpDownListener& spinning = *this;
    UpDown_ = std::make_unique<UpDown>(control().widgets(), spinning);
    Label_.move(twipsOf({0, 0, StageWidth / 3, 13}));
    Box_.move(twipsOf({StageWidth / 3, 0, StageWidth * 2 / 3, multiLine ? StageHeight : 20}));
    UpDown_->move(twipsOf({StageWidth - 16, 30, 16, 20}));
    placeOn(host().window());
}

void Stage::enter() {
    SetFocus(edit());
    settle();
    takeLog();
}

void Stage::Text1_KeyDown(std::int16_t& KeyCode, Modifiers /*Shift*/) {
    tell(L"down:" + std::to_wstring(KeyCode));
    if (onKeyDown) onKeyDown();
    if (swallowKeys) KeyCode = 0;
}

void Stage::Text1_KeyPress(char32_t& KeyAscii) { tell(L"key:" + std::to_wstring(static_cast<unsigned>(KeyAscii))); }

bool Stage::Text1_Paste(std::u16string& Text) {
    tell(L"paste:" + win32::wide(Text));
    return !onPaste || onPaste(Text);
}

void Stage::Text1_Wheel(std::int32_t Notches) { tell(L"wheel:" + std::to_wstring(Notches)); }

void Stage::UpDown1_Change() {
    tell(L"step:" + std::to_wstring(UpDown_->value()));
    if (onStep) onStep();
    if (UpDown_) UpDown_->setValue(UpDown::Rest);
}

void Stage::Text1_MouseDown(MouseButton Button) { tell(L"press:" + std::to_wstring(static_cast<int>(Button))); }

void Stage::Text1_LostFocus() {
    tell(L"lost");
    if (onLost) onLost();
}

}  // namespace kel::tests
