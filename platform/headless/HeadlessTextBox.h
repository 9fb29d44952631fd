#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/headless/HeadlessEdited.h"

namespace kel::headless {

/// An edit box in memory.
class HeadlessTextBox final : public HeadlessEdited<EditedTextBox<TextBox>, EditSurroundings> {
public:
    HeadlessTextBox(WidgetHost& host, TextBoxListener& listener, bool multiLine)
        : HeadlessEdited(listener, *this, multiLine, host) {}

private:
    TextBoxEditor& edit() override { return Editor_; }
};

}  // namespace kel::headless
