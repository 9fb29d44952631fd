#include "platform/win32/ole/control/OleControl.h"

#include <algorithm>

#include "platform/win32/home/Win32Region.h"

namespace kel::win32::ole {

OleControl::OleControl(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer)
    : ComObject(library.module(), outer),
      Model_(model),
      Identity_(identity),
      Apartment_(library.apartment()),
      System_(*this),
      Activation_(*this),
      Connections_(*this, toGuid(identity.events)),
      ClassInfo_(*this, identity, library),
      // Its members reach nothing outside the page, and properties that are damaged are refused.
      Safety_(*this, INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA),
      Parts_{makeEmbeddedPart(*this), makeKeysPart(*this),    makeInPlacePart(*this),
             makePicturePart(*this),  makePersistPart(*this), makeDesignPart(*this)},
      Window_(*this, System_) {
    ControlHost host{*this, Window_.widgets(), System_, Apartment_->settings(), systemRegion()};
    Control_ = model.makeControl(host);
    Control_->Initialize();
}

OleControl::~OleControl() { Dying_ = true; }

void* OleControl::find(REFIID iid) {
    for (const auto& part : Parts_)
        if (void* const found = part->find(iid)) return found;
    if (void* const found = asOneOf<IConnectionPointContainer>(iid, Connections_)) return found;
    if (void* const found = Safety_.find(iid)) return found;
    return ClassInfo_.find(iid);
}

// ---- Size

void OleControl::takeExtent(Size twips) {
    if (HasExtent_ && twips == Extent_.twips()) return;
    Extent_.setTwips(twips);
    HasExtent_ = true;
    Control_->Resize();
}

void OleControl::setSize(Size size) {
    if (HasExtent_ && size == Extent_.twips()) return;
    takeExtent(size);
    Activation_.extentChanged();
}

SIZEL OleControl::himetricExtent() const {
    const Size size = Extent_.himetric();
    return {size.width, size.height};
}

void OleControl::takeHimetricExtent(const SIZEL& size) {
    const Size given{static_cast<std::int32_t>(size.cx), static_cast<std::int32_t>(size.cy)};
    Extent_.given(given);
    takeExtent(Extent::twipsOf(given));
}

// ---- Birth and end

HRESULT OleControl::begin(const std::function<void()>& load) {
    if (Birth_ != Birth::Made) return E_UNEXPECTED;
    Birth_ = Birth::Beginning;
    try {
        load();
    } catch (...) {
        Birth_ = Birth::Made;
        throw;
    }
    Birth_ = Birth::Begun;
    // A host that shows a picture of it does not place it first.
    if (HasExtent_) Control_->Resize();
    Dirty_ = false;
    return S_OK;
}

HRESULT OleControl::beginNew() {
    const HRESULT begun = begin([this] { Control_->InitProperties(); });
    if (SUCCEEDED(begun)) Dirty_ = true;
    return begun;
}

void OleControl::saved() {
    Dirty_ = false;
    Embedders_.saved();
}

void OleControl::setSite(IOleClientSite* site) {
    if (site == Site_.get()) return;
    leaveHost();
    Site_.set(site);
    takeAmbients();
}

void OleControl::takeAmbients() {
    // What has left its host stays as it was there: nobody has said anything else.
    if (!Site_) return;
    const Ambients now = readAmbients(Site_);
    // While it is still filled in, a field is left as by a person.
    if (Ambients_.userMode && !now.userMode) Window_.dropInput();
    const Ambients before = std::exchange(Ambients_, now);
    Window_.setInert(!attended());
    Window_.setMirrored(now.rightToLeft);
    Window_.setGround(now.ground);
    if (CheckBox* const box = Control_->widgets().checkBox) box->setBackColor(now.ground);
    const RegionalSettings& region = regionOf(now.locale);
    if (&region != &regionOf(before.locale)) Control_->RegionChanged(region);
    if (Shown_ && now.font != before.font) Control_->Show();
}

void OleControl::show() {
    Shown_ = true;
    Control_->Show();
}

void OleControl::completeFont(FontFace& face) const {
    if (face.name.empty()) face.name = Ambients_.font.name;
    if (face.size <= 0) face.size = Ambients_.font.size;
}

void OleControl::close(bool save) {
    if (save && Dirty_) Site_.saveObject();
    leaveHost();
}

/// The host is free to do away with its window; one for the control is made when it is activated again.
void OleControl::leaveHost() {
    Activation_.deactivate(Activation::Ending::Gone);
    Window_.abandon();
}

void OleControl::freezeEvents(bool freeze) { FrozenDepth_ = std::max(0, FrozenDepth_ + (freeze ? 1 : -1)); }

// ---- What the control says to its host

void OleControl::propertyChanged(const MemberRow& property) {
    Dirty_ = true;
    boundChanged(property);
}

bool OleControl::mayPut(const MemberRow& member) { return !member.isPersisted() || mayChange(member); }

bool OleControl::mayChange(const MemberRow& property) {
    if (Dying_) return true;
    const ComPtr<IUnknown> held(&outer());
    return Connections_.Notify.mayChange(property.id);
}

void OleControl::boundChanged(const MemberRow& property) {
    if (Dying_) return;
    const ComPtr<IUnknown> held(&outer());
    Connections_.Notify.changed(property.id);
}

void OleControl::raiseEvent(const EventRow& event, std::span<Variant> arguments) {
    if (FrozenDepth_ > 0 || Dying_ || !Ambients_.userMode) return;
    const ComPtr<IUnknown> held(&outer());
    Connections_.Events.raise(event, arguments);
}

// ---- What the window says

void OleControl::holdOpen() {
    if (!Dying_) outer().AddRef();
}

void OleControl::letGo() {
    if (!Dying_) outer().Release();
}

void OleControl::focusEntered() {
    if (Dying_) return;
    Activation_.activateUi();
    Site_.onFocus(true);
    if (std::exchange(Entered_, true)) return;
    Control_->EnterFocus();
}

void OleControl::focusLeft() {
    if (Dying_ || !std::exchange(Entered_, false)) return;
    Control_->ExitFocus();
    Site_.onFocus(false);
}

/// The host alone knows its order of Tab: it is given the key.
void OleControl::passFocusOn() {
    if (Dying_) return;
    HWND const field = GetFocus();
    Window_.setFocus();
    if (GetFocus() == field) Site_.pressTab(field);
}

void OleControl::viewChanged() {
    if (!Dying_ && !Activation_.inPlace()) Viewer_.outOfDate();
}

void OleControl::resolutionChanged() {
    if (!Dying_) Activation_.resolutionChanged();
}

void OleControl::mnemonicChanged() {
    if (!Dying_) Site_.controlInfoChanged();
}

}  // namespace kel::win32::ole
