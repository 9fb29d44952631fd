#pragma once

#include <QWidget>
#include <string>

#include "tests/headless/TestForm.h"
#include "tests/qt/QtForm.h"

namespace kel::test {

/// A form of probes on the screen, one below the other, each an edit box with a spinner at its right. The spinners
/// repeat fast, so that no test waits long.
class ProbeForm final : public TextForm {
public:
    static constexpr int RepeatDelay = 20;    ///< milliseconds
    static constexpr int RepeatInterval = 4;  ///< milliseconds

    ProbeForm();

    PlacedControl& place(const std::u16string& name, const ClassModel& model = ProbeControl::SingleLine);
    /// Shows the form and forgets what was told so far.
    void show();

private:
    std::int32_t NextTop_ = 0;
};

QWidget& boxWidgetOf(PlacedControl& placed);
QWidget& spinnerWidgetOf(PlacedControl& placed);

/// Real events of the mouse, as the window system sends them. `place` counts inside `widget`.
void pressMouse(QWidget& widget, const QPoint& place);
void moveMouse(QWidget& widget, const QPoint& place);
void releaseMouse(QWidget& widget, const QPoint& place);

/// The part of a box that takes the mouse.
QWidget& areaOf(TextEntry& box);
/// As the window system does; whether it was used. Qt hands on what is not.
bool turnWheel(QWidget& area, const QPoint& angle);

/// The middle of a spinner's upper or lower button.
QPoint buttonOf(const QWidget& spinner, bool upper);

/// Destroys what waits for the event loop to be destroyed.
void letGo();

}  // namespace kel::test
