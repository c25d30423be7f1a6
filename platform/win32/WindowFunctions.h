// What several windows need of Windows: their text, class, place and size, and the settings of the display.
#pragma once

#include "platform/DialogControls.h"

#include <string>

#include <windows.h>

namespace korvane {

// The whole text, whatever its length; empty for a window that is not there.
std::string windowText(HWND window);

// Whether the window is of that class, such as "ComboBox"; the name has at most 31 characters.
bool isOfClass(HWND window, const char* className);

SIZE clientSize(HWND window);

// A window's rectangle in its parent's client area; a window without a parent is on the screen.
Rect rectInParent(HWND window);

// Puts a window in the middle of its owner, or of the desktop's work area when it has none.
void centreWindow(HWND window);

void moveToTop(HWND window);
void moveToBottom(HWND window);

// Whether the user has asked for high contrast. Windows NT 4 does not know the setting: false.
bool isHighContrastOn();

// Dots per inch across and down the screen.
SIZE screenDpi();

// The structures that set a text ask for a pointer to writable text, which Windows does not write to.
inline LPSTR inputText(const std::string& text) { return const_cast<LPSTR>(text.c_str()); }

}  // namespace korvane
