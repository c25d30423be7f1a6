// The buffer sizes are those that the program has always used.
#include "platform/win32/Win32SystemInfo.h"

#include "platform/win32/RunTimeFunction.h"
#include "platform/win32/ShellItem.h"

#include <array>
#include <ctime>

#include <windows.h>
#include <shlobj.h>

namespace korvane {
namespace {

constexpr DWORD kWindowsFolderBuffer = 100;
constexpr DWORD kDriveStringsBuffer = 500;

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

// The path ends with a backslash only where Windows lies in the root of a drive.
std::string Win32Folders::windowsFolder() {
    std::array<char, kWindowsFolderBuffer> path{};
    const UINT length = GetWindowsDirectoryA(path.data(), kWindowsFolderBuffer);
    std::string folder = length < kWindowsFolderBuffer ? std::string(path.data(), length) : std::string();
    if (folder.ends_with('\\')) {
        folder.pop_back();
    }
    return folder;
}

// Shell libraries before 4.71 lack the direct way.
std::string Win32Folders::applicationDataFolder() {
    using SpecialFolderPath = BOOL(WINAPI*)(HWND, LPSTR, int, BOOL);
    const auto specialFolderPath =
        findExport<SpecialFolderPath>(GetModuleHandleA("shell32.dll"), "SHGetSpecialFolderPathA");
    std::array<char, MAX_PATH> path{};
    if (specialFolderPath != nullptr && specialFolderPath(nullptr, path.data(), CSIDL_APPDATA, FALSE)) {
        return path.data();
    }
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(SHGetSpecialFolderLocation(nullptr, CSIDL_APPDATA, &list)) ? pathOf(ShellItem(list))
                                                                                : std::string();
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

}  // namespace korvane
