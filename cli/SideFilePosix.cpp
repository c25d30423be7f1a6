// The file beside the target is locked with flock, which ends with the process that holds it, and becomes the target by
// a rename. Whoever waits for it looks again at the name afterwards: it may have become the target by then.
#ifndef _WIN32

#include "cli/SideFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace korvane {
namespace {

std::string withError(const std::string& what) { return what + ": " + std::strerror(errno); }

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) {
            const int error = errno;
            close(number_);
            errno = error;
        }
    }

    int number() const { return number_; }
    int take() { return std::exchange(number_, -1); }

private:
    int number_;
};

// Whether the file at the path is the open one.
bool isOpenFile(const std::string& path, int descriptor) {
    struct stat named {};
    struct stat open {};
    return lstat(path.c_str(), &named) == 0 && fstat(descriptor, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

// Extended attributes, access control lists among them; those that the system refuses are left out.
void copyAttributes(int from, int to, bool withAccessList) {
    const ssize_t size = flistxattr(from, nullptr, 0);
    std::vector<char> names(size > 0 ? static_cast<std::size_t>(size) : 0);
    const ssize_t got = flistxattr(from, names.data(), names.size());
    for (ssize_t at = 0; at < got;) {
        const char* name = names.data() + at;
        at += static_cast<ssize_t>(std::strlen(name)) + 1;
        const ssize_t length = fgetxattr(from, name, nullptr, 0);
        std::vector<char> value(length > 0 ? static_cast<std::size_t>(length) : 0);
        const bool isAccessList = std::strcmp(name, "system.posix_acl_access") == 0;
        if (length >= 0 && fgetxattr(from, name, value.data(), value.size()) == length &&
            (withAccessList || !isAccessList)) {
            // Refused attributes stay behind.
            [[maybe_unused]] const int kept = fsetxattr(to, name, value.data(), value.size(), 0);
        }
    }
}

// Changing the owner takes away some permissions, so those come second. A file that has become ours must not be open to
// more people than its owner meant.
bool copyProperties(int from, int to) {
    struct stat original {};
    if (fstat(from, &original) != 0) {
        return false;
    }
    const bool ownerStays = fchown(to, original.st_uid, original.st_gid) == 0;
    const bool groupStays = ownerStays || fchown(to, static_cast<uid_t>(-1), original.st_gid) == 0;
    mode_t mode = original.st_mode & (ownerStays ? 07777U : 0777U);
    if (!groupStays) {
        mode &= ~070U | (mode & 07U) << 3U;
    }
    if (fchmod(to, mode) != 0) {
        return false;
    }
    copyAttributes(from, to, groupStays);
    return true;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written > 0 ? written : 0));
    }
    return fsync(file) == 0;
}

// Without this the rename may be lost when the machine stops suddenly; the file is whole all the same.
void flushFolderOf(const std::string& target) {
    const Descriptor folder(open(target.substr(0, target.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.number() >= 0) {
        fsync(folder.number());
    }
}

}  // namespace

std::optional<FileState> stateOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return FileState{.device = status.st_dev,
                     .file = status.st_ino,
                     .size = static_cast<std::uint64_t>(status.st_size),
                     .changed = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

SideFile::~SideFile() { release(); }

SideFile::Answer SideFile::impossible(std::string reason) {
    whyNot_ = std::move(reason);
    return Answer::Impossible;
}

SideFile::Answer SideFile::hold(const std::string& path) {
    path_ = path;
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr), std::free);
    struct stat status {};
    if (resolved == nullptr || stat(resolved.get(), &status) != 0) {
        return impossible(withError("cannot be found any more"));
    }
    if (!S_ISREG(status.st_mode)) {
        return impossible("is no regular file, so it cannot be replaced");
    }
    target_ = resolved.get();
    name_ = nameBeside(target_, ".kmctl-lock");
    for (;;) {
        Descriptor made(open(name_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (made.number() < 0 && errno != EEXIST) {
            return impossible(withError("cannot be written: a new file beside it failed"));
        }
        // Opened for reading only: one that is in the way may be anybody's, and is never written to.
        Descriptor found(made.number() >= 0 ? -1 : open(name_.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        const int file = made.number() >= 0 ? made.number() : found.number();
        if (file < 0 && errno == ENOENT) {
            continue;  // it has just gone
        }
        if (file < 0 || flock(file, LOCK_EX | LOCK_NB) != 0) {
            return Answer::Busy;  // or another user's, or no file at all: a person has to look at it
        }
        if (!isOpenFile(name_, file)) {
            continue;  // its holder has just finished
        }
        if (made.number() >= 0) {
            handle_ = made.take();
            return Answer::Held;
        }
        // Nobody else holds it: a killed run has left it.
        if (unlink(name_.c_str()) != 0) {
            return impossible(withError(name_ + " is in the way and cannot be removed"));
        }
    }
}

void SideFile::release() {
    const Descriptor file(static_cast<int>(std::exchange(handle_, -1)));
    if (file.number() >= 0 && isOpenFile(name_, file.number())) {
        unlink(name_.c_str());
    }
}

std::optional<std::string> SideFile::replace(std::string_view bytes, const FileState& expected) {
    const int file = static_cast<int>(handle_);
    // A file that is closed to writing is not to be replaced either.
    const Descriptor target(open(target_.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    if (target.number() < 0) {
        return withError("cannot be written");
    }
    if (!copyProperties(target.number(), file) || !writeAll(file, bytes)) {
        return withError("cannot be written: a new file beside it failed");
    }
    if (stateOf(path_) != expected || !isOpenFile(target_, target.number())) {
        return kChangedMeanwhile;
    }
    if (!isOpenFile(name_, file)) {
        return name_ + " was removed by another program, so the file is left as it is";
    }
    if (std::rename(name_.c_str(), target_.c_str()) != 0) {
        return withError("cannot be replaced");
    }
    release();
    flushFolderOf(target_);
    return std::nullopt;
}

}  // namespace korvane

#endif
