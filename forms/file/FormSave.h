#pragma once

#include <string>
#include <vector>

#include "forms/file/FormModel.h"
#include "forms/file/FormResources.h"

/// Writing a form and what belongs to it; see FormFile.
namespace kel {

/// A form file as it is to be written, with the resource files that its references need beside it.
struct FormOutput {
    std::string form;
    std::vector<FormResource> resources;
};

FormOutput composeForm(const FormModel& model, const std::string& path);

void saveForm(const FormModel& model, const std::string& path);

}  // namespace kel
