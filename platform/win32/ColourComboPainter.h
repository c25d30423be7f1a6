// Draws the rows of the owner-drawn colour list: a swatch of the row's colour, then its name. Keyboard and type-ahead
// stay those of the combo box.
#pragma once

#include <windows.h>

namespace korvane {

// For the dialog's WM_MEASUREITEM: rows as high as a line of the dialog's text.
void measureColourRow(HWND dialog, MEASUREITEMSTRUCT& measure);

// For the dialog's WM_DRAWITEM; a row's item data is its colour.
void drawColourRow(const DRAWITEMSTRUCT& draw);

}  // namespace korvane
