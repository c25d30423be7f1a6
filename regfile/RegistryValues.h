// The values of one key: names and text data in UTF-16 as Windows NT stores them, so that any script survives loading
// and saving.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Registry.h"

namespace korvane {

// True for the types whose data the 8-bit calls convert.
constexpr bool holdsText(std::uint32_t type) {
    const auto which = static_cast<ValueType>(type);
    return which == ValueType::Sz || which == ValueType::ExpandSz || which == ValueType::MultiSz;
}

struct RegistryValue {
    std::u16string name;  // empty: the key's default value
    std::uint32_t type = 0;
    std::vector<std::byte> data;  // as stored: text is UTF-16LE with its terminating zero
};

// In order of creation. Every look-up takes the same time however many there are; so does going through them by
// number, also when the one just looked at is deleted.
class RegistryValues {
public:
    using List = std::list<RegistryValue>;

    RegistryValues() = default;
    RegistryValues(const RegistryValues&) = delete;
    RegistryValues& operator=(const RegistryValues&) = delete;

    std::size_t size() const { return values_.size(); }
    bool empty() const { return values_.empty(); }
    List::const_iterator begin() const { return values_.begin(); }
    List::const_iterator end() const { return values_.end(); }

    // Null when there is none.
    const RegistryValue* find(std::u16string_view name) const;
    const RegistryValue* at(std::size_t index) const;
    // An existing value keeps its place and the spelling of its name.
    void set(std::u16string_view name, std::uint32_t type, std::vector<std::byte> data);
    bool remove(std::u16string_view name);

private:
    List values_;
    std::unordered_map<std::u16string, List::iterator> index_;  // by upper-case name
    mutable List::const_iterator current_ = values_.end();      // the value that was asked for by its number last
    mutable std::size_t currentIndex_ = 0;
};

}  // namespace korvane
