// The live registry of Windows, through the ANSI calls of advapi32.
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
    // Hands out a key that a call has opened, unless the call failed.
    Status keep(std::int32_t error, void* key, RegistryHandle& handle);
    void closeKey(std::uintptr_t handle) noexcept override;
};

}  // namespace korvane
