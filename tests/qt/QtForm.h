#pragma once

#include <functional>
#include <memory>
#include <QWidget>
#include <string>
#include <string_view>

#include "controls/text/KelText.h"
#include "forms/Home.h"
#include "host/Widgets.h"
#include "tests/headless/Keys.h"

namespace kel::test {

/// A form of fields, one below the other, on the home given. What they tell is written down.
class TextForm : private ControlObserver {
public:
    explicit TextForm(std::unique_ptr<Home> home);
    virtual ~TextForm() = default;

    PlacedControl& place(std::u16string_view name, std::int32_t heightTwips = 300,
                         const ClassModel& model = KelTextModel);
    PlacedControl& placeAt(const Placement& placement, const ClassModel& model = KelTextModel);
    void show() { Window_->show(); }
    /// Destroys the window with all that is on it.
    void unload() { Window_.reset(); }

    FormWindow& window() { return *Window_; }
    Home& home() { return *Home_; }
    /// "a", or "nowhere".
    std::string focused() const;

    /// "a.Change(text) b.Click() " since the last time.
    std::string takeLog() { return std::exchange(Log_, {}); }
    /// Runs in each event, behind the writing down.
    std::function<void(PlacedControl&, const EventRow&)> onEvent;

private:
    void controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) override;
    void propertyReported(PlacedControl& control, std::u16string_view bagName) override;

    std::unique_ptr<Home> Home_;
    std::unique_ptr<FormWindow> Window_;
    std::string Log_;
    std::int32_t NextTop_ = 0;
    std::int32_t NextTab_ = 0;
};

KelText& textOf(PlacedControl& control);
TextEntry& boxOf(PlacedControl& control);

/// The Qt widget behind a box.
QWidget& widgetOf(TextEntry& box);

}  // namespace kel::test
