// The files in tests/catalogue/effects, in which a person wrote down what each tweak does; README.txt there tells how.
#pragma once

#include "platform/Registry.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// What becomes of a value.
struct EffectData {
    enum class Does { Writes, Deletes, DeletesByPath, Nothing };

    Does does = Does::Writes;
    ValueType type = ValueType::Sz;
    std::string bytes{};
    // Instead of all that: the alert that refuses the apply, and whether it does so after the date was recorded.
    int alert = 0;
    bool dated = true;
};

// A state of a control beside data: what is stored shows as that state, the state is written as that data, or both.
struct EffectPair {
    std::string state;
    bool isShown;
    bool isWritten;
    EffectData data;
};

// One value and its control; 0: none, the value is always written.
struct EffectLine {
    std::set<std::string> windows;  // empty: on all of them
    int place;                      // the number of its key within the item
    std::string root;
    std::string opened;
    std::string created;  // below `opened`, which must exist unless it is the root itself
    int control = 0;
    std::string name{};
    std::vector<EffectPair> pairs{};

    std::string path() const { return opened + (opened.empty() || created.empty() ? "" : "\\") + created; }
    std::string key() const { return root + '\\' + path(); }
    std::string parent() const { return root + '\\' + opened; }
};

struct EffectItem {
    int id = 0;
    int line = 0;                    // where it stands in its file
    std::set<std::string> accepted;  // the Windows versions that the gate lets pass; empty: all
    int alert = 0;
    bool putsBack = false;
    bool datedWhenOpen = false;
    std::map<int, std::string> entries;  // of combos and lists, with bars between them
    std::vector<EffectLine> lines;       // in the order in which they are written
    std::vector<std::string> cases;
};

// Pieces between the separators; what stands in quotation marks stays together, with its marks.
std::vector<std::string> splitOutsideQuotes(std::string_view text, std::string_view separator = " ");
std::string withoutQuotes(std::string_view text);
EffectData parseEffectData(std::string_view type, std::string_view text);
// The names between commas: versions of Windows, with "nt" and "9x" for their families; "xp" stands for 2003 as well.
std::set<std::string> windowsNamed(std::string_view names);
// Fails the test at a line that cannot be read. Macros stay known for the files read after this one.
std::vector<EffectItem> readEffects(const std::string& path, std::map<std::string, std::string>& macros);

}  // namespace korvane
