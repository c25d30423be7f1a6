// Where in the text of a .reg file each key stands: what the registry in memory reads its values from, and what the
// editor needs to know of a file. Another text form of a registry is edited likewise once it has such an index.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "regfile/RegFileScanner.h"
#include "regfile/RegFileText.h"
#include "regfile/RegistryTree.h"

namespace korvane {

class RegFileIndex final : public StoredValues {
public:
    // Sections are numbered in the order of the file, from 1; 0 is what stands before the first.
    using SectionId = std::uint32_t;
    static constexpr SectionId kPreamble = 0;

    // Of a text without sections.
    explicit RegFileIndex(RegFileText text = RegFileText());
    // Reads the text into a tree that holds nothing but the roots, as an import does. After an error both are of no use.
    std::optional<RegFileError> build(RegFileText text, RegistryTree& tree);

    const RegFileText& text() const { return text_; }
    std::size_t sectionCount() const { return sections_.size(); }  // with 0
    TextRange range(SectionId section) const;
    // The key whose contents the section gives; kNoKey for a section that deletes, and for one whose key is deleted
    // further down the file.
    KeyId keyOf(SectionId section) const { return sections_[section].key; }
    // A key's sections that count, in order; 0 for none, and behind the last.
    SectionId firstOf(KeyId key) const { return key < chains_.size() ? chains_[key].first : 0; }
    SectionId lastOf(KeyId key) const { return key < chains_.size() ? chains_[key].last : 0; }
    SectionId nextOf(SectionId section) const { return sections_[section].next; }
    // The sections that delete a key.
    const std::vector<SectionId>& deletions() const { return deletions_; }

    // The section's line with the key, and the key's path below its root.
    std::pair<RegFileSection, std::u16string> header(SectionId section) const;
    // The values of a section, in order.
    std::vector<RegFileEntry> entries(SectionId section) const;

    void read(KeyId key, RegistryValues& values) const override;

private:
    class Builder;
    struct Section {
        std::uint32_t begin;
        KeyId key;
        SectionId next;
    };
    struct Chain {
        SectionId first = 0;
        SectionId last = 0;
    };

    RegFileText text_;
    std::vector<Section> sections_;
    std::vector<Chain> chains_;  // by key
    std::vector<SectionId> deletions_;
};

}  // namespace korvane
