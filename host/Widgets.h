#pragma once

#include <memory>

#include "host/CheckBox.h"
#include "host/ComboBox.h"
#include "host/PictureBox.h"
#include "host/TextBox.h"
#include "host/UpDown.h"

/// How a control comes by its child widgets.
namespace kel {

/// Makes the child widgets of one control. A listener outlives its widget.
class WidgetFactory {
public:
    virtual std::unique_ptr<Label> makeLabel() = 0;
    virtual std::unique_ptr<TextBox> makeTextBox(TextBoxListener& listener, bool multiLine) = 0;
    virtual std::unique_ptr<UpDown> makeUpDown(UpDownListener& listener) = 0;
    virtual std::unique_ptr<ComboBox> makeComboBox(ComboBoxListener& listener) = 0;
    virtual std::unique_ptr<CheckBox> makeCheckBox(CheckBoxListener& listener) = 0;
    virtual std::unique_ptr<PictureBox> makePictureBox() = 0;

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
