// Check boxes: the show and the apply of each kind side by side.
#include "pages/PageContext.h"

#include <algorithm>
#include <array>

namespace korvane {
namespace {

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&, WriteRound) {}

void removeFrom(PageContext& context, const OpenedKey& key, std::string_view name) {
    ignoreFailure(context.platform.registry.deleteValue(key.handle(), {}, name));
}

// ---- DwordFlag

void show(PageContext& context, int control, const DwordFlag& flag) {
    const OpenedKey key = context.open(flag.key);
    if (!key) {
        return;
    }
    const auto agrees = [&](std::string_view name) {
        const auto value = readValue(context.platform.registry, key.handle(), name);
        return value && value->number() == flag.checked;
    };
    if (agrees(flag.name) && (flag.alsoName.empty() || agrees(flag.alsoName))) {
        context.page.setCheck(control, 1);
    }
}

void writeOrDelete(PageContext& context, const OpenedKey& key, std::string_view name, bool deletes,
                   std::uint32_t number) {
    if (deletes) {
        removeFrom(context, key, name);
    } else {
        writeNumber(context.platform.registry, key, name, number);
    }
}

void apply(PageContext& context, int control, const DwordFlag& flag, WriteRound round) {
    const KeyPath* path = flag.key.writtenIn(round);
    const bool checked = context.checked(control);
    if (path != nullptr && !checked && flag.clearedDeletesByPath) {
        context.remove(*path, flag.name);
        return;
    }
    const OpenedKey key = context.openForWriting(path);
    if (!key) {
        return;
    }
    const bool deletes = !checked && flag.clearedDeletes;
    const std::uint32_t number = checked ? flag.checked : flag.cleared;
    writeOrDelete(context, key, flag.name, deletes, number);
    if (!flag.alsoName.empty()) {
        writeOrDelete(context, key, flag.alsoName, deletes, number);
    }
}

// ---- DwordCheckState

void show(PageContext& context, int control, const DwordCheckState& state) {
    if (const auto value = context.read(state.key, state.name)) {
        context.page.setCheck(control, value->number());
    }
}

void apply(PageContext& context, int control, const DwordCheckState& state, WriteRound round) {
    if (const OpenedKey key = context.openForWriting(state.key.writtenIn(round))) {
        const bool checked = context.checked(control);
        writeOrDelete(context, key, state.name, !checked && state.clearedDeletes, checked ? 1 : 0);
    }
}

// ---- StringFlag

void show(PageContext& context, int control, const StringFlag& flag) {
    const auto value = context.read(flag.key, flag.name);
    if (value && (flag.checkedWhenPresent || matches(value->text(), flag.checked, flag.compare))) {
        context.page.setCheck(control, 1);
    }
}

void apply(PageContext& context, int control, const StringFlag& flag, WriteRound round) {
    const KeyPath* path = flag.key.writtenIn(round);
    const bool checked = context.checked(control);
    if (path != nullptr && !checked && flag.clearedDeletes) {
        context.remove(*path, flag.name);
    } else if (const OpenedKey key = context.openForWriting(path)) {
        writeText(context.platform.registry, key, flag.name, checked ? flag.checked : flag.cleared, flag.type);
    }
}

// ---- BinaryFlag

void show(PageContext& context, int control, const BinaryFlag& flag) {
    StoredValue wanted;
    wanted.size = flag.checked.size();
    std::ranges::copy(flag.checked, wanted.data.begin());
    const auto value = context.read(flag.key, flag.name);
    if (value && (flag.shown == BinaryFlag::Shown::Present || value->number() == wanted.number())) {
        context.page.setCheck(control, 1);
    }
}

void apply(PageContext& context, int control, const BinaryFlag& flag, WriteRound round) {
    const OpenedKey key = context.openForWriting(flag.key.writtenIn(round));
    if (!key) {
        return;
    }
    const std::span<const std::byte> data = context.checked(control) ? flag.checked : flag.cleared;
    if (data.empty()) {
        removeFrom(context, key, flag.name);
    } else {
        writeBinary(context.platform.registry, key, flag.name, data);
    }
}

// ---- SubkeyFlag

bool present(PageContext& context, const SubkeyFlag& flag) {
    const KeyPath parent = flag.parent.on(context.version);
    const std::string path = parent.fullPath() + '\\' + std::string(flag.name);
    const OpenedKey key = openKey(context.platform.registry, parent.root, path);
    if (!key || !flag.shownByText) {
        return static_cast<bool>(key);
    }
    const auto text = readValue(context.platform.registry, key.handle(), "");
    return text && matches(text->text(), flag.text, flag.compare);
}

void show(PageContext& context, int control, const SubkeyFlag& flag) {
    context.page.setCheck(control, present(context, flag) != flag.checkedWhenAbsent ? 1 : 0);
}

void apply(PageContext& context, int control, const SubkeyFlag& flag, WriteRound round) {
    Registry& registry = context.platform.registry;
    const OpenedKey parent = context.openForWriting(flag.parent.writtenIn(round));
    if (!parent) {
        return;
    }
    if (context.checked(control) == flag.checkedWhenAbsent) {
        ignoreFailure(flag.deletesTree ? registry.deleteTree(parent.handle(), flag.name)
                                       : registry.deleteKey(parent.handle(), flag.name));
        return;
    }
    RegistryHandle made;
    if (registry.createKey(parent.handle(), flag.name, made) == Status::Success && !flag.text.empty()) {
        ignoreFailure(registry.setValue(made, "", ValueType::Sz, std::as_bytes(std::span(flag.text))));
    }
}

// ---- MaskBit

void show(PageContext& context, int control, const MaskBit& mask) {
    const auto value = context.read(mask.key, mask.name);
    if (!value) {
        context.page.setCheck(control, mask.checkedWhenMissing ? 1 : 0);
        return;
    }
    const bool bitSet = (value->number() >> (8 * mask.byte) & mask.bit) != 0;
    context.page.setCheck(control, bitSet != mask.checkedWhenClear ? 1 : 0);
}

void apply(PageContext& context, int control, const MaskBit& mask, WriteRound round) {
    const OpenedKey key = context.openForWriting(mask.key.writtenIn(round));
    if (!key) {
        return;
    }
    const auto value = readValue(context.platform.registry, key.handle(), mask.name);
    const std::uint32_t old = value ? value->number() : mask.whenMissing;
    std::array<std::byte, 4> data;
    for (std::size_t i = 0; i < data.size(); ++i) {
        data[i] = static_cast<std::byte>(old >> (8 * i));
    }
    const auto bit = static_cast<std::byte>(mask.bit);
    std::byte& byte = data[mask.byte];
    byte &= static_cast<std::byte>(mask.kept);
    byte = context.checked(control) != mask.checkedWhenClear ? byte | bit : byte & ~bit;
    writeBinary(context.platform.registry, key, mask.name, data);
}

// ---- ShellVerbKey

std::string verbPath(const KeyPath& parent, const ShellVerbKey& verb) {
    return parent.fullPath() + '\\' + std::string(verb.verb);
}

void show(PageContext& context, int control, const ShellVerbKey& verb) {
    OpenedKey key = openKey(context.platform.registry, verb.parent.root, verbPath(verb.parent, verb));
    if (!key && verb.twin) {
        key = openKey(context.platform.registry, verb.twin->root, verbPath(*verb.twin, verb));
    }
    if (!key) {
        return;
    }
    if (verb.menuTextEdit == 0) {
        context.page.setCheck(control, 1);
    } else if (const auto menuText = readValue(context.platform.registry, key.handle(), "")) {
        context.page.setCheck(control, 1);
        context.page.setText(verb.menuTextEdit, menuText->text());
    }
}

// Intended: on an unknown version of Windows the menu text is the command line too.
std::string commandLine(PageContext& context, const ShellVerbKey& verb, const std::string& menuText) {
    if (verb.commandLineOn9x.empty() || kWindowsNT.contains(context.version)) {
        return std::string(verb.commandLine);
    }
    return kWindows9x.contains(context.version) ? std::string(verb.commandLineOn9x) : menuText;
}

void createVerb(PageContext& context, const ShellVerbKey& verb, const std::string& menuText) {
    Registry& registry = context.platform.registry;
    const std::string path = verb.parent.fullPath();
    const OpenedKey key = openOrCreate(registry, {verb.parent.root, path, verb.verb});
    if (!key) {
        return;
    }
    writeText(registry, key, "", menuText);
    const std::string ownPath = verbPath(verb.parent, verb);
    const OpenedKey command = openOrCreate(registry, {verb.parent.root, ownPath, "command"});
    if (command) {
        context.stampBeforeWrite();
        writeText(registry, command, "", commandLine(context, verb, menuText));
    }
}

void deleteVerb(PageContext& context, const ShellVerbKey& verb) {
    Registry& registry = context.platform.registry;
    if (verb.twin && !context.open(verb.parent)) {
        return;
    }
    deleteTree(registry, verb.parent.root, verbPath(verb.parent, verb));
    if (verb.twin) {
        deleteTree(registry, verb.twin->root, verbPath(*verb.twin, verb));
    }
}

void apply(PageContext& context, int control, const ShellVerbKey& verb, WriteRound round) {
    if (round != WriteRound::First) {
        return;
    }
    if (!context.checked(control)) {
        deleteVerb(context, verb);
        return;
    }
    const std::string menuText =
        verb.menuTextEdit == 0 ? std::string(verb.menuText) : context.page.text(verb.menuTextEdit);
    if (menuText.empty() && verb.requiredAlert != Alert::None) {
        context.page.setCheck(control, 0);
        context.host.alert(verb.requiredAlert);
        return;
    }
    createVerb(context, verb, menuText);
}

// ---- MirroredPolicy

void show(PageContext& context, int control, const MirroredPolicy& policy) {
    if (context.read(policy.key, policy.name) && context.read(policy.mirror, policy.name)) {
        context.page.setCheck(control, 1);
    }
}

void apply(PageContext& context, int control, const MirroredPolicy& policy, WriteRound round) {
    const KeyPath& place = round == WriteRound::First ? policy.key : policy.mirror;
    if (context.checked(control)) {
        if (const OpenedKey key = context.openForWriting(place)) {
            writeText(context.platform.registry, key, policy.name, policy.text);
        }
    } else if (round == WriteRound::First) {
        context.remove(place, policy.name);
    } else {
        const std::string tree = std::string(place.path) + '\\' + std::string(policy.deletedTree);
        deleteTree(context.platform.registry, place.root, tree);
    }
}

}  // namespace

void showCheck(PageContext& context, int control, const CheckBinding& binding) {
    std::visit([&](const auto& kind) { show(context, control, kind); }, binding);
}

void applyCheck(PageContext& context, int control, const CheckBinding& binding, WriteRound round) {
    std::visit([&](const auto& kind) { apply(context, control, kind, round); }, binding);
}

}  // namespace korvane
