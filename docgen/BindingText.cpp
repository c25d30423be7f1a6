// One function for each binding kind, side by side as in the engine.
#include "docgen/BindingText.h"

#include <algorithm>
#include <charconv>

namespace korvane {
namespace {

std::string_view shortName(Root root) {
    switch (root) {
        case Root::ClassesRoot: return "HKCR";
        case Root::CurrentUser: return "HKCU";
        case Root::LocalMachine: return "HKLM";
        case Root::Users: return "HKU";
    }
    return {};
}

std::string_view typeName(ValueType type) {
    switch (type) {
        case ValueType::Sz: return "REG_SZ";
        case ValueType::ExpandSz: return "REG_EXPAND_SZ";
        case ValueType::Binary: return "REG_BINARY";
        case ValueType::Dword: return "REG_DWORD";
        default: return {};
    }
}

std::string below(std::string_view key, std::string_view path) {
    std::string result(key);
    if (!path.empty()) {
        result.append("\\").append(path);
    }
    return result;
}

// Large numbers are masks, codes and the -1 of "nothing": their digits say more in hexadecimal.
std::string numberText(std::uint32_t number) {
    constexpr std::uint32_t kFirstHexadecimal = 0x10000;
    const bool hexadecimal = number >= kFirstHexadecimal;
    char digits[12];
    char* const end = std::to_chars(digits, digits + sizeof digits, number, hexadecimal ? 16 : 10).ptr;
    std::transform(digits, end, digits, [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return (hexadecimal ? "0x" : "") + std::string(digits, end);
}

std::string byteText(std::span<const std::byte> data) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string result;
    for (const std::byte byte : data) {
        result += result.empty() ? "" : " ";
        result += kDigits[std::to_integer<std::size_t>(byte >> 4)];
        result += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
    }
    return result;
}

// ---- pieces

// A line that grows: words, and literal parts between them.
struct Line {
    TextLine pieces;

    Line& words(std::string_view text) { return add(text, false); }
    Line& literal(std::string_view text) { return text.empty() ? words("an empty text") : add(text, true); }
    // The effects of a control's states stand in one line.
    Line& state(std::string_view name) { return words(pieces.empty() ? "" : "; ").words(name).words(": "); }
    Line& state(std::string_view name, std::string_view data) { return state(name).literal(data); }

private:
    Line& add(std::string_view text, bool literal) {
        if (!text.empty()) {
            pieces.push_back({std::string(text), literal});
        }
        return *this;
    }
};

constexpr std::string_view kDeletesValue = "the value is deleted";
constexpr std::string_view kNothing = "nothing is written";

// "HKCU\Console", and whether an apply makes it.
void addKey(Line& line, Root root, std::string_view path, std::string_view created) {
    const std::string existing = below(shortName(root), path);
    line.literal(below(existing, created));
    if (created.empty()) {
        line.words(", opened");
    } else if (path.empty()) {
        line.words(", created");
    } else {
        line.words(", created below ").literal(existing);
    }
}

void addValue(Line& line, std::string_view name, std::string_view alsoName) {
    if (name.empty()) {
        line.words("default value");
    } else {
        line.literal(name);
    }
    if (!alsoName.empty()) {
        line.words(" and ").literal(alsoName);
    }
}

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

// Where a kind keeps its value: in its key, on some versions of Windows elsewhere, and perhaps in a second key too.
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
        also.words(kind.key.alsoFirst ? "and before that in " : "and in ");
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
    text.effects.push_back(line.pieces);
    return text;
}

BindingText describeKind(const MaskBit& mask) {
    BindingText text = placesOf(mask, ValueType::Binary);
    const auto bit = static_cast<std::byte>(mask.bit);
    Line line;
    line.words("bit ").literal(byteText({&bit, 1})).words(" of byte ").literal(numberText(mask.byte));
    line.words(" of four").state("checked").words(mask.checkedWhenClear ? "0" : "1");
    line.state("cleared").words(mask.checkedWhenClear ? "1" : "0");
    if (mask.kept != 0xFF) {
        const auto lost = static_cast<std::byte>(~mask.kept & 0xFF);
        line.words("; the bits ").literal(byteText({&lost, 1})).words(" of that byte always become 0");
    }
    if (mask.whenMissing != 0) {
        line.words("; without the value ").literal(numberText(mask.whenMissing)).words(" counts");
    }
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
        checked.words(" (on " + windowsVersions(kWindows9x) + " ").literal(verb.commandLineOn9x).words(")");
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
        line.words(", the Windows folder in it as ").literal("%SystemRoot%");
    } else if (value.folding == Folding::ProfilePrefix) {
        line.words(", the user's profile folder in it as ").literal("%USERPROFILE%");
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

BindingText describeKind(const ColourText& colour) {
    BindingText text = placesOf(colour, ValueType::Sz);
    text.effects.push_back({{"red, green and blue as decimal numbers with blanks between them"}});
    return text;
}

BindingText describeKind(const ColourBinary& colour) {
    BindingText text = placesOf(colour, ValueType::Binary);
    text.effects.push_back({{"four bytes: red, green, blue, 0"}});
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
    line.state("no row selected").words(kNothing);
    text.effects.push_back(line.pieces);
    return text;
}

template <typename Binding>
BindingText describeBinding(const Binding& binding) {
    return std::visit([](const auto& kind) { return describeKind(kind); }, binding);
}

}  // namespace

BindingText describe(const CheckBox& box) {
    BindingText text = describeBinding(box.binding);
    if (box.onVersions.empty()) {
        return text;
    }
    // Of each version the places, and right behind them what is written there.
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

TextLine markedText(std::string_view text) {
    Line line;
    bool literal = false;
    for (std::size_t start = 0; start <= text.size(); literal = !literal) {
        const std::size_t end = std::min(text.find('`', start), text.size());
        const std::string_view part = text.substr(start, end - start);
        literal ? line.literal(part) : line.words(part);
        start = end + 1;
    }
    return line.pieces;
}

std::string windowsVersions(VersionSet versions) {
    struct Named {
        VersionSet version;
        std::string_view name;
    };
    constexpr Named kVersions[] = {{kWin95, "95"},    {kWin98, "98"},     {kWinMe, "Me"},
                                   {kWinNT4, "NT 4"}, {kWin2000, "2000"}, {kWinXP, "XP"}};
    std::string text;
    for (const Named& named : kVersions) {
        if ((versions | named.version) == versions) {
            text.append(text.empty() ? "Windows " : ", ").append(named.name);
        }
    }
    return text;
}

std::string acceptedBy(const Gate& gate) {
    if (!gate.refused.empty()) {
        return "Every Windows but " + windowsVersions(gate.refused).substr(std::string_view("Windows ").size());
    }
    return gate.accepted.empty() ? "Every Windows" : windowsVersions(gate.accepted);
}

}  // namespace korvane
