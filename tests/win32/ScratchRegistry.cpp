// Moving the roots, and reading the keys back.
#include "tests/win32/ScratchRegistry.h"

#include "regfile/RegFile.h"

#include <gtest/gtest.h>

#include <iterator>

#include <windows.h>

namespace korvane {
namespace {

constexpr Root kRoots[] = {Root::ClassesRoot, Root::CurrentUser, Root::LocalMachine, Root::Users};
constexpr std::size_t kLongestValue = 1 << 16;

std::string scratchPath() { return "Software\\KorvaneTest\\" + std::to_string(GetCurrentProcessId()); }

std::string pathOf(Root root) {
    return scratchPath() + '\\' + std::string(kRegistryRoots[static_cast<std::size_t>(root)].longName);
}

bool done(Status status) { return status == Status::Success; }

RegistryHandle connected(Registry& registry, Root root) {
    RegistryHandle handle;
    EXPECT_EQ(registry.connect(root, handle), Status::Success);
    return handle;
}

// The names of a key's subkeys or values.
template <class Enumerate>
std::vector<std::string> namesOf(Registry& registry, const RegistryHandle& key, Enumerate enumerate) {
    std::vector<std::string> names;
    std::string name;
    for (std::uint32_t index = 0; done((registry.*enumerate)(key, index, name)); ++index) {
        names.push_back(name);
    }
    return names;
}

void copyValues(Registry& from, const RegistryHandle& source, Registry& to, const RegistryHandle& target) {
    std::vector<std::byte> data(kLongestValue);
    for (const std::string& name : namesOf(from, source, &Registry::enumerateValue)) {
        std::size_t size = 0;
        ValueType type = ValueType::None;
        EXPECT_EQ(from.queryValue(source, name, data, size, &type), Status::Success) << name;
        EXPECT_EQ(to.setValue(target, name, type, std::span(data).first(size)), Status::Success) << name;
    }
}

void copyKey(Registry& from, const RegistryHandle& source, Registry& to, const RegistryHandle& target) {
    copyValues(from, source, to, target);
    for (const std::string& name : namesOf(from, source, &Registry::enumerateKey)) {
        RegistryHandle sourceKey;
        RegistryHandle targetKey;
        ASSERT_EQ(from.openKey(source, name, sourceKey), Status::Success) << name;
        ASSERT_EQ(to.createKey(target, name, targetKey), Status::Success) << name;
        copyKey(from, sourceKey, to, targetKey);
    }
}

}  // namespace

ScratchRegistry::ScratchRegistry(MemoryRegistry& content) {
    wipe();
    for (const Root root : kRoots) {
        RegistryHandle key;
        EXPECT_EQ(registry_.createKey(connected(registry_, Root::CurrentUser), pathOf(root), key), Status::Success);
        copyKey(content, connected(content, root), registry_, key);
        copyKey(registry_, key, known_, connected(known_, root));
    }
}

ScratchRegistry::~ScratchRegistry() {
    compareWithEverything();
    handles_.clear();
    wipe();
}

RegistryHandle ScratchRegistry::liveRoot(Root root) {
    RegistryHandle key;
    EXPECT_EQ(registry_.openKey(connected(registry_, Root::CurrentUser), pathOf(root), key), Status::Success);
    return key;
}

void ScratchRegistry::wipe() {
    const Status status = registry_.deleteTree(connected(registry_, Root::CurrentUser), scratchPath());
    EXPECT_TRUE(done(status) || status == Status::FileNotFound);
}

// ---- What the keys hold

std::string ScratchRegistry::text() {
    for (const Place& place : std::exchange(changed_, {})) {
        readAgain(place);
    }
    return dumpRegistry(known_);
}

// The key itself with its values; if it has gone, all that was below it has gone as well.
void ScratchRegistry::readAgain(const Place& place) {
    const auto& [root, path] = place;
    const RegistryHandle knownRoot = connected(known_, root);
    RegistryHandle source;
    if (!done(registry_.openKey(liveRoot(root), path, source))) {
        ignoreFailure(known_.deleteTree(knownRoot, path));
        return;
    }
    RegistryHandle target;
    ASSERT_EQ(known_.createKey(knownRoot, path, target), Status::Success);
    for (const std::string& name : namesOf(known_, target, &Registry::enumerateValue)) {
        ASSERT_EQ(known_.deleteValue(target, "", name), Status::Success);
    }
    copyValues(registry_, source, known_, target);
}

void ScratchRegistry::compareWithEverything() {
    MemoryRegistry everything;
    for (const Root root : kRoots) {
        copyKey(registry_, liveRoot(root), everything, connected(everything, root));
    }
    EXPECT_EQ(dumpRegistry(everything), text()) << "keys have changed that nobody was told to change";
}

// ---- The verbs

const RegistryHandle& ScratchRegistry::live(const RegistryHandle& handle) const {
    static const RegistryHandle kNone;
    const auto found = handles_.find(handle.value());
    return found == handles_.end() ? kNone : found->second.live;
}

ScratchRegistry::Place ScratchRegistry::placeOf(const RegistryHandle& handle, std::string_view path) const {
    const auto found = handles_.find(handle.value());
    if (found == handles_.end()) {
        return {};
    }
    Place place = found->second.place;
    if (!path.empty()) {
        place.second += (place.second.empty() ? "" : "\\") + std::string(path);
    }
    return place;
}

void ScratchRegistry::note(Place change) {
    if (changed_.empty() || changed_.back() != change) {
        changed_.push_back(std::move(change));
    }
}

RegistryHandle ScratchRegistry::giveOut(RegistryHandle live, Place place) {
    handles_.emplace(++lastHandle_, OpenKey{std::move(live), std::move(place)});
    return {*this, lastHandle_};
}

Status ScratchRegistry::connect(Root root, RegistryHandle& handle) {
    if (denied_.contains(root)) {
        return Status::AccessDenied;
    }
    handle = giveOut(liveRoot(root), {root, {}});
    return Status::Success;
}

Status ScratchRegistry::openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    RegistryHandle opened;
    const Status status = registry_.openKey(live(parent), path, opened);
    if (done(status)) {
        key = giveOut(std::move(opened), placeOf(parent, path));
    }
    return status;
}

Status ScratchRegistry::openKeyForReading(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    RegistryHandle opened;
    const Status status = registry_.openKeyForReading(live(parent), path, opened);
    if (done(status)) {
        key = giveOut(std::move(opened), placeOf(parent, path));
    }
    return status;
}

Status ScratchRegistry::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    RegistryHandle created;
    const Status status = registry_.createKey(live(parent), path, created);
    if (done(status)) {
        note(placeOf(parent, path));
        key = giveOut(std::move(created), placeOf(parent, path));
    }
    return status;
}

Status ScratchRegistry::queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                                   std::size_t& size, ValueType* type) {
    return registry_.queryValue(live(key), name, buffer, size, type);
}

Status ScratchRegistry::setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                                 std::span<const std::byte> data) {
    note(placeOf(key, {}));
    return registry_.setValue(live(key), name, type, data);
}

Status ScratchRegistry::deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) {
    note(placeOf(key, subkey));
    return registry_.deleteValue(live(key), subkey, name);
}

Status ScratchRegistry::deleteKey(const RegistryHandle& parent, std::string_view path) {
    note(placeOf(parent, path));
    return registry_.deleteKey(live(parent), path);
}

Status ScratchRegistry::deleteTree(const RegistryHandle& parent, std::string_view path) {
    note(placeOf(parent, path));
    return registry_.deleteTree(live(parent), path);
}

Status ScratchRegistry::enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    return registry_.enumerateKey(live(key), index, name);
}

Status ScratchRegistry::enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    return registry_.enumerateValue(live(key), index, name);
}

}  // namespace korvane
