// Keys in memory. A look-up takes the same time however many keys there are, and making, finding and going through
// them are linear altogether, so that no .reg file, however large and lopsided, takes long.
#include "regfile/RegistryTree.h"

#include <algorithm>
#include <utility>

#include "text/CaseFolding.h"

namespace korvane {
namespace {

constexpr std::size_t kFirstSlots = 64;

// Cuts the first name off a path.
std::u16string_view takeName(std::u16string_view& path) {
    const std::size_t end = path.find(u'\\');
    const std::u16string_view name = path.substr(0, end);
    path = end == std::u16string_view::npos ? std::u16string_view{} : path.substr(end + 1);
    return name;
}

}  // namespace

RegistryTree::RegistryTree() : slots_(kFirstSlots, kNoKey) {
    for (const RegistryRootName& root : kRegistryRoots) {
        keys_.emplace_back();
        keys_.back().name = names_.add(std::u16string(root.longName.begin(), root.longName.end()));
        keys_.back().exists = true;
    }
}

std::size_t RegistryTree::depth(KeyId key) const {
    std::size_t levels = 0;
    for (KeyId above = parent(key); above != kNoKey; above = parent(above)) {
        ++levels;
    }
    return levels;
}

std::u16string RegistryTree::path(KeyId key) const {
    std::vector<KeyId> chain;
    for (; key != kNoKey; key = parent(key)) {
        chain.push_back(key);
    }
    std::u16string path = name(chain.back());
    for (auto level = std::next(chain.rbegin()); level != chain.rend(); ++level) {
        path.append(u"\\").append(name(*level));
    }
    return path;
}

// ---- Looking up

// Mixed with an address that differs from run to run, so that no file can be made for which all names collide.
std::size_t RegistryTree::hash(KeyId parent, std::u16string_view name) const {
    std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(slots_.data()) ^ parent * 0x9E3779B97F4A7C15U;
    for (const char16_t c : name) {
        const bool small = c >= u'a' && c <= u'z';
        mixed = (mixed ^ (small ? c - 0x20U : c < 0x80 ? c : upperCase(c))) * 0x9E3779B97F4A7C15U;
        mixed ^= mixed >> 29;
    }
    return static_cast<std::size_t>(mixed ^ mixed >> 32);
}

// The slot of the key, or the free one where it belongs.
std::size_t RegistryTree::slotOf(KeyId parent, std::u16string_view name) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash(parent, name) & mask;
    while (slots_[slot] != kNoKey) {
        const Key& key = keys_[slots_[slot]];
        if (key.parent == parent && names_.equalsIgnoringCase(key.name, name)) {
            break;
        }
        slot = (slot + 1) & mask;
    }
    return slot;
}

void RegistryTree::growSlots() {
    slots_ = std::vector<KeyId>(2 * slots_.size(), kNoKey);
    for (KeyId key = kRegistryRoots.size(); key < keys_.size(); ++key) {
        slots_[slotOf(parent(key), name(key))] = key;
    }
}

KeyId RegistryTree::find(KeyId start, std::u16string_view path, bool deletedToo) const {
    while (start != kNoKey && !path.empty()) {
        start = lookUp(start, takeName(path));
        if (start != kNoKey && !exists(start) && !deletedToo) {
            return kNoKey;
        }
    }
    return start;
}

// ---- Making and deleting

KeyId RegistryTree::create(KeyId start, std::u16string_view path) {
    while (!path.empty()) {
        start = makeSubkey(start, takeName(path));
    }
    return start;
}

KeyId RegistryTree::makeSubkey(KeyId parent, std::u16string_view name) {
    const std::size_t slot = slotOf(parent, name);
    KeyId key = slots_[slot];
    if (key != kNoKey && exists(key)) {
        return key;
    }
    if (key == kNoKey) {
        key = addRecord(parent, name, slot);
    } else {
        keys_[key].name = names_.add(name);
    }
    keys_[key].exists = true;
    structureChanged_ = true;
    link(key);
    markChanged(key);
    return key;
}

KeyId RegistryTree::addRecord(KeyId parent, std::u16string_view name, std::size_t slot) {
    const auto key = static_cast<KeyId>(keys_.size());
    keys_.emplace_back();
    keys_.back().parent = parent;
    keys_.back().name = names_.add(name);
    slots_[slot] = key;
    if (2 * keys_.size() > slots_.size()) {
        growSlots();
    }
    return key;
}

void RegistryTree::link(KeyId key) {
    Key& record = keys_[key];
    Key& above = keys_[record.parent];
    record.previous = kNoKey;
    record.next = std::exchange(above.firstChild, key);
    if (record.next != kNoKey) {
        keys_[record.next].previous = key;
    }
    const auto asked = details_.find(record.parent);
    if (asked != details_.end() && asked->second.subkeys) {
        std::vector<KeyId>& sorted = *asked->second.subkeys;
        sorted.insert(std::lower_bound(sorted.begin(), sorted.end(), key,
                                       [this](KeyId a, KeyId b) { return comesBefore(a, b); }),
                      key);
    }
}

void RegistryTree::unlink(KeyId key) {
    const Key& record = keys_[key];
    (record.previous == kNoKey ? keys_[record.parent].firstChild : keys_[record.previous].next) = record.next;
    if (record.next != kNoKey) {
        keys_[record.next].previous = record.previous;
    }
    const auto asked = details_.find(record.parent);
    if (asked != details_.end() && asked->second.subkeys) {
        std::vector<KeyId>& sorted = *asked->second.subkeys;
        sorted.erase(std::lower_bound(sorted.begin(), sorted.end(), key,
                                      [this](KeyId a, KeyId b) { return comesBefore(a, b); }));
    }
}

std::vector<KeyId> RegistryTree::remove(KeyId key) {
    unlink(key);
    std::vector<KeyId> removed{key};
    for (std::size_t done = 0; done < removed.size(); ++done) {
        Key& record = keys_[removed[done]];
        for (KeyId child = record.firstChild; child != kNoKey; child = keys_[child].next) {
            removed.push_back(child);
        }
        record.exists = false;
        record.ownValues = true;
        record.firstChild = kNoKey;
        details_.erase(removed[done]);
        markChanged(removed[done]);
    }
    structureChanged_ = true;
    return removed;
}

bool RegistryTree::comesBefore(KeyId a, KeyId b) const {
    return names_.lessIgnoringCase(keys_[a].name, keys_[b].name);
}

const std::vector<KeyId>& RegistryTree::subkeys(KeyId key) const {
    std::unique_ptr<std::vector<KeyId>>& sorted = details_[key].subkeys;
    if (!sorted) {
        sorted = std::make_unique<std::vector<KeyId>>();
        for (KeyId child = keys_[key].firstChild; child != kNoKey; child = keys_[child].next) {
            sorted->push_back(child);
        }
        std::sort(sorted->begin(), sorted->end(), [this](KeyId a, KeyId b) { return comesBefore(a, b); });
    }
    return *sorted;
}

// ---- Values

RegistryValues& RegistryTree::valuesOf(KeyId key) const {
    std::unique_ptr<RegistryValues>& values = details_[key].values;
    if (!values) {
        values = std::make_unique<RegistryValues>();
        if (stored_ != nullptr && !keys_[key].ownValues) {
            stored_->read(key, *values);
        }
    }
    return *values;
}

void RegistryTree::setValue(KeyId key, std::u16string_view name, std::uint32_t type, std::vector<std::byte> data) {
    valuesOf(key).set(name, type, std::move(data));
    markChanged(key);
}

bool RegistryTree::removeValue(KeyId key, std::u16string_view name) {
    const bool removed = valuesOf(key).remove(name);
    if (removed) {
        markChanged(key);
    }
    return removed;
}

// ---- Changes

void RegistryTree::markChanged(KeyId key) {
    if (!keys_[key].changed) {
        keys_[key].changed = true;
        changed_.push_back(key);
    }
}

void RegistryTree::startFrom(const StoredValues* stored) {
    for (const KeyId key : std::exchange(changed_, {})) {
        keys_[key].changed = false;
        keys_[key].ownValues = false;
    }
    structureChanged_ = false;
    stored_ = stored;
    details_.clear();
}

PathFault RegistryTree::checkPath(std::size_t depth, std::u16string_view path) {
    while (!path.empty()) {
        const bool last = path.find(u'\\') == std::u16string_view::npos;
        const std::u16string_view name = takeName(path);
        if (name.empty() || (!last && path.empty())) {
            return PathFault::EmptyName;
        }
        if (name.size() > kMaxKeyName) {
            return PathFault::NameTooLong;
        }
        if (++depth > kMaxKeyDepth) {
            return PathFault::TooDeep;
        }
    }
    return PathFault::None;
}

}  // namespace korvane
