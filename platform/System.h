// The running system apart from its registry and windows: version, clock,
// folders, drives, files, profile (INI) strings, pickers and the help library.
// Each class is one small area of the platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class Registry;
class MessageBoxes;

// The fields of OSVERSIONINFOA that the program looks at.
struct VersionRecord {
    std::uint32_t platformId = 0;  // 1: Windows 95, 98, Me; 2: Windows NT and later
    std::uint32_t majorVersion = 0;
    std::uint32_t minorVersion = 0;
};

class VersionSource {
public:
    virtual ~VersionSource() = default;
    // GetVersionExA. A failed call leaves the record as it is; the program does not look at the result.
    virtual bool getVersion(VersionRecord& record) = 0;
};

struct UtcDate {
    int year = 0;   // four digits
    int month = 0;  // 1 to 12
    int day = 0;    // 1 to 31
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual UtcDate utcDate() = 0;
    // Calendar time in seconds plus processor clock ticks: the seed of the random generator.
    virtual std::uint32_t seed() = 0;
};

struct Drive {
    std::string root;            // "C:\"
    std::uint32_t driveType = 0;  // GetDriveTypeA: 2 removable, 3 fixed, 4 remote, 5 CD-ROM
};

class SystemFolders {
public:
    virtual ~SystemFolders() = default;
    // Without a trailing backslash; empty when the folder's path does not fit into 100 bytes.
    virtual std::string windowsFolder() = 0;
    // The user's application data folder (CSIDL 0x1A); empty when the system has none.
    virtual std::string applicationDataFolder() = 0;
    // In the order of GetLogicalDriveStringsA.
    virtual std::vector<Drive> logicalDrives() = 0;
};

class ProfileStrings {
public:
    virtual ~ProfileStrings() = default;
    // GetPrivateProfileStringA with a buffer of `size` bytes: the value has at most size - 1 characters. Sections and
    // keys are looked up without regard to case; a missing file, section or key answers the default.
    virtual std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                  std::size_t size, const std::string& file) = 0;
};

class Pickers {
public:
    virtual ~Pickers() = default;
    // Both answer an empty text when the user cancels.
    virtual std::string browseForFolder() = 0;
    // The filter has the form "Name|*.ext||".
    virtual std::string openFile(std::string_view filter) = 0;
};

// A file open for reading and writing, or newly made for writing; closes itself.
class File {
public:
    virtual ~File() = default;
    virtual bool readAll(std::string& text) = 0;  // from the beginning
    // Makes `text` the whole content. False: the platform reported an error.
    virtual bool rewrite(std::string_view text) = 0;
};

class Files {
public:
    virtual ~Files() = default;
    // Existing files only, for reading and writing, others may read and write. Null when it cannot be opened.
    virtual std::unique_ptr<File> openExisting(const std::string& path) = 0;
    // Always a new, empty file, for writing, others may write. Null when it cannot be made.
    virtual std::unique_ptr<File> createAlways(const std::string& path) = 0;
};

// The library that shows compiled help, loaded at run time.
class HelpLibrary {
public:
    virtual ~HelpLibrary() = default;
    virtual bool load(const std::string& path) = 0;  // true: a module is loaded and stays loaded
    virtual bool findFunction(int ordinal) = 0;      // in the loaded module
    // The help function with its caller, file, command and data; its result.
    virtual std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command,
                                std::uintptr_t data) = 0;
};

// All that the portable code may reach outside itself, apart from its windows. Borrowed, never owned; lives as long as
// the program.
struct Platform {
    Registry& registry;
    MessageBoxes& messages;
    VersionSource& version;
    Clock& clock;
    SystemFolders& folders;
    ProfileStrings& profile;
    Pickers& pickers;
    Files& files;
    HelpLibrary& help;
};

}  // namespace korvane
