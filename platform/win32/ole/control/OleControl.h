#pragma once

#include <array>
#include <functional>

#include "host/Container.h"
#include "host/Extent.h"
#include "library/Control.h"
#include "platform/win32/control/ControlWindow.h"
#include "platform/win32/ole/automation/Library.h"
#include "platform/win32/ole/com/ConnectionPoints.h"
#include "platform/win32/ole/com/SafetyPart.h"
#include "platform/win32/ole/control/Activation.h"
#include "platform/win32/ole/control/Ambients.h"
#include "platform/win32/ole/control/ClassInfoPart.h"
#include "platform/win32/ole/control/ClientSite.h"
#include "platform/win32/ole/control/ControlParts.h"
#include "platform/win32/ole/control/ControlSystem.h"

namespace kel::win32::ole {

/// A control as component hosts see it: the control itself, its window, its place in the host, and the
/// parts through which the host works them. The dispatch interface comes with `ControlObject`.
class OleControl : public ComObject, private Container, private ControlWindowOwner, protected MemberGate {
public:
    OleControl(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer);
    ~OleControl() override;

    // ---- For the parts

    const ClassModel& model() const { return Model_; }
    const ClassIdentity& identity() const { return Identity_; }
    Control& control() const { return *Control_; }
    ControlWindow& window() { return Window_; }
    ClientSite& site() { return Site_; }
    Activation& activation() { return Activation_; }
    ConnectionPointsPart& connections() { return Connections_; }
    Viewer& viewer() { return Viewer_; }
    Embedders& embedders() { return Embedders_; }

    /// It appears in its host.
    void show();

    /// A usual size until the host gives one.
    const Extent& extent() const { return Extent_; }
    /// The control may take another one.
    void takeExtent(Size twips);

    /// In hundredths of a millimetre.
    SIZEL himetricExtent() const;
    void takeHimetricExtent(const SIZEL& size);

    bool dirty() const { return Dirty_; }
    /// What the host keeps is the control as it stands.
    void saved();

    /// Gives the control its first defaults, with which it is worth saving. E_UNEXPECTED when it has begun before, in
    /// either way.
    HRESULT beginNew();
    /// Runs the control's first loading. A failure leaves the control as it was made.
    HRESULT begin(const std::function<void()>& load);

    void freezeEvents(bool freeze);
    /// There is a person whose deeds count.
    bool attended() const { return Ambients_.userMode && !Ambients_.uiDead; }
    /// The container says something else of the control's surroundings than before.
    void takeAmbients();
    void setSite(IOleClientSite* site);
    void close(bool save);

protected:
    void* find(REFIID iid) override;
    bool mayPut(const MemberRow& member) override;

private:
    // Container
    bool hasSize() const override { return HasExtent_; }
    Size size() const override { return Extent_.twips(); }
    void setSize(Size size) override;
    bool enabled() const override { return Window_.enabled(); }
    void setEnabled(bool enabled) override { Window_.setEnabled(enabled); }
    std::int32_t windowHandle() override { return Window_.handleNumber(); }
    std::u16string displayName() const override { return Site_.displayName(); }
    void completeFont(FontFace& face) const override;
    void propertyChanged(const MemberRow& property) override;
    bool mayChange(const MemberRow& property) override;
    void boundChanged(const MemberRow& property) override;
    void raiseEvent(const EventRow& event, std::span<Variant> arguments) override;
    std::u16string toolTipText() const override { return Site_.toolTipText(); }
    void setToolTipText(std::u16string_view text) override { Site_.setToolTipText(text); }

    // ControlWindowOwner
    void holdOpen() override;
    void letGo() override;
    void focusEntered() override;
    void focusLeft() override;
    void passFocusOn() override;
    void viewChanged() override;
    void resolutionChanged() override;
    void mnemonicChanged() override;
    Control* accessibleControl() override { return Dying_ ? nullptr : Control_.get(); }
    Module& readersModule() override { return countedIn(); }

    void leaveHost();

    enum class Birth { Made, Beginning, Begun };

    const ClassModel& Model_;
    const ClassIdentity& Identity_;
    std::shared_ptr<Apartment> Apartment_;
    ControlSystem System_;
    ClientSite Site_;
    Ambients Ambients_;
    Viewer Viewer_;
    Embedders Embedders_;
    Extent Extent_{{3600, 300}};
    bool HasExtent_ = false;
    bool Dirty_ = false;
    bool Entered_ = false;
    bool Dying_ = false;
    bool Shown_ = false;
    Birth Birth_ = Birth::Made;
    int FrozenDepth_ = 0;
    Activation Activation_;
    ConnectionPointsPart Connections_;
    ClassInfoPart ClassInfo_;
    SafetyPart Safety_;
    std::array<std::unique_ptr<ControlInterfaces>, 6> Parts_;
    ControlWindow Window_;
    std::unique_ptr<Control> Control_;  ///< last: it leans on all of the above
};

/// A control with its dispatch interface. `Dual` forwards the function table of `Interface`.
template <class Dual, class Interface>
class ControlObject final : public OleControl {
public:
    ControlObject(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer)
        : OleControl(library, model, identity, outer), Dual_(*this, control(), model, this, &library) {}

protected:
    void* find(REFIID iid) override {
        void* const found = asOneOf<IDispatch, Interface>(iid, Dual_);
        return found != nullptr ? found : OleControl::find(iid);
    }

private:
    Dual Dual_;
};

}  // namespace kel::win32::ole
