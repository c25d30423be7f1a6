// Brings the text of a file to what the registry holds now, and changes nothing else in it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "regfile/RegFileEdits.h"
#include "regfile/RegFileIndex.h"
#include "regfile/RegFileWriter.h"
#include "regfile/RegistryTree.h"

namespace korvane {

class RegFileEditor {
public:
    // The tree must have started from the file, or from nothing when the file has no sections. Both are borrowed.
    RegFileEditor(const RegistryTree& tree, const RegFileIndex& file)
        : tree_(tree), file_(file), writer_(file.text()) {}

    // Finds the edits after which an import of the file gives what the tree holds. False when the form of the file
    // cannot hold a name or a text; `error` then says which.
    bool run();
    std::vector<RegFileEdit> takeEdits() { return std::move(edits_); }
    const std::string& error() const { return writer_.error(); }

private:
    using SectionId = RegFileIndex::SectionId;
    using Entries = std::vector<RegFileEntry>;

    bool editValues(KeyId key);
    bool editValue(const RegistryValue& value, const Entries& entries);
    void removeSection(SectionId section);
    bool respell(SectionId section, KeyId key);
    bool appendSection(KeyId key, std::u16string& lines);
    void insertSections(SectionId behind, std::u16string lines);
    void replace(TextRange range, std::u16string_view text);
    void insertLines(std::size_t at, std::u16string_view lines);

    const RegistryTree& tree_;
    const RegFileIndex& file_;
    RegFileWriter writer_;
    std::vector<RegFileEdit> edits_;
};

}  // namespace korvane
