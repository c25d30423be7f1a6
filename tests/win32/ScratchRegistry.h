// The live registry with each root moved below a key of this process's own, so that tests may write anything and
// leave nothing behind: HKEY_CURRENT_USER\Software\KorvaneTest\<process id>\HKEY_LOCAL_MACHINE and so on.
#pragma once

#include "regfile/MemoryRegistry.h"
#include "platform/win32/Win32Registry.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

// Every verb is Win32Registry's own, on real keys. There must be only one at a time, because its keys go with it.
class ScratchRegistry final : public Registry {
public:
    // Holds what the content holds, as far as the 8-bit verbs can carry it: names and texts in the system's code page,
    // and no text without its terminating zero.
    explicit ScratchRegistry(MemoryRegistry& content);
    ScratchRegistry(const ScratchRegistry&) = delete;
    ScratchRegistry& operator=(const ScratchRegistry&) = delete;
    ~ScratchRegistry() override;

    // From now on the root cannot be connected to.
    void deny(Root root) { denied_.insert(root); }
    // Those that were given out and not closed.
    std::size_t openHandles() const { return handles_.size(); }

    // What the keys hold now, in the form of dumpRegistry. To read hundreds of keys takes long, so only those are read
    // that a verb was told to change; whether nothing else has changed is looked at in the end.
    std::string text();

    Status connect(Root root, RegistryHandle& handle) override;
    Status openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
    Status openKeyForReading(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
    Status createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
    Status queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer, std::size_t& size,
                      ValueType* type = nullptr) override;
    Status setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                    std::span<const std::byte> data) override;
    Status deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) override;
    Status deleteKey(const RegistryHandle& parent, std::string_view path) override;
    Status deleteTree(const RegistryHandle& parent, std::string_view path) override;
    Status enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) override;
    Status enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) override;

private:
    using Place = std::pair<Root, std::string>;  // a key by its path below a root
    struct OpenKey {
        RegistryHandle live;
        Place place;
    };

    const RegistryHandle& live(const RegistryHandle& handle) const;
    void note(Place change);
    Place placeOf(const RegistryHandle& handle, std::string_view path) const;
    RegistryHandle giveOut(RegistryHandle live, Place place);
    void closeKey(std::uintptr_t handle) noexcept override { handles_.erase(handle); }

    RegistryHandle liveRoot(Root root);
    void readAgain(const Place& place);
    void compareWithEverything();
    void wipe();

    Win32Registry registry_;
    std::map<std::uintptr_t, OpenKey> handles_;
    std::uintptr_t lastHandle_ = 0;
    std::set<Root> denied_;
    MemoryRegistry known_;        // what was read last
    std::vector<Place> changed_;  // since then, in the order of the changes: a new key keeps its first spelling
};

}  // namespace korvane
