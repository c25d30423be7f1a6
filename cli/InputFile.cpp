// Reading is the C library's.
#include "cli/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace korvane {
namespace {

// More than any registry holds: what is longer is no .reg file.
constexpr std::size_t kLongestFile = std::size_t{256} << 20;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

std::optional<std::string> readInputFile(const std::string& path, std::string& bytes) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        return std::string("cannot be opened: ") + std::strerror(errno);
    }
    std::string content;
    char block[65536];
    for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file.get())) > 0;) {
        content.append(block, got);
        if (content.size() > kLongestFile) {
            return "is longer than 256 MB";
        }
    }
    if (std::ferror(file.get()) != 0) {
        return std::string("cannot be read: ") + std::strerror(errno);
    }
    bytes = std::move(content);
    return std::nullopt;
}

}  // namespace korvane
