#pragma once

#include <memory>

#include "common/FieldFrame.h"
#include "common/FieldLook.h"
#include "host/PropertyBag.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/Control.h"

namespace kel {

/// Caption, text box and spinner of a number, date or time field, with the properties that live in them and
/// what the three fields do alike. Which value the text stands for is the control's own affair.
class SpinnerField {
public:
    /// The listeners outlive it.
    SpinnerField(ControlHost& host, TextBoxListener& boxListener, UpDownListener& spinnerListener);

    ControlHost& host() { return Host_; }
    const ControlHost& host() const { return Host_; }
    Label& label() const { return *Label1_; }
    TextBox& box() const { return *Text1_; }
    WidgetSet widgets() const;

    void report(std::u16string_view bagName) { Host_.container.propertyChanged(bagName); }

    // ---- Properties. Each put reports its own name.

    void putCaption(const std::u16string& caption);
    std::int16_t captionWidth() const { return static_cast<std::int16_t>(Label1_->bounds().width); }
    void putCaptionWidth(std::int16_t twips);
    bool enabled() const;
    void putEnabled(bool enabled);
    bool locked() const { return Text1_->locked(); }
    void putLocked(bool locked);
    bool insertMode() const { return InsertMode_; }
    void putInsertMode(bool insert);
    bool mandatory() const { return Mandatory_; }
    void putMandatory(bool mandatory);
    bool selectOnFocus() const { return SelectOnFocus_; }
    void putSelectOnFocus(bool select);
    bool upDown() const { return UpDown_; }
    void putUpDown(bool shown);
    void setToolTip(const std::u16string& text);

    // ---- What the container tells

    /// Caption, width and spinner of a control newly placed in a designer.
    void initNew(bool upDown);
    void load(Control& control, PropertyBag& bag);
    void layOut();
    void show();
    void colorOnGotFocus() { Text1_->setBackColor(backOnGotFocus(Host_.settings, locked()).color); }
    void colorOnExit() { Text1_->setBackColor(backOnExitFocus(Host_.settings, locked()).color); }

    // ---- Keys, mouse and messages

    /// The Insert key; nothing is reported.
    void toggleInsertMode() { InsertMode_ = !InsertMode_; }
    /// Before a typed character: in overwrite mode it replaces the next one.
    void prepareOverwriting();
    void moveOn() const { moveFocusOn(Host_); }

    /// Gives the text box the focus, as a press of the spinner does. +1 or -1 for a press, 0 for none.
    int answerSpinner();
    void restSpinner() { UpDown1_->setValue(UpDown::Rest); }

    /// Tells the user what is wrong with the text and puts the focus back into it.
    void complain(std::u16string_view prompt, std::u16string_view title);

private:
    void applyStateLook();

    ControlHost Host_;
    std::unique_ptr<Label> Label1_;
    std::unique_ptr<TextBox> Text1_;
    std::unique_ptr<UpDown> UpDown1_;

    bool InsertMode_ = false;
    bool Mandatory_ = true;
    bool SelectOnFocus_ = false;
    bool UpDown_ = false;
    std::int16_t LoadingDepth_ = 0;
};

}  // namespace kel
