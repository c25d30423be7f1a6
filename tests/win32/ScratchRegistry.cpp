// Moving the roots, and reading the keys back.
#include "tests/win32/ScratchRegistry.h"

#include "platform/memory/RegFile.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

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

void copyKey(Registry& from, const RegistryHandle& source, Registry& to, const RegistryHandle& target) {
    std::vector<std::byte> data(kLongestValue);
    for (const std::string& name : namesOf(from, source, &Registry::enumerateValue)) {
        std::size_t size = 0;
        ValueType type = ValueType::None;
        EXPECT_EQ(from.queryValue(source, name, data, size, &type), Status::Success) << name;
        EXPECT_EQ(to.setValue(target, name, type, std::span(data).first(size)), Status::Success) << name;
    }
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
    }
}

ScratchRegistry::~ScratchRegistry() {
    handles_.clear();
    wipe();
}

void ScratchRegistry::wipe() {
    const Status status = registry_.deleteTree(connected(registry_, Root::CurrentUser), scratchPath());
    EXPECT_TRUE(done(status) || status == Status::FileNotFound);
}

std::string ScratchRegistry::text() {
    if (std::exchange(changed_, false)) {
        MemoryRegistry copy;
        for (const Root root : kRoots) {
            RegistryHandle key;
            EXPECT_EQ(registry_.openKey(connected(registry_, Root::CurrentUser), pathOf(root), key), Status::Success);
            copyKey(registry_, key, copy, connected(copy, root));
        }
        text_ = dumpRegistry(copy);
    }
    return text_;
}

const RegistryHandle& ScratchRegistry::live(const RegistryHandle& handle) const {
    static const RegistryHandle kNone;
    const auto found = handles_.find(handle.value());
    return found == handles_.end() ? kNone : found->second;
}

Status ScratchRegistry::giveOut(Status status, RegistryHandle opened, RegistryHandle& key) {
    if (done(status)) {
        handles_.emplace(++lastHandle_, std::move(opened));
        key = {*this, lastHandle_};
    }
    return status;
}

Status ScratchRegistry::connect(Root root, RegistryHandle& handle) {
    if (denied_.contains(root)) {
        return Status::AccessDenied;
    }
    RegistryHandle opened;
    const Status status = registry_.openKey(connected(registry_, Root::CurrentUser), pathOf(root), opened);
    return giveOut(status, std::move(opened), handle);
}

Status ScratchRegistry::openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    RegistryHandle opened;
    const Status status = registry_.openKey(live(parent), path, opened);
    return giveOut(status, std::move(opened), key);
}

Status ScratchRegistry::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    RegistryHandle created;
    const Status status = registry_.createKey(changing(parent), path, created);
    return giveOut(status, std::move(created), key);
}

}  // namespace korvane
