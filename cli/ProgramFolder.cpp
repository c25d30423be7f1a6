// Looking names up, and the date file's copy in memory.
#include "cli/ProgramFolder.h"

#ifdef _WIN32
#include <windows.h>
#else
#include "cli/HostText.h"
#include "text/Codepage.h"

#include <dirent.h>
#include <sys/stat.h>
#endif

#include <algorithm>

namespace korvane {

#ifdef _WIN32

bool ProgramFolder::exists() const {
    const DWORD attributes = GetFileAttributesA(folder_.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string ProgramFolder::hostPath(const std::string& path) const { return path; }

#else

namespace {

std::u16string comparable(std::string_view name) { return upperCase(fromUtf8(name).value_or(fromAnsi(name))); }

// The name as the folder spells it; as it is when the folder has none like it.
std::string spelledInFolder(const std::string& folder, const std::string& name) {
    struct stat status {};
    if (stat((folder + '/' + name).c_str(), &status) == 0) {
        return name;
    }
    std::string found = name;
    if (DIR* const entries = opendir(folder.c_str())) {
        const std::u16string wanted = comparable(name);
        for (const dirent* entry = readdir(entries); entry != nullptr; entry = readdir(entries)) {
            if (comparable(entry->d_name) == wanted) {
                found = entry->d_name;
                break;
            }
        }
        closedir(entries);
    }
    return found;
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
            const std::string name = toHost(path.substr(start, end - start));
            host += '/' + spelledInFolder(host, name);
        }
        start = end + 1;
    }
    return host;
}

#endif

std::string FolderProfile::getString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                     std::size_t size, const std::string& file) {
    if (!folder_.given()) {
        return std::string(defaultValue);
    }
    auto found = hostPaths_.find(file);
    if (found == hostPaths_.end()) {
        found = hostPaths_.emplace(file, folder_.hostPath(file)).first;
    }
    return ini_.getString(section, key, defaultValue, size, found->second);
}

std::unique_ptr<File> PendingFiles::openExisting(const std::string& path) {
    if (pending_.find(path) == nullptr) {
        const std::unique_ptr<File> file = disk_.openExisting(folder_.hostPath(path));
        std::string text;
        if (file == nullptr || !file->readAll(text)) {
            return nullptr;
        }
        pending_.put(path, {.text = text});
        onDisk_[path] = std::move(text);
    }
    return pending_.openExisting(path);
}

std::unique_ptr<File> PendingFiles::createAlways(const std::string& path) {
    onDisk_.try_emplace(path);
    return pending_.createAlways(path);
}

bool PendingFiles::writeChanges() {
    bool allWritten = true;
    for (auto& [path, content] : onDisk_) {
        const std::string& text = pending_.find(path)->text;
        if (content == text) {
            continue;
        }
        const std::string hostPath = folder_.hostPath(path);
        const std::unique_ptr<File> file = content ? disk_.openExisting(hostPath) : disk_.createAlways(hostPath);
        if (file != nullptr && file->rewrite(text)) {
            content = text;
        } else {
            allWritten = false;
        }
    }
    return allWritten;
}

}  // namespace korvane
