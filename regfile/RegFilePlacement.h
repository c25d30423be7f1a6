// What becomes of the sections of a file when keys have been made or deleted: which of them go, which keys need a new
// one and where, and where a key's name must be spelled otherwise.
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "regfile/RegFileIndex.h"
#include "regfile/RegistryTree.h"

namespace korvane {

// Where the first names of a path end, of which it must have as many.
std::size_t endOfNames(std::u16string_view path, std::size_t count);

class RegFilePlacement {
public:
    using SectionId = RegFileIndex::SectionId;
    struct NewSection {
        KeyId key;
        SectionId behind;  // a section that stays, or 0
    };

    struct Respelling {
        SectionId section;
        KeyId key;  // the section's own, or one above it when its own is deleted further down the file
    };

    // Both are only needed for the constructor.
    RegFilePlacement(const RegistryTree& tree, const RegFileIndex& file);

    // Sections that would make a key that has been deleted since.
    const std::vector<SectionId>& removed() const { return removed_; }
    // Sections from which an import would take another spelling of a name than the registry has now: of the key itself
    // or one above it.
    const std::vector<Respelling>& respelled() const { return respelled_; }
    // In the order of the new file: a key behind its siblings in alphabetical order and what is below them, else behind
    // its parent, and never before a section that deletes it.
    const std::vector<NewSection>& added() const { return added_; }

private:
    void findMentioned();
    KeyId keyMadeBy(SectionId section) const;
    bool spelledAsInFile(SectionId section, KeyId key, std::size_t levels) const;
    void findNeeded();
    void place();
    void measureSubtrees();
    void findDeletions();
    SectionId enter(KeyId key, SectionId gap, SectionId earliest);

    struct Extent {
        SectionId first = 0;  // 0: the file has no section of the key or below it
        SectionId last = 0;
    };

    const RegistryTree& tree_;
    const RegFileIndex& file_;
    std::vector<SectionId> removed_;
    std::vector<Respelling> respelled_;
    std::vector<NewSection> added_;

    std::vector<bool> mentioned_;  // by key: a section that stays makes it
    std::unordered_set<KeyId> needed_;
    std::unordered_set<KeyId> aboveNeeded_;
    std::vector<Extent> extents_;  // by key, before the change
    std::unordered_map<KeyId, SectionId> deletions_;  // the last section that deletes a key
};

}  // namespace korvane
