#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/file/FormModel.h"

/// Reading what a form's lines say.
namespace kel {

/// The property or group of that name in a block itself.
std::optional<FormEntries> findEntry(const FormModel& model, FormBlockId block, std::u16string_view name);

FormProperty propertyAt(const FormModel& model, FormModel::LineId line);

/// The reference that a line of the file holds, if it holds one and is not changed.
std::optional<FormReference> referenceAt(const FormModel& model, FormModel::LineId line);

/// The bytes of the text that a reference points to. Throws FormFault naming the resource file.
std::string readReferencedText(const FormModel& model, const FormReference& reference);

/// As FormFile::valueAs.
Variant readPropertyAs(const FormModel& model, const FormProperty& property, TypeTag type);

}  // namespace kel
