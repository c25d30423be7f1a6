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

// An open file. A newly created one is open for writing only.
class OpenMemoryFile final : public File {
public:
    OpenMemoryFile(const MemoryFiles& files, std::shared_ptr<MemoryFile> file, bool readable)
        : files_(files), file_(std::move(file)), readable_(readable) {}

    bool readAll(std::string& text) override {
        if (readable_) {
            text = file_->text;
        }
        return readable_;
    }

    bool rewrite(std::string_view text) override {
        if (!files_.diskFull) {
            file_->text = text;
        }
        return !files_.diskFull;
    }

private:
    const MemoryFiles& files_;
    std::shared_ptr<MemoryFile> file_;
    bool readable_;
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

void MemoryFiles::put(const std::string& path, MemoryFile file) {
    files_[path] = std::make_shared<MemoryFile>(std::move(file));
}

const MemoryFile* MemoryFiles::find(const std::string& path) const {
    const auto found = files_.find(path);
    return found == files_.end() ? nullptr : found->second.get();
}

std::unique_ptr<File> MemoryFiles::openExisting(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end() || found->second->readOnly) {
        return nullptr;
    }
    return std::make_unique<OpenMemoryFile>(*this, found->second, true);
}

// An existing file is emptied at once, even if nothing is written afterwards.
std::unique_ptr<File> MemoryFiles::createAlways(const std::string& path) {
    const MemoryFile* existing = find(path);
    if (existing != nullptr ? existing->readOnly : refusesCreation) {
        return nullptr;
    }
    if (existing == nullptr) {
        put(path, {});
    }
    files_[path]->text.clear();
    return std::make_unique<OpenMemoryFile>(*this, files_[path], false);
}

Platform MemorySystem::platform(Registry& registry) {
    return {registry, messages, version, *clock, folders, profile, pickers, *files, help};
}

}  // namespace korvane
