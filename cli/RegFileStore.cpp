// Reading is the C library's; replacing a file safely is each system's own.
#include "cli/RegFileStore.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#endif

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

#ifdef _WIN32

namespace {

std::string withError(const char* what) {
    const DWORD error = GetLastError();
    return std::string(what) + " (error " + std::to_string(error) + ")";
}

std::string folderOfFile(const std::string& path) {
    const std::size_t end = path.find_last_of("\\/:");
    return end == std::string::npos ? "." : path.substr(0, end + 1);
}

// Closes and removes the file again unless it was renamed.
class TemporaryFile {
public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        close();
        if (name_[0] != '\0') {
            DeleteFileA(name_);
        }
    }

    bool make(const std::string& folder) {
        if (GetTempFileNameA(folder.c_str(), "kmc", 0, name_) == 0) {
            name_[0] = '\0';
            return false;
        }
        file_ = CreateFileA(name_, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        return file_ != INVALID_HANDLE_VALUE;
    }

    bool write(std::string_view bytes) {
        DWORD written = 0;
        return WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
               written == bytes.size() && FlushFileBuffers(file_) != 0;
    }

    // The systems before Windows NT have no call that replaces a file in one step.
    bool renameOver(const std::string& path) {
        using MoveFileExFunction = BOOL(WINAPI*)(LPCSTR, LPCSTR, DWORD);
        close();
        const FARPROC found = GetProcAddress(GetModuleHandleA("kernel32.dll"), "MoveFileExA");
        MoveFileExFunction moveFileEx = nullptr;
        std::memcpy(&moveFileEx, &found, sizeof moveFileEx);
        BOOL moved = FALSE;
        SetLastError(ERROR_CALL_NOT_IMPLEMENTED);
        if (moveFileEx != nullptr) {
            moved = moveFileEx(name_, path.c_str(), MOVEFILE_REPLACE_EXISTING);
        }
        if (moved == FALSE && GetLastError() == ERROR_CALL_NOT_IMPLEMENTED) {
            moved = DeleteFileA(path.c_str()) != 0 && MoveFileA(name_, path.c_str()) != 0;
        }
        if (moved != FALSE) {
            name_[0] = '\0';
        }
        return moved != FALSE;
    }

private:
    void close() {
        if (file_ != INVALID_HANDLE_VALUE) {
            CloseHandle(file_);
            file_ = INVALID_HANDLE_VALUE;
        }
    }

    char name_[MAX_PATH] = "";
    HANDLE file_ = INVALID_HANDLE_VALUE;
};

}  // namespace

std::optional<std::string> replaceFile(const std::string& path, std::string_view bytes) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return withError("is no longer there");
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return "is read-only";
    }
    TemporaryFile temporary;
    if (!temporary.make(folderOfFile(path)) || !temporary.write(bytes)) {
        return withError("cannot be written: a new file beside it failed");
    }
    if (!temporary.renameOver(path)) {
        return withError("cannot be replaced");
    }
    return std::nullopt;
}

#else

namespace {

std::string withError(const char* what) { return std::string(what) + ": " + std::strerror(errno); }

// Closes and removes the file again unless it was renamed.
class TemporaryFile {
public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file_ >= 0) {
            close(file_);
            unlink(name_.c_str());
        }
    }

    bool make(const std::string& target) {
        name_ = target + ".XXXXXX";
        file_ = mkstemp(name_.data());
        return file_ >= 0;
    }

    // Changing the owner takes away some permissions, so those come second.
    bool copyPermissions(const struct stat& original) {
        const bool keptOwner = fchown(file_, original.st_uid, original.st_gid) == 0;
        // A file that has become ours must not be open to more people than its owner meant.
        const mode_t kept = keptOwner ? 07777 : 0777;
        return fchmod(file_, original.st_mode & kept) == 0;
    }

    bool write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(written > 0 ? written : 0));
        }
        return fsync(file_) == 0;
    }

    bool renameOver(const std::string& target) {
        if (std::rename(name_.c_str(), target.c_str()) != 0) {
            return false;
        }
        close(file_);
        file_ = -1;
        return true;
    }

private:
    std::string name_;
    int file_ = -1;
};

// Without this the rename may be lost when the machine stops suddenly; the file is whole all the same.
void flushFolderOf(const std::string& target) {
    const int folder = open(target.substr(0, target.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

}  // namespace

std::optional<std::string> replaceFile(const std::string& path, std::string_view bytes) {
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr), std::free);
    if (resolved == nullptr) {
        return withError("cannot be found any more");
    }
    const std::string target = resolved.get();
    struct stat original {};
    // A file that is closed to writing is not to be replaced either. Opening a pipe must not wait for its reader.
    const int existing = open(target.c_str(), O_WRONLY | O_NONBLOCK);
    const bool writable = existing >= 0 && fstat(existing, &original) == 0;
    if (existing >= 0) {
        close(existing);
    }
    if (!writable) {
        return withError("cannot be written");
    }
    if (!S_ISREG(original.st_mode)) {
        return "is no regular file, so it cannot be replaced";
    }
    TemporaryFile temporary;
    if (!temporary.make(target) || !temporary.copyPermissions(original) || !temporary.write(bytes)) {
        return withError("cannot be written: a new file beside it failed");
    }
    if (!temporary.renameOver(target)) {
        return withError("cannot be replaced");
    }
    flushFolderOf(target);
    return std::nullopt;
}

#endif

}  // namespace korvane
