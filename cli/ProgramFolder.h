// The files of the program's folder: its language files, and the date file as a
// run over a .reg file uses it.
#pragma once

#include "platform/System.h"
#include "platform/stdio/IniFile.h"
#include "platform/memory/MemorySystem.h"
#include "text/CodePage.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// Finds the program's paths, which are written with backslashes, on this system. On Windows they are left as they are;
// elsewhere names are found without regard to case, as Windows finds them.
class ProgramFolder {
public:
    // Without a folder no path leads anywhere.
    ProgramFolder() = default;
    // `encoding` is that of the program's paths; the folder is as the system gave it.
    explicit ProgramFolder(std::string folder, const CodePage& encoding = CodePage::western())
        : folder_(std::move(folder)), encoding_(encoding) {}

    bool given() const { return !folder_.empty(); }
    bool exists() const;
    const CodePage& encoding() const { return encoding_; }
    // What the program takes for the path of its executable.
    std::string executable() const { return given() ? folder_ + "\\KorvaneManager.exe" : std::string(); }
    // The names of its language files, without ".ini", in alphabetical order and as the host spells them.
    std::vector<std::string> languages() const;
    // The host's path for one of the program's, which begins with the folder.
    std::string hostPath(const std::string& path) const;

private:
    std::string folder_;
    CodePage encoding_ = CodePage::western();
};

// Whether the program would find the one file by the other's name.
bool sameFileName(std::string_view one, std::string_view other);

class FolderProfile final : public ProfileStrings {
public:
    explicit FolderProfile(const ProgramFolder& folder) : folder_(folder) {}

    std::string getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                          std::size_t size, const std::string& file) override;

private:
    const ProgramFolder& folder_;
    std::map<std::string, std::string> hostPaths_;  // by the program's path
    std::optional<IniFile> ini_;  // made when the first text is asked for: the code page is known then
};

// Reads the files of the folder and keeps what is written to them to itself.
class CopiedFiles final : public Files {
public:
    explicit CopiedFiles(const ProgramFolder& folder) : folder_(folder) {}

    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override { return copies_.createAlways(path); }

private:
    const ProgramFolder& folder_;
    MemoryFiles copies_;
};

}  // namespace korvane
