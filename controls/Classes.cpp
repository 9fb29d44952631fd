#include "controls/Classes.h"

#include "controls/check/KelCheck.h"
#include "controls/combo/KelCombo.h"
#include "controls/datetime/KelDate.h"
#include "controls/datetime/KelTime.h"
#include "controls/number/KelNumber.h"
#include "controls/progress/KelProgressBar.h"
#include "controls/text/KelText.h"
#include "library/KelControlHandler.h"

namespace kel {

const ClassRegistry& libraryClasses() {
    static const ClassRegistry registry = [] {
        ClassRegistry classes;
        classes.add(KelProgressBarModel);
        classes.add(KelNumberModel);
        classes.add(KelCheckModel);
        classes.add(KelComboModel);
        classes.add(KelDateModel);
        classes.add(KelTimeModel);
        classes.add(KelTextModel);
        classes.add(KelControlHandlerModel);
        return classes;
    }();
    return registry;
}

}  // namespace kel
