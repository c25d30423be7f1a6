// In blocks, because a pipe or a device does not tell its length.
#include "text/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace korvane {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool readToEnd(std::FILE* file, std::size_t limit, std::string& text) {
    std::string content;
    char block[65536];
    for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file)) > 0;) {
        if (got > limit - content.size()) {
            return false;
        }
        content.append(block, got);
    }
    if (std::ferror(file) != 0) {
        return false;
    }
    text = std::move(content);
    return true;
}

}  // namespace

bool readWholeFile(const std::string& path, std::size_t limit, std::string& text, std::string* reason) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    if (file != nullptr && readToEnd(file.get(), limit, text)) {
        return true;
    }
    if (reason != nullptr && file != nullptr && std::ferror(file.get()) == 0) {
        *reason = "is longer than " + std::to_string(limit >> 20) + " MB";
    } else if (reason != nullptr) {
        *reason = std::string(file == nullptr ? "cannot be opened: " : "cannot be read: ") + std::strerror(errno);
    }
    return false;
}

}  // namespace korvane
