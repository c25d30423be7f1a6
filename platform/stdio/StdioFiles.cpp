// Files are unbuffered, so that a disk error appears in the call that causes it,
// never when the file is closed.
#include "platform/stdio/StdioFiles.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace korvane {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, CloseFile>;

FilePointer openFile(const std::string& path, const char* mode) {
    FilePointer file(std::fopen(nativePath(path).c_str(), mode));
    if (file != nullptr) {
        std::setvbuf(file.get(), nullptr, _IONBF, 0);
    }
    return file;
}

bool cutToLength(std::FILE* file, std::size_t length) {
#ifdef _WIN32
    return std::in_range<long>(length) && _chsize(_fileno(file), static_cast<long>(length)) == 0;
#else
    return std::in_range<off_t>(length) && ftruncate(fileno(file), static_cast<off_t>(length)) == 0;
#endif
}

bool readToEnd(std::FILE* file, std::size_t limit, std::string& text) {
    std::string content;
    char block[16384];
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

class StdioFile final : public File {
public:
    StdioFile(FilePointer file, bool readable) : file_(std::move(file)), readable_(readable) {}

    bool readAll(std::string& text) override {
        return readable_ && std::fseek(file_.get(), 0, SEEK_SET) == 0 &&
               readToEnd(file_.get(), static_cast<std::size_t>(-1), text);
    }

    // Overwrites the old content and truncates only afterwards, so that a full disk does not lose what was there.
    bool rewrite(std::string_view text) override {
        return std::fseek(file_.get(), 0, SEEK_SET) == 0 &&
               std::fwrite(text.data(), 1, text.size(), file_.get()) == text.size() &&
               cutToLength(file_.get(), text.size());
    }

private:
    FilePointer file_;
    bool readable_;  // some C libraries read nothing from a file open for writing and report success
};

std::unique_ptr<File> wrapped(FilePointer file, bool readable) {
    return file != nullptr ? std::make_unique<StdioFile>(std::move(file), readable) : nullptr;
}

}  // namespace

std::string nativePath(std::string path) {
#ifndef _WIN32
    std::ranges::replace(path, '\\', '/');
#endif
    return path;
}

bool readWholeFile(const std::string& path, std::size_t limit, std::string& text) {
    const FilePointer file = openFile(path, "rb");
    return file != nullptr && readToEnd(file.get(), limit, text);
}

std::unique_ptr<File> StdioFiles::openExisting(const std::string& path) { return wrapped(openFile(path, "r+b"), true); }

std::unique_ptr<File> StdioFiles::createAlways(const std::string& path) { return wrapped(openFile(path, "wb"), false); }

}  // namespace korvane
