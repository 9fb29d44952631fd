#pragma once

#include <string>

#include "library/TypeModel.h"

/// The Qt widget class of a control, written from its rows in the type model.
namespace kel::qtwidgets {

/// "KelTextWidget"
std::string widgetName(const ClassModel& model);

std::string widgetHeader(const ClassModel& model);
std::string widgetSource(const ClassModel& model);

}  // namespace kel::qtwidgets
