// The picture behind a tree view's rows.
#pragma once

#include <functional>

#include <windows.h>

namespace korvane {

// The picture stays at the lower right corner of the window when the rows scroll; around it is the window colour. It is
// tinted with the window colour, so white becomes that colour and a dark window stays dark enough for its light text.
//
// A tree view knows nothing of pictures and fills the background of its texts. So it draws itself twice, on the window
// colour and on a contrasting one. Where the two drawings differ, the background shows through, and the more they differ
// the more of it: that is where, and how strongly, the picture is put, behind the smoothed edges of letters too. The rows
// then look as they do without a picture, whatever the version of Windows.
class TreeBackground {
public:
    // Draws the whole client area of the tree on a background of that colour.
    using DrawRows = std::function<void(HDC, COLORREF)>;

    // The bitmap is borrowed; null for no picture.
    void setPicture(HBITMAP bitmap) { bitmap_ = bitmap; }

    // False without a picture and under high contrast.
    bool isShown() const;

    // Draws rows and picture in the given part of the client area. False, with nothing drawn, if memory is short.
    bool paint(HDC target, SIZE client, const RECT& part, COLORREF windowColour, const DrawRows& drawRows) const;

private:
    void drawPicture(HDC dc, SIZE client) const;

    HBITMAP bitmap_ = nullptr;
};

}  // namespace korvane
