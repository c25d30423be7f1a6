// The notes that the tweaks of several topics share. They differ in small ways on purpose: some topics begin the
// sentence with a small letter.
#pragma once

#include <string_view>

namespace korvane {

constexpr std::string_view kRestartWindowsNote = "Note:\n\tRestart Windows for the change to take effect.";
constexpr std::string_view kSmallRestartOrLogOutNote =
    "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.";

}  // namespace korvane
