// The running Windows behind the system's small areas: version, clock,
// folders, files, profile strings, pickers, message boxes and compiled help.
// Statically imported are only calls that Windows NT 4 and 98 have as well.
#pragma once

#include "platform/MessageBoxes.h"
#include "platform/System.h"
#include "platform/stdio/IniFile.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

namespace korvane {

class Win32Version final : public VersionSource {
public:
    bool getVersion(VersionRecord& record) override;
};

class Win32Clock final : public Clock {
public:
    UtcDate utcDate() override;
    std::uint32_t seed() override;
};

class Win32Folders final : public SystemFolders {
public:
    std::string windowsFolder() override;
    std::string applicationDataFolder() override;
    std::vector<Drive> logicalDrives() override;
};

class Win32Files final : public Files {
public:
    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override;
};

class Win32HelpLibrary final : public HelpLibrary {
public:
    bool programIsElevated() override;
    bool load(const std::string& path) override;
    bool findFunction(int ordinal) override;
    std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command, std::uintptr_t data) override;

private:
    using HelpFunction = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);

    HMODULE module_ = nullptr;  // stays loaded as long as the program runs
    HelpFunction function_ = nullptr;
};

// The two below belong to the main window, which they stop from being used meanwhile; null until there is one.
class Win32Pickers final : public Pickers {
public:
    std::string browseForFolder() override;
    std::string openFile(std::string_view filter) override;

    HWND owner = nullptr;
};

class Win32MessageBoxes final : public MessageBoxes {
public:
    void show(const MessageBoxRequest& request) override;

    HWND owner = nullptr;
};

// Owns one of each.
class Win32System {
public:
    Win32System() = default;
    Win32System(const Win32System&) = delete;
    Win32System& operator=(const Win32System&) = delete;

    // Borrows this system and the registry.
    Platform platform(Registry& registry);
    void setMainWindow(HWND window);

private:
    Win32MessageBoxes messages_;
    Win32Version version_;
    Win32Clock clock_;
    Win32Folders folders_;
    IniFile profile_;
    Win32Pickers pickers_;
    Win32Files files_;
    Win32HelpLibrary help_;
};

// The filter "Name|*.ext||" in the form that the platform's file dialogs want: each part ends with a zero byte, the
// whole with one more.
std::string dialogFilter(std::string_view filter);

}  // namespace korvane
