#pragma once

#include <QString>

#include "platform/qt/ui/BlockReader.h"
#include "platform/qt/ui/UiWriter.h"

namespace kel::qt {

/// How a class of control that is not this library's is carried over.
struct ForeignUi {
    std::u16string_view formClass;
    const char* (*qtClass)(BlockReader& block);
    /// The properties that only controls of this kind have.
    void (*write)(BlockReader& block, UiWriter& ui);
    bool takesFocus = false;
    /// The roles of its colours in a palette, and whether it must be told to fill its ground.
    const char* textRole = "WindowText";
    const char* groundRole = "Window";
    bool mustFill = true;
};

/// A class that nobody knows becomes an empty frame.
const ForeignUi& foreignUi(const FormBlock& block);

/// How a label is written depends on whether there is something that its mnemonic leads to: `buddy`, or empty.
void writeLabel(BlockReader& block, UiWriter& ui, const QString& buddy);
bool isLabel(const FormBlock& block);
/// A frame with a line around it.
bool isTitledFrame(const FormFile& file, FormBlockId id);

}  // namespace kel::qt
