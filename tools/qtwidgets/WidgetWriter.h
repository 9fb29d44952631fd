#pragma once

#include <string>
#include <string_view>

#include "library/TypeModel.h"

/// The Qt widget class of a control, written from its rows in the type model.
namespace kel::qtwidgets {

/// That stands at the head of every file that is made.
inline constexpr std::string_view Notice = "// Made from the type model by kel-qtwidgets.\n";

/// "KelTextWidget"
std::string widgetName(const ClassModel& model);

std::string widgetHeader(const ClassModel& model);
std::string widgetSource(const ClassModel& model);

}  // namespace kel::qtwidgets
