// Draws the rows of the owner-drawn colour list: a swatch of the row's colour, then its name. Keyboard and type-ahead
// stay those of the combo box.
#pragma once

#include <windows.h>

namespace korvane {

// Handles WM_MEASUREITEM of the dialog: a row is as high as a line of the dialog's text.
void measureColourRow(HWND dialog, MEASUREITEMSTRUCT& measure);

// Handles WM_DRAWITEM of the dialog; the item data of a row is its colour.
void drawColourRow(const DRAWITEMSTRUCT& draw);

}  // namespace korvane
