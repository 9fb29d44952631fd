#pragma once

#include <string>
#include <string_view>

#include "forms/Home.h"
#include "host/editing/EditedComboBox.h"

namespace kel::test {

/// A combo box in memory, worked as a person would.
class FakeBox final : public EditedComboBox<ComboBox>,
                      public FormWindow,
                      private ComboSurroundings,
                      private WidgetHost {
public:
    static constexpr std::ptrdiff_t RowsOfList = 3;

    explicit FakeBox(ComboBoxListener& listener) : EditedComboBox(listener, *this, static_cast<WidgetHost&>(*this)) {}

    /// Steps separated by ";": keys as `press` reads them, or "pick 2", "hover 2", "wheel -1" or "button".
    void play(std::string_view script);

    /// "Ap[ple] 0", with " open 2" behind for a dropped list with its third row highlighted.
    std::string look() const;

    void gotFocus() override { Editor_.edit().listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.edit().listener().Text1_LostFocus(); }
    bool claims(const KeyStroke& stroke) const { return Editor_.claims(stroke); }
    bool answers(const KeyStroke& stroke) { return Editor_.edit().strike(stroke); }
    int repaints() const { return Repaints_; }

    void installFrame(const std::int16_t&) override {}

private:
    void playStep(std::string_view step);

    void press(const KeyStroke& stroke) override;
    void setClipboard(std::u16string_view text) override { Clipboard_.assign(text); }
    PlacedControl& place(const ClassModel&, const Placement&, ControlObserver&) override { std::terminate(); }
    PlacedPanel* placeForeign(const ForeignBlock&) override { return nullptr; }
    void show() override {}
    void focus(PlacedControl&) override {}
    void click(PlacedControl&, std::int32_t) override {}
    void rightClick(PlacedControl&) override {}
    void spin(PlacedControl&, bool) override {}
    void pick(PlacedControl&, std::int32_t) override {}
    PlacedControl* focused() const override { return nullptr; }
    bool savePicture(const std::string&) override { return false; }

    using FieldWidget::click;
    using FieldWidget::rightClick;
    void moveFocusTo(FieldWidget&) override {}
    void focusBarred(FieldWidget&) override {}
    bool takesInput() const override { return enabled() && visible(); }
    void bufferChanged() override {}
    void listChanged() override { ++Repaints_; }
    std::u16string clipboardText() override { return Clipboard_; }
    void setClipboardText(std::u16string_view text) override { Clipboard_.assign(text); }
    std::ptrdiff_t linesOfPage() const override { return RowsOfList; }

    std::u16string Clipboard_;
    int Repaints_ = 0;
};

}  // namespace kel::test
