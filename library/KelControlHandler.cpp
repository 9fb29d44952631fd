#include "library/KelControlHandler.h"

#include "library/AutomationError.h"
#include "library/SharedSettings.h"

namespace kel {

namespace {

constexpr MemberRow Members[] = {
    method<&KelControlHandler::SetRuntime>(u"SetRuntime", 0x60030000,
                                           u"Hands the host's run-time object to the library")
        .arguments(u"Runtime")
        .forTrusted(),
};

ObjectPtr make(SharedSettings& settings) { return std::make_shared<KelControlHandler>(settings); }

}  // namespace

constinit const ClassModel KelControlHandlerModel{
    .name = u"KelControlHandler",
    .help = u"Hands the host's run-time object to the library",
    .members = Members,
    .makeObject = &make,
};

const ClassModel& KelControlHandler::model() const { return KelControlHandlerModel; }

void KelControlHandler::SetRuntime(const ObjectPtr& runtime) {
    auto known = std::dynamic_pointer_cast<Runtime>(runtime);
    if (!known) throw AutomationError(UnknownNameCode, "the object is no run-time object: it has no DecimalSeparator");
    Settings_.HandedOver = true;
    adoptRuntime(Settings_, std::move(known));
}

}  // namespace kel
