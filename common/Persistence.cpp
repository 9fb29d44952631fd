#include "common/Persistence.h"

#include "common/basKelControls.h"

namespace kel {

void readPersisted(ControlHost& host, Control& control, PropertyBag& bag) {
    if (!host.settings.Runtime) InitControls(host.settings, host.system);
    for (const PersistedRow& row : control.model().loaded) row.load(control, bag.readProperty(row));
}

void writePersisted(const Control& control, PropertyBag& bag) {
    for (const PersistedRow& row : control.model().saved) bag.writeProperty(row, row.save(control));
}

}  // namespace kel
