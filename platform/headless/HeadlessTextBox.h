#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/headless/HeadlessEdited.h"

namespace kel::headless {

/// An edit box in memory.
class HeadlessTextBox final : public HeadlessEdited<EditedTextBox<HeadlessField<TextBox>>, EditSurroundings> {
public:
    HeadlessTextBox(Seat& seat, TextBoxListener& listener, bool multiLine)
        : HeadlessEdited(listener, *this, multiLine, seat) {}

private:
    TextBoxEditor& edit() override { return Editor_; }
};

}  // namespace kel::headless
