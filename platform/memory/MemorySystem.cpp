// The parts of the scripted system that do more than return a member.
#include "platform/memory/MemorySystem.h"

#include <algorithm>
#include <ctime>
#include <utility>

namespace korvane {
namespace {

struct NamedVersion {
    std::string_view name;
    VersionRecord record;
};

constexpr NamedVersion kVersions[] = {
    {"95", {1, 4, 0}},   {"98", {1, 4, 10}}, {"me", {1, 4, 90}},  {"nt4", {2, 4, 0}},
    {"2000", {2, 5, 0}}, {"xp", {2, 5, 1}},  {"2003", {2, 5, 2}}, {"vista", {2, 6, 0}},
};

}  // namespace

std::optional<VersionRecord> versionNamed(std::string_view name) {
    const auto* found = std::ranges::find(kVersions, name, &NamedVersion::name);
    return found == std::end(kVersions) ? std::nullopt : std::optional(found->record);
}

bool MemoryVersion::getVersion(VersionRecord& answer) {
    if (!fails) {
        answer = record;
    }
    return !fails;
}

UtcDate SystemClock::utcDate() {
    const std::time_t now = std::time(nullptr);
    const std::tm* parts = std::gmtime(&now);
    return parts != nullptr ? UtcDate{parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday} : UtcDate{};
}

std::uint32_t SystemClock::seed() {
    return static_cast<std::uint32_t>(std::time(nullptr)) + static_cast<std::uint32_t>(std::clock());
}

std::string ScriptedPickers::nextAnswer() {
    if (answers.empty()) {
        return {};
    }
    std::string answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

std::string ScriptedPickers::browseForFolder() {
    ++foldersAsked;
    return nextAnswer();
}

std::string ScriptedPickers::openFile(std::string_view filter) {
    filters.emplace_back(filter);
    return nextAnswer();
}

bool ScriptedHelpLibrary::load(const std::string& path) {
    asked.push_back(path);
    const bool loads = std::ranges::find(modules, path) != modules.end();
    loaded_ = loaded_ || loads;
    return loads;
}

bool ScriptedHelpLibrary::findFunction(int ordinal) {
    found_ = loaded_ && std::ranges::find(ordinals, ordinal) != ordinals.end();
    return found_;
}

// A module without the function cannot be called.
std::uintptr_t ScriptedHelpLibrary::call(std::uintptr_t caller, const std::string& file, unsigned command,
                                         std::uintptr_t data) {
    if (!found_) {
        return 0;
    }
    calls.push_back({.caller = caller, .file = file, .command = command, .data = data});
    return result;
}

struct MemoryFiles::Entry {
    MemoryFile file;
    int readers = 0;             // open for reading
    int unsharedForReading = 0;  // open without letting others read
};

// One newly made is open for writing only, and others may not read it meanwhile.
class MemoryFiles::OpenFile final : public File {
public:
    OpenFile(const MemoryFiles& files, std::shared_ptr<Entry> entry, bool readable)
        : files_(files), entry_(std::move(entry)), readable_(readable) {
        ++counter();
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() override { --counter(); }

    bool readAll(std::string& text) override {
        if (readable_) {
            text = entry_->file.text;
        }
        return readable_;
    }

    bool rewrite(std::string_view text) override {
        if (!files_.diskFull) {
            entry_->file.text = text;
        }
        return !files_.diskFull;
    }

private:
    int& counter() { return readable_ ? entry_->readers : entry_->unsharedForReading; }

    const MemoryFiles& files_;
    std::shared_ptr<Entry> entry_;
    bool readable_;
};

void MemoryFiles::put(const std::string& path, MemoryFile file) {
    files_[path] = std::make_shared<Entry>(Entry{.file = std::move(file)});
}

const MemoryFile* MemoryFiles::find(const std::string& path) const {
    const auto found = files_.find(path);
    return found == files_.end() ? nullptr : &found->second->file;
}

std::unique_ptr<File> MemoryFiles::openExisting(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end() || found->second->file.readOnly || found->second->unsharedForReading > 0) {
        return nullptr;
    }
    return std::make_unique<OpenFile>(*this, found->second, true);
}

// An existing file is emptied at once, even if nothing is written afterwards.
std::unique_ptr<File> MemoryFiles::createAlways(const std::string& path) {
    const auto existing = files_.find(path);
    if (existing == files_.end()) {
        if (refusesCreation) {
            return nullptr;
        }
        put(path, {});
    } else if (existing->second->file.readOnly || existing->second->readers > 0) {
        return nullptr;
    }
    Entry& entry = *files_[path];
    entry.file.text.clear();
    return std::make_unique<OpenFile>(*this, files_[path], false);
}

Platform MemorySystem::platform(Registry& registry) {
    return {registry, messages, version, *clock, folders, profile, pickers, memoryFiles, help};
}

}  // namespace korvane
