// Each open file is one update: read and locked until it is replaced.
#include "cli/LockedFiles.h"

#include "cli/FileUpdate.h"

#include <cstdio>

namespace korvane {
namespace {

class LockedFile final : public File {
public:
    bool open(const std::string& path) { return !update_.begin(path, bytes_); }
    const std::string& bytes() const { return bytes_; }

    bool readAll(std::string& text) override {
        text = bytes_;
        return true;
    }
    bool rewrite(std::string_view text) override { return !update_.commit(text); }

private:
    FileUpdate update_;
    std::string bytes_;
};

}  // namespace

std::unique_ptr<File> LockedFiles::openExisting(const std::string& path) {
    auto file = std::make_unique<LockedFile>();
    if (!file->open(folder_.hostPath(path))) {
        return nullptr;
    }
    opened_ = true;
    return file;
}

std::unique_ptr<File> LockedFiles::createAlways(const std::string& path) {
    const std::string hostPath = folder_.hostPath(path);
    if (std::FILE* made = std::fopen(hostPath.c_str(), "ab")) {
        std::fclose(made);
    }
    auto file = std::make_unique<LockedFile>();
    if (!file->open(hostPath) || (!opened_ && !file->bytes().empty())) {
        return nullptr;
    }
    return file;
}

}  // namespace korvane
