// The file's lines count in their order, so the last that names a value decides: that one is changed, and what is new
// goes behind all that could undo it.
#include "regfile/RegFileEditor.h"

#include <unordered_map>
#include <utility>

#include "regfile/RegFilePlacement.h"
#include "text/CaseFolding.h"

namespace korvane {
namespace {

using Entries = std::vector<RegFileEntry>;

// By upper-case name: the lines that set a value, from the last that deletes it on. Names without any are not set.
std::unordered_map<std::u16string, Entries> entriesOf(const RegFileIndex& file, KeyId key) {
    std::unordered_map<std::u16string, Entries> found;
    for (RegFileIndex::SectionId section = file.firstOf(key); section != 0; section = file.nextOf(section)) {
        for (const RegFileEntry& entry : file.entries(section)) {
            Entries& entries = found[upperCase(readEntryName(file.text(), entry))];
            if (entry.kind == RegFileEntry::Kind::Deletion) {
                entries.clear();
            } else {
                entries.push_back(entry);
            }
        }
    }
    return found;
}

}  // namespace

bool RegFileEditor::run() {
    const RegFilePlacement placement(tree_, file_);
    for (const KeyId key : tree_.changedKeys()) {
        if (tree_.exists(key) && file_.lastOf(key) != 0 && !editValues(key)) {
            return false;
        }
    }
    for (const SectionId section : placement.removed()) {
        removeSection(section);
    }
    for (const auto& [section, key] : placement.respelled()) {
        if (!respell(section, key)) {
            return false;
        }
    }
    const std::vector<RegFilePlacement::NewSection>& added = placement.added();
    for (std::size_t from = 0, to = 0; from < added.size(); from = to) {
        std::u16string lines;
        for (; to < added.size() && added[to].behind == added[from].behind; ++to) {
            lines += writer_.lineEnd();
            if (!appendSection(added[to].key, lines)) {
                return false;
            }
        }
        insertSections(added[from].behind, std::move(lines));
    }
    return true;
}

// ---- Values

bool RegFileEditor::editValues(KeyId key) {
    writer_.setKey(tree_.path(key));
    std::unordered_map<std::u16string, Entries> stored = entriesOf(file_, key);
    std::u16string added;
    for (const RegistryValue& value : tree_.values(key)) {
        const auto found = stored.find(upperCase(value.name));
        const bool inFile = found != stored.end() && !found->second.empty();
        if (inFile ? !editValue(value, found->second) : !writer_.appendValue(value, added)) {
            return false;
        }
        if (inFile) {
            found->second.clear();
        }
    }
    for (const auto& [upperName, entries] : stored) {
        for (const RegFileEntry& entry : entries) {
            edits_.push_back({entry.lines.begin, entry.lines.end, {}});
        }
    }
    if (!added.empty()) {
        insertLines(endOf(file_, file_.lastOf(key)).lines, added);
    }
    return true;
}

// The last line has the data, the first the spelling of the name.
bool RegFileEditor::editValue(const RegistryValue& value, const Entries& entries) {
    const RegFileText& text = file_.text();
    const RegFileEntry& last = entries.back();
    if (readEntryName(text, entries.front()) != value.name) {
        for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
            edits_.push_back({entries[i].lines.begin, entries[i].lines.end, {}});
        }
        std::u16string name;
        if (!writer_.appendName(value, name)) {
            return false;
        }
        replace(last.name, name);
    }
    const RegistryValue stored = readEntry(text, last);
    if (stored.type == value.type && stored.data == value.data) {
        return true;
    }
    const std::size_t column = text.decode({last.lines.begin, last.data.begin}).size();
    std::u16string data;
    if (!writer_.appendData(value, column, data)) {
        return false;
    }
    replace(last.data, data);
    return true;
}

// ---- Sections

void RegFileEditor::removeSection(SectionId section) {
    edits_.push_back({file_.range(section).begin, endOf(file_, section).blanks, {}});
}

// The root stays as it is, and names below the key.
bool RegFileEditor::respell(SectionId section, KeyId key) {
    const auto [header, names] = file_.header(section);
    const std::u16string before = file_.text().decode(header.key);
    const std::u16string now = tree_.path(key);
    const std::u16string path = before.substr(0, before.find(u'\\')) + now.substr(now.find(u'\\')) +
                                names.substr(endOfNames(names, tree_.depth(key)));
    std::u16string line;
    if (!writer_.appendKey(path, line)) {
        return false;
    }
    replace(header.key, path);
    return true;
}

bool RegFileEditor::appendSection(KeyId key, std::u16string& lines) {
    if (!writer_.appendKey(tree_.path(key), lines)) {
        return false;
    }
    for (const RegistryValue& value : tree_.values(key)) {
        if (!writer_.appendValue(value, lines)) {
            return false;
        }
    }
    return true;
}

// The blank lines that end the section before come to stand behind the new ones.
void RegFileEditor::insertSections(SectionId behind, std::u16string lines) {
    const SectionEnd end = endOf(file_, behind);
    if (end.blanks == end.lines && end.lines < file_.text().bytes().size()) {
        lines += writer_.lineEnd();
    }
    insertLines(end.lines, lines);
}

void RegFileEditor::replace(TextRange range, std::u16string_view text) {
    edits_.push_back({range.begin, range.end, file_.text().encode(text)});
}

void RegFileEditor::insertLines(std::size_t at, std::u16string_view lines) {
    edits_.push_back({at, at, file_.text().encode(lines), true});
}

}  // namespace korvane
