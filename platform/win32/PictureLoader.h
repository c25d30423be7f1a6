// Loads a picture file through the platform's own picture objects, which read
// JPEG, GIF and bitmaps on every Windows.
#pragma once

#include <string>

#include <windows.h>

namespace korvane {

constexpr DWORD kLargestPictureFile = 16u << 20;  // bytes

// Null, with both sizes 0, when the file cannot be opened, is empty or too large, or is no such picture; otherwise its
// bitmap and its size in pixels. The caller may delete the bitmap. The calling thread has initialised COM.
HBITMAP loadPictureFile(const std::string& path, int& width, int& height);

}  // namespace korvane
