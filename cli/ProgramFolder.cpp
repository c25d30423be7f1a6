// Looking names up, and copies of files in memory.
#include "cli/ProgramFolder.h"

#include "cli/HostText.h"
#include "text/CaseFolding.h"
#include "text/Utf.h"
#include "text/WholeFile.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dirent.h>
#include <sys/stat.h>
#endif

#include <algorithm>

namespace korvane {
namespace {

std::u16string comparable(std::string_view name) {
    return upperCase(fromUtf8(fileNameToUtf8(name)).value_or(std::u16string()));
}

// What is in the folder, in no order; nothing where there is no such folder.
std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
#ifdef _WIN32
    WIN32_FIND_DATAA entry{};
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            names.emplace_back(entry.cFileName);
        } while (FindNextFileA(search, &entry) != 0);
        FindClose(search);
    }
#else
    if (DIR* const entries = opendir(folder.c_str())) {
        for (const dirent* entry = readdir(entries); entry != nullptr; entry = readdir(entries)) {
            names.emplace_back(entry->d_name);
        }
        closedir(entries);
    }
#endif
    return names;
}

}  // namespace

bool sameFileName(std::string_view one, std::string_view other) { return comparable(one) == comparable(other); }

std::vector<std::string> ProgramFolder::languages() const {
    constexpr std::string_view kEnding = ".ini";
    std::vector<std::string> names;
    for (const std::string& name : namesIn(hostPath(folder_ + "\\Language"))) {
        if (name.size() > kEnding.size() && sameFileName(name.substr(name.size() - kEnding.size()), kEnding)) {
            names.push_back(name.substr(0, name.size() - kEnding.size()));
        }
    }
    std::ranges::sort(names);
    return names;
}

#ifdef _WIN32

bool ProgramFolder::exists() const {
    const DWORD attributes = GetFileAttributesA(folder_.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string ProgramFolder::hostPath(const std::string& path) const { return path; }

#else

namespace {

// The name as the folder spells it; as it is when the folder has none like it.
std::string spelledInFolder(const std::string& folder, const std::string& name) {
    struct stat status {};
    if (stat((folder + '/' + name).c_str(), &status) == 0) {
        return name;
    }
    const std::vector<std::string> names = namesIn(folder);
    const std::u16string wanted = comparable(name);
    const auto found = std::ranges::find(names, wanted, comparable);
    return found == names.end() ? name : *found;
}

}  // namespace

// The program's own code takes every backslash of a path for a separator, so the folder's name may have none.
bool ProgramFolder::exists() const {
    struct stat status {};
    return folder_.find('\\') == std::string::npos && stat(folder_.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string ProgramFolder::hostPath(const std::string& path) const {
    std::string host = folder_;
    for (std::size_t start = folder_.size(); start < path.size();) {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        if (end != start) {
            const std::string name = toHost(path.substr(start, end - start), encoding_);
            host += '/' + spelledInFolder(host, name);
        }
        start = end + 1;
    }
    return host;
}

#endif

namespace {

// What is longer is no file of the program's.
constexpr std::size_t kLongestFile = 64 << 20;

}  // namespace

std::string FolderProfile::getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                     std::size_t size, const std::string& file) {
    if (!folder_.given()) {
        return std::string(defaultValue);
    }
    auto found = hostPaths_.find(file);
    if (found == hostPaths_.end()) {
        found = hostPaths_.emplace(file, folder_.hostPath(file)).first;
    }
    if (!ini_) {
        ini_.emplace(folder_.encoding());
    }
    return ini_->getString(section, key, defaultValue, size, found->second);
}

std::unique_ptr<File> CopiedFiles::openExisting(const std::string& path) {
    std::string text;
    if (copies_.find(path) == nullptr && readWholeFile(folder_.hostPath(path), kLongestFile, text)) {
        copies_.put(path, {.text = std::move(text)});
    }
    return copies_.openExisting(path);
}

}  // namespace korvane
