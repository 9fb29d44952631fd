#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "library/TypeModel.h"

/// The picture of each control in a toolbox of controls, which other tools write as their kind of file.
namespace kel::toolbox {

inline constexpr std::size_t Columns = 16;
inline constexpr std::size_t Rows = 15;

/// A colour a character: k black, w white, g grey, b blue, r red, and . where nothing is drawn.
using Sketch = std::array<std::string_view, Rows>;

/// Throws std::runtime_error for a class without a picture.
const Sketch& sketchOf(const ClassModel& model);

/// As a toolbox shows them: the plain field first, the least usual one last.
std::vector<const ClassModel*> inToolboxOrder(std::vector<const ClassModel*> controls);

}  // namespace kel::toolbox
