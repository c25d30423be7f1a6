// The .reg file on the disk: read whole, and replaced whole, so that it is
// always either the old file or the new one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// Both answer why it failed, or nothing. A failed read leaves `bytes` as it is, a failed replacement the file; nothing
// else stays behind in its folder.
std::optional<std::string> readInputFile(const std::string& path, std::string& bytes);
// Writes beside the file and renames. The file must exist and be writable; a symbolic link is followed, and
// permissions and, where allowed, the owner stay.
std::optional<std::string> replaceFile(const std::string& path, std::string_view bytes);

}  // namespace korvane
