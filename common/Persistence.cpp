#include "common/Persistence.h"

namespace kel {

void readPersisted(Control& control, PropertyBag& bag) {
    for (const PersistedRow& row : control.model().loaded) row.load(control, bag.readProperty(row));
}

void writePersisted(const Control& control, PropertyBag& bag) {
    for (const PersistedRow& row : control.model().saved) bag.writeProperty(row, row.save(control));
}

}  // namespace kel
