// Files up to 4 GB, read and written in one piece.
#include "platform/win32/Win32Files.h"

#include "platform/win32/Handles.h"

#include <utility>

#include <windows.h>

namespace korvane {
namespace {

class Win32File final : public File {
public:
    explicit Win32File(KernelHandle file) : file_(std::move(file)) {}

    bool readAll(std::string& text) override {
        const DWORD size = GetFileSize(file_.get(), nullptr);
        if (size == INVALID_FILE_SIZE || !toBeginning()) {
            return false;
        }
        std::string content(size, '\0');
        DWORD got = 0;
        if (!ReadFile(file_.get(), content.data(), size, &got, nullptr)) {
            return false;
        }
        content.resize(got);
        text = std::move(content);
        return true;
    }

    // Overwrites the old content and truncates the file afterwards: on a full disk a file that was emptied first would
    // lose everything.
    bool rewrite(std::string_view text) override {
        if (!std::in_range<DWORD>(text.size()) || !toBeginning()) {
            return false;
        }
        const auto size = static_cast<DWORD>(text.size());
        DWORD written = 0;
        return WriteFile(file_.get(), text.data(), size, &written, nullptr) && written == size &&
               SetEndOfFile(file_.get());
    }

private:
    bool toBeginning() { return SetFilePointer(file_.get(), 0, nullptr, FILE_BEGIN) == 0; }

    KernelHandle file_;
};

std::unique_ptr<File> wrapped(KernelHandle file) {
    return file ? std::make_unique<Win32File>(std::move(file)) : nullptr;
}

}  // namespace

std::unique_ptr<File> Win32Files::openExisting(const std::string& path) {
    return wrapped(fileHandle(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr)));
}

std::unique_ptr<File> Win32Files::createAlways(const std::string& path) {
    return wrapped(fileHandle(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr)));
}

}  // namespace korvane
