#include "controls/Classes.h"

#include "controls/text/KelText.h"
#include "library/KelControlHandler.h"

namespace kel {

const ClassRegistry& libraryClasses() {
    static const ClassRegistry registry = [] {
        ClassRegistry classes;
        classes.add(KelTextModel);
        classes.add(KelControlHandlerModel);
        return classes;
    }();
    return registry;
}

}  // namespace kel
