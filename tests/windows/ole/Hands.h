#pragma once

#include <windows.h>

/// What a person and the system do to windows.
namespace kel::tests {

/// Serves the queue until nothing is left in it.
void settle();

/// The first window within `window` whose class has such a part in its name.
HWND descendant(HWND window, const wchar_t* classPart);
/// The window of the only widget in the control that a window holds.
HWND widgetIn(HWND window);

void postMouse(HWND target, UINT message, WPARAM buttons, POINT place);
void drag(HWND target, POINT from, POINT to);
inline void click(HWND target, POINT place) { drag(target, place, place); }

}  // namespace kel::tests
