// The keys a MemoryRegistry holds and the values of those that were asked for. A registry of a hundred megabytes has
// some hundred thousand keys, of which a run looks at a few: so keys are short records in one array, and values are
// read from where they are stored when somebody wants them. What has been changed since is remembered.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Registry.h"
#include "regfile/NamePool.h"
#include "regfile/RegistryValues.h"

namespace korvane {

// Windows NT's own limits, in UTF-16 units and in levels below a root.
inline constexpr std::size_t kMaxKeyName = 255;
inline constexpr std::size_t kMaxValueName = 16383;
inline constexpr std::size_t kMaxKeyDepth = 512;

// Names a path, not one life of a key: a key that is deleted and made again has the number it had before.
using KeyId = std::uint32_t;
inline constexpr KeyId kNoKey = 0xFFFFFFFF;

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

// Where the values stand of keys that nobody has asked for yet.
class StoredValues {
public:
    virtual ~StoredValues() = default;
    virtual void read(KeyId key, RegistryValues& values) const = 0;
};

// What a walk along a path found wrong, before looking at any key.
enum class PathFault : std::uint8_t { None, EmptyName, NameTooLong, TooDeep };

// Paths are relative to a key, names separated by backslashes; an empty path is the key itself.
class RegistryTree {
public:
    RegistryTree();

    static constexpr KeyId root(std::size_t index) { return static_cast<KeyId>(index); }
    static constexpr KeyId root(Root which) { return static_cast<KeyId>(which); }
    static constexpr bool isRoot(KeyId key) { return key < kRegistryRoots.size(); }

    // Every number below this one names a key, existing or deleted.
    std::size_t keyCount() const { return keys_.size(); }
    bool exists(KeyId key) const { return keys_[key].exists; }
    KeyId parent(KeyId key) const { return keys_[key].parent; }  // kNoKey for a root
    std::size_t depth(KeyId key) const;                          // 0 for a root
    std::u16string name(KeyId key) const { return names_.text(keys_[key].name); }
    std::u16string path(KeyId key) const;  // from the root's long name on

    // kNoKey when there is none. Deleted keys are found only when they are asked for.
    KeyId find(KeyId start, std::u16string_view path, bool deletedToo = false) const;
    // Makes what is missing. The path is without fault.
    KeyId create(KeyId start, std::u16string_view path);
    // Deletes an existing key that is no root, with all below it, and answers which keys those were.
    std::vector<KeyId> remove(KeyId key);

    bool hasSubkeys(KeyId key) const { return keys_[key].firstChild != kNoKey; }
    // In the order Windows enumerates them: by upper-case name. Valid until a subkey is made or deleted.
    const std::vector<KeyId>& subkeys(KeyId key) const;

    const RegistryValues& values(KeyId key) const { return valuesOf(key); }
    void setValue(KeyId key, std::u16string_view name, std::uint32_t type, std::vector<std::byte> data);
    bool removeValue(KeyId key, std::u16string_view name);

    // `depth`: the level the path starts at, 0 for a root.
    static PathFault checkPath(std::size_t depth, std::u16string_view path);

    // Keys that were made or deleted, or have had values set or deleted, each once.
    const std::vector<KeyId>& changedKeys() const { return changed_; }
    // True when keys were made or deleted.
    bool structureChanged() const { return structureChanged_; }
    // What there is now counts as unchanged, and the values of its keys are those of the store, which must outlive
    // the tree. No value has been looked at yet.
    void startFrom(const StoredValues* stored);

private:
    struct Key {
        KeyId parent = kNoKey;
        KeyId firstChild = kNoKey;  // deleted keys are not among the children
        KeyId next = kNoKey;
        KeyId previous = kNoKey;
        NamePool::Name name{};
        bool exists : 1 = false;
        bool changed : 1 = false;
        bool ownValues : 1 = false;  // the stored ones went when it was deleted
    };
    // What somebody has asked about a key.
    struct Details {
        std::unique_ptr<RegistryValues> values;
        std::unique_ptr<std::vector<KeyId>> subkeys;
    };

    std::size_t slotOf(KeyId parent, std::u16string_view name) const;
    std::size_t hash(KeyId parent, std::u16string_view name) const;
    KeyId lookUp(KeyId parent, std::u16string_view name) const { return slots_[slotOf(parent, name)]; }
    KeyId addRecord(KeyId parent, std::u16string_view name, std::size_t slot);
    KeyId makeSubkey(KeyId parent, std::u16string_view name);
    void link(KeyId key);
    void unlink(KeyId key);
    bool comesBefore(KeyId a, KeyId b) const;
    void growSlots();
    void markChanged(KeyId key);
    RegistryValues& valuesOf(KeyId key) const;

    std::deque<Key> keys_;  // a vector would need room for twice as many while it grows
    NamePool names_;
    std::vector<KeyId> slots_;  // open addressing over parent and upper-case name
    const StoredValues* stored_ = nullptr;
    std::vector<KeyId> changed_;
    bool structureChanged_ = false;
    mutable std::unordered_map<KeyId, Details> details_;
};

}  // namespace korvane
