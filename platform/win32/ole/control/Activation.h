#pragma once

#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

class OleControl;

/// The steps between a control that only has a picture, one with a window in its host, and one whose user
/// interface is the host's for the moment. The host may interfere at each call out: activate, deactivate,
/// close; the step under way then ends where it is, with an error.
class Activation {
public:
    explicit Activation(OleControl& control) : Control_(control) {}

    bool inPlace() const { return State_ != State::Passive; }
    bool uiActive() const { return State_ == State::UiActive; }

    /// The host's frame; none while the control is not in it, or where there is none.
    ComPtr<IOleInPlaceFrame> frame() const { return Frame_; }

    HRESULT activate();
    HRESULT activateUi();
    void deactivateUi();
    /// What becomes of the window.
    enum class Ending { Hidden, Gone };
    void deactivate(Ending ending = Ending::Hidden);

    HRESULT setRects(const RECT& bounds, const RECT& clip);

    /// The control has taken another size by itself.
    void extentChanged();

    /// The control is on another screen: it keeps its size, which takes other pixels there.
    void resolutionChanged();

private:
    enum class State { Passive, InPlace, UiActive };

    HRESULT askSite();
    HRESULT enterWindow();
    void applyExtent();
    void place();

    OleControl& Control_;
    State State_ = State::Passive;
    std::int16_t Entering_ = 0;  ///< above 0 on the way into the host's window
    std::int16_t Placing_ = 0;   ///< above 0 while the host gives the control a size or is told of one
    ComPtr<IOleInPlaceSite> Site_;
    ComPtr<IOleInPlaceFrame> Frame_;
    ComPtr<IOleInPlaceUIWindow> Document_;
    RECT Bounds_{};
    RECT Clip_{};
};

}  // namespace kel::win32::ole
