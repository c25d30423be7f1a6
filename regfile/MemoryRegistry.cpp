// The registry's verbs over the tree in memory, with the answers Windows NT gives.
#include "regfile/MemoryRegistry.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "regfile/RegFileIndex.h"
#include "text/CaseFolding.h"
#include "text/Utf.h"

namespace korvane {
namespace {

constexpr Status kBadPathname{161};

std::string asText(std::span<const std::byte> data) {
    std::string text(data.size(), '\0');
    std::ranges::transform(data, text.begin(), [](std::byte b) { return static_cast<char>(b); });
    return text;
}

std::u16string joinUpper(std::u16string base, std::u16string_view path) {
    return path.empty() ? std::move(base) : std::move(base) + u'\\' + upperCase(path);
}

}  // namespace

MemoryRegistry::MemoryRegistry() = default;
MemoryRegistry::~MemoryRegistry() = default;

void MemoryRegistry::setFile(std::unique_ptr<RegFileIndex> file) { file_ = std::move(file); }

void MemoryRegistry::setContent(RegistryTree tree, std::unique_ptr<RegFileIndex> file) {
    tree_ = std::move(tree);
    file_ = std::move(file);
}

Status MemoryRegistry::connect(Root root, RegistryHandle& handle) {
    if (!denied_.empty() && isDenied(upperPathOf(RegistryTree::root(root)))) {
        return Status::AccessDenied;
    }
    handle = makeHandle(RegistryTree::root(root));
    return Status::Success;
}

Status MemoryRegistry::openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    KeyId found = kNoKey;
    if (const Status status = findKey(parent, widen(path), found); status != Status::Success) {
        return status;
    }
    if (!limited_.empty() && limited_.contains(upperPathOf(found))) {
        return Status::AccessDenied;
    }
    key = makeHandle(found);
    return Status::Success;
}

Status MemoryRegistry::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    const std::u16string widePath = widen(path);
    KeyId start = kNoKey;
    if (const Status status = startOf(parent, widePath, start); status != Status::Success) {
        return status;
    }
    if (tree_.find(start, widePath) != kNoKey) {
        return openKey(parent, path, key);
    }
    if (isLossy(start, {}, path)) {
        return Status::InvalidParameter;
    }
    if (const Status status = countChange(); status != Status::Success) {
        return status;
    }
    key = makeHandle(tree_.create(start, widePath));
    return Status::Success;
}

Status MemoryRegistry::queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                                  std::size_t& size, ValueType* type) {
    KeyId found = kNoKey;
    if (const Status status = keyOf(key, found); status != Status::Success) {
        return status;
    }
    const RegistryValue* value = tree_.values(found).find(widen(name));
    if (value == nullptr) {
        return Status::FileNotFound;
    }
    const std::vector<std::byte> bytes = dataAsAnsi(found, *value);
    size = bytes.size();
    if (bytes.size() > buffer.size()) {
        return Status::MoreData;
    }
    std::copy(bytes.begin(), bytes.end(), buffer.begin());
    if (holdsText(value->type) && !bytes.empty() && bytes.back() != std::byte{0} && bytes.size() < buffer.size()) {
        buffer[bytes.size()] = std::byte{0};  // a courtesy of Windows, which the size does not count
    }
    if (type != nullptr) {
        *type = static_cast<ValueType>(value->type);
    }
    return Status::Success;
}

Status MemoryRegistry::setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                                std::span<const std::byte> data) {
    KeyId found = kNoKey;
    if (const Status status = keyOf(key, found); status != Status::Success) {
        return status;
    }
    const std::u16string wideName = widen(name);
    if (wideName.size() > kMaxValueName) {
        return Status::InvalidParameter;
    }
    const auto number = static_cast<std::uint32_t>(type);
    if (isLossy(found, name, name) || (holdsText(number) && isLossy(found, name, asText(data)))) {
        return Status::InvalidParameter;
    }
    if (const Status status = countChange(); status != Status::Success) {
        return status;
    }
    tree_.setValue(found, wideName, number,
                   holdsText(number) ? dataToStore(data) : std::vector<std::byte>(data.begin(), data.end()));
    return Status::Success;
}

Status MemoryRegistry::deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) {
    KeyId found = kNoKey;
    const std::u16string path = widen(subkey);
    const Status status = path.empty() ? keyOf(key, found) : findKey(key, path, found);
    if (status != Status::Success) {
        return status;
    }
    const std::u16string wideName = widen(name);
    if (tree_.values(found).find(wideName) == nullptr) {
        return Status::FileNotFound;
    }
    if (const Status refused = countChange(); refused != Status::Success) {
        return refused;
    }
    tree_.removeValue(found, wideName);
    return Status::Success;
}

Status MemoryRegistry::deleteKey(const RegistryHandle& parent, std::string_view path) {
    KeyId found = kNoKey;
    if (const Status status = findKey(parent, widen(path), found); status != Status::Success) {
        return status;
    }
    if (RegistryTree::isRoot(found) || tree_.hasSubkeys(found)) {
        return Status::AccessDenied;
    }
    if (const Status status = countChange(); status != Status::Success) {
        return status;
    }
    remove(found);
    return Status::Success;
}

Status MemoryRegistry::deleteTree(const RegistryHandle& parent, std::string_view path) {
    const std::u16string widePath = widen(path);
    if (widePath.empty()) {
        return Status::InvalidParameter;
    }
    KeyId found = kNoKey;
    if (const Status status = findKey(parent, widePath, found); status != Status::Success) {
        return status;
    }
    if (!denied_.empty() && holdsDenied(upperPathOf(found))) {
        return Status::AccessDenied;
    }
    if (const Status status = countChange(); status != Status::Success) {
        return status;
    }
    remove(found);
    return Status::Success;
}

Status MemoryRegistry::enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    KeyId found = kNoKey;
    if (const Status status = keyOf(key, found); status != Status::Success) {
        return status;
    }
    const std::vector<KeyId>& subkeys = tree_.subkeys(found);
    if (index >= subkeys.size()) {
        return Status::NoMoreItems;
    }
    name = narrow(subkeys[index], {}, tree_.name(subkeys[index]));
    return Status::Success;
}

Status MemoryRegistry::enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    KeyId found = kNoKey;
    if (const Status status = keyOf(key, found); status != Status::Success) {
        return status;
    }
    const RegistryValue* value = tree_.values(found).at(index);
    if (value == nullptr) {
        return Status::NoMoreItems;
    }
    name = narrow(found, value->name, value->name);
    return Status::Success;
}

void MemoryRegistry::deny(Root root, std::string_view path) {
    denied_.insert(joinUpper(upperPathOf(RegistryTree::root(root)), widen(path)));
}

// A text as the platform's call would see it: up to the first zero.
std::u16string MemoryRegistry::widen(std::string_view text) const {
    return codePage_.toUtf16(text.substr(0, text.find('\0')));
}

std::string MemoryRegistry::narrow(KeyId key, std::u16string_view name, std::u16string_view text) const {
    std::string bytes = codePage_.toBytes(text, lost_ != nullptr ? kLostLetter : '?');
    if (lost_ != nullptr && bytes.find(kLostLetter) != std::string::npos) {
        lost_->read.push_back({tree_.path(key), std::u16string(name), std::u16string(text), bytes});
    }
    return bytes;
}

// The data as the 8-bit verbs give it: text in the code page, all else unchanged.
std::vector<std::byte> MemoryRegistry::dataAsAnsi(KeyId key, const RegistryValue& value) const {
    if (!holdsText(value.type)) {
        return value.data;
    }
    const std::string text = narrow(key, value.name, fromStored(value.data));
    const std::span<const std::byte> bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

std::vector<std::byte> MemoryRegistry::dataToStore(std::span<const std::byte> ansi) const {
    std::string text = asText(ansi);
    if (!text.empty() && text.back() != '\0') {
        text += '\0';
    }
    return toStored(codePage_.toUtf16(text));
}

bool MemoryRegistry::isLossy(KeyId key, std::string_view name, std::string_view text) const {
    if (lost_ == nullptr || text.find(kLostLetter) == std::string_view::npos) {
        return false;
    }
    lost_->notWritten.push_back({tree_.path(key), widen(name), {}, std::string(text)});
    return true;
}

void MemoryRegistry::closeKey(std::uintptr_t handle) noexcept { handles_.erase(handle); }

Status MemoryRegistry::keyOf(const RegistryHandle& handle, KeyId& key) const {
    const auto found = handles_.find(handle.value());
    if (found == handles_.end()) {
        return Status::InvalidHandle;
    }
    if (found->second.deleted) {
        return Status::KeyDeleted;
    }
    key = found->second.key;
    return Status::Success;
}

Status MemoryRegistry::startOf(const RegistryHandle& handle, std::u16string_view path,
                               KeyId& start) const {
    if (const Status status = keyOf(handle, start); status != Status::Success) {
        return status;
    }
    switch (RegistryTree::checkPath(tree_.depth(start), path)) {
        case PathFault::None:
            break;
        case PathFault::EmptyName:
            return kBadPathname;
        case PathFault::NameTooLong:
        case PathFault::TooDeep:
            return Status::InvalidParameter;
    }
    return !denied_.empty() && isDenied(joinUpper(upperPathOf(start), path)) ? Status::AccessDenied : Status::Success;
}

Status MemoryRegistry::findKey(const RegistryHandle& handle, std::u16string_view path,
                               KeyId& key) const {
    KeyId start = kNoKey;
    if (const Status status = startOf(handle, path, start); status != Status::Success) {
        return status;
    }
    const KeyId found = tree_.find(start, path);
    if (found == kNoKey) {
        return Status::FileNotFound;
    }
    key = found;
    return Status::Success;
}

RegistryHandle MemoryRegistry::makeHandle(KeyId key) {
    handles_.emplace(++lastHandle_, Opened{key, false});
    return {*this, lastHandle_};
}

void MemoryRegistry::remove(KeyId key) {
    tree_.remove(key);
    for (auto& [handle, opened] : handles_) {
        opened.deleted = opened.deleted || !tree_.exists(opened.key);
    }
}

void MemoryRegistry::denyFullAccess(Root root, std::string_view path) {
    limited_.insert(joinUpper(upperPathOf(RegistryTree::root(root)), widen(path)));
}

void MemoryRegistry::allowAll() {
    denied_.clear();
    limited_.clear();
    changesLeft_.reset();
}

Status MemoryRegistry::countChange() {
    if (!changesLeft_) {
        return Status::Success;
    }
    if (*changesLeft_ == 0) {
        return Status::AccessDenied;
    }
    --*changesLeft_;
    return Status::Success;
}

std::u16string MemoryRegistry::upperPathOf(KeyId key) const { return upperCase(tree_.path(key)); }

bool MemoryRegistry::isDenied(const std::u16string& path) const {
    for (std::size_t end = path.find(u'\\');; end = path.find(u'\\', end + 1)) {
        if (denied_.contains(std::u16string_view(path).substr(0, end))) {
            return true;
        }
        if (end == std::u16string::npos) {
            return false;
        }
    }
}

bool MemoryRegistry::holdsDenied(const std::u16string& path) const {
    const std::u16string below = path + u'\\';
    const auto next = denied_.lower_bound(below);
    return next != denied_.end() && next->starts_with(below);
}

}  // namespace korvane
