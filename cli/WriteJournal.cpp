// Handles of the journal's own stand for those of the registry behind it, so that it knows which key each one is.
#include "cli/WriteJournal.h"

#include <utility>

namespace korvane {
namespace {

using Action = RegistryAttempt::Action;

std::string joined(const std::string& base, std::string_view path) {
    return base.empty() || path.empty() ? base + std::string(path) : base + '\\' + std::string(path);
}

}  // namespace

const WriteJournal::OpenKey* WriteJournal::find(const RegistryHandle& handle) const {
    const auto found = open_.find(handle.value());
    return found == open_.end() ? nullptr : &found->second;
}

RegistryHandle WriteJournal::keep(RegistryHandle handle, Root root, std::string path) {
    open_.emplace(++last_, OpenKey{std::move(handle), root, std::move(path)});
    return {*this, last_};
}

Status WriteJournal::note(Action action, const OpenKey& parent, std::string_view path, std::string_view name,
                          Status status) {
    attempts_.push_back({.action = action,
                         .root = parent.root,
                         .path = joined(parent.path, path),
                         .name = std::string(name),
                         .status = status,
                         .fromRoot = parent.path.empty()});
    return status;
}

Status WriteJournal::connect(Root root, RegistryHandle& handle) {
    RegistryHandle connected;
    const Status status = registry_.connect(root, connected);
    if (status == Status::Success) {
        handle = keep(std::move(connected), root, {});
        return status;
    }
    return note(Action::Open, {{}, root, {}}, {}, {}, status);
}

Status WriteJournal::openKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    const OpenKey* from = find(parent);
    if (from == nullptr) {
        return Status::InvalidHandle;
    }
    RegistryHandle opened;
    const Status status = registry_.openKey(from->handle, path, opened);
    if (status == Status::Success) {
        key = keep(std::move(opened), from->root, joined(from->path, path));
        return status;
    }
    return note(Action::Open, *from, path, {}, status);
}

Status WriteJournal::openKeyForReading(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    const OpenKey* from = find(parent);
    RegistryHandle opened;
    const Status status =
        from != nullptr ? registry_.openKeyForReading(from->handle, path, opened) : Status::InvalidHandle;
    if (status == Status::Success) {
        key = keep(std::move(opened), from->root, joined(from->path, path));
    }
    return status;
}

Status WriteJournal::createKey(const RegistryHandle& parent, std::string_view path, RegistryHandle& key) {
    const OpenKey* from = find(parent);
    if (from == nullptr) {
        return Status::InvalidHandle;
    }
    RegistryHandle made;
    const Status status = note(Action::CreateKey, *from, path, {}, registry_.createKey(from->handle, path, made));
    if (status == Status::Success) {
        key = keep(std::move(made), from->root, joined(from->path, path));
    }
    return status;
}

Status WriteJournal::queryValue(const RegistryHandle& key, std::string_view name, std::span<std::byte> buffer,
                                std::size_t& size, ValueType* type) {
    const OpenKey* of = find(key);
    return of != nullptr ? registry_.queryValue(of->handle, name, buffer, size, type) : Status::InvalidHandle;
}

Status WriteJournal::setValue(const RegistryHandle& key, std::string_view name, ValueType type,
                              std::span<const std::byte> data) {
    const OpenKey* of = find(key);
    return of != nullptr ? note(Action::SetValue, *of, {}, name, registry_.setValue(of->handle, name, type, data))
                         : Status::InvalidHandle;
}

Status WriteJournal::deleteValue(const RegistryHandle& key, std::string_view subkey, std::string_view name) {
    const OpenKey* of = find(key);
    return of != nullptr
               ? note(Action::DeleteValue, *of, subkey, name, registry_.deleteValue(of->handle, subkey, name))
               : Status::InvalidHandle;
}

Status WriteJournal::deleteKey(const RegistryHandle& parent, std::string_view path) {
    const OpenKey* from = find(parent);
    if (from == nullptr) {
        return Status::InvalidHandle;
    }
    const Status status = note(Action::DeleteKey, *from, path, {}, registry_.deleteKey(from->handle, path));
    attempts_.back().hasSubkeys = status == Status::AccessDenied && hasSubkeys(*from, path);
    return status;
}

Status WriteJournal::deleteTree(const RegistryHandle& parent, std::string_view path) {
    const OpenKey* from = find(parent);
    return from != nullptr ? note(Action::DeleteTree, *from, path, {}, registry_.deleteTree(from->handle, path))
                           : Status::InvalidHandle;
}

Status WriteJournal::enumerateKey(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    const OpenKey* of = find(key);
    return of != nullptr ? registry_.enumerateKey(of->handle, index, name) : Status::InvalidHandle;
}

Status WriteJournal::enumerateValue(const RegistryHandle& key, std::uint32_t index, std::string& name) {
    const OpenKey* of = find(key);
    return of != nullptr ? registry_.enumerateValue(of->handle, index, name) : Status::InvalidHandle;
}

bool WriteJournal::hasSubkeys(const OpenKey& parent, std::string_view path) {
    RegistryHandle key;
    std::string name;
    return registry_.openKeyForReading(parent.handle, path, key) == Status::Success &&
           registry_.enumerateKey(key, 0, name) == Status::Success;
}

}  // namespace korvane
