// The live registry with each root moved below a key of this process's own, so that tests may write anything and
// leave nothing behind: HKEY_CURRENT_USER\Software\KorvaneTest\<process id>\HKEY_LOCAL_MACHINE and so on.
#pragma once

#include "platform/memory/MemoryRegistry.h"
#include "platform/win32/Win32Registry.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

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

    // What the keys hold now, in the form of dumpRegistry.
    std::string text();

    Status connect(Root root, RegistryHandle& handle) override;
    Status openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
    Status createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
    Status queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer, std::size_t& size,
                      ValueType* type = nullptr) override {
        return registry_.queryValue(live(key), name, buffer, size, type);
    }
    Status setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                    std::span<const std::byte> data) override {
        return registry_.setValue(changing(key), name, type, data);
    }
    Status deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) override {
        return registry_.deleteValue(changing(key), subkey, name);
    }
    Status deleteKey(const RegistryHandle& parent, std::string_view path) override {
        return registry_.deleteKey(changing(parent), path);
    }
    Status deleteTree(const RegistryHandle& parent, std::string_view path) override {
        return registry_.deleteTree(changing(parent), path);
    }
    Status enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) override {
        return registry_.enumerateKey(live(key), index, name);
    }
    Status enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) override {
        return registry_.enumerateValue(live(key), index, name);
    }

private:
    const RegistryHandle& live(const RegistryHandle& handle) const;
    const RegistryHandle& changing(const RegistryHandle& handle) {
        changed_ = true;
        return live(handle);
    }
    Status giveOut(Status status, RegistryHandle opened, RegistryHandle& key);
    void closeKey(std::uintptr_t handle) noexcept override { handles_.erase(handle); }
    void wipe();

    Win32Registry registry_;
    std::map<std::uintptr_t, RegistryHandle> handles_;
    std::uintptr_t lastHandle_ = 0;
    std::set<Root> denied_;
    std::string text_;
    bool changed_ = true;  // since the text was read
};

}  // namespace korvane
