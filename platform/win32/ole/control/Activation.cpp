#include "platform/win32/ole/control/Activation.h"

#include "host/DepthGuard.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

constexpr wchar_t ObjectName[] = L"KelControls8";

}  // namespace

HRESULT Activation::activate() {
    if (inPlace()) return S_OK;
    if (Entering_ > 0) return E_UNEXPECTED;
    const DepthGuard entering(Entering_);
    const HRESULT asked = askSite();
    if (FAILED(asked)) return asked;
    const HRESULT entered = enterWindow();
    if (FAILED(entered)) deactivate();
    return entered;
}

HRESULT Activation::askSite() {
    const ComPtr<IOleClientSite> host(Control_.site().get());
    if (!host) return E_UNEXPECTED;
    const auto site = Control_.site().as<IOleInPlaceSite>();
    if (!site) return E_NOINTERFACE;
    if (site->CanInPlaceActivate() != S_OK) return E_FAIL;
    const HRESULT told = site->OnInPlaceActivate();
    if (FAILED(told)) return told;
    if (Control_.site().get() != host.get()) {
        site->OnInPlaceDeactivate();
        return E_UNEXPECTED;
    }
    Site_ = site;
    State_ = State::InPlace;
    return S_OK;
}

HRESULT Activation::enterWindow() {
    const ComPtr<IOleInPlaceSite> site = Site_;
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    HWND parent = nullptr;
    RECT bounds{};
    RECT clip{};
    HRESULT result = site->GetWindow(&parent);
    if (SUCCEEDED(result))
        result = site->GetWindowContext(Frame_.receive(), Document_.receive(), &bounds, &clip, &info);
    if (FAILED(result)) return result;
    if (!inPlace()) return E_UNEXPECTED;
    if (parent == nullptr) return E_FAIL;
    Control_.window().followScreen(parent);
    // All there is to show stands ready before there is a window: it and those in it are made once, at their places.
    Control_.show();
    if (!inPlace()) return E_UNEXPECTED;
    setRects(bounds, clip);
    if (!inPlace()) return E_UNEXPECTED;
    Control_.window().setParent(parent);
    if (Control_.window().handle() == nullptr) return E_FAIL;
    Control_.window().setVisible(true);
    if (IOleClientSite* shown = Control_.site().get()) ComPtr<IOleClientSite>(shown)->ShowObject();
    return inPlace() ? S_OK : E_UNEXPECTED;
}

HRESULT Activation::activateUi() {
    const HRESULT result = activate();
    if (FAILED(result) || uiActive()) return result;
    State_ = State::UiActive;
    const ComPtr<IOleInPlaceSite> site = Site_;
    const HRESULT told = site->OnUIActivate();
    if (FAILED(told)) {
        if (uiActive()) State_ = State::InPlace;
        return told;
    }
    const ComPtr<IOleInPlaceFrame> frame = Frame_;
    const ComPtr<IOleInPlaceUIWindow> document = Document_;
    const auto active = ComPtr<IOleInPlaceActiveObject>::of(&Control_.inner());
    if (frame && uiActive()) frame->SetActiveObject(active.get(), ObjectName);
    if (document && uiActive()) document->SetActiveObject(active.get(), ObjectName);
    if (frame && uiActive()) frame->SetBorderSpace(nullptr);
    return uiActive() ? S_OK : E_UNEXPECTED;
}

void Activation::deactivateUi() {
    if (!uiActive()) return;
    State_ = State::InPlace;
    const ComPtr<IOleInPlaceSite> site = Site_;
    const ComPtr<IOleInPlaceFrame> frame = Frame_;
    const ComPtr<IOleInPlaceUIWindow> document = Document_;
    if (document) document->SetActiveObject(nullptr, nullptr);
    if (frame) frame->SetActiveObject(nullptr, nullptr);
    site->OnUIDeactivate(FALSE);
}

void Activation::deactivate(Ending ending) {
    if (!inPlace()) return;
    deactivateUi();
    if (!inPlace()) return;
    State_ = State::Passive;
    const ComPtr<IOleInPlaceSite> site = std::move(Site_);
    Frame_ = {};
    Document_ = {};
    // A hidden one keeps its place among its neighbours in the host's window, for when it is shown again.
    if (ending == Ending::Hidden)
        Control_.window().setVisible(false);
    else
        Control_.window().abandon();
    site->OnInPlaceDeactivate();
}

HRESULT Activation::setRects(const RECT& bounds, const RECT& clip) {
    if (!inPlace()) return E_UNEXPECTED;
    Bounds_ = bounds;
    Clip_ = clip;
    // Its host may know of another screen before the window is told.
    Control_.window().followScreen();
    if (Placing_ > 0) {
        place();
        return S_OK;
    }
    const DepthGuard placing(Placing_);
    Control_.takeExtent(Control_.extent().twipsIn({widthOf(bounds), heightOf(bounds)}, Control_.window().grid()));
    applyExtent();
    return S_OK;
}

void Activation::extentChanged() {
    if (!inPlace() || Placing_ > 0) return;
    const DepthGuard placing(Placing_);
    applyExtent();
}

void Activation::resolutionChanged() {
    if (!inPlace()) return;
    Control_.window().followScreen();
    extentChanged();
}

/// Shows the window in the size that the control has, and tells the host when that is not the one it gave.
void Activation::applyExtent() {
    const Size given{widthOf(Bounds_), heightOf(Bounds_)};
    const Size wanted = Control_.extent().pixels(Control_.window().grid(), given);
    const bool differs = wanted != given;
    Bounds_.right = Bounds_.left + wanted.width;
    Bounds_.bottom = Bounds_.top + wanted.height;
    place();
    const ComPtr<IOleInPlaceSite> site = Site_;
    if (differs && site) site->OnPosRectChange(&Bounds_);
}

void Activation::place() {
    if (inPlace()) Control_.window().place(Bounds_, Clip_);
}

}  // namespace kel::win32::ole
