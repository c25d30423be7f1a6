// One function for each binding kind, in the order of pages/Bindings.h.
#include "docgen/BindingText.h"

#include <algorithm>
#include <iterator>


namespace korvane {
namespace {

constexpr std::string_view kDeletesValue = "the value is deleted";
constexpr std::string_view kNothing = "nothing is written";
// What a control shows if there is no value is mentioned only if it is not the usual empty state.
constexpr std::string_view kWhenMissing = "shown when missing";

void addKeys(BindingText& text, Line line, const KeyPath& key) {
    addKey(line, key.root, key.path, key.created);
    text.places.push_back(line.pieces);
    if (!key.otherOn.empty()) {
        Line other;
        other.words("on " + windowsVersions(key.otherOn) + " in ");
        addKey(other, key.root, key.otherPath, key.otherCreated);
        text.places.push_back(other.pieces);
    }
}

// The places of a value: its key, another key on some versions of Windows, and perhaps a second key, which is never
// shown.
template <typename Kind>
BindingText placesOf(const Kind& kind, ValueType type) {
    Line first;
    if constexpr (requires { kind.alsoName; }) {
        addValue(first, kind.name, kind.alsoName);
    } else {
        addValue(first, kind.name, {});
    }
    first.words(" (").words(typeName(type)).words(") in ");
    BindingText text;
    addKeys(text, first, kind.key);
    if (kind.key.also != nullptr) {
        Line also;
        also.words(kind.key.alsoFirst ? "written also, and before that, in " : "written also in ");
        addKeys(text, also, *kind.key.also);
    }
    return text;
}

// ---- check boxes

template <typename Kind>
BindingText numberFlag(const Kind& kind, std::uint32_t checked, std::uint32_t cleared, bool deletes) {
    BindingText text = placesOf(kind, ValueType::Dword);
    Line line;
    line.state("checked", numberText(checked)).state("cleared");
    deletes ? line.words(kDeletesValue) : line.literal(numberText(cleared));
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const Unbound&) { return {}; }

BindingText describeKind(const DwordFlag& flag) {
    return numberFlag(flag, flag.checked, flag.cleared, flag.clearedDeletes || flag.clearedDeletesByPath);
}

BindingText describeKind(const DwordCheckState& state) { return numberFlag(state, 1, 0, state.clearedDeletes); }

BindingText describeKind(const StringFlag& flag) {
    BindingText text = placesOf(flag, flag.type);
    Line line;
    line.state("checked", flag.checked).state("cleared");
    flag.clearedDeletes ? line.words(kDeletesValue) : line.literal(flag.cleared);
    if (flag.checkedWhenPresent) {
        line.words("; any data shows as checked");
    }
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const BinaryFlag& flag) {
    BindingText text = placesOf(flag, ValueType::Binary);
    Line line;
    line.state("checked", byteText(flag.checked)).state("cleared");
    flag.cleared.empty() ? line.words(kDeletesValue) : line.literal(byteText(flag.cleared));
    if (flag.shown == BinaryFlag::Shown::Present) {
        line.words("; any data shows as checked");
    }
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const SubkeyFlag& flag) {
    Line place;
    place.words("key ").literal(flag.name).words(" in ");
    BindingText text;
    addKeys(text, place, flag.parent);
    Line line;
    line.state(flag.checkedWhenAbsent ? "cleared" : "checked").words("the key is created");
    if (!flag.text.empty()) {
        line.words(", default value (REG_SZ) ").literal(flag.text);
    }
    line.state(flag.checkedWhenAbsent ? "checked" : "cleared");
    line.words(flag.deletesTree ? "the key is deleted with all below it" : "the key is deleted unless it has subkeys");
    if (flag.checkedWhenAbsent) {
        line.state(kWhenMissing).words("checked");
    }
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const MaskBit& mask) {
    BindingText text = placesOf(mask, ValueType::Binary);
    Line line;
    line.words("bit ").literal(maskText(mask.bit)).words(" of byte " + std::to_string(mask.byte) + " of four");
    line.state("checked").words(mask.checkedWhenClear ? "0" : "1");
    line.state("cleared").words(mask.checkedWhenClear ? "1" : "0");
    if (mask.kept != 0xFF) {
        line.words("; every apply clears the bits ").literal(maskText(static_cast<std::uint8_t>(~mask.kept)));
        line.words(" of that byte");
    }
    std::byte missing[4];
    for (unsigned i = 0; i < std::size(missing); ++i) {
        missing[i] = static_cast<std::byte>(mask.whenMissing >> (8 * i));
    }
    line.words("; when missing, applied to ").literal(byteText(missing));
    line.state(kWhenMissing).words(mask.checkedWhenMissing ? "checked" : "cleared");
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const ShellVerbKey& verb) {
    Line place;
    place.words("key ").literal(verb.verb).words(" in ");
    BindingText text;
    addKeys(text, place, verb.parent);
    Line checked;
    checked.state("checked").words("the key is created; its default value (REG_SZ) is ");
    verb.menuTextEdit != 0 ? checked.words("the text of the field") : checked.literal(verb.menuText);
    checked.words(", that of its subkey ").literal("command").words(" is ").literal(verb.commandLine);
    if (!verb.commandLineOn9x.empty()) {
        checked.words(" (on " + windowsVersions(kWindows9x) + " ").literal(verb.commandLineOn9x);
        checked.words("; on Windows Vista and later the same text as the default value above)");
    }
    text.effects.push_back(checked.pieces);
    Line cleared;
    cleared.state("cleared").words("the key is deleted with all below it");
    if (verb.twin) {
        cleared.words(", and so is that in ").literal(below(shortName(verb.twin->root), verb.twin->fullPath()));
        cleared.words("; either shows as checked");
    }
    text.effects.push_back(cleared.pieces);
    return text;
}

BindingText describeKind(const MirroredPolicy& policy) {
    BindingText text = placesOf(policy, ValueType::Sz);
    Line mirror;
    mirror.words("and in ");
    addKeys(text, mirror, policy.mirror);
    Line line;
    line.state("checked", policy.text).state("cleared").words("the value is deleted from the first key, and ");
    const std::string tree = below(below(shortName(policy.mirror.root), policy.mirror.path), policy.deletedTree);
    line.literal(tree).words(" with all below it; shown checked while both have the value");
    text.effects.push_back(line.pieces);
    return text;
}

// ---- edit boxes

std::string_view emptyText(WhenEmpty whenEmpty, bool required, std::string_view written) {
    if (required) {
        return "refused";
    }
    switch (whenEmpty) {
        case WhenEmpty::Deletes: return kDeletesValue;
        case WhenEmpty::WritesNothing: return kNothing;
        case WhenEmpty::WritesEmpty: return written;
    }
    return {};
}

void addFolding(Line& line, std::string_view folder, std::string_view variable) {
    line.words(", in which ").words(folder).words(" is stored as ").literal(variable).words(" and shown as its path");
}

BindingText describeField(const Unbound&, bool) { return {}; }

BindingText describeField(const StringValue& value, bool required) {
    BindingText text = placesOf(value, value.type);
    Line line;
    line.words("the text");
    if (!value.suffix.empty()) {
        line.words(" with ").literal(value.suffix).words(" behind it");
    }
    if (value.withoutQuotes) {
        line.words(" without double quotation marks");
    }
    if (value.folding == Folding::WindowsFolder) {
        addFolding(line, "the Windows folder", "%SystemRoot%");
    } else if (value.folding == Folding::ProfilePrefix) {
        addFolding(line, "the user's profile folder", "%USERPROFILE%");
    }
    line.state("empty").words(emptyText(value.whenEmpty, required, "an empty text"));
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeField(const DwordNumber& number, bool required) {
    BindingText text = placesOf(number, ValueType::Dword);
    Line line;
    line.words("the number, in decimal").state("empty").words(emptyText(number.whenEmpty, required, "0"));
    if (number.minimum) {
        line.words("; below " + std::to_string(*number.minimum) + ": ").words(kNothing);
    }
    text.effects.push_back(line.pieces);
    return text;
}

// ---- combo boxes

std::string dataOf(const NumberEntry& entry) { return numberText(entry.number); }
std::string dataOf(const TextEntry& entry) { return std::string(entry.stored); }
std::string noneData(const DwordChoice& choice) { return numberText(choice.noneNumber); }
std::string noneData(const StringChoice& choice) { return std::string(choice.noneText); }

// The text of an entry; empty for "none".
template <typename Choice>
std::string entryAt(const Choice& choice, int index) {
    if (index == kNoSelection) {
        return {};
    }
    return choice.entries.empty() ? std::to_string(choice.range.first + index)
                                  : std::string(choice.entries[static_cast<std::size_t>(index)].text);
}

// The entries shown for a missing value and for unknown data.
template <typename Choice>
void addUnusualEntries(Line& line, const Choice& choice) {
    const std::string missing = entryAt(choice, choice.initial);
    const std::string unknown = entryAt(choice, choice.unknown);
    if (!missing.empty()) {
        line.state(missing == unknown ? "shown when missing or unknown" : kWhenMissing).words(missing);
    }
    if (!unknown.empty() && missing != unknown) {
        line.state("shown when unknown").words(unknown);
    }
}

template <typename Choice>
BindingText describeChoice(const Choice& choice, ValueType type) {
    BindingText text = placesOf(choice, type);
    Line line;
    if (choice.entries.empty()) {
        line.words("the number, ").words(std::to_string(choice.range.first)).words(" to ");
        line.words(std::to_string(choice.range.last));
    }
    for (const auto& entry : choice.entries) {
        bool deletes = false;
        if constexpr (requires { entry.deletes; }) {
            deletes = entry.deletes;
        }
        line.state(entry.text);
        deletes ? line.words(kDeletesValue) : line.literal(dataOf(entry));
    }
    line.state("no choice");
    switch (choice.whenNone) {
        case WhenNone::Writes: line.literal(noneData(choice)); break;
        case WhenNone::WritesNothing: line.words(kNothing); break;
        case WhenNone::Deletes:
        case WhenNone::DeletesInOpenKey: line.words(kDeletesValue); break;
    }
    addUnusualEntries(line, choice);
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const DwordChoice& choice) { return describeChoice(choice, ValueType::Dword); }
BindingText describeKind(const StringChoice& choice) { return describeChoice(choice, ValueType::Sz); }

BindingText describeKind(const ChoiceEntries& choice) {
    Line line;
    line.words("entries: ");
    for (const PlainEntry& entry : choice.entries) {
        line.words(&entry == choice.entries.data() ? "" : ", ").words(entry.text);
    }
    return {.places = {}, .effects = {line.pieces}};
}

// ---- the colour list

void addColourForms(BindingText& text, std::string_view form) {
    text.effects.push_back({{std::string(form)}});
    text.effects.push_back({{"shown when missing, or not the color of an entry: the entry last shown, at first a random "
                             "one"}});
}

BindingText describeKind(const ColourText& colour) {
    BindingText text = placesOf(colour, ValueType::Sz);
    addColourForms(text, "red, green and blue as decimal numbers with blanks between them");
    return text;
}

BindingText describeKind(const ColourBinary& colour) {
    BindingText text = placesOf(colour, ValueType::Binary);
    addColourForms(text, "four bytes: red, green, blue, 0");
    return text;
}

// ---- lists

BindingText describeRows(const DwordRowChoice& choice, const Table& table) {
    BindingText text = placesOf(choice, ValueType::Dword);
    const std::size_t columns = table.columns.size();
    Line line;
    for (std::size_t row = 0; row * columns < table.cells.size(); ++row) {
        std::string name = "row \"";
        for (const std::string_view cell : table.cells.subspan(row * columns, columns)) {
            name.append(name.back() == '"' ? "" : " ").append(cell);
        }
        line.state(name + '"', numberText(static_cast<std::uint32_t>(row)));
    }
    line.state("no row selected").words(kNothing).words("; the stored number is not shown");
    text.effects.push_back(line.pieces);
    return text;
}

template <typename Binding>
BindingText describeBinding(const Binding& binding) {
    return std::visit([](const auto& kind) { return describeKind(kind); }, binding);
}

}  // namespace

BindingText unlessTold(const Tweak& tweak, BindingText binding) {
    if (binding.places.empty()) {
        return binding;
    }
    const auto isNamed = [&](const TextPiece& piece) {
        return piece.literal && tweak.registry.find('`' + piece.text + '`') != std::string_view::npos;
    };
    const TextLine& place = binding.places.front();
    const auto end = std::ranges::find_if(place, [](const TextPiece& piece) { return piece.text.ends_with(" in "); });
    return std::any_of(place.begin(), end, isNamed) ? BindingText() : binding;
}

BindingText describe(const CheckBox& box) {
    BindingText text = describeBinding(box.binding);
    if (box.onVersions.empty()) {
        return text;
    }
    // For each version the places, followed by what is written there.
    BindingText all;
    const auto append = [&](const std::string& versions, const BindingText& part) {
        for (const TextLine& place : part.places) {
            all.places.push_back({{versions}});
            all.places.back().insert(all.places.back().end(), place.begin(), place.end());
        }
        all.places.insert(all.places.end(), part.effects.begin(), part.effects.end());
    };
    for (const VersionedBinding& versioned : box.onVersions) {
        append("on " + windowsVersions(versioned.on) + ": ", describeBinding(versioned.binding));
    }
    append("on any other Windows: ", text);
    return all;
}

BindingText describe(const FixedText& fixed) {
    BindingText text = placesOf(fixed, ValueType::Sz);
    Line line;
    line.state("every apply", fixed.text);
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describe(const Field& field) {
    return std::visit([&](const auto& kind) { return describeField(kind, field.required != Alert::None); }, field.binding);
}

BindingText describe(const Choice& choice) { return describeBinding(choice.binding); }
BindingText describe(const ColourField& colour) { return describeBinding(colour.binding); }

BindingText describe(const Table& table) {
    const auto* rows = std::get_if<DwordRowChoice>(&table.binding);
    return rows == nullptr ? BindingText() : describeRows(*rows, table);  // what else is listed, the row's text tells
}

}  // namespace korvane
