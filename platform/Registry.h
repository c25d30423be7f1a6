// The registry, one function per Win32 call and named after it. Two classes
// implement it: the live registry of Windows, and a registry in memory that loads
// and saves .reg files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace korvane {

enum class Root : std::uint8_t { ClassesRoot, CurrentUser, LocalMachine, Users };

// Value types, numbered as in Windows.
enum class ValueType : std::uint32_t { None = 0, Sz = 1, ExpandSz = 2, Binary = 3, Dword = 4, MultiSz = 7 };

// Win32 error codes; any other code is passed through unchanged.
enum class [[nodiscard]] Status : std::int32_t {
    Success = 0,
    FileNotFound = 2,
    AccessDenied = 5,
    InvalidHandle = 6,
    InvalidParameter = 87,
    MoreData = 234,
    NoMoreItems = 259,
    KeyDeleted = 1018,
};

class Registry;

// A connected root or an open key. Move-only; closes itself. With a default-constructed handle every function returns
// InvalidHandle.
class RegistryHandle {
public:
    RegistryHandle() = default;
    RegistryHandle(Registry& owner, std::uintptr_t value) : owner_(&owner), value_(value) {}
    RegistryHandle(RegistryHandle&& other) noexcept
        : owner_(std::exchange(other.owner_, nullptr)), value_(std::exchange(other.value_, 0)) {}
    RegistryHandle& operator=(RegistryHandle&& other) noexcept {
        if (this != &other) {
            close();
            owner_ = std::exchange(other.owner_, nullptr);
            value_ = std::exchange(other.value_, 0);
        }
        return *this;
    }
    RegistryHandle(const RegistryHandle&) = delete;
    RegistryHandle& operator=(const RegistryHandle&) = delete;
    ~RegistryHandle() { close(); }

    void close() noexcept;
    std::uintptr_t value() const { return value_; }
    explicit operator bool() const { return owner_ != nullptr; }

private:
    Registry* owner_ = nullptr;
    std::uintptr_t value_ = 0;
};

// Texts are 8-bit, in the ANSI code page. Out-parameters are unchanged on failure. Paths are relative to the given
// handle, without a leading or trailing backslash; an empty path names the key of the handle itself.
class Registry {
public:
    virtual ~Registry() = default;

    // RegConnectRegistryA without a machine name.
    virtual Status connect(Root root, RegistryHandle& handle) = 0;
    // RegOpenKeyExA with full access.
    virtual Status openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) = 0;
    // RegOpenKeyExA with read access, for the few keys of the system that the program never changes.
    virtual Status openKeyForReading(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
        return openKey(parent, path, key);
    }
    // RegCreateKeyA: opens the key and creates every missing level.
    virtual Status createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) = 0;
    // RegQueryValueExA. `size` is set to the length of the data in bytes, on success and on MoreData; a text has a
    // terminating zero if it is stored with one. The type is optional.
    virtual Status queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                              std::size_t& size, ValueType* type = nullptr) = 0;
    // RegSetValueExA. A text given without its terminating zero is stored with one, as Windows does.
    virtual Status setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                            std::span<const std::byte> data) = 0;
    // SHDeleteValueA; with an empty subkey RegDeleteValueA on the key itself.
    virtual Status deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) = 0;
    // RegDeleteKeyA as on Windows NT: a key with subkeys is refused (AccessDenied).
    virtual Status deleteKey(const RegistryHandle& parent, std::string_view path) = 0;
    // SHDeleteKeyA: the key with all its subkeys. An empty path is refused (InvalidParameter): on a root it would
    // delete everything.
    virtual Status deleteTree(const RegistryHandle& parent, std::string_view path) = 0;
    // RegEnumKeyA with a buffer of 260 bytes. NoMoreItems after the last subkey.
    virtual Status enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) = 0;
    // RegEnumValueA, only the name. NoMoreItems after the last value.
    virtual Status enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) = 0;

private:
    friend class RegistryHandle;
    virtual void closeKey(std::uintptr_t handle) noexcept = 0;
};

inline void RegistryHandle::close() noexcept {
    if (owner_ != nullptr) {
        std::exchange(owner_, nullptr)->closeKey(std::exchange(value_, 0));
    }
}

// Drops the status of a call. Intended: the window never reports a failed registry call.
inline void ignoreFailure(Status) {}

}  // namespace korvane
