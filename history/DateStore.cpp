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

constexpr std::string_view kRecordStart = "korvane(\"";
constexpr std::string_view kLineEnd = "\r\n";

// The text with every kind of line end as CR LF, and each record on a line of its own. Records end where their line
// ends: by the platform's line ends alone, a stamp would take all that follows in a file from an editor that ends lines
// otherwise.
std::string inLines(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    bool hasRecord = false;  // the line so far
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            i += text.substr(i).starts_with(kLineEnd) ? 1 : 0;
            lines += kLineEnd;
            hasRecord = false;
            continue;
        }
        if (text[i] == kRecordStart.front() && text.substr(i).starts_with(kRecordStart)) {
            lines += hasRecord ? kLineEnd : "";
            hasRecord = true;
        }
        lines += text[i];
    }
    return lines;
}

// As it stands in a file whose line ends were put right: a translated title may have some.
std::string keyOf(std::string_view title) { return inLines(std::string(kRecordStart) + std::string(title) + '"'); }

// From the key to the end of its line.
std::string recordAt(const std::string& text, std::size_t start, const std::string& key) {
    return text.substr(start, text.find('\r', start + key.size()) - start);
}

}  // namespace

DateStore::DateStore(Registry& registry, Files& files, Clock& clock, DatePlace place, Titles titles)
    : registry_(registry), files_(files), clock_(clock), place_(std::move(place)), titles_(std::move(titles)) {}

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
    modified_ = false;
    if (place_.kept == Dates::InMemory) {
        text_ = allRecords();
    } else if (place_.kept == Dates::InFileAlone) {
        if (!Update()) {
            createFile();
        }
    } else {
        RegistryHandle root;
        RegistryHandle settings;
        if (openSettings(root, settings)) {
            loadOrCreateFile(settings);
        }
    }
}

void DateStore::loadOrCreateFile(const RegistryHandle& settings) {
    if (!readValue(registry_, settings, kLanguage)) {
        const auto data = std::as_bytes(std::span(kDefaultLanguage));
        ignoreFailure(registry_.setValue(settings, kLanguage, ValueType::Sz, data));
    }
    if (createdBefore(settings)) {
        Update();
    } else if (createFile()) {
        constexpr std::byte kSet[4] = {std::byte{1}};
        ignoreFailure(registry_.setValue(settings, kCreatedFlag, ValueType::Dword, kSet));
    }
}

bool DateStore::createFile() {
    std::string text = allRecords();
    const auto file = files_.createAlways(place_.path);
    if (file == nullptr || !file->rewrite(text)) {
        noteFailure("it could not be created");
        return false;
    }
    keep(std::move(text));
    return true;
}

void DateStore::keep(std::string text) {
    text_ = std::move(text);
    lastFailure_.clear();
}

std::string DateStore::record(std::string_view title) {
    const UtcDate today = clock_.utcDate();
    return keyOf(title) + "," + std::to_string(today.month) + "/" + std::to_string(today.day) + "/" +
           std::to_string(today.year) + ")";
}

std::string DateStore::allRecords() {
    std::string all;
    for (const std::string& title : titles_()) {
        all.append(record(title)).append(kLineEnd);
    }
    return all;
}

void DateStore::Reset() {
    if (place_.kept == Dates::InFileAlone) {
        createFile();
        return;
    }
    if (place_.kept == Dates::InFile) {
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
    if (place_.kept == Dates::InMemory) {
        modified_ = !replaceRecord(text_, title);
        return !modified_;
    }
    return Update();
}

bool DateStore::Update() {
    auto file = files_.openExisting(place_.path);
    if (file == nullptr) {
        noteFailure("it could not be opened");
        return false;
    }
    std::string text;
    if (!file->readAll(text)) {
        noteFailure("it could not be read");
        return false;
    }
    text = inLines(text);
    if (!modified_) {
        keep(std::move(text));
        return true;
    }
    if (!replaceRecord(text, pendingTitle_)) {
        file.reset();  // nobody can make a file anew that is open for reading
        Reset();
        return text_.find(record(pendingTitle_)) != std::string::npos;
    }
    if (!file->rewrite(text)) {
        noteFailure("it could not be written");
        return false;
    }
    modified_ = false;
    keep(std::move(text));
    return true;
}

bool DateStore::replaceRecord(std::string& text, std::string_view title) {
    const std::string key = keyOf(title);
    const std::size_t start = text.find(key);
    if (start == std::string::npos) {
        return false;
    }
    replaceAll(text, recordAt(text, start, key), record(title));
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
    std::string found = recordAt(text_, start, key);
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
