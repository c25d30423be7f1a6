// One item of the catalogue: everything about a tweak or category, as data. The
// item table, the tree, show and apply, the language keys, kmctl and the generated
// documents follow from it.
#pragma once

#include "pages/Bindings.h"
#include "pages/Gate.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace korvane {

// The pages, in the order in which they are created.
enum class Page : std::uint8_t {
    Category,
    Checks,
    CheckFields,
    CheckCombos,
    CheckList,
    PathFields,
    Combos,
    EditCombos,
    CheckCombo,
    None,
};
constexpr int kPageCount = static_cast<int>(Page::None);

// The controls of a page, from top to bottom. Boxes and the rows of fields and choices take the controls of their page
// in that order; on a page whose rows have both an edit box and a combo box, fields take the first rows.
struct VersionedBinding {
    VersionSet on;
    CheckBinding binding;
};

struct CheckBox {
    std::string_view text;
    CheckBinding binding = Unbound{};
    int control = 0;  // another box than the next one
    // Other bindings on some versions of Windows: the first whose set contains the running version is used.
    std::span<const VersionedBinding> onVersions = {};
};

// What the browse button of a field lets the user pick.
enum class Picker : std::uint8_t {
    None,  // no button
    File,
    IconFile,
    Folder,
};

struct Field {
    std::string_view label;
    FieldBinding binding = Unbound{};
    Picker picker = Picker::None;
    Alert required = Alert::None;  // refuses an empty text; None: an empty text is allowed
};

struct Choice {
    std::string_view label;
    ChoiceBinding binding = Unbound{};
};

struct ColourField {
    std::string_view label;
    ColourBinding binding = Unbound{};
};

struct TableColumn {
    std::string_view heading;
    int width;  // pixels
};

// A list of choices, or only of explanations. Cells are listed row by row.
struct Table {
    std::span<const TableColumn> columns;
    std::span<const std::string_view> cells = {};
    TableBinding binding = Unbound{};
};

// A category's overview: its tweaks with the dates on which they were last applied.
struct Overview {
    // The ItemIds of its rows if they are not the category's child tweaks in the tree.
    std::span<const int> rows = {};
    int nameWidth = 295;  // pixels
    int dateWidth = 99;
};

// A text that every apply writes, whatever the controls say.
struct FixedText {
    KeyPath key;
    std::string_view name;
    std::string_view text;
};

// When an apply records the date, after the gate.
enum class Stamp : std::uint8_t {
    BeforeOpening,  // first of all, even if the key then cannot be opened or a required field is empty
    On9xAlone,      // the same, but on Windows 95, 98 and Me only
    WhenOpen,       // each time a key has been opened, just before its write
    ByRoutine,      // when the tweak's own apply routine says so
};

using Routine = void (*)(PageContext&);

constexpr int kTweakImage = 2;
constexpr int kNoTreeRow = -2;
constexpr int kTreeRoot = -1;
constexpr int kItemCount = 311;

struct Tweak {
    int id;
    std::string_view title;
    std::string_view description;
    bool category = false;           // groups tweaks, and has an image of its own
    int image = kTweakImage;         // index into the tree's images
    int treeParent = kNoTreeRow;     // the ItemId of the row above
    std::string_view treeText = {};  // the row's text where it differs from the title
    bool overviewShowsTreeText = false;
    Page page = Page::None;
    std::span<const CheckBox> boxes = {};
    std::span<const Field> fields = {};
    std::span<const Choice> choices = {};
    const ColourField* colour = nullptr;  // takes the first row of its page
    const Table* table = nullptr;
    Overview overview = {};  // of a category
    std::string_view note = {};
    Gate gate = kNoGate;
    bool putBoxesBack = false;       // a refusal inverts the boxes, undoing the user's click
    bool boxEnablesFields = false;   // the first box enables and disables the first two fields at each click
    Stamp stamp = Stamp::BeforeOpening;
    bool showOnly = false;
    std::span<const FixedText> writesFirst = {};
    std::span<const FixedText> writesLast = {};
    // The controls in the order in which they are written, if that is not the default: all boxes, all fields, the
    // colour, all choices, the table.
    std::span<const int> writeOrder = {};
    // Routines of a tweak that fits no kind of binding: the first runs after the common part of a show, the second
    // instead of the common writes (gate, date and required fields still come first).
    Routine show = nullptr;
    Routine apply = nullptr;
    // For the documents, one line each, with keys, names and data in backquotes: what those routines read and write,
    // and where the setting is documented.
    std::string_view registry = {};
    std::string_view source = {};

    constexpr bool isCategory() const { return category; }
    constexpr bool hasShow() const { return page != Page::None; }
    constexpr bool hasOverview() const { return category && hasShow(); }
    constexpr bool hasApply() const { return hasShow() && !category && !showOnly; }
    constexpr std::string_view treeRowText() const { return treeText.empty() ? title : treeText; }
};

// The same control twice, for the current user and for all users. The binding has the key of the current user.
template <typename Binding>
constexpr Binding underLocalMachine(Binding binding) {
    binding.key = binding.key.under(Root::LocalMachine);
    return binding;
}

template <typename Binding>
constexpr std::array<CheckBox, 2> ScopePair(std::string_view currentUser, std::string_view allUsers, Binding binding) {
    return {CheckBox{currentUser, binding}, CheckBox{allUsers, underLocalMachine(binding)}};
}

template <typename Binding>
constexpr std::array<Choice, 2> ScopePairOfChoices(std::string_view currentUser, std::string_view allUsers,
                                                   Binding binding) {
    return {Choice{currentUser, binding}, Choice{allUsers, underLocalMachine(binding)}};
}

}  // namespace korvane
