// A registry that passes every call on to another one and notes what was to be
// changed there, with the answers: the program itself never reports a failed
// registry call, so this is how one finds out.
#pragma once

#include "platform/Registry.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace korvane {

// One call that changes the registry, or one that failed to open what might have been changed.
struct RegistryAttempt {
    enum class Action : std::uint8_t { Open, CreateKey, SetValue, DeleteValue, DeleteKey, DeleteTree };

    Action action;
    Root root;
    std::string path;  // the key's, from the root; empty for the root itself
    std::string name;  // the value's; empty for a key and for a key's default value
    Status status;
    // The path was given from the root, not from a key that was found there.
    bool fromRoot = true;
    // Why a key could not be deleted that nothing else protects.
    bool hasSubkeys = false;
};

class WriteJournal : public Registry {
public:
    // Borrowed; must outlive the journal, as the journal must outlive the handles it gives out.
    explicit WriteJournal(Registry& registry) : registry_(registry) {}
    WriteJournal(const WriteJournal&) = delete;
    WriteJournal& operator=(const WriteJournal&) = delete;

    // In the order of the calls. Calls on handles that are no key are not noted: opening those has failed before.
    const std::vector<RegistryAttempt>& attempts() const { return attempts_; }
    void clear() { attempts_.clear(); }

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
    struct OpenKey {
        RegistryHandle handle;
        Root root;
        std::string path;
    };

    void closeKey(std::uintptr_t handle) noexcept override { open_.erase(handle); }

    // The key behind a handle of the journal's own; null when it is none.
    const OpenKey* find(const RegistryHandle& handle) const;
    RegistryHandle keep(RegistryHandle handle, Root root, std::string path);
    Status note(RegistryAttempt::Action action, const OpenKey& parent, std::string_view path, std::string_view name,
                Status status);
    bool hasSubkeys(const OpenKey& parent, std::string_view path);

    Registry& registry_;
    std::map<std::uintptr_t, OpenKey> open_;
    std::uintptr_t last_ = 0;
    std::vector<RegistryAttempt> attempts_;
};

}  // namespace korvane
