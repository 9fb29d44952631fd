#pragma once

#include "host/editing/EditedComboBox.h"
#include "platform/headless/HeadlessEdited.h"

namespace kel::headless {

/// A combo box in memory. Nobody sees its frame.
class HeadlessComboBox final : public HeadlessEdited<EditedComboBox<ComboBox>, ComboSurroundings> {
public:
    HeadlessComboBox(WidgetHost& host, ComboBoxListener& listener) : HeadlessEdited(listener, *this, host) {}

    void pressedAnywhere() override { showDropDown(false); }

    /// The mouse opens the list and clicks this item. The box has the focus.
    void pick(std::int32_t item) {
        showDropDown(true);
        if (isDropped()) Editor_.pick(item);
    }

    void installFrame(const std::int16_t& /*buttonWidthPixels*/) override {}

private:
    static constexpr std::ptrdiff_t RowsOfList = 8;

    TextBoxEditor& edit() override { return Editor_.edit(); }
    void listChanged() override {}
    std::ptrdiff_t linesOfPage() const override { return RowsOfList; }
};

}  // namespace kel::headless
