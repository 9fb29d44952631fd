#pragma once

#include <windows.h>

#include <cstdint>

namespace kel::win32 {

/// How wide the button is that the hook of a combo box draws, in pixels; read at each painting. Without it, and where
/// it is not above 0, there is no button. `pixels` outlives the window.
void setFrameButtonWidth(HWND window, const std::int16_t& pixels);

/// Puts `KelControlsWindowProc` in front of the window's procedure, once. It stays until the window is destroyed.
void SubclassWindow(HWND window);

/// Lets the procedure before it do everything, and draws the frame of a combo box over what that has painted.
LRESULT CALLBACK KelControlsWindowProc(HWND window, UINT message, WPARAM wide, LPARAM data);

/// A sunken edge around `client`, shortened by a pixel below, and at its right end inside it a raised one.
void drawComboFrame(HDC context, RECT client, int buttonWidth);

}  // namespace kel::win32
