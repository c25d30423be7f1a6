// A language file: an INI file whose values replace the program's English
// texts. What it lacks stays English; nothing about it is ever reported.
#pragma once

#include "platform/DialogControls.h"
#include "platform/System.h"

#include <string>
#include <string_view>

namespace korvane {

// Replaces backslash-n by a line feed and backslash-t by a tab, every occurrence, left to right; every other backslash
// stays.
std::string Unescape(std::string_view text);

class LanguageFile {
public:
    LanguageFile(ProfileStrings& profile, std::string path) : profile_(&profile), path_(std::move(path)) {}

    // Empty when the file, the section or the key is missing, or the value is empty: a text cannot be blanked.
    // Values are cut at 259 characters for a caption and at 1023 for everything else.
    std::string text(std::string_view section, std::string_view key) const { return read(section, key, 1024); }
    std::string text(std::string_view section, int key) const;

    // Caption and texts of a dialog and of its direct children, by their ids; the section is the template's number.
    void translateDialog(DialogControls& dialog, int templateId) const;
    // One control's text, in a section of the caller's.
    void translateControl(DialogControls& dialog, std::string_view section, int control) const;

private:
    std::string read(std::string_view section, std::string_view key, std::size_t size) const;

    ProfileStrings* profile_;
    std::string path_;
};

// The section with the texts of an item's page: one for each item, since the same control says something else for each.
std::string itemSection(int id);

}  // namespace korvane
