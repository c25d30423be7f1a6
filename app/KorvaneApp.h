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

// The folder of a path, without a trailing separator ("C:" for a file at the root of a drive); both slashes are
// separators.
std::string folderOf(std::string_view path);

class CKorvaneApp {
public:
    // The platform is borrowed and must outlive this object. The program folder is that of the executable, or another
    // one whose data files are to be used.
    CKorvaneApp(Platform& platform, std::string_view executablePath);

    Platform& platform() { return platform_; }
    // Without a trailing backslash; all data paths start with it.
    const std::string& programFolder() const { return programFolder_; }
    const std::string& language() const { return language_; }
    // Uses this language, whatever the user's settings say.
    void forceLanguage(std::string name);

    // Reads the language from the user's settings. On failure returns the registry's status and keeps the language.
    Status ReadSettings();
    void BuildItemTable() { items_.build(); }
    void TranslateItemTable() { items_.translate(languageFile()); }
    const ItemTable& items() const { return items_; }
    LanguageFile languageFile() const;
    // A text of the string table in the user's language.
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
// Reserved for menus.
constexpr std::string_view kMenuSection = "KorvaneManagerMenu";

}  // namespace korvane
