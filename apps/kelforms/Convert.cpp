#include "apps/kelforms/Convert.h"

#include <iostream>

#include "forms/file/FileWriter.h"
#include "forms/file/FormFile.h"
#include "forms/file/FormStore.h"

#ifdef KEL_HAS_QT
#include "apps/kelforms/Homes.h"
#include "platform/qt/base/TwipGrid.h"
#include "platform/qt/ui/FormToUi.h"
#endif

namespace kel::app {

#ifdef KEL_HAS_QT

ExitStatus convertForm(const Options& options) {
    const auto session = openHome("qt", options, false);
    const std::int32_t twips = options.home.twipsPerPixel;
    const qt::UiForm form =
        qt::convertForm(readFormFile(options.files[0]), TwipScale(twips > 0 ? twips : ClassicTwipsPerPixel));
    writeFile(pathOf(options.files[1]), form.xml.toStdString());
    for (const qt::UiNote& note : form.notes) std::cout << note.line << ": " << note.text << "\n";
    return Done;
}

#else

ExitStatus convertForm(const Options& /*options*/) { throw UsageError("convert: this program was built without Qt"); }

#endif

}  // namespace kel::app
