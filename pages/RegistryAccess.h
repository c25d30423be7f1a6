// How the program accesses the registry: the root is connected first, keys are
// opened with full access even to be read, every value is read into one short
// buffer, and no failure is reported: what cannot be read leaves the control in its
// reset state, what cannot be written is skipped.
#pragma once

#include "platform/OsVersion.h"
#include "platform/Registry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace korvane {

// An apply writes the values of all controls under their first keys, and then, for those that have one, under their
// second.
enum class WriteRound : std::uint8_t { First, Second };

// The key of a binding. It is opened; with `created`, an apply opens `path` and creates `created` below it (a show
// never creates a key). An empty path stands for the root itself.
struct KeyPath {
    Root root;
    std::string_view path;
    std::string_view created = {};
    // On these versions of Windows the value is in another key of the same root.
    VersionSet otherOn = {};
    std::string_view otherPath = {};
    std::string_view otherCreated = {};
    // A second key, to which an apply writes the same; it is never read. Borrowed, of static storage.
    const KeyPath* also = nullptr;
    bool alsoFirst = false;

    constexpr KeyPath writtenAlsoTo(const KeyPath& second) const {
        KeyPath key = *this;
        key.also = &second;
        return key;
    }
    constexpr KeyPath writtenAfter(const KeyPath& first) const {
        KeyPath key = writtenAlsoTo(first);
        key.alsoFirst = true;
        return key;
    }
    // The key that an apply writes in that round; null if there is none.
    constexpr const KeyPath* writtenIn(WriteRound round) const {
        return (round == WriteRound::First) != alsoFirst ? this : also;
    }

    constexpr KeyPath under(Root otherRoot) const {
        KeyPath key = *this;
        key.root = otherRoot;
        return key;
    }
    // The same key, all missing levels of which are created by an apply.
    constexpr KeyPath madeWhole() const {
        KeyPath key = *this;
        key.path = {};
        key.created = path;
        return key;
    }
    // The key on that version of Windows.
    constexpr KeyPath on(const COsVersion& version) const {
        return otherOn.contains(version) ? KeyPath{root, otherPath, otherCreated} : KeyPath{root, path, created};
    }
    std::string fullPath() const;
};

// A query reads at most this many bytes; longer data counts as missing.
constexpr std::size_t kValueBuffer = 202;

struct StoredValue {
    std::array<std::byte, kValueBuffer> data{};
    std::size_t size = 0;
    ValueType type = ValueType::None;

    // The first four bytes, little-endian, whatever the type; shorter data is padded with zeros.
    std::uint32_t number() const;
    // The data up to the first zero byte, whatever the type.
    std::string text() const;
};

// An open key together with the handle of its root, which stays connected. False if nothing is open.
class OpenedKey {
public:
    OpenedKey(RegistryHandle root, RegistryHandle key) : root_(std::move(root)), key_(std::move(key)) {}
    OpenedKey() = default;
    explicit operator bool() const { return static_cast<bool>(key_); }
    const RegistryHandle& handle() const { return key_; }

private:
    RegistryHandle root_;  // declared first: closed after the key
    RegistryHandle key_;
};

OpenedKey openKey(Registry& registry, Root root, std::string_view path);
// Opens the key for an apply and creates what its `created` says.
OpenedKey openOrCreate(Registry& registry, const KeyPath& key);

std::optional<StoredValue> readValue(Registry& registry, const RegistryHandle& key, std::string_view name);

void writeNumber(Registry& registry, const OpenedKey& key, std::string_view name, std::uint32_t number);
void writeBinary(Registry& registry, const OpenedKey& key, std::string_view name, std::span<const std::byte> data);
// Writes the text without a terminating zero.
void writeText(Registry& registry, const OpenedKey& key, std::string_view name, std::string_view text,
               ValueType type = ValueType::Sz);

// Deletes a value by the full path of its key, which need not be open.
void deleteValue(Registry& registry, const KeyPath& key, std::string_view name);
// Deletes a key with all its subkeys.
void deleteTree(Registry& registry, Root root, std::string_view path);

}  // namespace korvane
