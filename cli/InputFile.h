// A file that an argument names, read whole.
#pragma once

#include <optional>
#include <string>

namespace korvane {

// Why it failed, or nothing. A failed read leaves `bytes` as it is.
std::optional<std::string> readInputFile(const std::string& path, std::string& bytes);

}  // namespace korvane
