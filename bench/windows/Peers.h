#pragma once

#include <windows.h>

/// The system's own widgets, made by hand as a form in plain code would.
namespace kel::bench {

/// Shown in `parent`, at the place of the hosted controls and in the font of dialogs.
HWND makeWidget(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle, const RECT& place);
HWND makeEdit(HWND parent, const RECT& place);

/// Makes them in `parent`, has them painted, and destroys them.
void liveAsEdit(HWND parent);
/// In a pane of its own, as a control that is to be one window for its host.
void liveAsEditInPane(HWND parent);
/// With its caption before it.
void liveAsCaptionedEdit(HWND parent);
void liveAsSpinner(HWND parent);
void liveAsComboBox(HWND parent);
void liveAsCheckBox(HWND parent);
void liveAsProgressBar(HWND parent);

/// Has what is out of date painted, and what has been posted done.
void settle(HWND window);

}  // namespace kel::bench
