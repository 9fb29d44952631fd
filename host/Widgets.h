#pragma once

#include <memory>

#include "host/ComboBox.h"
#include "host/TextBox.h"
#include "host/widgets/CheckBox.h"
#include "host/widgets/Label.h"
#include "host/widgets/PictureBox.h"
#include "host/widgets/UpDown.h"

/// How a control comes by its child widgets.
namespace kel {

/// Makes the child widgets of one control that its home implements itself. A listener outlives its widget.
class WidgetFactory : public WidgetHost {
public:
    virtual std::unique_ptr<TextBox> makeTextBox(TextBoxListener& listener, bool multiLine) = 0;
    virtual std::unique_ptr<ComboBox> makeComboBox(ComboBoxListener& listener) = 0;

protected:
    ~WidgetFactory() = default;
};

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
