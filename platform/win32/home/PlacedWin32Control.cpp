#include "platform/win32/home/PlacedWin32Control.h"

#include "platform/win32/home/Win32FormWindow.h"
#include "platform/win32/ole/com/ComObject.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

PlacedWin32Control::PlacedWin32Control(const ClassModel& model, const Placement& placement, std::size_t order,
                                       ControlObserver& observer, const ControlServices& surroundings)
    : TabStop(placement.tabIndex, order, placement.tabStop),
      Observer_(observer),
      Form_(surroundings.form),
      Grid_(surroundings.system.scale()),
      Name_(placement.name),
      Bounds_(placement.bounds),
      Window_(*this, surroundings.system, surroundings.clipboard) {
    Window_.setParent(surroundings.parent);
    Window_.setVisible(placement.visible);
    ControlHost host{*this, Window_.widgets(), surroundings.system, surroundings.settings, surroundings.region};
    Control_ = model.makeControl(host);
}

PlacedWin32Control::~PlacedWin32Control() {
    // From here on nobody is told of the focus.
    Control_.reset();
}

void PlacedWin32Control::setBounds(const Rect& bounds) {
    Bounds_.left = bounds.left;
    Bounds_.top = bounds.top;
    setSize({bounds.width, bounds.height});
    showPlace();
}

void PlacedWin32Control::setSize(Size wanted) {
    if (Sized_ && wanted == size()) return;
    Bounds_.width = wanted.width;
    Bounds_.height = wanted.height;
    Sized_ = true;
    showPlace();
    if (Control_) Control_->Resize();
}

void PlacedWin32Control::showPlace() {
    const RECT pixels = Grid_.pixels(Bounds_);
    Window_.place(pixels, pixels);
}

void PlacedWin32Control::setGrid(const TwipGrid& grid) {
    Grid_ = grid;
    Window_.setGrid(grid);
    showPlace();
}

void PlacedWin32Control::focusEntered() {
    if (Control_) Control_->EnterFocus();
}

void PlacedWin32Control::focusLeft() {
    if (Control_) Control_->ExitFocus();
}

void PlacedWin32Control::passFocusOn() { Form_.passFocusOn(*this); }

/// The program stays loaded whatever is held.
ole::Module& PlacedWin32Control::readersModule() {
    static ole::Module Program;
    return Program;
}

HWND PlacedWin32Control::focusWindow() const {
    const WindowedField* const field = viewOf<WindowedField>(focusTarget());
    return field != nullptr ? field->window() : nullptr;
}

}  // namespace kel::win32
