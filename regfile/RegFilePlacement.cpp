// Everything here goes through the file's sections or a key's subkeys once, so that it stays linear.
#include "regfile/RegFilePlacement.h"

#include <algorithm>
#include <string>
#include <utility>

namespace korvane {

std::size_t endOfNames(std::u16string_view path, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0; --count) {
        end = std::min(path.find(u'\\', end == 0 ? 0 : end + 1), path.size());
    }
    return end;
}

RegFilePlacement::RegFilePlacement(const RegistryTree& tree, const RegFileIndex& file) : tree_(tree), file_(file) {
    findDeletions();
    if (tree.structureChanged()) {
        findMentioned();
    }
    findNeeded();
    if (!needed_.empty()) {
        place();
    }
}

void RegFilePlacement::findDeletions() {
    for (const SectionId section : file_.deletions()) {
        const auto [header, path] = file_.header(section);
        const KeyId key = tree_.find(RegistryTree::root(header.root), path, true);
        if (key != kNoKey) {
            deletions_[key] = section;
        }
    }
}

// The first section that makes a key, by itself or for a key below it, gives it the spelling of its name.
void RegFilePlacement::findMentioned() {
    mentioned_.resize(tree_.keyCount());
    for (SectionId section = 1; section < file_.sectionCount(); ++section) {
        const KeyId made = keyMadeBy(section);
        if (made == kNoKey) {
            continue;
        }
        if (!tree_.exists(made)) {
            removed_.push_back(section);
            continue;
        }
        std::size_t levels = 0;
        for (KeyId key = made; !RegistryTree::isRoot(key) && !mentioned_[key]; key = tree_.parent(key)) {
            mentioned_[key] = true;
            ++levels;
        }
        if (levels != 0 && !spelledAsInFile(section, made, levels)) {
            respelled_.push_back({section, made});
        }
    }
}

// The key that is there because of the section when the file has been imported. Where the section's own is deleted
// further down, that is the one above what is deleted.
KeyId RegFilePlacement::keyMadeBy(SectionId section) const {
    if (file_.keyOf(section) != kNoKey) {
        return file_.keyOf(section);
    }
    const auto [header, path] = file_.header(section);
    KeyId made = kNoKey;
    if (!header.deletes) {
        for (KeyId key = tree_.find(RegistryTree::root(header.root), path, true); key != kNoKey;
             key = tree_.parent(key)) {
            const auto deleted = deletions_.find(key);
            if (deleted != deletions_.end() && deleted->second > section) {
                made = tree_.parent(key);
            }
        }
    }
    return made;
}

// Compares the last names of the key, as many as asked for.
bool RegFilePlacement::spelledAsInFile(SectionId section, KeyId key, std::size_t levels) const {
    const std::u16string path = file_.header(section).second;
    std::u16string_view rest = std::u16string_view(path).substr(0, endOfNames(path, tree_.depth(key)));
    for (; levels > 0; key = tree_.parent(key), --levels) {
        const std::size_t nameAt = rest.rfind(u'\\') + 1;  // 0 where there is none
        if (rest.substr(nameAt) != tree_.name(key)) {
            return false;
        }
        rest = rest.substr(0, nameAt == 0 ? 0 : nameAt - 1);
    }
    return true;
}

void RegFilePlacement::findNeeded() {
    const auto check = [this](KeyId key) {
        if (key == kNoKey || !tree_.exists(key)) {
            return;
        }
        const bool isMade = RegistryTree::isRoot(key) || mentioned_.empty() || mentioned_[key];
        if (!isMade || (file_.firstOf(key) == 0 && !tree_.values(key).empty())) {
            needed_.insert(key);
        }
    };
    for (const KeyId key : tree_.changedKeys()) {
        check(key);
        if (!tree_.exists(key)) {
            check(tree_.parent(key));
        }
    }
}

// ---- Where new sections go

void RegFilePlacement::place() {
    for (KeyId key : needed_) {
        while ((key = tree_.parent(key)) != kNoKey && aboveNeeded_.insert(key).second) {
        }
    }
    measureSubtrees();
    SectionId gap = RegFileIndex::kPreamble;
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i) {
        gap = enter(RegistryTree::root(i), gap, 0);
    }
    // A section that goes cannot have another behind it: that stands behind the last one before.
    std::vector<bool> goes(file_.sectionCount());
    for (const SectionId section : removed_) {
        goes[section] = true;
    }
    std::vector<SectionId> staying(file_.sectionCount());
    for (SectionId section = 1; section < file_.sectionCount(); ++section) {
        staying[section] = goes[section] ? staying[section - 1] : section;
    }
    for (NewSection& section : added_) {
        section.behind = staying[section.behind];
    }
    std::stable_sort(added_.begin(), added_.end(),
                     [](const NewSection& a, const NewSection& b) { return a.behind < b.behind; });
}

void RegFilePlacement::measureSubtrees() {
    extents_.resize(tree_.keyCount());
    for (SectionId section = 1; section < file_.sectionCount(); ++section) {
        for (KeyId key = file_.keyOf(section); key != kNoKey; key = tree_.parent(key)) {
            Extent& extent = extents_[key];
            extent.first = extent.first == 0 ? section : extent.first;
            extent.last = section;
        }
    }
}

// Enters what is needed of the key and all below it. `gap` is the section to stand behind as far as is known, and so
// is the answer for what follows; `earliest` the last section that deletes a key above.
RegFilePlacement::SectionId RegFilePlacement::enter(KeyId key, SectionId gap, SectionId earliest) {
    const Extent extent = extents_[key];
    if (const auto deleted = deletions_.find(key); deleted != deletions_.end()) {
        earliest = std::max(earliest, deleted->second);
    }
    if (file_.lastOf(key) != 0) {
        gap = file_.lastOf(key);
    } else if (extent.first != 0) {
        gap = extent.first - 1;
    }
    if (needed_.contains(key)) {
        gap = std::max(gap, earliest);
        added_.push_back({key, gap});
    }
    if (aboveNeeded_.contains(key)) {
        for (const KeyId subkey : tree_.subkeys(key)) {
            gap = enter(subkey, gap, earliest);
        }
    }
    return std::max(gap, extent.last);
}

}  // namespace korvane
