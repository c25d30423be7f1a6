// The live registry of Windows, through the 8-bit calls of advapi32 that every Windows NT has.
#pragma once

#include "platform/Registry.h"

namespace korvane {

class Win32Registry final : public Registry {
public:
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
    Status open(const RegistryHandle& parent, std::string_view path, std::uint32_t access, RegistryHandle& key);
    void closeKey(std::uintptr_t handle) noexcept override;
};

}  // namespace korvane
