// A language file: an INI file whose values replace the program's English texts.
// What it lacks stays English; nothing is ever reported.
#pragma once

#include "platform/DialogControls.h"
#include "platform/System.h"

#include <string>
#include <string_view>

namespace korvane {

// Replaces every "\n" by a line feed and every "\t" by a tab, from left to right; any other backslash stays.
std::string Unescape(std::string_view text);

class LanguageFile {
public:
    LanguageFile(ProfileStrings& profile, std::string path) : profile_(&profile), path_(std::move(path)) {}

    // Empty if the file, the section, the key or the value is missing: a text cannot be made empty. A caption is cut at
    // 259 characters, any other value at 1023.
    std::string text(std::string_view section, std::string_view key) const { return read(section, key, 1024); }
    std::string text(std::string_view section, int key) const;

    // Caption of a dialog and texts of its direct children, by their ids; the section is the id of the template.
    void translateDialog(DialogControls& dialog, int templateId) const;
    // The text of one control, from the given section.
    void translateControl(DialogControls& dialog, std::string_view section, int control) const;

private:
    std::string read(std::string_view section, std::string_view key, std::size_t size) const;

    ProfileStrings* profile_;
    std::string path_;
};

// The section with the texts of an item's page. Each item has its own, because the same control has a different text
// for each.
std::string itemSection(int id);

}  // namespace korvane
