#pragma once

#include "host/editing/EditedComboBox.h"
#include "platform/qt/EditBox.h"
#include "platform/qt/QtField.h"

namespace kel::qt {

/// A combo box without what is drawn of it. Its text is edited as in a text box.
class QtComboField : public EditedComboBox<QtField<ComboBox>>, public EditBox, private ComboSurroundings {
public:
    /// A longer list scrolls.
    static constexpr std::int32_t MostRows = 8;

    void setLocked(bool locked) override {
        if (locked == this->locked()) return;
        EditedComboBox::setLocked(locked);
        showLocked(locked);
    }

    void gotFocus() override { gainFocus(); }
    void lostFocus() override { loseFocus(); }

protected:
    QtComboField(ControlSite& site, QWidget& widget, ComboBoxListener& listener)
        : EditedComboBox(listener, *this, site, widget), EditBox(Editor_.edit(), *this) {}

private:
    // Both the edit box and the list ask for these.
    bool takesInput() const override { return QtField::takesInput(); }
    void bufferChanged() override { EditBox::bufferChanged(); }
    std::u16string clipboardText() override { return EditBox::clipboardText(); }
    void setClipboardText(std::u16string_view text) override { EditBox::setClipboardText(text); }
    std::ptrdiff_t linesOfPage() const override { return MostRows; }

    bool claims(const KeyStroke& stroke) const override { return Editor_.claims(stroke); }
};

}  // namespace kel::qt
