// A registry in memory that answers as Windows NT's does: what kmctl works on when it repairs a .reg file, and what
// the tests run on. Loading and saving .reg text is in RegFile.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "regfile/LostLetters.h"
#include "regfile/RegistryTree.h"
#include "text/CodePage.h"

namespace korvane {

class RegFileIndex;

// Must outlive the handles it gave out. Texts cross the 8-bit verbs in a code page; a character that has no place
// there reads as '?'. The four roots are separate trees: no root mirrors a part of another.
class MemoryRegistry final : public Registry {
public:
    MemoryRegistry();
    ~MemoryRegistry() override;
    MemoryRegistry(const MemoryRegistry&) = delete;
    MemoryRegistry& operator=(const MemoryRegistry&) = delete;

    Status connect(Root root, RegistryHandle& handle) override;
    Status openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) override;
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

    // From now on opening, creating and deleting the key, or anything below it, answers AccessDenied; with an empty
    // path so does connecting to the root. The key need not exist. Handles that are open already keep working.
    void deny(Root root, std::string_view path);
    // So many more changes are made; each one after them answers AccessDenied, as in a hive whose quota is used up.
    void denyChangesAfter(std::size_t count) { changesLeft_ = count; }
    // From now on the key grants less than full access: it cannot be opened, but a value of it can be deleted by the
    // key's path, which asks for no more than it needs. The key need not exist.
    void denyFullAccess(Root root, std::string_view path);
    // Takes back every deny.
    void allowAll();

    // The code page of the 8-bit verbs, and of 8-bit files that are loaded.
    const CodePage& codePage() const { return codePage_; }
    void setCodePage(const CodePage& page) { codePage_ = page; }
    // From now on letters without a place read as marks, and setValue and createKey answer InvalidParameter to a text
    // with a mark in it. Both is noted in `lost`, which is borrowed.
    void watchLostLetters(LostLetters& lost) { lost_ = &lost; }

    // How many handles are open: 0 when all that was opened has been closed.
    std::size_t openHandles() const { return handles_.size(); }

    RegistryTree& tree() { return tree_; }
    const RegistryTree& tree() const { return tree_; }

    // The text that the registry is saved to; null when none has been loaded.
    const RegFileIndex* file() const { return file_.get(); }
    void setFile(std::unique_ptr<RegFileIndex> file);
    // Takes the place of a registry without keys. The tree must have started from the file.
    void setContent(RegistryTree tree, std::unique_ptr<RegFileIndex> file);

private:
    void closeKey(std::uintptr_t handle) noexcept override;

    // An open handle: the key, and whether it has been deleted since. A new key of the same name is another key.
    struct Opened {
        KeyId key;
        bool deleted;
    };

    // The key behind a handle, or why there is none.
    Status keyOf(const RegistryHandle& handle, KeyId& key) const;
    // The checks that stand before every walk from a handle along a path.
    Status startOf(const RegistryHandle& handle, std::u16string_view path, KeyId& start) const;
    // Both, and the walk itself: the existing key at the path.
    Status findKey(const RegistryHandle& handle, std::u16string_view path, KeyId& key) const;
    RegistryHandle makeHandle(KeyId key);
    void remove(KeyId key);
    std::u16string upperPathOf(KeyId key) const;
    bool isDenied(const std::u16string& path) const;
    bool holdsDenied(const std::u16string& path) const;
    // Asked just before each change: counts it, or refuses it.
    Status countChange();

    // Between the tree's texts and those of the verbs.
    std::u16string widen(std::string_view text) const;
    std::string narrow(KeyId key, std::u16string_view name, std::u16string_view text) const;
    std::vector<std::byte> dataAsAnsi(KeyId key, const RegistryValue& value) const;
    std::vector<std::byte> dataToStore(std::span<const std::byte> ansi) const;
    // Whether a text has lost letters, which is then noted.
    bool isLossy(KeyId key, std::string_view name, std::string_view text) const;

    CodePage codePage_ = CodePage::western();
    LostLetters* lost_ = nullptr;
    std::unique_ptr<RegFileIndex> file_;  // from which the tree reads
    RegistryTree tree_;
    std::map<std::uintptr_t, Opened> handles_;
    std::uintptr_t lastHandle_ = 0;
    std::set<std::u16string, std::less<>> denied_;  // full paths in upper case, from the root's name on
    std::set<std::u16string, std::less<>> limited_;  // the same, of denyFullAccess
    std::optional<std::size_t> changesLeft_;
};

}  // namespace korvane
