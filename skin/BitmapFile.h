// Reads Windows bitmaps (.bmp), the format of a skin's pictures.
#pragma once

#include "skin/Picture.h"

#include <string>
#include <string_view>

namespace korvane::skin {

// No picture of a skin is wider or higher than this, in pixels.
constexpr int kLargestPicture = 2048;

// Reads an uncompressed bitmap of 1, 4, 8, 24 or 32 bits per pixel, bottom-up or top-down. Pure magenta (#FF00FF) is
// transparent in all but 32-bit bitmaps, which carry their own alpha (one whose alpha is 0 everywhere is opaque).
// Returns an empty text, or in a few words what is wrong; the picture is unchanged then. Nothing is allocated for a picture
// larger than kLargestPicture, whatever its header says.
std::string readBitmap(std::string_view file, Picture& picture);

}  // namespace korvane::skin
