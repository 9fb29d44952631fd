#pragma once

#include <algorithm>

#include "host/editing/TextBoxEditor.h"
#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

/// What every widget keeps whose text is edited in memory. `Edited` is the part that is the same on every home;
/// `Surroundings` is what its editor wants around it.
template <class Edited, class Surroundings>
class HeadlessEdited : public Edited, protected Surroundings {
public:
    void gotFocus() override { edit().listener().Text1_GotFocus(); }
    void lostFocus() override { edit().listener().Text1_LostFocus(); }
    void strike(const KeyStroke& stroke) override { edit().strike(stroke); }
    void click(std::int32_t position) override {
        this->setSelStart(position);
        edit().pressMouse(MouseButton::Left);
        edit().click();
    }
    void rightClick() override { edit().pressMouse(MouseButton::Right); }
    void turnWheel(std::int32_t notches) override {
        if (edit().listener().Text1_UsesWheel()) edit().listener().Text1_Wheel(notches);
    }
    void drop(std::int32_t position, std::u16string_view text) override {
        this->setSelStart(position);
        edit().paste(text);
    }

protected:
    using Edited::Edited;

    virtual TextBoxEditor& edit() = 0;

private:
    Input& input() { return static_cast<PlacedHeadlessControl&>(this->host()).seat().input; }

    bool takesInput() const override { return Edited::takesInput(); }
    void bufferChanged() override {}
    std::u16string clipboardText() override { return input().Clipboard; }
    void setClipboardText(std::u16string_view text) override { input().Clipboard.assign(text); }
    std::ptrdiff_t linesOfPage() const override {
        return std::max<std::ptrdiff_t>(this->bounds().height / this->extentUnseen(0).height, 1);
    }
};

}  // namespace kel::headless
