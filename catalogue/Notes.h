// The notes that tweaks of several topics share. Intended: they differ in small
// ways; some begin the sentence with a small letter.
#pragma once

#include <string_view>

namespace korvane {

constexpr std::string_view kRestartWindowsNote = "Note:\n\tRestart Windows for the change to take effect.";
constexpr std::string_view kSmallRestartOrLogOutNote =
    "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.";

}  // namespace korvane
