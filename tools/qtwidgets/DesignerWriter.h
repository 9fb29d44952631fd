#pragma once

#include <string>
#include <vector>

#include "library/TypeModel.h"

namespace kel::qtwidgets {

/// The source with all that the plugin for Qt's designer knows of the widgets.
std::string designerFacts(const std::vector<const ClassModel*>& controls);

}  // namespace kel::qtwidgets
