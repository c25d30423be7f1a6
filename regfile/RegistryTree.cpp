// Keys and values in memory. Every look-up is logarithmic, so that no .reg file, however large and lopsided, takes
// more than a little over linear time.
#include "regfile/RegistryTree.h"

#include <utility>

#include "text/Codepage.h"

namespace korvane {
namespace {

// Cuts the first name off a path.
std::u16string_view takeName(std::u16string_view& path) {
    const std::size_t end = path.find(u'\\');
    const std::u16string_view name = path.substr(0, end);
    path = end == std::u16string_view::npos ? std::u16string_view{} : path.substr(end + 1);
    return name;
}

}  // namespace

std::size_t RegistryKey::depth() const {
    std::size_t levels = 0;
    for (const RegistryKey* key = parent_; key != nullptr; key = key->parent_) {
        ++levels;
    }
    return levels;
}

std::shared_ptr<RegistryKey> RegistryKey::findSubkey(std::u16string_view name) const {
    const auto found = subkeys_.find(upperCase(name));
    return found == subkeys_.end() ? nullptr : found->second;
}

std::shared_ptr<RegistryKey> RegistryKey::addSubkey(std::u16string_view name) {
    auto key = std::make_shared<RegistryKey>(this, name);
    subkeys_.emplace(upperCase(name), key);
    return key;
}

bool RegistryKey::removeSubkey(std::u16string_view name) {
    const auto found = subkeys_.find(upperCase(name));
    if (found == subkeys_.end()) {
        return false;
    }
    found->second->markDeleted();
    subkeys_.erase(found);
    return true;
}

void RegistryKey::markDeleted() {
    deleted_ = true;
    parent_ = nullptr;
    for (const auto& [upperName, subkey] : subkeys_) {
        subkey->markDeleted();
    }
}

const RegistryValue* RegistryKey::findValue(std::u16string_view name) const {
    const auto found = valueIndex_.find(upperCase(name));
    return found == valueIndex_.end() ? nullptr : &*found->second;
}

void RegistryKey::setValue(std::u16string_view name, std::uint32_t type, std::vector<std::byte> data) {
    const auto [entry, isNew] = valueIndex_.try_emplace(upperCase(name));
    if (isNew) {
        values_.push_back({std::u16string(name), type, std::move(data)});
        entry->second = std::prev(values_.end());
    } else {
        entry->second->type = type;
        entry->second->data = std::move(data);
    }
}

bool RegistryKey::removeValue(std::u16string_view name) {
    const auto found = valueIndex_.find(upperCase(name));
    if (found == valueIndex_.end()) {
        return false;
    }
    values_.erase(found->second);
    valueIndex_.erase(found);
    return true;
}

RegistryTree::RegistryTree() {
    for (std::size_t i = 0; i < roots_.size(); ++i) {
        roots_[i] = std::make_shared<RegistryKey>(nullptr, fromAnsi(kRegistryRoots[i].longName));
        roots_[i]->implied = true;
    }
}

std::shared_ptr<RegistryKey> RegistryTree::find(std::shared_ptr<RegistryKey> start, std::u16string_view path) {
    while (start != nullptr && !path.empty()) {
        start = start->findSubkey(takeName(path));
    }
    return start;
}

std::shared_ptr<RegistryKey> RegistryTree::create(std::shared_ptr<RegistryKey> start, std::u16string_view path,
                                                  bool parentsAreImplied) {
    while (!path.empty()) {
        const std::u16string_view name = takeName(path);
        std::shared_ptr<RegistryKey> next = start->findSubkey(name);
        if (next == nullptr) {
            next = start->addSubkey(name);
            next->implied = parentsAreImplied && !path.empty();
        }
        start = std::move(next);
    }
    return start;
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
