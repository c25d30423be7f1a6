// Each function is the platform's call of that purpose, with the buffer sizes
// that the program has always used.
#include "platform/win32/Win32System.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

namespace korvane {
namespace {

constexpr DWORD kWindowsFolderBuffer = 100;
constexpr DWORD kDriveStringsBuffer = 500;

// Item lists of the shell are freed by the task allocator.
struct FreeItemList {
    void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};
using ItemListPointer = std::unique_ptr<ITEMIDLIST, FreeItemList>;

std::string pathOf(const ItemListPointer& list) {
    std::array<char, MAX_PATH> path{};
    return list != nullptr && SHGetPathFromIDListA(list.get(), path.data()) ? std::string(path.data()) : std::string();
}

template <class Function>
Function findFunctionIn(HMODULE module, LPCSTR name) {
    // Through a function type without parameters, which the compiler accepts as the common one.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(module, name)));
}

class Win32File final : public File {
public:
    explicit Win32File(HANDLE file) : file_(file) {}
    Win32File(const Win32File&) = delete;
    Win32File& operator=(const Win32File&) = delete;
    ~Win32File() override { CloseHandle(file_); }

    bool readAll(std::string& text) override {
        const DWORD size = GetFileSize(file_, nullptr);
        if (size == INVALID_FILE_SIZE || !toBeginning()) {
            return false;
        }
        std::string content(size, '\0');
        DWORD got = 0;
        if (!ReadFile(file_, content.data(), size, &got, nullptr)) {
            return false;
        }
        content.resize(got);
        text = std::move(content);
        return true;
    }

    // Writes over the old content and cuts the rest off only afterwards: when the disk is full, what was there before
    // has not been thrown away first.
    bool rewrite(std::string_view text) override {
        if (!std::in_range<DWORD>(text.size()) || !toBeginning()) {
            return false;
        }
        const auto size = static_cast<DWORD>(text.size());
        DWORD written = 0;
        return WriteFile(file_, text.data(), size, &written, nullptr) && written == size && SetEndOfFile(file_);
    }

private:
    bool toBeginning() { return SetFilePointer(file_, 0, nullptr, FILE_BEGIN) == 0; }

    HANDLE file_;
};

std::unique_ptr<File> wrapped(HANDLE file) {
    return file != INVALID_HANDLE_VALUE ? std::make_unique<Win32File>(file) : nullptr;
}

}  // namespace

bool Win32Version::getVersion(VersionRecord& record) {
    OSVERSIONINFOA info{};
    static_assert(sizeof info == 148);
    info.dwOSVersionInfoSize = sizeof info;
    if (!GetVersionExA(&info)) {
        return false;
    }
    record = {info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion};
    return true;
}

UtcDate Win32Clock::utcDate() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}

std::uint32_t Win32Clock::seed() {
    return static_cast<std::uint32_t>(std::time(nullptr)) + static_cast<std::uint32_t>(std::clock());
}

// The platform ends the path with a backslash only where Windows lies in a root.
std::string Win32Folders::windowsFolder() {
    std::array<char, kWindowsFolderBuffer> path{};
    const UINT length = GetWindowsDirectoryA(path.data(), kWindowsFolderBuffer);
    std::string folder = length < kWindowsFolderBuffer ? std::string(path.data(), length) : std::string();
    if (folder.ends_with('\\')) {
        folder.pop_back();
    }
    return folder;
}

// Shell libraries before 4.71 have only the longer way.
std::string Win32Folders::applicationDataFolder() {
    using SpecialFolderPath = BOOL(WINAPI*)(HWND, LPSTR, int, BOOL);
    std::array<char, MAX_PATH> path{};
    if (const HMODULE shell = GetModuleHandleA("shell32.dll")) {
        const auto specialFolderPath = findFunctionIn<SpecialFolderPath>(shell, "SHGetSpecialFolderPathA");
        if (specialFolderPath != nullptr && specialFolderPath(nullptr, path.data(), CSIDL_APPDATA, FALSE)) {
            return path.data();
        }
    }
    ITEMIDLIST* list = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, CSIDL_APPDATA, &list))) {
        return {};
    }
    return pathOf(ItemListPointer(list));
}

std::vector<Drive> Win32Folders::logicalDrives() {
    std::array<char, kDriveStringsBuffer> buffer{};
    std::vector<Drive> drives;
    const DWORD length = GetLogicalDriveStringsA(kDriveStringsBuffer - 1, buffer.data());
    if (length >= kDriveStringsBuffer) {
        return drives;
    }
    for (const char* root = buffer.data(); *root != '\0'; root += drives.back().root.size() + 1) {
        drives.push_back({root, GetDriveTypeA(root)});
    }
    return drives;
}

std::unique_ptr<File> Win32Files::openExisting(const std::string& path) {
    return wrapped(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::unique_ptr<File> Win32Files::createAlways(const std::string& path) {
    return wrapped(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
}

// A token knows of elevation since Vista; older systems refuse the question, and 98 has no tokens at all.
bool Win32HelpLibrary::programIsElevated() {
    using OpenToken = BOOL(WINAPI*)(HANDLE, DWORD, HANDLE*);
    using TokenInformation = BOOL(WINAPI*)(HANDLE, TOKEN_INFORMATION_CLASS, void*, DWORD, DWORD*);
    constexpr auto kElevation = static_cast<TOKEN_INFORMATION_CLASS>(20);
    const HMODULE library = GetModuleHandleA("advapi32.dll");
    const auto openToken = findFunctionIn<OpenToken>(library, "OpenProcessToken");
    const auto tokenInformation = findFunctionIn<TokenInformation>(library, "GetTokenInformation");
    HANDLE token = nullptr;
    if (openToken == nullptr || tokenInformation == nullptr || !openToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return false;
    }
    DWORD elevated = 0;
    DWORD size = 0;
    const BOOL answered = tokenInformation(token, kElevation, &elevated, sizeof elevated, &size);
    CloseHandle(token);
    return answered && elevated != 0;
}

bool Win32HelpLibrary::load(const std::string& path) {
    const HMODULE module = LoadLibraryA(path.c_str());
    if (module != nullptr) {
        module_ = module;
    }
    return module != nullptr;
}

bool Win32HelpLibrary::findFunction(int ordinal) {
    function_ = module_ != nullptr ? findFunctionIn<HelpFunction>(module_, MAKEINTRESOURCEA(ordinal)) : nullptr;
    return function_ != nullptr;
}

std::uintptr_t Win32HelpLibrary::call(std::uintptr_t caller, const std::string& file, unsigned command,
                                      std::uintptr_t data) {
    if (function_ == nullptr) {
        return 0;
    }
    return reinterpret_cast<std::uintptr_t>(
        function_(reinterpret_cast<HWND>(caller), file.c_str(), command, static_cast<DWORD_PTR>(data)));
}

std::string Win32Pickers::browseForFolder() {
    std::array<char, MAX_PATH> displayName{};
    BROWSEINFOA info{};
    info.hwndOwner = owner;
    info.pszDisplayName = displayName.data();
    info.ulFlags = BIF_RETURNONLYFSDIRS;
    return pathOf(ItemListPointer(SHBrowseForFolderA(&info)));
}

// The program's paths are absolute, but nothing is gained by a dialog that changes the current folder.
std::string Win32Pickers::openFile(std::string_view filter) {
    std::array<char, MAX_PATH> path{};
    const std::string parts = dialogFilter(filter);
    OPENFILENAMEA request{};
    request.lStructSize = OPENFILENAME_SIZE_VERSION_400A;  // the only size that NT 4 and 98 know
    request.hwndOwner = owner;
    request.lpstrFilter = parts.c_str();
    request.lpstrFile = path.data();
    request.nMaxFile = MAX_PATH;
    request.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return GetOpenFileNameA(&request) ? std::string(path.data()) : std::string();
}

// Without a caption the platform chooses its own.
void Win32MessageBoxes::show(const MessageBoxRequest& request) {
    const UINT icon = request.icon == MessageIcon::Stop ? MB_ICONSTOP : 0;
    MessageBoxA(request.ownedByMainWindow ? owner : nullptr, request.text.c_str(),
                request.caption.empty() ? nullptr : request.caption.c_str(), MB_OK | icon);
}

Platform Win32System::platform(Registry& registry) {
    return {registry, messages_, version_, clock_, folders_, profile_, pickers_, files_, help_};
}

void Win32System::setMainWindow(HWND window) {
    messages_.owner = window;
    pickers_.owner = window;
}

std::string dialogFilter(std::string_view filter) {
    std::string parts(filter);
    std::ranges::replace(parts, '|', '\0');
    parts.append(2, '\0');
    return parts;
}

}  // namespace korvane
