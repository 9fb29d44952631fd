#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/Control.h"
#include "library/SharedSettings.h"
#include "values/RegionalSettings.h"

/// What a platform gives to a form: a window, places for controls on it, and hands that work them as a
/// person would. The form, its file and its scripts know no more of a platform than this.
namespace kel {

class PlacedControl;

/// Told what a placed control says to its container. Outlives the control.
class ControlObserver {
public:
    /// By-reference arguments may be changed.
    virtual void controlEvent(PlacedControl& control, const EventRow& event, std::span<Variant> arguments) = 0;
    virtual void propertyReported(PlacedControl& control, std::u16string_view bagName) = 0;

protected:
    ~ControlObserver() = default;
};

/// For those who do not listen.
class SilentObserver final : public ControlObserver {
    void controlEvent(PlacedControl&, const EventRow&, std::span<Variant>) override {}
    void propertyReported(PlacedControl&, std::u16string_view) override {}
};

/// A control on a form's window, with its place there.
class PlacedControl {
public:
    PlacedControl() = default;
    PlacedControl(const PlacedControl&) = delete;
    PlacedControl& operator=(const PlacedControl&) = delete;
    virtual ~PlacedControl() = default;

    virtual Control& control() = 0;
    virtual const std::u16string& name() const = 0;

    /// Twips, inside the parent the control was placed in.
    virtual Rect bounds() const = 0;
    /// The container moves and sizes the control, which then lays itself out; a control may take another
    /// size than it was given.
    virtual void setBounds(const Rect& bounds) = 0;

    virtual std::u16string toolTipText() const = 0;
    virtual void setToolTipText(std::u16string_view text) = 0;
};

/// A frame or picture box that holds other blocks of the form; the window itself is nullptr.
class PlacedPanel {
public:
    virtual ~PlacedPanel() = default;
};

struct Placement {
    std::u16string name;
    Rect bounds{};  ///< twips, inside `parent`
    PlacedPanel* parent = nullptr;
    std::int32_t tabIndex = 0;  ///< order of the Tab key; equal ones in the order they were placed
    bool tabStop = true;
    bool visible = true;
};

/// A block of a class that is not ours, shown as far as it makes sense.
struct ForeignBlock {
    enum class Kind : std::uint8_t { Label, Button, Panel, Line, Other };
    Kind kind = Kind::Other;
    Placement placement{};
    std::u16string className;  ///< as in the form file
    std::u16string caption;    ///< with & before the mnemonic
};

/// One window with one form on it. Destroying it destroys its controls.
class FormWindow {
public:
    FormWindow() = default;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    virtual ~FormWindow() = default;

    /// Makes a control and runs its `Initialize`. The window owns it.
    virtual PlacedControl& place(const ClassModel& model, const Placement& placement, ControlObserver& observer) = 0;

    /// A panel is returned for blocks that can hold others, nullptr for the rest. The window owns it.
    virtual PlacedPanel* placeForeign(const ForeignBlock& block) = 0;

    /// Everything is placed and loaded: runs `Show` of each control and shows the window.
    virtual void show() = 0;

    // ---- Hands. Each call returns when all that follows from it has happened.

    /// A key goes down and up where the focus is; Tab and Shift+Tab move the focus, from nowhere into the
    /// first or last field. Alt with a letter that means nothing there is the key of a mnemonic. Any other key
    /// without the focus does nothing.
    virtual void press(const KeyStroke& stroke) = 0;

    /// By code: neither Tab nor a click. A disabled control does not take it.
    virtual void focus(PlacedControl& control) = 0;

    /// Left mouse button into the field, the caret to `position` (past the end: the end).
    virtual void click(PlacedControl& control, std::int32_t position) = 0;

    /// The same twice, the second time soon after.
    virtual void doubleClick(PlacedControl& control, std::int32_t position) = 0;

    /// Right mouse button in the field; its context menu is closed again unused.
    virtual void rightClick(PlacedControl& control) = 0;

    /// One click on the upper or lower button of the control's spinner, which it has and shows. A disabled
    /// spinner takes none.
    virtual void spin(PlacedControl& control, bool up) = 0;

    /// Opens the list of the control's combo box and clicks this item of it, which there is, counted from 0. A disabled
    /// or locked box gives nothing.
    virtual void pick(PlacedControl& control, std::int32_t item) = 0;

    virtual void setClipboard(std::u16string_view text) = 0;

    /// nullptr: nowhere.
    virtual PlacedControl* focused() const = 0;

    /// Of the window, as the bytes of a PNG file; empty where the home has none.
    virtual std::string picture() = 0;
};

struct WindowSpec {
    std::u16string caption;
    Size clientSize{};  ///< twips
    bool rightToLeft = false;
};

/// Settings of a session that differ from the platform's own.
struct HomeOptions {
    const RegionalSettings* region = nullptr;  ///< nullptr: the platform's own
    std::int32_t colorDepth = 0;               ///< bits per pixel; 0: the display's
    std::int32_t twipsPerPixel = 0;            ///< 0: the display's
};

/// A platform, one object a process. Owns the settings that all its controls share.
class Home {
public:
    Home() = default;
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;
    virtual ~Home() = default;

    virtual SharedSettings& settings() = 0;
    /// The platform's own clock, message boxes and keyboard.
    virtual System& system() = 0;
    virtual const RegionalSettings& region() const = 0;

    /// Controls of the window see `system`, which may be the platform's own or stand before it. It outlives
    /// the window.
    virtual std::unique_ptr<FormWindow> makeWindow(const WindowSpec& window, System& system) = 0;
};

}  // namespace kel
