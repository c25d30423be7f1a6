// The notes that several tweaks show. Intended: they differ in small ways, such as a small letter, a missing full stop
// or a blank behind it.
#pragma once

#include <string_view>

namespace korvane {

constexpr std::string_view kRestartOrLogOutNote =
    "Note:\n\tYou may need to restart or log out of Windows for the change to take effect.";
constexpr std::string_view kRestartOrLogOutNoteWithoutStop =
    "Note:\n\tYou may need to restart or log out of Windows for the change to take effect";
constexpr std::string_view kRestartOrLogOutNoteWithBlank =
    "Note:\n\tYou may need to restart or log out of Windows for the change to take effect. ";
constexpr std::string_view kSmallRestartOrLogOutNote =
    "Note:\n\tyou may need to restart or log out of Windows for the change to take effect.";
constexpr std::string_view kRestartWindowsNote = "Note:\n\tRestart Windows for the change to take effect.";
constexpr std::string_view kRestartWindowsNoteWithoutStop = "Note:\n\tRestart Windows for the change to take effect";
constexpr std::string_view kRestartWindowsNoteWithBlank = "Note:\n\tRestart Windows for the change to take effect. ";

}  // namespace korvane
