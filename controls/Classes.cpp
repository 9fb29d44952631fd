#include "controls/Classes.h"

#include "controls/datetime/KelDate.h"
#include "controls/datetime/KelTime.h"
#include "controls/number/KelNumber.h"
#include "controls/text/KelText.h"
#include "library/KelControlHandler.h"

namespace kel {

const ClassRegistry& libraryClasses() {
    static const ClassRegistry registry = [] {
        ClassRegistry classes;
        classes.add(KelNumberModel);
        classes.add(KelDateModel);
        classes.add(KelTimeModel);
        classes.add(KelTextModel);
        classes.add(KelControlHandlerModel);
        return classes;
    }();
    return registry;
}

}  // namespace kel
