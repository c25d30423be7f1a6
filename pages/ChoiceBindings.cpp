// Combo boxes and tables of choices: the show and the apply of each kind side
// by side.
#include "pages/PageContext.h"

#include <charconv>

namespace korvane {
namespace {

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&) {}
void fill(PageContext&, int, const Unbound&) {}

// ---- entries

void fillEntries(PageContext& context, int combo, const auto& entries) {
    int index = 0;
    for (const auto& entry : entries) {
        context.page.addComboEntry(combo, context.translatedEntry(combo, index++, entry.text));
    }
}

// Long lists are filled without repainting in between.
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

// The first entry that the stored value selects; `unknown` without one.
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

void removeFrom(PageContext& context, const KeyPath& path, std::string_view name) {
    if (const OpenedKey key = context.openForWriting(path)) {
        ignoreFailure(context.platform.registry.deleteValue(key.handle(), {}, name));
    }
}

// True when nothing is left to write for a combo without a selection.
template <typename Choice>
bool handledWithoutSelection(PageContext& context, const Choice& choice) {
    switch (choice.whenNone) {
        case WhenNone::Writes: return false;
        case WhenNone::WritesNothing: break;
        case WhenNone::Deletes: context.remove(choice.key, choice.name); break;
        case WhenNone::DeletesInOpenKey: removeFrom(context, choice.key, choice.name); break;
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

void apply(PageContext& context, int combo, const DwordChoice& choice) {
    const int index = context.page.comboSelection(combo);
    if (index >= sizeOf(choice) || (index < 0 && handledWithoutSelection(context, choice))) {
        return;
    }
    if (index >= 0 && !choice.entries.empty() && choice.entries[static_cast<std::size_t>(index)].deletes) {
        context.remove(choice.key, choice.name);
        return;
    }
    if (const OpenedKey key = context.openForWriting(choice.key)) {
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

void write(PageContext& context, const StringChoice& choice, const KeyPath& path, const std::string& text) {
    if (const OpenedKey key = context.openForWriting(path)) {
        writeText(context.platform.registry, key, choice.name, text);
    }
}

void apply(PageContext& context, int combo, const StringChoice& choice) {
    const int index = context.page.comboSelection(combo);
    if (index >= sizeOf(choice) || (index < 0 && handledWithoutSelection(context, choice))) {
        return;
    }
    const std::string text = textOf(choice, index);
    write(context, choice, choice.key, text);
    if (choice.also) {
        write(context, choice, *choice.also, text);
    }
}

// ---- ChoiceEntries: the row's own routines read and write

void show(PageContext&, int, const ChoiceEntries&) {}
void apply(PageContext&, int, const ChoiceEntries&) {}

// ---- DwordRowChoice

void apply(PageContext& context, int list, const DwordRowChoice& choice) {
    const int row = context.page.selectedRow(list);
    if (row < 0) {
        return;
    }
    if (const OpenedKey key = context.openForWriting(choice.key)) {
        writeNumber(context.platform.registry, key, choice.name, static_cast<std::uint32_t>(row));
    }
}

}  // namespace

void fillChoice(PageContext& context, int combo, const ChoiceBinding& binding) {
    std::visit([&](const auto& kind) { fill(context, combo, kind); }, binding);
}

void showChoice(PageContext& context, int combo, const ChoiceBinding& binding) {
    std::visit([&](const auto& kind) { show(context, combo, kind); }, binding);
}

void applyChoice(PageContext& context, int combo, const ChoiceBinding& binding) {
    std::visit([&](const auto& kind) { apply(context, combo, kind); }, binding);
}

void applyTable(PageContext& context, int list, const TableBinding& binding) {
    std::visit([&](const auto& kind) { apply(context, list, kind); }, binding);
}

}  // namespace korvane
