// Making the index while the file is read, and reading single sections again.
#include "regfile/RegFileIndex.h"

#include <algorithm>
#include <utility>

namespace korvane {

// Carries out what the sections say, as far as keys go.
class RegFileIndex::Builder final : public RegFileSink {
public:
    Builder(RegFileIndex& index, RegistryTree& tree) : index_(index), tree_(tree) {}

    void section(const RegFileSection& section) override {
        const auto number = static_cast<SectionId>(index_.sections_.size());
        KeyId key = kNoKey;
        if (section.deletes) {
            index_.deletions_.push_back(number);
            const KeyId deleted = tree_.find(RegistryTree::root(section.root), section.path);
            if (deleted != kNoKey) {
                forget(tree_.remove(deleted));
                levels_.clear();
            }
        } else {
            key = makeKey(section);
            append(key, number);
        }
        index_.sections_.push_back({static_cast<std::uint32_t>(section.begin), key, 0});
    }
    void value(const RegFileEntry&) override {}

private:
    // A key and where its path ends in the path of the last section.
    struct Level {
        KeyId key;
        std::size_t end;
    };

    // Most sections differ from the one before in the last names only.
    KeyId makeKey(const RegFileSection& section) {
        const std::u16string_view path = section.path;
        const KeyId root = RegistryTree::root(section.root);
        const std::size_t shorter = std::min(path.size(), lastPath_.size());
        const auto same = static_cast<std::size_t>(
            std::mismatch(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(shorter), lastPath_.begin()).first -
            path.begin());
        const auto counts = [&](const Level& level) {
            return root == lastRoot_ && level.end <= same && (level.end == path.size() || path[level.end] == u'\\');
        };
        while (!levels_.empty() && !counts(levels_.back())) {
            levels_.pop_back();
        }
        KeyId key = levels_.empty() ? root : levels_.back().key;
        for (std::size_t at = levels_.empty() ? 0 : levels_.back().end + 1; at < path.size();) {
            const std::size_t end = std::min(path.find(u'\\', at), path.size());
            key = tree_.create(key, path.substr(at, end - at));
            levels_.push_back({key, end});
            at = end + 1;
        }
        lastPath_ = path;
        lastRoot_ = root;
        return key;
    }

    void append(KeyId key, SectionId number) {
        if (key >= index_.chains_.size()) {
            index_.chains_.resize(tree_.keyCount());
        }
        Chain& chain = index_.chains_[key];
        (chain.last == 0 ? chain.first : index_.sections_[chain.last].next) = number;
        chain.last = number;
    }

    void forget(const std::vector<KeyId>& removed) {
        for (const KeyId key : removed) {
            for (SectionId section = index_.firstOf(key); section != 0; section = index_.nextOf(section)) {
                index_.sections_[section].key = kNoKey;
            }
            if (key < index_.chains_.size()) {
                index_.chains_[key] = {};
            }
        }
    }

    RegFileIndex& index_;
    RegistryTree& tree_;
    KeyId lastRoot_ = kNoKey;
    std::u16string lastPath_;
    std::vector<Level> levels_;
};

namespace {

class EntryCollector final : public RegFileSink {
public:
    void section(const RegFileSection& section) override {
        header = section;
        path = section.path;
    }
    void value(const RegFileEntry& entry) override { entries.push_back(entry); }

    RegFileSection header;
    std::u16string path;
    std::vector<RegFileEntry> entries;
};

}  // namespace

RegFileIndex::RegFileIndex(RegFileText text)
    : text_(std::move(text)), sections_{{static_cast<std::uint32_t>(text_.start()), kNoKey, 0}} {}

std::optional<RegFileError> RegFileIndex::build(RegFileText text, RegistryTree& tree) {
    *this = RegFileIndex(std::move(text));
    Builder builder(*this, tree);
    if (std::optional<RegFileError> error = scanRegFile(text_, builder)) {
        return error;
    }
    tree.startFrom(this);
    return std::nullopt;
}

TextRange RegFileIndex::range(SectionId section) const {
    const std::size_t end = section + 1 < sections_.size() ? sections_[section + 1].begin : text_.bytes().size();
    return {sections_[section].begin, end};
}

std::pair<RegFileSection, std::u16string> RegFileIndex::header(SectionId section) const {
    EntryCollector collector;
    scanSectionHeader(text_, range(section), collector);
    return {collector.header, std::move(collector.path)};
}

std::vector<RegFileEntry> RegFileIndex::entries(SectionId section) const {
    EntryCollector collector;
    scanSection(text_, range(section), collector);
    return std::move(collector.entries);
}

void RegFileIndex::read(KeyId key, RegistryValues& values) const {
    for (SectionId section = firstOf(key); section != 0; section = nextOf(section)) {
        for (const RegFileEntry& entry : entries(section)) {
            RegistryValue value = readEntry(text_, entry);
            if (entry.kind == RegFileEntry::Kind::Deletion) {
                values.remove(value.name);
            } else {
                values.set(value.name, value.type, std::move(value.data));
            }
        }
    }
}

}  // namespace korvane
