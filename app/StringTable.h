// The program's own string table: the alerts, their caption, and the entry of
// the system menu. A language file can replace each of them.
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

// Empty for an id that the table does not have.
std::string_view builtInString(int id);

constexpr int kStringAboutItem = 101;
constexpr int kStringAlertCaption = 2001;

}  // namespace korvane
