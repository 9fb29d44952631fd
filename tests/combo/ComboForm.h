#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "controls/combo/KelCombo.h"
#include "host/Container.h"
#include "host/PropertyBag.h"
#include "host/System.h"
#include "runtime/KelRuntime.h"
#include "tests/combo/FakeBox.h"

namespace kel::test {

/// A combo field in a container that writes down what it is told.
class ComboForm final : public WidgetFactory, private Container, private System, private RuntimeServices {
public:
    ComboForm();

    FakeBox& box() { return *Box_; }
    KelCombo& combo() { return *Combo_; }
    SharedSettings& settings() { return Settings_; }

    /// From a form file with the default of every property but these.
    void load(const std::map<std::u16string, Variant>& values = {});
    void enter(bool byTab = true);
    void leave();
    void resize(Size size);

    /// What the host answers to ChangeEx.
    bool handled = true;
    /// Runs when an event is raised.
    std::function<void(const EventRow&)> onEvent;

    /// "ChangeEx Change" since the last call.
    std::string takeEvents() { return std::exchange(Events_, {}); }
    /// "Text,List" since the last call.
    std::string takeReports() { return std::exchange(Reports_, {}); }
    int tabsSent() const { return TabsSent_; }
    const std::u16string& toolTip() const { return ToolTip_; }

private:
    bool hasSize() const override { return Sized_; }
    Size size() const override { return Size_; }
    void setSize(Size size) override;
    bool enabled() const override { return Enabled_; }
    void setEnabled(bool enabled) override { Enabled_ = enabled; }
    std::int32_t windowHandle() override { return 0; }
    std::u16string displayName() const override { return u"cboTown"; }
    void propertyChanged(std::u16string_view bagName) override;
    void raiseEvent(const EventRow& event, std::span<Variant> arguments) override;
    std::u16string toolTipText() const override { return ToolTip_; }
    void setToolTipText(std::u16string_view text) override { ToolTip_.assign(text); }

    Date today() const override { return {}; }
    double timer() const override { return 0; }
    void messageBox(std::u16string_view, std::int32_t, std::u16string_view) override {}
    void beep() override {}
    bool tabKeyDown() const override { return TabDown_; }
    std::int32_t twipsPerPixel() const override { return 15; }

    std::unique_ptr<Label> makeLabel() override { return std::make_unique<headless::HeadlessLabel>(); }
    std::unique_ptr<TextBox> makeTextBox(TextBoxListener&, bool) override { return nullptr; }
    std::unique_ptr<UpDown> makeUpDown(UpDownListener&) override { return nullptr; }
    std::unique_ptr<CheckBox> makeCheckBox(CheckBoxListener&) override { return nullptr; }
    std::unique_ptr<PictureBox> makePictureBox() override { return nullptr; }
    std::unique_ptr<ComboBox> makeComboBox(ComboBoxListener& listener) override;

    std::int32_t colorDepth() const override { return 24; }
    const RegionalSettings& region() const override { return defaultRegion(); }
    FontChoice captionFont() const override { return {u"Sans"}; }
    FontChoice fieldFont() const override { return {u"Sans"}; }
    void sendKey(std::int16_t keyCode) override { TabsSent_ += keyCode == keys::Tab ? 1 : 0; }

    SharedSettings Settings_;
    std::u16string ToolTip_;
    std::string Events_;
    std::string Reports_;
    Size Size_;
    int TabsSent_ = 0;
    bool Sized_ = false;
    bool Enabled_ = true;
    bool TabDown_ = false;
    FakeBox* Box_ = nullptr;
    std::unique_ptr<KelCombo> Combo_;
};

}  // namespace kel::test
