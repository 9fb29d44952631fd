#pragma once

#include "platform/win32/drawing/Canvas.h"

namespace kel::win32 {

// What the system's own windows have on their buttons, for pictures: the system draws them for the screen only.

enum class Arrow { Up, Down };

void drawArrowButton(const Canvas& canvas, const RECT& area, Arrow arrow, bool enabled);

/// `value` is that of a `CheckBox`.
void drawCheck(const Canvas& canvas, const RECT& box, std::int32_t value, bool enabled);

}  // namespace kel::win32
