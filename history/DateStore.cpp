// Reading, writing and repairing the date file.
#include "history/DateStore.h"

#include "pages/RegistryAccess.h"
#include "text/ReplaceAll.h"

namespace korvane {
namespace {

constexpr std::string_view kSettingsParent = "Software";
constexpr std::string_view kSettingsKey = "Korvane Manager";
constexpr std::string_view kCreatedFlag = "DateModefiedFlage";  // spelled so in every installation
constexpr std::string_view kLanguage = "Language";
constexpr std::string_view kDefaultLanguage{"English\0", 8};    // written with its terminating zero

std::string keyOf(std::string_view title) { return "korvane(\"" + std::string(title) + "\""; }

}  // namespace

DateStore::DateStore(Registry& registry, Files& files, Clock& clock, std::string path, Titles titles)
    : registry_(registry), files_(files), clock_(clock), path_(std::move(path)), titles_(std::move(titles)) {}

bool DateStore::openSettings(RegistryHandle& root, RegistryHandle& settings) {
    RegistryHandle software;
    return registry_.connect(Root::CurrentUser, root) == Status::Success &&
           registry_.openKey(root, kSettingsParent, software) == Status::Success &&
           registry_.createKey(software, kSettingsKey, settings) == Status::Success;
}

bool DateStore::createdBefore(const RegistryHandle& settings) {
    const auto flag = readValue(registry_, settings, kCreatedFlag);
    return flag && flag->number() == 1;
}

void DateStore::Initialise() {
    if (inMemory()) {
        text_ = allRecords();
        return;
    }
    RegistryHandle root;
    RegistryHandle settings;
    if (!openSettings(root, settings)) {
        return;
    }
    if (!readValue(registry_, settings, kLanguage)) {
        const auto data = std::as_bytes(std::span(kDefaultLanguage));
        ignoreFailure(registry_.setValue(settings, kLanguage, ValueType::Sz, data));
    }
    if (createdBefore(settings)) {
        modified_ = false;
        Update();
    } else {
        createFile(settings);
    }
}

void DateStore::createFile(const RegistryHandle& settings) {
    text_ = allRecords();
    const auto file = files_.createAlways(path_);
    if (file == nullptr || !file->rewrite(text_)) {
        noteFailure("it could not be created");
    }
    constexpr std::byte kSet[4] = {std::byte{1}};
    ignoreFailure(registry_.setValue(settings, kCreatedFlag, ValueType::Dword, kSet));
}

std::string DateStore::record(std::string_view title) {
    const UtcDate today = clock_.utcDate();
    return keyOf(title) + "," + std::to_string(today.month) + "/" + std::to_string(today.day) + "/" +
           std::to_string(today.year) + ")";
}

std::string DateStore::allRecords() {
    std::string all;
    for (const std::string& title : titles_()) {
        all += record(title) + "\r\n";
    }
    return all;
}

void DateStore::Reset() {
    if (!inMemory()) {
        RegistryHandle root;
        RegistryHandle settings;
        if (openSettings(root, settings)) {
            constexpr std::byte kClear[4] = {};
            ignoreFailure(registry_.setValue(settings, kCreatedFlag, ValueType::Dword, kClear));
        }
    }
    Initialise();
}

bool DateStore::Stamp(std::string_view title) {
    modified_ = true;
    pendingTitle_ = title;
    if (inMemory()) {
        modified_ = !replaceRecord(text_, title);
        return !modified_;
    }
    return Update();
}

bool DateStore::Update() {
    const auto file = files_.openExisting(path_);
    if (file == nullptr) {
        return false;
    }
    std::string text;
    if (!file->readAll(text)) {
        noteFailure("it could not be read");
        return false;
    }
    if (!modified_) {
        text_ = std::move(text);
        return true;
    }
    if (!replaceRecord(text, pendingTitle_)) {
        Reset();  // every record then has today's date
        return true;
    }
    if (!file->rewrite(text)) {
        noteFailure("it could not be written");
        return false;
    }
    modified_ = false;
    text_ = std::move(text);
    return true;
}

bool DateStore::replaceRecord(std::string& text, std::string_view title) {
    const std::size_t start = text.find(keyOf(title));
    if (start == std::string::npos) {
        return false;
    }
    const std::size_t end = text.find('\r', start);
    const std::string old = text.substr(start, end == std::string::npos ? end : end - start);
    replaceAll(text, old, record(title));
    return true;
}

std::string DateStore::LookUp(std::string_view title) {
    const std::string key = keyOf(title);
    std::size_t start = text_.find(key);
    if (start == std::string::npos) {
        Reset();
        start = text_.find(key);
    }
    if (start == std::string::npos) {
        return {};
    }
    std::string found = text_.substr(start, text_.find('\r', start) - start);
    found.pop_back();  // the closing bracket
    const std::size_t comma = found.find(',');
    return comma == std::string::npos ? std::string() : found.substr(comma + 1);
}

// The wording is kept although nothing is encrypted.
void DateStore::noteFailure(std::string_view reason) {
    lastFailure_ = "The file could not be encrypted because of this error:";
    lastFailure_ += reason;
}

}  // namespace korvane
