// One call of advapi32 per verb. The shell's SHDeleteValueA and SHDeleteKeyA are spelled out here, because their
// library is missing from a bare Windows NT 4.
#include "platform/win32/Win32Registry.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace korvane {
namespace {

constexpr REGSAM kFullAccess = 0xF003F;  // KEY_ALL_ACCESS before Vista widened what the name stands for
constexpr DWORD kKeyNameRoom = 260;
constexpr DWORD kValueNameRoom = 16384;

Status toStatus(LONG error) { return static_cast<Status>(error); }
HKEY toKey(const RegistryHandle& handle) { return reinterpret_cast<HKEY>(handle.value()); }
std::uintptr_t toValue(HKEY key) { return reinterpret_cast<std::uintptr_t>(key); }

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

// The first subkey each time, until none is left: what is deleted moves the others up.
LONG deleteBelow(HKEY key) {
    for (;;) {
        std::array<char, kKeyNameRoom> name{};
        DWORD length = kKeyNameRoom;
        LONG error = RegEnumKeyExA(key, 0, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (error == ERROR_NO_MORE_ITEMS) {
            return ERROR_SUCCESS;
        }
        HKEY subkey = nullptr;
        if (error == ERROR_SUCCESS) {
            error = RegOpenKeyExA(key, name.data(), 0, KEY_READ, &subkey);
        }
        if (error == ERROR_SUCCESS) {
            error = deleteBelow(subkey);
            RegCloseKey(subkey);
        }
        if (error == ERROR_SUCCESS) {
            error = RegDeleteKeyA(key, name.data());
        }
        if (error != ERROR_SUCCESS) {
            return error;
        }
    }
}

}  // namespace

Status Win32Registry::connect(Root root, RegistryHandle& handle) {
    HKEY key = nullptr;
    const LONG error = RegConnectRegistryA(nullptr, predefinedKey(root), &key);
    if (error == ERROR_SUCCESS) {
        handle = RegistryHandle(*this, toValue(key));
    }
    return toStatus(error);
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
    if (error == ERROR_SUCCESS) {
        key = RegistryHandle(*this, toValue(opened));
    }
    return toStatus(error);
}

Status Win32Registry::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    HKEY created = nullptr;
    const LONG error = RegCreateKeyA(toKey(parent), std::string(path).c_str(), &created);
    if (error == ERROR_SUCCESS) {
        key = RegistryHandle(*this, toValue(created));
    }
    return toStatus(error);
}

Status Win32Registry::queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                                 std::size_t& size, ValueType* type) {
    // Without a buffer Windows would answer Success and the size; one of no length makes it answer MoreData.
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
    // Windows adds a text's missing zero if it finds one behind the data: the copy sees to that.
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
    HKEY opened = nullptr;
    LONG error = RegOpenKeyExA(toKey(key), std::string(subkey).c_str(), 0, KEY_SET_VALUE, &opened);
    if (error == ERROR_SUCCESS) {
        error = RegDeleteValueA(opened, valueName.c_str());
        RegCloseKey(opened);
    }
    return toStatus(error);
}

Status Win32Registry::deleteKey(const RegistryHandle& parent, std::string_view path) {
    return toStatus(RegDeleteKeyA(toKey(parent), std::string(path).c_str()));
}

Status Win32Registry::deleteTree(const RegistryHandle& parent, std::string_view path) {
    const std::string name(path);
    if (name.empty()) {
        return Status::InvalidParameter;  // on a root the call would empty all of it
    }
    HKEY opened = nullptr;
    LONG error = RegOpenKeyExA(toKey(parent), name.c_str(), 0, KEY_READ, &opened);
    if (error == ERROR_SUCCESS) {
        error = deleteBelow(opened);
        RegCloseKey(opened);
    }
    if (error == ERROR_SUCCESS) {
        error = RegDeleteKeyA(toKey(parent), name.c_str());
    }
    return toStatus(error);
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
