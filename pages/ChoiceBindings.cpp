// Combo boxes and tables of choices: the show and the apply of each kind side
// by side.
#include "pages/PageContext.h"

#include <charconv>

namespace korvane {
namespace {

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&, WriteRound) {}
void fill(PageContext&, int, const Unbound&) {}

// ---- entries

void fillEntries(PageContext& context, int combo, const auto& entries) {
    int index = 0;
    for (const auto& entry : entries) {
        context.page.addComboEntry(combo, context.translatedEntry(combo, index++, entry.text));
    }
}

// Long lists are filled with redrawing off.
void fillRange(PageContext& context, int combo, const NumberRange& range) {
    constexpr std::size_t kBytesPerEntry = 6;
    context.page.setRedraw(combo, false);
    context.page.reserveCombo(combo, range.size(), kBytesPerEntry * static_cast<std::size_t>(range.size()));
    char text[12];
    for (int number = range.first; number <= range.last; ++number) {
        const auto end = std::to_chars(text, text + sizeof text, number).ptr;
        context.page.addComboEntry(combo, {text, end});
    }
    context.page.setRedraw(combo, true);
}

template <typename Choice>
void fillChoiceOf(PageContext& context, int combo, const Choice& choice) {
    context.page.resetCombo(combo);
    if (choice.entries.empty()) {
        fillRange(context, combo, choice.range);
    } else {
        fillEntries(context, combo, choice.entries);
    }
    context.page.selectComboEntry(combo, choice.initial);
}

void fill(PageContext& context, int combo, const DwordChoice& choice) { fillChoiceOf(context, combo, choice); }
void fill(PageContext& context, int combo, const StringChoice& choice) { fillChoiceOf(context, combo, choice); }

void fill(PageContext& context, int combo, const ChoiceEntries& choice) {
    context.page.resetCombo(combo);
    fillEntries(context, combo, choice.entries);
    context.page.selectComboEntry(combo, kNoSelection);
}

template <typename Choice>
int sizeOf(const Choice& choice) {
    return choice.entries.empty() ? choice.range.size() : static_cast<int>(choice.entries.size());
}

// The first entry for the stored value, else `unknown`.
int indexOf(const DwordChoice& choice, std::uint32_t number) {
    for (int index = 0; index < sizeOf(choice); ++index) {
        if (choice.entries.empty() ? number == static_cast<std::uint32_t>(choice.range.first + index)
                                   : !choice.entries[static_cast<std::size_t>(index)].deletes &&
                                         number == choice.entries[static_cast<std::size_t>(index)].number) {
            return index;
        }
    }
    return choice.unknown;
}

int indexOf(const StringChoice& choice, const std::string& text) {
    for (int index = 0; index < sizeOf(choice); ++index) {
        if (choice.entries.empty()
                ? decimalNumber(text) == choice.range.first + index
                : matches(text, choice.entries[static_cast<std::size_t>(index)].stored, choice.compare)) {
            return index;
        }
    }
    return choice.unknown;
}

// ---- DwordChoice

void show(PageContext& context, int combo, const DwordChoice& choice) {
    if (const auto value = context.read(choice.key, choice.name)) {
        context.page.selectComboEntry(combo, indexOf(choice, value->number()));
    }
}

// True if the combo box has no choice and nothing is left to write.
bool handledWithoutSelection(PageContext& context, const auto& choice, const KeyPath& path) {
    switch (choice.whenNone) {
        case WhenNone::Writes: return false;
        case WhenNone::WritesNothing: break;
        case WhenNone::Deletes: context.remove(path, choice.name); break;
        case WhenNone::DeletesInOpenKey:
            if (const OpenedKey key = context.openForWriting(path)) {
                ignoreFailure(context.platform.registry.deleteValue(key.handle(), {}, choice.name));
            }
            break;
    }
    return true;
}

std::uint32_t numberOf(const DwordChoice& choice, int index) {
    if (index < 0) {
        return choice.noneNumber;
    }
    return choice.entries.empty() ? static_cast<std::uint32_t>(choice.range.first + index)
                                  : choice.entries[static_cast<std::size_t>(index)].number;
}

void apply(PageContext& context, int combo, const DwordChoice& choice, WriteRound round) {
    const KeyPath* path = choice.key.writtenIn(round);
    const int index = context.page.comboSelection(combo);
    if (path == nullptr || index >= sizeOf(choice) ||
        (index < 0 && handledWithoutSelection(context, choice, *path))) {
        return;
    }
    if (index >= 0 && !choice.entries.empty() && choice.entries[static_cast<std::size_t>(index)].deletes) {
        context.remove(*path, choice.name);
        return;
    }
    if (const OpenedKey key = context.openForWriting(path)) {
        writeNumber(context.platform.registry, key, choice.name, numberOf(choice, index));
    }
}

// ---- StringChoice

void show(PageContext& context, int combo, const StringChoice& choice) {
    if (const auto value = context.read(choice.key, choice.name)) {
        context.page.selectComboEntry(combo, indexOf(choice, value->text()));
    }
}

std::string textOf(const StringChoice& choice, int index) {
    if (index < 0) {
        return std::string(choice.noneText);
    }
    return choice.entries.empty() ? std::to_string(choice.range.first + index)
                                  : std::string(choice.entries[static_cast<std::size_t>(index)].stored);
}

void apply(PageContext& context, int combo, const StringChoice& choice, WriteRound round) {
    const KeyPath* path = choice.key.writtenIn(round);
    const int index = context.page.comboSelection(combo);
    if (path == nullptr || index >= sizeOf(choice) ||
        (index < 0 && handledWithoutSelection(context, choice, *path))) {
        return;
    }
    if (const OpenedKey key = context.openForWriting(path)) {
        writeText(context.platform.registry, key, choice.name, textOf(choice, index));
    }
}

// ---- ChoiceEntries: the row's own routines read and write

void show(PageContext&, int, const ChoiceEntries&) {}
void apply(PageContext&, int, const ChoiceEntries&, WriteRound) {}

// ---- DwordRowChoice

void show(PageContext&, int, const DwordRowChoice&) {}

void apply(PageContext& context, int list, const DwordRowChoice& choice) {
    const int row = context.page.selectedRow(list);
    if (row < 0) {
        return;
    }
    if (const OpenedKey key = context.openForWriting(choice.key)) {
        writeNumber(context.platform.registry, key, choice.name, static_cast<std::uint32_t>(row));
    }
}

// ---- ApplicationRows

bool counts(Registry& registry, const ApplicationRows& rows, const RegistryHandle& application,
            std::string_view name) {
    if (rows.counts == ApplicationRows::Counts::NamedExe) {
        return name.find(".exe") != std::string_view::npos || name.find(".EXE") != std::string_view::npos;
    }
    RegistryHandle shell;
    return application && registry.openKey(application, "shell", shell) == Status::Success;
}

// Calls visit(key of the application, name, row) for each application that counts; the key is not open if it cannot be
// opened.
template <typename Visit>
void forEachApplication(PageContext& context, const ApplicationRows& rows, Visit visit) {
    Registry& registry = context.platform.registry;
    const OpenedKey applications = openKey(registry, Root::ClassesRoot, "Applications");
    if (!applications) {
        return;
    }
    int row = 0;
    std::string name;
    for (std::uint32_t i = 0; registry.enumerateKey(applications.handle(), i, name) == Status::Success; ++i) {
        RegistryHandle application;
        ignoreFailure(registry.openKey(applications.handle(), name, application));
        if (counts(registry, rows, application, name)) {
            visit(application, name, row++);
        }
    }
}

void show(PageContext& context, int list, const ApplicationRows& rows) {
    forEachApplication(context, rows, [&](const RegistryHandle& application, const std::string& name, int row) {
        context.page.insertRow(list, row, name);
        const bool offered = application && !readValue(context.platform.registry, application, rows.name);
        context.page.setRowCheck(list, row, offered);
    });
}

void apply(PageContext& context, int list, const ApplicationRows& rows) {
    Registry& registry = context.platform.registry;
    forEachApplication(context, rows, [&](const RegistryHandle& application, const std::string&, int row) {
        if (context.page.rowCheck(list, row)) {
            ignoreFailure(registry.deleteValue(application, {}, rows.name));
        } else {
            ignoreFailure(registry.setValue(application, rows.name, ValueType::Sz, {}));
        }
    });
}

}  // namespace

void fillChoice(PageContext& context, int combo, const ChoiceBinding& binding) {
    std::visit([&](const auto& kind) { fill(context, combo, kind); }, binding);
}

void showChoice(PageContext& context, int combo, const ChoiceBinding& binding) {
    std::visit([&](const auto& kind) { show(context, combo, kind); }, binding);
}

void applyChoice(PageContext& context, int combo, const ChoiceBinding& binding, WriteRound round) {
    std::visit([&](const auto& kind) { apply(context, combo, kind, round); }, binding);
}

void showTable(PageContext& context, int list, const TableBinding& binding) {
    std::visit([&](const auto& kind) { show(context, list, kind); }, binding);
}

void applyTable(PageContext& context, int list, const TableBinding& binding) {
    std::visit([&](const auto& kind) { apply(context, list, kind); }, binding);
}

}  // namespace korvane
