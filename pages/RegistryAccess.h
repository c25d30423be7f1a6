// How the program reads and writes the registry: roots connected first, keys opened
// with full access even to be read, one short buffer for every value, and no
// failure ever reported: what cannot be read leaves the control as it was
// reset, what cannot be written is left out.
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

// An apply writes the values of all controls under their first keys, and then those that have one under their second.
enum class WriteRound : std::uint8_t { First, Second };

// A key as a row names it. It is opened; with `created` it is opened at `path` and made below it when a page is
// applied (never when a page is shown). An empty path stands for the root itself.
struct KeyPath {
    Root root;
    std::string_view path;
    std::string_view created = {};
    // On the versions of the set the same value lives elsewhere in the same root.
    VersionSet otherOn = {};
    std::string_view otherPath = {};
    std::string_view otherCreated = {};
    // A second key (borrowed, of static storage) to which an apply writes what it writes here; it is never read.
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
    // The key that an apply writes in that round; null when there is no second one.
    constexpr const KeyPath* writtenIn(WriteRound round) const {
        return (round == WriteRound::First) != alsoFirst ? this : also;
    }

    constexpr KeyPath under(Root otherRoot) const {
        KeyPath key = *this;
        key.root = otherRoot;
        return key;
    }
    // The same key, with all of its missing levels made when a page is applied.
    constexpr KeyPath madeWhole() const {
        KeyPath key = *this;
        key.path = {};
        key.created = path;
        return key;
    }
    // The key of the running Windows.
    constexpr KeyPath on(const COsVersion& version) const {
        return otherOn.contains(version) ? KeyPath{root, otherPath, otherCreated} : KeyPath{root, path, created};
    }
    std::string fullPath() const;
};

// Queries take at most this many bytes; longer data counts as not readable.
constexpr std::size_t kValueBuffer = 202;

struct StoredValue {
    std::array<std::byte, kValueBuffer> data{};
    std::size_t size = 0;
    ValueType type = ValueType::None;

    // The first four bytes, low byte first, whatever the type; shorter data counts as padded with zeros.
    std::uint32_t number() const;
    // The data up to its first zero byte, whatever the type.
    std::string text() const;
};

// The handle that writes go through, with the root's handle that keeps it reachable. False when nothing is open.
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
// Opens the key for an apply, making what the row says is made.
OpenedKey openOrCreate(Registry& registry, const KeyPath& key);

std::optional<StoredValue> readValue(Registry& registry, const RegistryHandle& key, std::string_view name);

void writeNumber(Registry& registry, const OpenedKey& key, std::string_view name, std::uint32_t number);
void writeBinary(Registry& registry, const OpenedKey& key, std::string_view name, std::span<const std::byte> data);
// Written with the text's length, without a terminating zero.
void writeText(Registry& registry, const OpenedKey& key, std::string_view name, std::string_view text,
               ValueType type = ValueType::Sz);

// Deletes a value by its key's full path; needs no open key.
void deleteValue(Registry& registry, const KeyPath& key, std::string_view name);
// Deletes a key with all below it.
void deleteTree(Registry& registry, Root root, std::string_view path);

}  // namespace korvane
