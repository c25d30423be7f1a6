// Start-up state, settings, texts and help.
#include "app/KorvaneApp.h"

#include "app/StringTable.h"
#include "pages/RegistryAccess.h"

namespace korvane {
namespace {

constexpr std::string_view kSettingsPath = "Software\\Korvane Manager";
constexpr std::string_view kLanguageValue = "Language";
constexpr unsigned kDisplayTopic = 0;

}  // namespace

std::string folderOf(std::string_view path) {
    const std::size_t slash = path.find_last_of("\\/");
    return std::string(slash == std::string_view::npos ? std::string_view() : path.substr(0, slash));
}

CKorvaneApp::CKorvaneApp(Platform& platform, std::string_view executablePath)
    : platform_(platform), programFolder_(folderOf(executablePath)), help_(platform.registry, platform.help) {}

Status CKorvaneApp::ReadSettings() {
    RegistryHandle root;
    RegistryHandle settings;
    StoredValue value;
    Status status = platform_.registry.connect(Root::CurrentUser, root);
    if (status == Status::Success) {
        status = platform_.registry.openKey(root, kSettingsPath, settings);
    }
    if (status == Status::Success) {
        status = platform_.registry.queryValue(settings, kLanguageValue, value.data, value.size);
    }
    if (status == Status::Success && !languageForced_) {
        language_ = value.text();
    }
    return status;
}

void CKorvaneApp::forceLanguage(std::string name) {
    language_ = std::move(name);
    languageForced_ = true;
}

LanguageFile CKorvaneApp::languageFile() const {
    return {platform_.profile, programFolder_ + "\\Language\\" + language_ + ".ini"};
}

std::string CKorvaneApp::LoadString(int id) const {
    const std::string translated = languageFile().text(kStringTableSection, id);
    return translated.empty() ? std::string(builtInString(id)) : translated;
}

void CKorvaneApp::ShowHelp() {
    const std::string file = programFolder_ + "\\Help\\" + language_ + ".chm";
    help_.call(0, file, kDisplayTopic, 0);
}

}  // namespace korvane
