// The picture behind a tree view's rows.
#pragma once

#include <functional>

#include <windows.h>

namespace korvane {

// Whether the user has asked the system for colours that differ as much as possible.
bool isHighContrastOn();

// Lies at the window's lower right corner and does not move when the rows scroll; around it is the window colour. The
// picture is tinted with the window colour, white becoming that colour: where windows are dark it stays as dark as they
// are, so text is as readable as without it.
//
// The tree view has no notion of a picture: it fills the background of its texts. It is therefore asked to draw itself
// twice, on the window colour and on another one. Where the two drawings differ, the background shows through, and by
// how much they differ tells how far: so the picture can be put exactly there, behind the smoothed edges of letters as
// well, and the rows look as they do without a picture on every Windows.
class TreeBackground {
public:
    using Question = bool (*)();

    explicit TreeBackground(Question highContrast = isHighContrastOn) : highContrast_(highContrast) {}

    // Draws the whole client area of the tree on a background of that colour.
    using DrawRows = std::function<void(HDC, COLORREF)>;

    // The bitmap is borrowed; null: there is no picture.
    void setPicture(HBITMAP bitmap) { bitmap_ = bitmap; }

    // False without a picture, and while the user wants high contrast.
    bool isShown() const { return bitmap_ != nullptr && !highContrast_(); }

    // Draws rows and picture in the given part of the client area. False, with nothing drawn, when memory is short.
    bool paint(HDC target, SIZE client, const RECT& part, COLORREF windowColour, const DrawRows& drawRows) const;

private:
    void drawPicture(HDC dc, SIZE client) const;

    Question highContrast_;
    HBITMAP bitmap_ = nullptr;
};

}  // namespace korvane
