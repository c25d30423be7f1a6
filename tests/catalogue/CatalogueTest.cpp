// Checks of the whole catalogue: every record is there once and well formed,
// and what a row names (a control, an alert, another item) exists.
#include "app/StringTable.h"
#include "catalogue/Catalogue.h"
#include "pages/PageLayout.h"
#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace korvane {
namespace {

// Calls the check with each row of the catalogue.
template <typename Check>
void forEachTweak(Check check) {
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        SCOPED_TRACE("item " + std::to_string(tweak.id) + " " + std::string(tweak.title));
        check(tweak);
    }
}

// One line of printable ASCII without blanks at its ends.
bool isPlainLine(std::string_view text) {
    return !text.empty() && text.front() != ' ' && text.back() != ' ' &&
           std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

// A text of a control; only line ends and tabs may stand beside printable ASCII.
bool isControlText(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) {
        return (c >= ' ' && c <= '~') || c == '\r' || c == '\n' || c == '\t';
    });
}

bool isPath(std::string_view path) {
    return path.empty() || (isPlainLine(path) && path.front() != '\\' && path.back() != '\\' &&
                            path.find("\\\\") == std::string_view::npos && path.find('/') == std::string_view::npos &&
                            !path.starts_with("HKEY_"));
}

const ControlTemplate* findControl(int templateId, int id) {
    const auto controls = findDialogTemplate(templateId)->controls;
    const auto found = std::ranges::find(controls, id, &ControlTemplate::id);
    return found == controls.end() ? nullptr : &*found;
}

bool pageHas(const Tweak& tweak, int id, ControlKind kind) {
    const ControlTemplate* control = findControl(layoutOf(tweak.page).templateId, id);
    return control != nullptr && control->kind == kind;
}

// ---- Records

// Which ids each unit has is checked by the compiler.
TEST(Catalogue, FindsEveryRecordByItsIdAndNoOther) {
    EXPECT_GE(kItemCount, 311);
    for (int id = 0; id < kItemCount; ++id) {
        ASSERT_NE(findTweak(id), nullptr);
        EXPECT_EQ(findTweak(id)->id, id);
        EXPECT_EQ(std::ranges::count_if(catalogueGroups(), [id](const auto& group) { return group.owns(id); }), 1);
    }
    EXPECT_EQ(findTweak(-1), nullptr);
    EXPECT_EQ(findTweak(kItemCount), nullptr);
}

TEST(Catalogue, HasTextsThatEveryControlCanShow) {
    forEachTweak([](const Tweak& tweak) {
        EXPECT_TRUE(isPlainLine(tweak.title));
        EXPECT_EQ(tweak.title.find('"'), std::string_view::npos) << "the date file cannot hold this title";
        EXPECT_TRUE(isPlainLine(tweak.description));
        EXPECT_TRUE(tweak.treeText.empty() || isPlainLine(tweak.treeText));
        EXPECT_TRUE(std::ranges::all_of(
            tweak.table != nullptr ? tweak.table->cells : std::span<const std::string_view>(), isControlText));
    });
}

TEST(Catalogue, BuildsATreeOfCategoriesThatComeBeforeTheirRows) {
    forEachTweak([&](const Tweak& tweak) {
        if (tweak.treeParent != kTreeRoot && tweak.treeParent != kNoTreeRow) {
            const Tweak* parent = findTweak(tweak.treeParent);
            ASSERT_NE(parent, nullptr);
            EXPECT_TRUE(parent->isCategory());
            EXPECT_NE(parent->treeParent, kNoTreeRow) << "its parent has no row";
            EXPECT_LT(tweak.treeParent, tweak.id);
        }
    });
}

// ---- Overviews

// Overviews of categories without a row, and one whose order is its own, are listed by hand.
TEST(Catalogue, OverviewsListTweaksAndEachOnce) {
    forEachTweak([](const Tweak& category) {
        EXPECT_EQ(category.isCategory(), category.image != kTweakImage);
        EXPECT_TRUE(category.hasOverview() || category.overview.rows.empty());
        std::set<int> listed;
        for (const int id : category.hasOverview() ? overviewItems(category) : std::vector<int>()) {
            EXPECT_TRUE(listed.insert(id).second) << id << " is listed twice";
            ASSERT_NE(findTweak(id), nullptr);
            EXPECT_FALSE(findTweak(id)->isCategory());
        }
        EXPECT_EQ(category.hasOverview(), !listed.empty());
    });
}

// ---- Rows that have a page

// Collects the controls that a row uses, and looks at each.
struct ControlChecks {
    const Tweak& tweak;
    std::set<int> used{};
    std::set<int> settings{};

    void expectControl(int id, ControlKind kind) {
        EXPECT_TRUE(pageHas(tweak, id, kind)) << "control " << id;
        EXPECT_TRUE(used.insert(id).second) << "control " << id << " has two meanings";
    }
    void operator()(const CheckBox& box, int id) {
        expectControl(id, ControlKind::CheckBox);
        EXPECT_TRUE(isControlText(box.text));
        settings.insert(id);
    }
    void operator()(const Field& field, const RowControls& row) {
        expectLabelled(field.label, row.label, row.edit, ControlKind::Edit);
        if (field.picker != Picker::None) {
            expectControl(row.browse, ControlKind::Button);
        }
    }
    void operator()(const Choice& choice, const RowControls& row) {
        expectLabelled(choice.label, row.label, row.combo, ControlKind::Combo);
    }
    void operator()(const ColourField& colour, const RowControls& row) {
        expectLabelled(colour.label, row.label, row.combo, ControlKind::ColourCombo);
    }
    void operator()(const Table&, int list) {
        EXPECT_NE(list, 0);
        settings.insert(list);
    }

private:
    void expectLabelled(std::string_view text, int label, int control, ControlKind kind) {
        EXPECT_TRUE(isControlText(text));
        expectControl(label, ControlKind::Label);
        expectControl(control, kind);
        settings.insert(control);
    }
};

TEST(Catalogue, PagesHaveTheControlsThatTheirRowsUse) {
    forEachTweak([](const Tweak& tweak) {
        ControlChecks checks{tweak};
        if (tweak.hasShow()) {
            forEachControl(tweak, [&](const auto& control, const auto& ids) { checks(control, ids); });
        }
        if (!tweak.note.empty()) {
            checks.expectControl(layoutOf(tweak.page).note, ControlKind::Note);
            EXPECT_TRUE(isControlText(tweak.note));
        }
        const std::set<int> ordered(tweak.writeOrder.begin(), tweak.writeOrder.end());
        EXPECT_TRUE(ordered.empty() || ordered == checks.settings) << "the order of writes leaves something out";
        EXPECT_EQ(ordered.size(), tweak.writeOrder.size()) << "a control is written twice";
    });
}

TEST(Catalogue, AlertsHaveATextAndAUse) {
    std::set<Alert> used = {Alert::SmoothingFor9xOnNt, Alert::SmoothingForNtOn9x};
    forEachTweak([&](const Tweak& tweak) {
        EXPECT_EQ(tweak.gate.alert == Alert::None, tweak.gate.accepted.empty() && tweak.gate.refused.empty());
        EXPECT_FALSE(tweak.putBoxesBack && (tweak.gate.alert == Alert::None || tweak.boxes.empty()))
            << "nothing to put back";
        used.insert(tweak.gate.alert);
        for (const Field& field : tweak.fields) {
            used.insert(field.required);
        }
        for (const CheckBox& box : tweak.boxes) {
            const auto* verb = std::get_if<ShellVerbKey>(&box.binding);
            used.insert(verb != nullptr ? verb->requiredAlert : Alert::None);
        }
    });
    used.erase(Alert::None);
    for (const Alert alert : used) {
        EXPECT_FALSE(builtInString(static_cast<int>(alert)).empty()) << static_cast<int>(alert);
    }
    EXPECT_EQ(used.size(), std::size_t{2022 - 2002 + 1}) << "an alert that nothing shows";
}

// ---- Bindings

struct BindingChecks {
    static void expectKey(const KeyPath& key) {
        for (const std::string_view path : {key.path, key.created, key.otherPath, key.otherCreated}) {
            EXPECT_TRUE(isPath(path)) << path;
        }
        EXPECT_EQ(key.otherOn.empty(), key.otherPath.empty() && key.otherCreated.empty());
        if (key.also != nullptr) {
            expectKey(*key.also);
        }
    }

    // What all kinds have in common.
    template <typename Kind>
    static void expectKeys(const Kind& kind) {
        if constexpr (requires { kind.key; }) {
            expectKey(kind.key);
            EXPECT_FALSE(kind.key.fullPath().empty()) << "a value of a root";
        }
        if constexpr (requires { kind.parent; }) {
            expectKey(kind.parent);
        }
        if constexpr (requires { kind.twin; }) {
            expectKey(kind.twin.value_or(kind.parent));
        }
    }
    template <typename Kind>
    static void expectEntries(const Kind& choice) {
        const int count = choice.entries.empty() ? choice.range.size() : static_cast<int>(choice.entries.size());
        EXPECT_GT(count, 0);
        EXPECT_TRUE(choice.initial >= kNoSelection && choice.initial < count);
        EXPECT_TRUE(choice.unknown >= kNoSelection && choice.unknown < count);
    }

    template <typename Kind>
    void operator()(const Kind& kind) const {
        expectKeys(kind);
        expectOwn(kind);
    }

    void expectOwn(const auto&) const {}
    void expectOwn(const DwordFlag& flag) const { EXPECT_NE(flag.checked, flag.cleared); }
    void expectOwn(const StringFlag& flag) const {
        EXPECT_TRUE(flag.clearedDeletes || !matches(flag.cleared, flag.checked, flag.compare))
            << "a cleared box would show as checked";
    }
    void expectOwn(const MaskBit& mask) const {
        EXPECT_LT(mask.byte, 4);
        EXPECT_TRUE(mask.bit != 0 && (mask.bit & (mask.bit - 1)) == 0) << "not one bit";
    }
    void expectOwn(const ShellVerbKey& verb) const { EXPECT_EQ(verb.menuText.empty(), verb.menuTextEdit != 0); }
    void expectOwn(const StringValue& value) const { EXPECT_EQ(value.suffix.empty(), value.suffixStart.empty()); }
    // An entry that shares its number or its text with an earlier one can be chosen but is never shown again.
    void expectOwn(const DwordChoice& choice) const {
        expectEntries(choice);
        std::set<std::uint32_t> numbers;
        for (const NumberEntry& entry : choice.entries) {
            EXPECT_TRUE(entry.deletes || numbers.insert(entry.number).second) << entry.text;
        }
    }
    void expectOwn(const StringChoice& choice) const {
        expectEntries(choice);
        for (const TextEntry& entry : choice.entries) {
            const auto shown = std::ranges::find_if(choice.entries, [&](const TextEntry& each) {
                return matches(entry.stored, each.stored, choice.compare);
            });
            EXPECT_EQ(shown->text, entry.text);
        }
    }
};

TEST(Catalogue, BindingsAreWellFormed) {
    forEachTweak([](const Tweak& tweak) {
        if (tweak.hasShow()) {
            forEachControl(tweak, [](const auto& control, const auto&) { std::visit(BindingChecks(), control.binding); });
        }
        for (const CheckBox& box : tweak.boxes) {
            for (const VersionedBinding& versioned : box.onVersions) {
                std::visit(BindingChecks(), versioned.binding);
            }
        }
        for (const auto& texts : {tweak.writesFirst, tweak.writesLast}) {
            for (const FixedText& fixed : texts) {
                BindingChecks::expectKey(fixed.key);
            }
        }
    });
}

}  // namespace
}  // namespace korvane
