// A file is read in blocks: it may be a device, or grow meanwhile.
#include "platform/stdio/StdioFiles.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>

namespace korvane {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

std::string nativePath(std::string path) {
#ifndef _WIN32
    std::ranges::replace(path, '\\', '/');
#endif
    return path;
}

bool readWholeFile(const std::string& path, std::size_t limit, std::string& text) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(nativePath(path).c_str(), "rb"));
    if (file == nullptr) {
        return false;
    }
    std::string content;
    char block[16384];
    for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file.get())) > 0;) {
        if (got > limit - content.size()) {
            return false;
        }
        content.append(block, got);
    }
    if (std::ferror(file.get()) != 0) {
        return false;
    }
    text = std::move(content);
    return true;
}

}  // namespace korvane
