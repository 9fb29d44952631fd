#pragma once

#include <string_view>

#include "forms/file/FormModel.h"

/// Changing a form's lines; see FormFile.
namespace kel {

void setProperty(FormModel& model, FormBlockId block, std::u16string_view name, const Variant& value);

bool removeProperty(FormModel& model, FormBlockId block, std::u16string_view name);

/// What stands before the value of a property's line: indentation, name, = and blanks.
std::u16string headOfProperty(const FormModel& model, FormModel::LineId line);

}  // namespace kel
