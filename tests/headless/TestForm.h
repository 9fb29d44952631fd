#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/HeadlessWindow.h"

namespace kel::test {

/// A control of an edit box and a spinner that writes down what it is told ("a.GotFocus") and then does what a test
/// wants.
class ProbeControl final : public Control, private TextBoxListener, private UpDownListener {
public:
    using Handler = std::function<void()>;

    static const ClassModel SingleLine;
    static const ClassModel MultiLine;

    ProbeControl(ControlHost& host, bool multiLine);

    TextBox& box() { return Box_; }
    UpDown& spinner() { return UpDown_; }
    ControlHost& host() { return Host_; }

    /// Runs when the control is told `what`: "GotFocus".
    void on(std::string what, Handler handler) { Handlers_[std::move(what)] = std::move(handler); }
    /// What a key-press handler makes of the character.
    std::function<char32_t(char32_t)> changeKey;
    std::function<std::int16_t(std::int16_t)> changeCode;
    bool usesWheel = true;
    /// Nothing refuses the text that is pasted.
    std::function<std::optional<std::u16string>(std::u16string)> changePaste;

    /// The notifications since the last call, separated by blanks. Shared by all probes.
    static std::string takeLog();
    static int countOf(std::string_view log, std::string_view what);

    const ClassModel& model() const override { return SingleLine; }
    void Initialize() override { tell("Initialize"); }
    void InitProperties() override {}
    void ReadProperties(PropertyBag&) override {}
    void WriteProperties(PropertyBag&) const override {}
    void Resize() override { tell("Resize"); }
    void Show() override { tell("Show"); }
    void EnterFocus() override { tell("EnterFocus"); }
    void ExitFocus() override { tell("ExitFocus"); }
    WidgetSet widgets() override { return {.field = &Box_, .entry = &Box_, .upDown = &UpDown_}; }

private:
    void Text1_Change() override { tell("Change"); }
    void Text1_Click() override { tell("Click"); }
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    bool Text1_Paste(std::u16string& Text) override;
    void Text1_MouseDown(MouseButton Button) override;
    bool Text1_UsesWheel() override { return usesWheel; }
    void Text1_Wheel(std::int32_t Notches) override { tell("Wheel" + std::to_string(Notches)); }
    void Text1_GotFocus() override { tell(Host_.system.tabKeyDown() ? "GotFocusByTab" : "GotFocus"); }
    void Text1_LostFocus() override { tell("LostFocus"); }

    void UpDown1_Change() override;

    void tell(const std::string& what);

    ControlHost Host_;
    TextBox Box_;
    UpDown UpDown_;
    std::map<std::string, Handler> Handlers_;
};

/// A window of the headless home with some probes on it.
class TestForm final : private ControlObserver {
public:
    explicit TestForm(const HomeOptions& options = {});

    Home& home() { return *Home_; }
    headless::HeadlessWindow& window() { return static_cast<headless::HeadlessWindow&>(*Window_); }
    PlacedControl& place(std::u16string name, const ClassModel& model = ProbeControl::SingleLine,
                         Placement placement = {});

    /// "a", or "nowhere".
    std::string focused() const;

private:
    void controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) override;
    void propertyReported(PlacedControl&, std::u16string_view) override {}

    std::unique_ptr<Home> Home_;
    std::unique_ptr<FormWindow> Window_;
};

inline ProbeControl& probe(PlacedControl& placed) { return static_cast<ProbeControl&>(placed.control()); }

}  // namespace kel::test
