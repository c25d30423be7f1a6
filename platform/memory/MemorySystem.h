// A scripted system: version, folders, files and the user's answers are set
// beforehand, and what it was asked to show is recorded. kmctl runs on it, with
// real files and the real clock if it needs them.
#pragma once

#include "platform/MessageBoxes.h"
#include "platform/System.h"
#include "platform/stdio/IniFile.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// The version record of "95", "98", "me", "nt4", "2000", "xp", "2003" or "vista".
std::optional<VersionRecord> versionNamed(std::string_view name);

class MemoryVersion final : public VersionSource {
public:
    VersionRecord record{.platformId = 2, .majorVersion = 5, .minorVersion = 1};
    bool fails = false;

    bool getVersion(VersionRecord& answer) override;
};

class FixedClock final : public Clock {
public:
    UtcDate date{.year = 2005, .month = 6, .day = 15};
    std::uint32_t seedValue = 1;

    UtcDate utcDate() override { return date; }
    std::uint32_t seed() override { return seedValue; }
};

class SystemClock final : public Clock {
public:
    UtcDate utcDate() override;
    std::uint32_t seed() override;
};

class MemoryFolders final : public SystemFolders {
public:
    std::string windows = "C:\\WINDOWS";
    std::string applicationData = "C:\\Documents and Settings\\User\\Application Data";
    std::vector<Drive> drives{{"A:\\", 2}, {"C:\\", 3}, {"D:\\", 5}};

    std::string windowsFolder() override { return windows; }
    std::string applicationDataFolder() override { return applicationData; }
    std::vector<Drive> logicalDrives() override { return drives; }
};

// Returns the given answers one after the other, as if the user had picked them; then cancels.
class ScriptedPickers final : public Pickers {
public:
    std::deque<std::string> answers;
    std::vector<std::string> filters;  // of the file pickers shown
    int foldersAsked = 0;

    std::string browseForFolder() override;
    std::string openFile(std::string_view filter) override;

private:
    std::string nextAnswer();
};

class RecordedMessageBoxes final : public MessageBoxes {
public:
    std::vector<MessageBoxRequest> shown;

    void show(const MessageBoxRequest& request) override { shown.push_back(request); }
};

class ScriptedHelpLibrary final : public HelpLibrary {
public:
    struct Call {
        std::uintptr_t caller = 0;
        std::string file{};
        unsigned command = 0;
        std::uintptr_t data = 0;
    };

    bool elevated = false;                           // what the program is
    std::vector<std::string> modules{"hhctrl.ocx"};  // what can be loaded
    std::vector<int> ordinals{14};                   // what a loaded module exports
    std::uintptr_t result = 1;                       // of each call

    std::vector<std::string> asked;  // every module that was to be loaded
    std::vector<Call> calls;

    bool programIsElevated() override { return elevated; }
    bool load(const std::string& path) override;
    bool findFunction(int ordinal) override;
    std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command, std::uintptr_t data) override;

private:
    bool loaded_ = false;
    bool found_ = false;
};

struct MemoryFile {
    std::string text{};
    bool readOnly = false;
};

// Files by their exact path, with the sharing rules of Windows. An open file stays valid even if it is put again.
class MemoryFiles final : public Files {
public:
    bool refusesCreation = false;
    bool diskFull = false;  // every rewrite fails and leaves the file as it is

    void put(const std::string& path, MemoryFile file);
    // Null if there is no such file.
    const MemoryFile* find(const std::string& path) const;

    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override;

private:
    struct Entry;
    class OpenFile;

    std::map<std::string, std::shared_ptr<Entry>> files_;
};

// All parts together. Choose `clock` before taking the platform.
struct MemorySystem {
    MemorySystem() = default;
    MemorySystem(const MemorySystem&) = delete;
    MemorySystem& operator=(const MemorySystem&) = delete;

    RecordedMessageBoxes messages;
    MemoryVersion version;
    FixedClock fixedClock;
    SystemClock systemClock;
    MemoryFolders folders;
    IniFile profile;
    ScriptedPickers pickers;
    MemoryFiles memoryFiles;
    ScriptedHelpLibrary help;

    Clock* clock = &fixedClock;

    // Borrows this system and the registry.
    Platform platform(Registry& registry);
};

}  // namespace korvane
