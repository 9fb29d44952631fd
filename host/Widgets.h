#pragma once

#include "host/widgets/CheckBox.h"
#include "host/widgets/ComboBox.h"
#include "host/widgets/Label.h"
#include "host/widgets/PictureBox.h"
#include "host/widgets/TextBox.h"
#include "host/widgets/UpDown.h"

namespace kel {

/// The widgets of a control as they stand; null where it has none.
struct WidgetSet {
    Label* label = nullptr;
    FieldWidget* field = nullptr;  ///< the one that is shown
    TextEntry* entry = nullptr;    ///< the same, where it holds a text
    UpDown* upDown = nullptr;
    CheckBox* checkBox = nullptr;
    PictureBox* picture = nullptr;
    ComboBox* comboBox = nullptr;  ///< the same as `field`, where it is a combo box
};

}  // namespace kel
