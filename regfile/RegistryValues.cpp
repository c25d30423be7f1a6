// Values in a list, so that one can go without moving the others, and an index over their names.
#include "regfile/RegistryValues.h"

#include <iterator>
#include <utility>

#include "text/CaseFolding.h"

namespace korvane {

const RegistryValue* RegistryValues::find(std::u16string_view name) const {
    const auto found = index_.find(upperCase(name));
    return found == index_.end() ? nullptr : &*found->second;
}

const RegistryValue* RegistryValues::at(std::size_t index) const {
    if (index >= values_.size()) {
        return nullptr;
    }
    if (current_ == values_.end() || index < currentIndex_) {
        current_ = values_.begin();
        currentIndex_ = 0;
    }
    std::advance(current_, index - currentIndex_);
    currentIndex_ = index;
    return &*current_;
}

void RegistryValues::set(std::u16string_view name, std::uint32_t type, std::vector<std::byte> data) {
    const auto [entry, isNew] = index_.try_emplace(upperCase(name));
    if (isNew) {
        values_.push_back({std::u16string(name), type, std::move(data)});
        entry->second = std::prev(values_.end());
    } else {
        entry->second->type = type;
        entry->second->data = std::move(data);
    }
}

bool RegistryValues::remove(std::u16string_view name) {
    const auto found = index_.find(upperCase(name));
    if (found == index_.end()) {
        return false;
    }
    // Behind the one just looked at, the numbers stay as they are once the next takes its place.
    const bool isCurrent = current_ == found->second;
    const List::iterator next = values_.erase(found->second);
    index_.erase(found);
    current_ = isCurrent ? List::const_iterator(next) : values_.end();
    return true;
}

}  // namespace korvane
