// With a limit, so that a wrong name does not fill the memory.
#include "cli/InputFile.h"

#include "text/WholeFile.h"

namespace korvane {
namespace {

// More than any registry holds: what is longer is no .reg file.
constexpr std::size_t kLongestFile = std::size_t{256} << 20;

}  // namespace

std::optional<std::string> readInputFile(const std::string& path, std::string& bytes) {
    std::string reason;
    return readWholeFile(path, kLongestFile, bytes, &reason) ? std::nullopt : std::optional(reason);
}

}  // namespace korvane
