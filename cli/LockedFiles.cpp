// What is locked is each system's own: the file itself, or a mutex where a file
// that is open cannot be replaced. Both locks end with the process that holds them.
#include "cli/LockedFiles.h"

#include "cli/RegFileStore.h"
#include "platform/stdio/StdioFiles.h"

#include <cstdio>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace korvane {
namespace {

constexpr int kLongestWait = 5000;  // milliseconds
constexpr std::size_t kLongestFile = 64 << 20;

#ifdef _WIN32

class FileLock {
public:
    explicit FileLock(const std::string&) : mutex_(CreateMutexA(nullptr, FALSE, "Korvane Manager kmctl dates")) {
        const DWORD waited = mutex_ != nullptr ? WaitForSingleObject(mutex_, kLongestWait) : WAIT_FAILED;
        held_ = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock() {
        if (held_) {
            ReleaseMutex(mutex_);
        }
        if (mutex_ != nullptr) {
            CloseHandle(mutex_);
        }
    }

    bool held() const { return held_; }

private:
    HANDLE mutex_;
    bool held_ = false;
};

#else

class FileLock {
public:
    explicit FileLock(const std::string& path) {
        constexpr int kPause = 10;  // milliseconds
        for (int waited = 0; waited < kLongestWait && take(path) == Again::Yes; waited += kPause) {
            usleep(kPause * 1000);
        }
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock() { release(); }

    bool held() const { return file_ >= 0; }

private:
    enum class Again { No, Yes };

    Again take(const std::string& path) {
        file_ = open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
        struct stat opened {};
        struct stat named {};
        if (file_ < 0 || fstat(file_, &opened) != 0 || !S_ISREG(opened.st_mode)) {
            release();
            return Again::No;
        }
        const bool locked = flock(file_, LOCK_EX | LOCK_NB) == 0;
        if (!locked && errno != EWOULDBLOCK) {
            return Again::No;  // a file system without locks: the file is still replaced whole
        }
        // Whoever held the lock has put another file in this one's place.
        if (!locked || stat(path.c_str(), &named) != 0 || named.st_ino != opened.st_ino ||
            named.st_dev != opened.st_dev) {
            release();
            return Again::Yes;
        }
        return Again::No;
    }

    void release() {
        if (file_ >= 0) {
            close(file_);
            file_ = -1;
        }
    }

    int file_ = -1;
};

#endif

class LockedFile final : public File {
public:
    explicit LockedFile(std::string path) : path_(std::move(path)), lock_(path_) {}

    bool locked() const { return lock_.held(); }
    bool readAll(std::string& text) override { return readWholeFile(path_, kLongestFile, text); }
    bool rewrite(std::string_view text) override { return !replaceFile(path_, text); }

private:
    std::string path_;
    FileLock lock_;
};

}  // namespace

std::unique_ptr<File> LockedFiles::openExisting(const std::string& path) {
    auto file = std::make_unique<LockedFile>(folder_.hostPath(path));
    std::string text;
    if (!file->locked() || !file->readAll(text)) {
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
    auto file = std::make_unique<LockedFile>(hostPath);
    std::string text;
    if (!file->locked() || !file->readAll(text) || (!opened_ && !text.empty())) {
        return nullptr;
    }
    return file;
}

}  // namespace korvane
