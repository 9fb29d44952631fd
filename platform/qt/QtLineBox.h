#pragma once

#include "platform/qt/QtLine.h"

namespace kel::qt {

/// The single-line edit box.
class QtLineBox final : public QtLine<QtTextBox> {
public:
    QtLineBox(ControlSite& site, TextBoxListener& listener, QWidget& parent) : QtLine(parent, site, listener, false) {}

private:
    void showPasswordChar(char16_t mask) override;
};

}  // namespace kel::qt
