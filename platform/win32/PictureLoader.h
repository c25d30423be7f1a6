// Loads a picture file with OLE's picture objects, which read JPEG, GIF and bitmaps on every Windows.
#pragma once

#include "platform/win32/Handles.h"

#include <string>

#include <windows.h>

namespace korvane {

constexpr DWORD kLargestPictureFile = 16u << 20;  // bytes

// The picture's bitmap, and its size in pixels. Null, with both sizes 0, when the file cannot be opened, is empty or too
// large, or holds no such picture. The calling thread has initialised OLE.
Bitmap loadPictureFile(const std::string& path, int& width, int& height);

}  // namespace korvane
