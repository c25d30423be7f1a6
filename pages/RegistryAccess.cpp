// The registry conventions of the program.
#include "pages/RegistryAccess.h"

#include <algorithm>

namespace korvane {

std::string KeyPath::fullPath() const {
    std::string full(path);
    if (!full.empty() && !created.empty()) {
        full += '\\';
    }
    return full.append(created);
}

std::uint32_t StoredValue::number() const {
    std::uint32_t result = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(size, 4); ++i) {
        result |= std::to_integer<std::uint32_t>(data[i]) << (8 * i);
    }
    return result;
}

std::string StoredValue::text() const {
    const auto* first = reinterpret_cast<const char*>(data.data());
    return {first, std::find(first, first + std::min(size, data.size()), '\0')};
}

OpenedKey openKey(Registry& registry, Root root, std::string_view path) {
    RegistryHandle rootHandle;
    RegistryHandle key;
    if (registry.connect(root, rootHandle) != Status::Success ||
        registry.openKey(rootHandle, path, key) != Status::Success) {
        return {};
    }
    return {std::move(rootHandle), std::move(key)};
}

OpenedKey openOrCreate(Registry& registry, const KeyPath& key) {
    if (key.created.empty()) {
        return openKey(registry, key.root, key.path);
    }
    RegistryHandle rootHandle;
    RegistryHandle parent;
    RegistryHandle made;
    if (registry.connect(key.root, rootHandle) != Status::Success) {
        return {};
    }
    if (!key.path.empty() && registry.openKey(rootHandle, key.path, parent) != Status::Success) {
        return {};
    }
    if (registry.createKey(key.path.empty() ? rootHandle : parent, key.created, made) != Status::Success) {
        return {};
    }
    return {std::move(rootHandle), std::move(made)};
}

std::optional<StoredValue> readValue(Registry& registry, const RegistryHandle& key, std::string_view name) {
    StoredValue value;
    if (registry.queryValue(key, name, value.data, value.size, &value.type) != Status::Success) {
        return std::nullopt;
    }
    return value;
}

void writeNumber(Registry& registry, const OpenedKey& key, std::string_view name, std::uint32_t number) {
    std::array<std::byte, 4> data;
    for (std::size_t i = 0; i < data.size(); ++i) {
        data[i] = static_cast<std::byte>(number >> (8 * i));
    }
    ignoreFailure(registry.setValue(key.handle(), name, ValueType::Dword, data));
}

void writeBinary(Registry& registry, const OpenedKey& key, std::string_view name, std::span<const std::byte> data) {
    ignoreFailure(registry.setValue(key.handle(), name, ValueType::Binary, data));
}

void writeText(Registry& registry, const OpenedKey& key, std::string_view name, std::string_view text,
               ValueType type) {
    ignoreFailure(registry.setValue(key.handle(), name, type, std::as_bytes(std::span(text))));
}

void deleteValue(Registry& registry, const KeyPath& key, std::string_view name) {
    RegistryHandle root;
    if (registry.connect(key.root, root) == Status::Success) {
        ignoreFailure(registry.deleteValue(root, key.fullPath(), name));
    }
}

void deleteTree(Registry& registry, Root root, std::string_view path) {
    RegistryHandle handle;
    if (registry.connect(root, handle) == Status::Success) {
        ignoreFailure(registry.deleteTree(handle, path));
    }
}

}  // namespace korvane
