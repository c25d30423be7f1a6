// The kinds of binding: what a control of a page stands for in the registry. A kind
// holds only what it needs; what varies between tweaks is a named field. The show
// and the apply of a kind stand side by side in the .cpp files of this folder.
#pragma once

#include "pages/Alerts.h"
#include "pages/RegistryAccess.h"
#include "text/CaseFolding.h"
#include "text/ReplaceAll.h"
#include "platform/DialogControls.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace korvane {

class PageContext;

// A control that the tweak's own routines handle.
struct Unbound {};

// ---- check boxes -------------------------------------------------------------------------------------------------

// A number that means checked; any other number, or none, means cleared.
struct DwordFlag {
    KeyPath key;
    std::string_view name;
    std::uint32_t checked = 1;
    std::uint32_t cleared = 0;
    bool clearedDeletes = false;
    bool clearedDeletesByPath = false;  // deletes without opening, and so without making, the key
    // A second value of the same key. It is written like the first and after it, and the box is checked only if both
    // agree (the second is read only if the first does).
    std::string_view alsoName = {};
};

// As DwordFlag, but an apply creates a missing key.
constexpr DwordFlag PolicyDwordFlag(const KeyPath& key, std::string_view name) {
    return {.key = key.created.empty() ? key.madeWhole() : key, .name = name};
}

// 0 means checked; writes 0 and 1.
constexpr DwordFlag DwordFlagInverted(const KeyPath& key, std::string_view name) {
    return {.key = key, .name = name, .checked = 0, .cleared = 1};
}

// The number is passed to the check box as its state; writes 1 and 0.
struct DwordCheckState {
    KeyPath key;
    std::string_view name;
    bool clearedDeletes = false;
};

enum class Compare : std::uint8_t { Exact, IgnoreCase, Contains, AsNumber };

// A text that means checked; any other text, or none, means cleared.
struct StringFlag {
    KeyPath key;
    std::string_view name;
    std::string_view checked = "1";
    std::string_view cleared = "0";
    bool clearedDeletes = false;      // by the key's path, which is neither opened nor made
    bool checkedWhenPresent = false;  // whatever the value holds
    Compare compare = Compare::Exact;
    ValueType type = ValueType::Sz;
};

// Fixed bytes that mean checked and cleared.
struct BinaryFlag {
    // What shows as checked: the first four bytes as the number that `checked` holds, or any data at all.
    enum class Shown : std::uint8_t { SameNumber, Present };

    KeyPath key;
    std::string_view name;
    std::span<const std::byte> checked;
    std::span<const std::byte> cleared = {};  // empty: the value is deleted
    Shown shown = Shown::SameNumber;
};

// A subkey that exists or not. Checked creates it or, with `checkedWhenAbsent`, deletes it.
struct SubkeyFlag {
    KeyPath parent;
    std::string_view name;
    bool checkedWhenAbsent = false;
    bool deletesTree = false;          // otherwise only a key without subkeys is deleted
    std::string_view text = {};        // written as the default value of a subkey that is made
    bool shownByText = false;          // present means: its default value is that text
    Compare compare = Compare::Exact;
};

// One bit of a four-byte mask.
struct MaskBit {
    KeyPath key;
    std::string_view name;
    std::uint8_t byte;  // 0 to 3
    std::uint8_t bit;   // the mask of the one bit within the byte
    // The box is checked when the bit is clear.
    bool checkedWhenClear = false;
    // The bits of that byte that an apply keeps.
    std::uint8_t kept = 0xFF;
    // The mask to start from if it cannot be read.
    std::uint32_t whenMissing = 0;
    bool checkedWhenMissing = false;
};

// A shell verb: a key whose default value is the menu text, with a subkey "command" whose default value is the command
// line. Checked creates both, cleared deletes the key with all its subkeys.
struct ShellVerbKey {
    KeyPath parent;  // opened
    std::string_view verb;
    // The source of the menu text: an edit box of the page, which also shows it, or the fixed text.
    int menuTextEdit = 0;
    std::string_view menuText = {};
    // The alert that refuses an empty menu text, after the box has been cleared again.
    Alert requiredAlert = Alert::None;
    std::string_view commandLine;
    std::string_view commandLineOn9x = {};  // empty: the same on every Windows
    // A second parent: the box is checked if either has the verb, and cleared deletes it from both.
    std::optional<KeyPath> twin = {};
};

// A policy and the current user's copy of it (its mirror): a text in both places. Checked if both have the value.
struct MirroredPolicy {
    KeyPath key;
    KeyPath mirror;
    std::string_view name;
    std::string_view text;
    // The key below the mirror's opened key that cleared deletes with all its subkeys. Cleared also deletes the value
    // of the policy.
    std::string_view deletedTree;
};

using CheckBinding = std::variant<Unbound, DwordFlag, DwordCheckState, StringFlag, BinaryFlag, SubkeyFlag, MaskBit,
                                  ShellVerbKey, MirroredPolicy>;

// ---- edit boxes --------------------------------------------------------------------------------------------------

enum class WhenEmpty : std::uint8_t { Deletes, WritesNothing, WritesEmpty };

// A folder that is stored as a variable and shown as its path: plain, case-sensitive replacement of every occurrence.
enum class Folding : std::uint8_t {
    None,
    WindowsFolder,  // %SystemRoot%
    ProfilePrefix,  // %USERPROFILE%. Intended: the prefix ends with its separator, so that a path is shown with two.
};

struct StringValue {
    KeyPath key;
    std::string_view name;
    WhenEmpty whenEmpty = WhenEmpty::Deletes;
    ValueType type = ValueType::Sz;
    Folding folding = Folding::None;
    bool withoutQuotes = false;  // double quotation marks are removed before anything else looks at the text
    // Appended to the written text; the shown text ends before the first occurrence of `suffixStart`.
    std::string_view suffix = {};
    std::string_view suffixStart = {};
};

constexpr StringValue ExpandStringValue(const KeyPath& key, std::string_view name,
                                        WhenEmpty whenEmpty = WhenEmpty::Deletes) {
    return {.key = key, .name = name, .whenEmpty = whenEmpty, .type = ValueType::ExpandSz};
}

// A decimal number; a text without leading digits is 0. If an empty text deletes the value, its key is opened first.
struct DwordNumber {
    KeyPath key;
    std::string_view name;
    WhenEmpty whenEmpty = WhenEmpty::WritesEmpty;  // written empty: 0
    std::optional<int> minimum = {};               // a smaller number writes nothing
};

using FieldBinding = std::variant<Unbound, StringValue, DwordNumber>;

// ---- combo boxes -------------------------------------------------------------------------------------------------

struct NumberEntry {
    std::string_view text;
    std::uint32_t number;
    bool deletes = false;  // the value is removed instead; no stored number selects this entry
};

struct TextEntry {
    std::string_view text;
    std::string_view stored;
};

// What an apply does if there is no choice.
enum class WhenNone : std::uint8_t {
    Writes,
    WritesNothing,
    Deletes,
    DeletesInOpenKey,  // the key is opened, or made, first
};

// One entry for each number from `first` to `last`, in decimal.
struct NumberRange {
    int first = 0;
    int last = -1;

    constexpr int size() const { return last - first + 1; }
};

struct DwordChoice {
    KeyPath key;
    std::string_view name;
    std::span<const NumberEntry> entries = {};
    NumberRange range = {};  // instead of entries
    int initial = kNoSelection;  // selected before the value is read, and kept when there is none
    int unknown = kNoSelection;  // selected for a stored number that no entry has
    WhenNone whenNone = WhenNone::Writes;
    // Written for no choice. Intended: by default the index -1 of the combo box, as a number.
    std::uint32_t noneNumber = 0xFFFFFFFF;
};

struct StringChoice {
    KeyPath key;
    std::string_view name;
    std::span<const TextEntry> entries = {};
    NumberRange range = {};  // instead of entries; the stored text is the number
    int initial = kNoSelection;
    int unknown = kNoSelection;
    Compare compare = Compare::Exact;
    WhenNone whenNone = WhenNone::Writes;
    std::string_view noneText = "-1";
};

// Entries that the tweak's own routines handle.
struct PlainEntry {
    std::string_view text;
};

struct ChoiceEntries {
    std::span<const PlainEntry> entries;
};

using ChoiceBinding = std::variant<Unbound, DwordChoice, StringChoice, ChoiceEntries>;

// ---- the colour list ---------------------------------------------------------------------------------------------

// "R G B" in decimal.
struct ColourText {
    KeyPath key;
    std::string_view name;
};

// Four bytes: red, green, blue, 0.
struct ColourBinary {
    KeyPath key;
    std::string_view name;
};

using ColourBinding = std::variant<Unbound, ColourText, ColourBinary>;

// ---- lists -------------------------------------------------------------------------------------------------------

// The index of the selected row is the number; nothing is read, and nothing is written if no row is selected.
struct DwordRowChoice {
    KeyPath key;
    std::string_view name;
};

// A row with a check box for each registered application that counts, in the order of their keys, in show and apply
// alike. A checked application lacks the value; a cleared one has it, as an empty text.
struct ApplicationRows {
    enum class Counts : std::uint8_t {
        WithShellSubkey,
        // Whose name contains ".exe" or ".EXE". Intended: other letter cases do not count.
        NamedExe,
    };

    std::string_view name;
    Counts counts;
};

using TableBinding = std::variant<Unbound, DwordRowChoice, ApplicationRows>;

// ---- the engine's side -------------------------------------------------------------------------------------------
// show* reads the registry into a control that is in its reset state; only a successful read changes it. apply* writes
// the live control, under one of the binding's keys; a kind without a second key does everything in the first round.

void showCheck(PageContext& context, int control, const CheckBinding& binding);
void applyCheck(PageContext& context, int control, const CheckBinding& binding, WriteRound round = WriteRound::First);
void showField(PageContext& context, int edit, const FieldBinding& binding);
void applyField(PageContext& context, int edit, const FieldBinding& binding, WriteRound round = WriteRound::First);
void fillChoice(PageContext& context, int combo, const ChoiceBinding& binding);  // entries and initial selection
void showChoice(PageContext& context, int combo, const ChoiceBinding& binding);
void applyChoice(PageContext& context, int combo, const ChoiceBinding& binding, WriteRound round = WriteRound::First);
void showColour(PageContext& context, int combo, const ColourBinding& binding);
void applyColour(PageContext& context, int combo, const ColourBinding& binding, WriteRound round = WriteRound::First);
void showTable(PageContext& context, int list, const TableBinding& binding);  // the list has its columns, but no rows
void applyTable(PageContext& context, int list, const TableBinding& binding);

// Three numbers separated by single spaces, each modulo 256.
Colour parseColour(std::string_view text);
std::string formatColour(Colour colour);

// The decimal number at the start of a text, as atoi reads it (white space, sign, digits; 0 without digits; saturates
// out of range).
int decimalNumber(std::string_view text);
// The user's profile folder with its separator; empty where Windows has no profiles.
std::string profilePrefix(const PageContext& context);
bool matches(std::string_view stored, std::string_view wanted, Compare compare);

}  // namespace korvane
