// The running system without its registry and windows: version, clock, folders,
// drives, files, profile (INI) strings, pickers and the help library, one class for
// each.
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

// The fields of OSVERSIONINFOA that the program uses.
struct VersionRecord {
    std::uint32_t platformId = 0;  // 1: Windows 95, 98, Me; 2: Windows NT and later
    std::uint32_t majorVersion = 0;
    std::uint32_t minorVersion = 0;
};

class VersionSource {
public:
    virtual ~VersionSource() = default;
    // GetVersionExA. A failed call leaves the record unchanged; the result is not checked.
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
    // time() plus clock(): the seed of the random generator.
    virtual std::uint32_t seed() = 0;
};

struct Drive {
    std::string root;            // "C:\"
    std::uint32_t driveType = 0;  // GetDriveTypeA: 2 removable, 3 fixed, 4 remote, 5 CD-ROM
};

class SystemFolders {
public:
    virtual ~SystemFolders() = default;
    // Without a trailing backslash; empty if the path does not fit into 100 bytes.
    virtual std::string windowsFolder() = 0;
    // The user's application data folder (CSIDL 0x1A); empty if there is none.
    virtual std::string applicationDataFolder() = 0;
    // In the order of GetLogicalDriveStringsA.
    virtual std::vector<Drive> logicalDrives() = 0;
};

class ProfileStrings {
public:
    virtual ~ProfileStrings() = default;
    // GetPrivateProfileStringA with a buffer of `size` bytes: the value has at most size - 1 characters. Letter case
    // does not matter in sections and keys; if the file, section or key is missing, returns the default.
    virtual std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                  std::size_t size, const std::string& file) = 0;
};

class Pickers {
public:
    virtual ~Pickers() = default;
    // Both return an empty text if the user cancels.
    virtual std::string browseForFolder() = 0;
    // The filter has the form "Name|*.ext||".
    virtual std::string openFile(std::string_view filter) = 0;
};

// A file open for reading and writing, or newly created for writing; closes itself.
class File {
public:
    virtual ~File() = default;
    virtual bool readAll(std::string& text) = 0;  // from the beginning
    // Replaces the whole content by `text`. False on an error.
    virtual bool rewrite(std::string_view text) = 0;
};

class Files {
public:
    virtual ~Files() = default;
    // Opens an existing file for reading and writing, with read and write sharing. Null if it cannot be opened.
    virtual std::unique_ptr<File> openExisting(const std::string& path) = 0;
    // Creates a file, or empties an existing one, for writing, with write sharing. Null if it cannot be created.
    virtual std::unique_ptr<File> createAlways(const std::string& path) = 0;
};

// The library that displays compiled help, loaded at run time.
class HelpLibrary {
public:
    virtual ~HelpLibrary() = default;
    // True if this program has rights that other programs of the same user lack (Vista and later): then what those can
    // write must not decide which code it loads.
    virtual bool programIsElevated() = 0;
    virtual bool load(const std::string& path) = 0;  // true if the module was loaded; it stays loaded
    virtual bool findFunction(int ordinal) = 0;      // in the loaded module
    // Calls the help function with caller, file, command and data; returns its result.
    virtual std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command,
                                std::uintptr_t data) = 0;
};

// Everything outside the program that portable code may use, except windows. Borrowed, never owned; lives as long as
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
