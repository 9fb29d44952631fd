#include "platform/win32/ole/control/Classes.h"

#include <algorithm>
#include <stdexcept>

#include "controls/Classes.h"
#include "KelControls8Forward.h"
#include "platform/win32/ole/com/SafetyPart.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

/// A creatable class that is no control.
template <class Dual, class Interface>
class PlainObject final : public ComObject, private MemberGate {
public:
    PlainObject(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer)
        : ComObject(library.module(), outer),
          Apartment_(library.apartment()),
          Object_(model.makeObject(Apartment_->settings())),
          Dual_(*this, *Object_, model, this, &library),
          ClassInfo_(*this, identity, library),
          Safety_(*this, INTERFACESAFE_FOR_UNTRUSTED_CALLER) {}

protected:
    void* find(REFIID iid) override {
        void* const found = asOneOf<IDispatch, Interface>(iid, Dual_);
        if (found != nullptr) return found;
        if (void* const safety = Safety_.find(iid)) return safety;
        return ClassInfo_.find(iid);
    }
    bool mayCall(const MemberRow& member) const override { return !member.trusted || !Safety_.hasUntrustedCaller(); }

private:
    std::shared_ptr<Apartment> Apartment_;
    ObjectPtr Object_;
    Dual Dual_;
    ClassInfoPart ClassInfo_;
    SafetyPart Safety_;
};

template <class Dual, class Interface>
ComObject* make(Library& library, const ClassModel& model, const ClassIdentity& identity, IUnknown* outer) {
    if (model.isControl()) return new ControlObject<Dual, Interface>(library, model, identity, outer);
    return new PlainObject<Dual, Interface>(library, model, identity, outer);
}

template <class Dual, class Interface>
CreatableClass classOf(std::u16string_view name) {
    const ClassModel* model = libraryClasses().find(name);
    const ClassIdentity* identity = findIdentity(name);
    if (model == nullptr || identity == nullptr) throw std::logic_error("a class of the type library is missing");
    return {*model, *identity, &make<Dual, Interface>};
}

}  // namespace

const std::vector<CreatableClass>& creatableClasses() {
#define KEL_CLASS(Name) classOf<Name##Forward<DualPart<::_##Name>>, ::_##Name>(u## #Name),
    static const std::vector<CreatableClass> Classes{KEL_FOR_EACH_CLASS(KEL_CLASS)};
#undef KEL_CLASS
    return Classes;
}

const CreatableClass* findClass(REFCLSID clsid) {
    for (const CreatableClass& found : creatableClasses())
        if (IsEqualGUID(clsid, toGuid(found.identity.coclass))) return &found;
    return nullptr;
}

}  // namespace kel::win32::ole
