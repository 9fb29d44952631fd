#pragma once

#include <tuple>
#include <utility>

#include "host/editing/EditedText.h"
#include "host/editing/TextBoxEditor.h"

namespace kel {

/// The part of a text box that is the same on every home. `Base` is the home's own kind of `TextBox`; its constructor
/// takes what follows the editor's arguments.
template <class Base>
class EditedTextBox : public EditedText<Base, TextBoxEditor> {
public:
    char32_t passwordChar() const override { return Editor_.passwordChar(); }
    void setPasswordChar(char32_t character) override { Editor_.setPasswordChar(character); }

protected:
    template <class... Arguments>
    EditedTextBox(TextBoxListener& listener, EditSurroundings& surroundings, bool multiLine, Arguments&&... base)
        : EditedText<Base, TextBoxEditor>(std::forward_as_tuple(listener, surroundings, multiLine),
                                          std::forward<Arguments>(base)...) {}

    using EditedText<Base, TextBoxEditor>::buffer;
    using EditedText<Base, TextBoxEditor>::Editor_;
};

}  // namespace kel
