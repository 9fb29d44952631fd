#pragma once

#include <QByteArray>
#include <vector>

#include "host/TwipScale.h"
#include "platform/qt/ui/BlockReader.h"

namespace kel::qt {

/// A classic form as a form of Qt's designer.
struct UiForm {
    QByteArray xml;
    std::vector<UiNote> notes;  ///< what stays behind, in the order of the lines
};

/// Every control with what the form keeps of it, the labels, frames and buttons around them, their places, in the
/// pixels that `scale` makes of twips, and the order of the Tab key. The font goes with the pixels: 8 points for 15
/// twips to a pixel. Throws FormError for what `Form` would not load either. Needs a QApplication.
UiForm convertForm(const FormFile& file, const TwipScale& scale);

}  // namespace kel::qt
