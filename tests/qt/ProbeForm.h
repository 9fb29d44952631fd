#pragma once

#include <functional>
#include <memory>
#include <QWidget>
#include <string>

#include "forms/Home.h"
#include "tests/headless/TestForm.h"

namespace kel::test {

/// A form of probes on the screen, one below the other, each an edit box with a spinner at its right. The spinners
/// repeat fast, so that no test waits long.
class ProbeForm final : private ControlObserver {
public:
    static constexpr int RepeatDelay = 20;    ///< milliseconds
    static constexpr int RepeatInterval = 4;  ///< milliseconds

    ProbeForm();

    PlacedControl& place(const std::u16string& name, const ClassModel& model = ProbeControl::SingleLine,
                         bool tabStop = true);
    /// Shows the form and forgets what was told so far.
    void show();
    /// Destroys the window with all that is on it.
    void unload() { Window_.reset(); }

    FormWindow& window() { return *Window_; }
    Home& home() { return *Home_; }
    /// "a", or "nowhere".
    std::string focused() const;

    /// A probe raises an event of its own; its host does `handler`.
    void raise(PlacedControl& placed, std::function<void()> handler);

private:
    void controlEvent(PlacedControl&, const EventRow&, std::span<Variant>) override { Handler_(); }
    void propertyReported(PlacedControl&, std::u16string_view) override {}

    std::unique_ptr<Home> Home_;
    std::unique_ptr<FormWindow> Window_;
    std::function<void()> Handler_;
    std::int32_t NextTop_ = 0;
};

QWidget& boxWidgetOf(PlacedControl& placed);
QWidget& spinnerWidgetOf(PlacedControl& placed);

/// Real events of the mouse, as the window system sends them. `place` counts inside `widget`.
void pressMouse(QWidget& widget, const QPoint& place);
void moveMouse(QWidget& widget, const QPoint& place);
void releaseMouse(QWidget& widget, const QPoint& place);

/// The middle of a spinner's upper or lower button.
QPoint buttonOf(const QWidget& spinner, bool upper);

/// Destroys what waits for the event loop to be destroyed.
void letGo();

}  // namespace kel::test
