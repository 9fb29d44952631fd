#pragma once

#include <memory>
#include <QEvent>
#include <vector>

#include "forms/Home.h"
#include "host/focus/TabOrder.h"
#include "platform/qt/control/ControlSite.h"

class QLabel;
class QWidget;

namespace kel::qt {

class PlacedQtControl;

/// A form on the screen.
class QtFormWindow final : public FormWindow {
public:
    QtFormWindow(const WindowSpec& description, const ControlServices& surroundings);
    ~QtFormWindow() override;

    PlacedControl& place(const ClassModel& model, const Placement& placement, ControlObserver& observer) override;
    PlacedPanel* placeForeign(const ForeignBlock& block) override;
    void show() override;

    void press(const KeyStroke& stroke) override;
    void focus(PlacedControl& control) override;
    void click(PlacedControl& control, std::int32_t position) override;
    void doubleClick(PlacedControl& control, std::int32_t position) override;
    void rightClick(PlacedControl& control) override;
    void spin(PlacedControl& control, bool up) override;
    void pick(PlacedControl& control, std::int32_t item) override;
    void setClipboard(std::u16string_view text) override;
    PlacedControl* focused() const override;
    std::string picture() override;

    /// What nobody in the window has used is a mnemonic of the form, which comes before any shortcut.
    bool takesKey(QEvent& event);

    /// The window itself, which may stand in another one. Owned here.
    QWidget& widget() const { return *Window_; }

private:
    struct Caption {
        QLabel* label;
        std::int32_t tabIndex;
    };

    QWidget& parentOf(const Placement& placement) const;
    void setTabOrder();
    void nameByLabels();
    PlacedQtControl* focusedControl() const;
    void activate();
    void click(PlacedControl& control, std::int32_t position, QEvent::Type press);
    template <class Action>
    void byMouse(PlacedControl& control, Action action);

    ControlServices Surroundings_;
    std::unique_ptr<QWidget> Window_;
    TabOrder Order_;
    std::vector<Caption> Captions_;                           ///< plain labels, which name the next control
    std::vector<std::unique_ptr<PlacedQtControl>> Controls_;  ///< last: they stand on the window
};

}  // namespace kel::qt
