#pragma once

#include <string>

#include "library/ClassRegistry.h"

/// The public surface in words, from the same rows that dispatch and the type library use.
namespace kel {

/// Members, events and persisted properties of a class, for a person.
std::string describeClass(const ClassModel& model);

/// Classes for a program: a JSON array of objects.
std::string describeAsJson(const std::vector<const ClassModel*>& models);

/// Classes as a page of documentation, in Markdown.
std::string describeAsMarkdown(const std::vector<const ClassModel*>& models);

}  // namespace kel
