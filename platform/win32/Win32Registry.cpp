// One call of advapi32 per verb. SHDeleteValueA and SHDeleteKeyA are written out, because a bare Windows NT 4 lacks
// their library, shlwapi.
#include "platform/win32/Win32Registry.h"

#include "platform/win32/Handles.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace korvane {
namespace {

constexpr REGSAM kFullAccess = 0xF003F;  // KEY_ALL_ACCESS
constexpr DWORD kKeyNameRoom = 260;
constexpr DWORD kValueNameRoom = 16384;

Status toStatus(LONG error) { return static_cast<Status>(error); }
HKEY toKey(const RegistryHandle& handle) { return reinterpret_cast<HKEY>(handle.value()); }

HKEY predefinedKey(Root root) {
    switch (root) {
        case Root::ClassesRoot:
            return HKEY_CLASSES_ROOT;
        case Root::CurrentUser:
            return HKEY_CURRENT_USER;
        case Root::LocalMachine:
            return HKEY_LOCAL_MACHINE;
        case Root::Users:
            return HKEY_USERS;
    }
    return nullptr;
}

// Always the first subkey, until none is left: deleting one moves up the others.
LONG deleteKeyAndBelow(HKEY parent, const char* name);

LONG deleteBelow(HKEY key) {
    for (;;) {
        std::array<char, kKeyNameRoom> name{};
        DWORD length = kKeyNameRoom;
        LONG error = RegEnumKeyExA(key, 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (error == ERROR_NO_MORE_ITEMS) {
            return ERROR_SUCCESS;
        }
        if (error == ERROR_SUCCESS) {
            error = deleteKeyAndBelow(key, name.data());
        }
        if (error != ERROR_SUCCESS) {
            return error;
        }
    }
}

LONG deleteKeyAndBelow(HKEY parent, const char* name) {
    UniqueHkey key;
    LONG error = RegOpenKeyExA(parent, name, 0, KEY_READ, key.receive());
    if (error == ERROR_SUCCESS) {
        error = deleteBelow(key.get());
    }
    key.reset();  // while it is open a key is only marked for deletion
    return error == ERROR_SUCCESS ? RegDeleteKeyA(parent, name) : error;
}

}  // namespace

Status Win32Registry::keep(std::int32_t error, void* key, RegistryHandle& handle) {
    if (error == ERROR_SUCCESS) {
        handle = RegistryHandle(*this, reinterpret_cast<std::uintptr_t>(key));
    }
    return static_cast<Status>(error);
}

Status Win32Registry::connect(Root root, RegistryHandle& handle) {
    HKEY key = nullptr;
    const LONG error = RegConnectRegistryA(nullptr, predefinedKey(root), &key);
    return keep(error, key, handle);
}

Status Win32Registry::openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    return open(parent, path, kFullAccess, key);
}

Status Win32Registry::openKeyForReading(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    return open(parent, path, KEY_READ, key);
}

Status Win32Registry::open(const RegistryHandle& parent, std::string_view path, std::uint32_t access,
                           RegistryHandle& key) {
    HKEY opened = nullptr;
    const LONG error = RegOpenKeyExA(toKey(parent), std::string(path).c_str(), 0, access, &opened);
    return keep(error, opened, key);
}

Status Win32Registry::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    HKEY created = nullptr;
    const LONG error = RegCreateKeyA(toKey(parent), std::string(path).c_str(), &created);
    return keep(error, created, key);
}

Status Win32Registry::queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                                 std::size_t& size, ValueType* type) {
    // Without a buffer Windows returns success and the size; given one of no length it returns ERROR_MORE_DATA.
    BYTE nowhere = 0;
    BYTE* target = buffer.empty() ? &nowhere : reinterpret_cast<BYTE*>(buffer.data());
    auto length = static_cast<DWORD>(buffer.size());
    DWORD number = 0;
    const LONG error = RegQueryValueExA(toKey(key), std::string(name).c_str(), nullptr, &number, target, &length);
    if (error == ERROR_SUCCESS || error == ERROR_MORE_DATA) {
        size = length;
    }
    if (error == ERROR_SUCCESS && type != nullptr) {
        *type = static_cast<ValueType>(number);
    }
    return toStatus(error);
}

Status Win32Registry::setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                               std::span<const std::byte> data) {
    // Windows stores a text's missing zero if one follows the data in memory, so the copy has one there.
    std::vector<std::byte> bytes(data.begin(), data.end());
    bytes.push_back(std::byte{0});
    return toStatus(RegSetValueExA(toKey(key), std::string(name).c_str(), 0, static_cast<DWORD>(type),
                                   reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(data.size())));
}

Status Win32Registry::deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) {
    const std::string valueName(name);
    if (subkey.empty()) {
        return toStatus(RegDeleteValueA(toKey(key), valueName.c_str()));
    }
    UniqueHkey opened;
    const LONG error = RegOpenKeyExA(toKey(key), std::string(subkey).c_str(), 0, KEY_SET_VALUE, opened.receive());
    return toStatus(error == ERROR_SUCCESS ? RegDeleteValueA(opened.get(), valueName.c_str()) : error);
}

Status Win32Registry::deleteKey(const RegistryHandle& parent, std::string_view path) {
    return toStatus(RegDeleteKeyA(toKey(parent), std::string(path).c_str()));
}

Status Win32Registry::deleteTree(const RegistryHandle& parent, std::string_view path) {
    const std::string name(path);
    if (name.empty()) {
        return Status::InvalidParameter;  // on a root it would delete everything
    }
    return toStatus(deleteKeyAndBelow(toKey(parent), name.c_str()));
}

Status Win32Registry::enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    std::array<char, kKeyNameRoom> buffer{};
    const LONG error = RegEnumKeyA(toKey(key), index, buffer.data(), kKeyNameRoom);
    if (error == ERROR_SUCCESS) {
        name = buffer.data();
    }
    return toStatus(error);
}

Status Win32Registry::enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    std::string buffer(kValueNameRoom, '\0');
    DWORD length = kValueNameRoom;
    const LONG error = RegEnumValueA(toKey(key), index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (error == ERROR_SUCCESS) {
        name.assign(buffer, 0, length);
    }
    return toStatus(error);
}

void Win32Registry::closeKey(std::uintptr_t handle) noexcept { RegCloseKey(reinterpret_cast<HKEY>(handle)); }

}  // namespace korvane
