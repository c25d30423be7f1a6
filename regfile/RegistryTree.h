// The keys and values a MemoryRegistry holds: names and text data in UTF-16 as Windows NT stores them, so that any
// script survives loading and saving, and the place each key had in the .reg file it came from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace korvane {

// Windows NT's own limits, in UTF-16 units and in levels below a root.
inline constexpr std::size_t kMaxKeyName = 255;
inline constexpr std::size_t kMaxValueName = 16383;
inline constexpr std::size_t kMaxKeyDepth = 512;

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

class RegistryKey {
public:
    // In the order Windows enumerates them: by upper-case name.
    using Subkeys = std::map<std::u16string, std::shared_ptr<RegistryKey>, std::less<>>;
    // In order of creation.
    using Values = std::list<RegistryValue>;

    RegistryKey(RegistryKey* parent, std::u16string_view name) : parent_(parent), name_(name) {}
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    const std::u16string& name() const { return name_; }
    RegistryKey* parent() const { return parent_; }  // null for a root and for a deleted key
    bool deleted() const { return deleted_; }
    std::size_t depth() const;  // 0 for a root
    const Subkeys& subkeys() const { return subkeys_; }
    const Values& values() const { return values_; }

    std::shared_ptr<RegistryKey> findSubkey(std::u16string_view name) const;
    // The caller has made sure that the name is new and within the limits.
    std::shared_ptr<RegistryKey> addSubkey(std::u16string_view name);
    // Takes the subkey out; it and all below it are marked deleted. False when there is none.
    bool removeSubkey(std::u16string_view name);

    const RegistryValue* findValue(std::u16string_view name) const;
    // An existing value keeps its place and the spelling of its name.
    void setValue(std::u16string_view name, std::uint32_t type, std::vector<std::byte> data);
    bool removeValue(std::u16string_view name);

    // Position among the key blocks of the file read, from 1; 0 when no block named this key.
    std::uint64_t fileOrder = 0;
    // True when the key came about only because the file read named a key below it: without a block of its own it is
    // not written unless it must be.
    bool implied = false;

private:
    void markDeleted();

    RegistryKey* parent_;
    std::u16string name_;
    bool deleted_ = false;
    Subkeys subkeys_;
    Values values_;
    std::map<std::u16string, Values::iterator, std::less<>> valueIndex_;  // by upper-case name
};

struct RegistryRootName {
    std::string_view longName;
    std::string_view shortName;
};

// The first four are the roots of `Root`, in its order; the others exist so that files which mention them survive.
inline constexpr std::array<RegistryRootName, 7> kRegistryRoots{{
    {"HKEY_CLASSES_ROOT", "HKCR"},
    {"HKEY_CURRENT_USER", "HKCU"},
    {"HKEY_LOCAL_MACHINE", "HKLM"},
    {"HKEY_USERS", "HKU"},
    {"HKEY_CURRENT_CONFIG", "HKCC"},
    {"HKEY_DYN_DATA", "HKDD"},
    {"HKEY_PERFORMANCE_DATA", "HKPD"},
}};

// The form of a .reg file.
enum class RegFileHeader : std::uint8_t { Version5, Regedit4 };
enum class RegFileEncoding : std::uint8_t { Utf16, Ansi, Utf8, Utf8WithMark };
struct RegFileForm {
    RegFileHeader header = RegFileHeader::Version5;
    RegFileEncoding encoding = RegFileEncoding::Utf16;
};

// What a walk along a path found wrong, before looking at any key.
enum class PathFault : std::uint8_t { None, EmptyName, NameTooLong, TooDeep };

class RegistryTree {
public:
    RegistryTree();

    const std::shared_ptr<RegistryKey>& root(std::size_t index) const { return roots_[index]; }
    const std::shared_ptr<RegistryKey>& root(Root which) const { return roots_[static_cast<std::size_t>(which)]; }

    // The key itself for an empty path; null when there is none.
    static std::shared_ptr<RegistryKey> find(std::shared_ptr<RegistryKey> start, std::u16string_view path);
    // Makes what is missing; new keys above the last are marked as implied if wanted. The path is without fault.
    static std::shared_ptr<RegistryKey> create(std::shared_ptr<RegistryKey> start, std::u16string_view path,
                                               bool parentsAreImplied = false);
    // `depth`: the level the path starts at, 0 for a root.
    static PathFault checkPath(std::size_t depth, std::u16string_view path);

    // The form of the first file loaded into the tree; it is saved in the same form.
    std::optional<RegFileForm> fileForm;
    // The number of key blocks read so far.
    std::uint64_t lastFileOrder = 0;

private:
    std::array<std::shared_ptr<RegistryKey>, kRegistryRoots.size()> roots_;
};

}  // namespace korvane
