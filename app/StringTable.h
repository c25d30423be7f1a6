// The program's string table: the alerts, their caption, and the About entry of the
// system menu. A language file can replace each text.
#pragma once

#include <span>
#include <string_view>

namespace korvane {

struct StringTableEntry {
    int id;
    std::string_view text;
};

// In ascending order of the ids.
std::span<const StringTableEntry> stringTable();

// Empty for an id that is not in the table.
std::string_view builtInString(int id);

constexpr int kStringAboutItem = 101;
constexpr int kStringAlertCaption = 2001;

}  // namespace korvane
