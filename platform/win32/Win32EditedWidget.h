#pragma once

#include "platform/win32/EditInput.h"
#include "platform/win32/Win32FieldWidget.h"

namespace kel::win32 {

/// What those fields keep whose text stands in an edit window. `Base` is one of the widget interfaces.
template <class Base>
class Win32EditedWidget : public Win32FieldWidget<Base, EditedField> {
public:
    HWND window() const override { return View_.window(); }
    HFONT fontHandle() const override { return this->font().handle(); }

protected:
    Win32EditedWidget(ControlFrame& frame, bool multiLine)
        : Win32FieldWidget<Base, EditedField>(frame), View_(multiLine) {}

    EditView View_;
};

}  // namespace kel::win32
