// Edit boxes, combo boxes and tables of choices: the show and the apply of each
// kind side by side.
#include "pages/PageContext.h"

namespace korvane {
namespace {

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&) {}
void fill(PageContext&, int, const Unbound&) {}

// ---- StringValue

void show(PageContext& context, int edit, const StringValue& binding) {
    if (const auto value = readValue(context.platform.registry, binding.key, binding.name)) {
        context.page.setText(edit, value->text());
    }
}

void apply(PageContext& context, int edit, const StringValue& binding) {
    const std::string text = context.page.text(edit);
    if (text.empty() && binding.whenEmpty == WhenEmpty::WritesNothing) {
        return;
    }
    if (text.empty() && binding.whenEmpty == WhenEmpty::Deletes) {
        deleteValue(context.platform.registry, binding.key, binding.name);
        return;
    }
    if (const OpenedKey key = context.openForWriting(binding.key)) {
        writeText(context.platform.registry, key, binding.name, text, binding.type);
    }
}

// ---- DwordChoice and StringChoice

template <typename Binding>
void fillEntries(PageContext& context, int combo, const Binding& binding) {
    context.page.resetCombo(combo);
    int index = 0;
    for (const auto& entry : binding.entries) {
        context.page.addComboEntry(combo, context.translatedEntry(combo, index++, entry.text));
    }
    context.page.selectComboEntry(combo, binding.initial);
}

void fill(PageContext& context, int combo, const DwordChoice& choice) { fillEntries(context, combo, choice); }
void fill(PageContext& context, int combo, const StringChoice& choice) { fillEntries(context, combo, choice); }

// Selects the first entry that the predicate accepts, and `unknown` when there is none.
template <typename Entries, typename Predicate>
void selectEntry(PageContext& context, int combo, const Entries& entries, int unknown, Predicate accepts) {
    int index = 0;
    for (const auto& entry : entries) {
        if (accepts(entry)) {
            context.page.selectComboEntry(combo, index);
            return;
        }
        ++index;
    }
    context.page.selectComboEntry(combo, unknown);
}

void show(PageContext& context, int combo, const DwordChoice& choice) {
    if (const auto value = readValue(context.platform.registry, choice.key, choice.name)) {
        selectEntry(context, combo, choice.entries, choice.unknown, [&](const NumberEntry& entry) {
            return !entry.deletes && entry.number == value->number();
        });
    }
}

void show(PageContext& context, int combo, const StringChoice& choice) {
    if (const auto value = readValue(context.platform.registry, choice.key, choice.name)) {
        const std::string text = value->text();
        selectEntry(context, combo, choice.entries, choice.unknown,
                    [&](const TextEntry& entry) { return matches(text, entry.stored, choice.compare); });
    }
}

// The selected entry; null for none, and for an index that the combo should not have.
template <typename Binding>
auto* selectedEntry(PageContext& context, int combo, const Binding& choice) {
    const int index = context.page.comboSelection(combo);
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < choice.entries.size();
    return inside ? &choice.entries[static_cast<std::size_t>(index)] : nullptr;
}

void apply(PageContext& context, int combo, const DwordChoice& choice) {
    const NumberEntry* entry = selectedEntry(context, combo, choice);
    if (entry == nullptr && choice.whenNone == WhenNone::WritesNothing) {
        return;
    }
    if (entry == nullptr ? choice.whenNone == WhenNone::Deletes : entry->deletes) {
        deleteValue(context.platform.registry, choice.key, choice.name);
        return;
    }
    if (const OpenedKey key = context.openForWriting(choice.key)) {
        writeNumber(context.platform.registry, key, choice.name, entry == nullptr ? choice.noneNumber : entry->number);
    }
}

void apply(PageContext& context, int combo, const StringChoice& choice) {
    const TextEntry* entry = selectedEntry(context, combo, choice);
    if (entry == nullptr && choice.whenNone == WhenNone::WritesNothing) {
        return;
    }
    if (entry == nullptr && choice.whenNone == WhenNone::Deletes) {
        deleteValue(context.platform.registry, choice.key, choice.name);
        return;
    }
    if (const OpenedKey key = context.openForWriting(choice.key)) {
        writeText(context.platform.registry, key, choice.name, entry == nullptr ? choice.noneText : entry->stored);
    }
}

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

void showField(PageContext& context, int edit, const FieldBinding& binding) {
    std::visit([&](const auto& kind) { show(context, edit, kind); }, binding);
}

void applyField(PageContext& context, int edit, const FieldBinding& binding) {
    std::visit([&](const auto& kind) { apply(context, edit, kind); }, binding);
}

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
