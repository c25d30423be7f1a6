// The application object: what lives for the whole run.
#pragma once

#include "app/HelpLoader.h"
#include "app/ItemTable.h"
#include "lang/LanguageFile.h"
#include "platform/Registry.h"
#include "platform/System.h"

#include <string>
#include <string_view>

namespace korvane {

constexpr std::string_view kProgramTitle = "Korvane Manager";
constexpr std::string_view kProgramVersion = "1.0.0.1";

// The folder part of a path, without a trailing backslash (so "C:" for a program at the root of a drive); either
// slash separates.
std::string folderOf(std::string_view path);

class CKorvaneApp {
public:
    // The platform is borrowed for the whole run. The program folder is the executable's, or any folder whose data
    // files are to be used.
    CKorvaneApp(Platform& platform, std::string_view executablePath);

    Platform& platform() { return platform_; }
    // Without a trailing backslash; the base of every data path.
    const std::string& programFolder() const { return programFolder_; }
    const std::string& language() const { return language_; }
    // Uses that language whatever the user's settings say.
    void forceLanguage(std::string name);

    // Takes the language from the user's settings. The registry's error otherwise, and the language stays.
    Status ReadSettings();
    void BuildItemTable() { items_.build(); }
    void TranslateItemTable() { items_.translate(languageFile()); }
    const ItemTable& items() const { return items_; }
    LanguageFile languageFile() const;
    // A text of the string table, in the language of the user.
    std::string LoadString(int id) const;
    // Opens the help of the user's language, whether or not the file exists.
    void ShowHelp();

private:
    Platform& platform_;
    std::string programFolder_;
    std::string language_ = "English";
    bool languageForced_ = false;
    ItemTable items_;
    HelpLoader help_;
};

// The language file's section with the texts of the string table.
constexpr std::string_view kStringTableSection = "KorvaneManagerStringTable";
// Kept for the entries of menus.
constexpr std::string_view kMenuSection = "KorvaneManagerMenu";

}  // namespace korvane
