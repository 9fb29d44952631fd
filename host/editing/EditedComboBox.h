#pragma once

#include <tuple>
#include <utility>

#include "host/editing/ComboEditor.h"
#include "host/editing/EditedText.h"

namespace kel {

/// The part of a combo box that is the same on every home. `Base` is the home's own kind of `ComboBox`.
template <class Base>
class EditedComboBox : public EditedText<Base, ComboEditor> {
public:
    const ListItems& items() const override { return Editor_.items(); }
    void setItems(ListItems items) override { Editor_.setItems(std::move(items)); }
    std::int32_t listIndex() const override { return Editor_.listIndex(); }
    void setListIndex(std::int32_t index) override { Editor_.setListIndex(index); }

    bool isDropped() const override { return Editor_.isDropped(); }
    void showDropDown(bool dropped) override { Editor_.showDropDown(dropped); }
    std::int32_t droppedWidth() const override { return Editor_.droppedWidth(); }
    void setDroppedWidth(std::int32_t pixels) override { Editor_.setDroppedWidth(pixels); }

    /// The editor's keys do so from the start.
    void setExtendedUi(bool /*extended*/) override {}

protected:
    template <class... Arguments>
    EditedComboBox(ComboBoxListener& listener, ComboSurroundings& surroundings, Arguments&&... base)
        : EditedText<Base, ComboEditor>(std::tie(listener, surroundings), std::forward<Arguments>(base)...) {}

    using EditedText<Base, ComboEditor>::Editor_;
};

}  // namespace kel
