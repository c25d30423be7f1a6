// A file that is open with no sharing cannot be renamed, so there are two beside the target: one that is open as long as
// it is held, and one that gets the new content and the target's name. Windows closes the first with its process.
#ifdef _WIN32

#include "cli/SideFile.h"

#include <windows.h>

#include <cstring>
#include <utility>

namespace korvane {
namespace {

std::string withError(const std::string& what) { return what + " (error " + std::to_string(GetLastError()) + ")"; }

bool writeNewFile(const std::string& name, std::string_view bytes) {
    const HANDLE file = CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD written = 0;
    const bool complete = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
                          written == bytes.size() && FlushFileBuffers(file) != 0;
    const DWORD error = GetLastError();
    CloseHandle(file);
    SetLastError(error);
    return complete;
}

template <typename Function>
Function findInKernel(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleA("kernel32.dll"), name);
    Function function = nullptr;
    std::memcpy(&function, &found, sizeof function);
    return function;
}

// The best that each system has: Windows 2000 keeps owner and access list of the replaced file, NT 4 replaces in one
// step, the systems before it have no call for that.
bool renameOver(const std::string& name, const std::string& target) {
    using ReplaceFileFunction = BOOL(WINAPI*)(LPCSTR, LPCSTR, LPCSTR, DWORD, LPVOID, LPVOID);
    using MoveFileExFunction = BOOL(WINAPI*)(LPCSTR, LPCSTR, DWORD);
    constexpr DWORD kIgnoreMergeErrors = 2;
    const auto replaceFile = findInKernel<ReplaceFileFunction>("ReplaceFileA");
    if (replaceFile != nullptr &&
        replaceFile(target.c_str(), name.c_str(), nullptr, kIgnoreMergeErrors, nullptr, nullptr) != FALSE) {
        return true;
    }
    const auto moveFileEx = findInKernel<MoveFileExFunction>("MoveFileExA");
    SetLastError(ERROR_CALL_NOT_IMPLEMENTED);
    if (moveFileEx != nullptr && moveFileEx(name.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE) {
        return true;
    }
    return GetLastError() == ERROR_CALL_NOT_IMPLEMENTED && DeleteFileA(target.c_str()) != 0 &&
           MoveFileA(name.c_str(), target.c_str()) != 0;
}

std::uint64_t joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; }

}  // namespace

std::optional<FileState> stateOf(const std::string& path) {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    BY_HANDLE_FILE_INFORMATION found{};
    const bool known = file != INVALID_HANDLE_VALUE && GetFileInformationByHandle(file, &found) != 0;
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
    }
    if (!known) {
        return std::nullopt;
    }
    const FILETIME& changed = found.ftLastWriteTime;
    return FileState{.device = found.dwVolumeSerialNumber,
                     .file = joined(found.nFileIndexHigh, found.nFileIndexLow),
                     .size = joined(found.nFileSizeHigh, found.nFileSizeLow),
                     .changed = static_cast<std::int64_t>(joined(changed.dwHighDateTime, changed.dwLowDateTime))};
}

SideFile::~SideFile() { release(); }

SideFile::Answer SideFile::impossible(std::string reason) {
    whyNot_ = std::move(reason);
    return Answer::Impossible;
}

SideFile::Answer SideFile::hold(const std::string& path) {
    path_ = target_ = path;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return impossible(withError("is no longer there"));
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return impossible("is a folder");
    }
    name_ = nameBeside(path, ".kmctl-lock");
    // A file that is just being removed denies access for a moment.
    constexpr int kTries = 10;
    for (int tries = 1;; ++tries) {
        const HANDLE file = CreateFileA(name_.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            handle_ = reinterpret_cast<std::intptr_t>(file);
            return Answer::Held;
        }
        if (GetLastError() == ERROR_SHARING_VIOLATION) {
            return Answer::Busy;
        }
        if (GetLastError() != ERROR_ACCESS_DENIED || tries == kTries) {
            return impossible(withError("cannot be written: a new file beside it failed"));
        }
        Sleep(10);
    }
}

// Whoever opens the file in between keeps it from being deleted, and deletes it in turn.
void SideFile::release() {
    if (handle_ != -1) {
        CloseHandle(reinterpret_cast<HANDLE>(std::exchange(handle_, -1)));
        DeleteFileA(name_.c_str());
    }
}

std::optional<std::string> SideFile::replace(std::string_view bytes, const FileState& expected) {
    if ((GetFileAttributesA(target_.c_str()) & FILE_ATTRIBUTE_READONLY) != 0) {
        return "is read-only";
    }
    const std::string next = nameBeside(target_, ".kmctl-new");
    std::optional<std::string> reason;
    if (!writeNewFile(next, bytes)) {
        reason = withError("cannot be written: a new file beside it failed");
    } else if (stateOf(path_) != expected) {
        reason = kChangedMeanwhile;
    } else if (!renameOver(next, target_)) {
        reason = withError("cannot be replaced");
    }
    if (reason) {
        DeleteFileA(next.c_str());
    } else {
        release();
    }
    return reason;
}

}  // namespace korvane

#endif
