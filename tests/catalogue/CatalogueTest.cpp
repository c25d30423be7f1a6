// Checks of the whole catalogue: every record is there once and well formed,
// and what a row names (a control, an alert, another item) exists.
#include "app/StringTable.h"
#include "catalogue/Catalogue.h"
#include "pages/PageLayout.h"
#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace korvane {
namespace {

// Calls the check with each row of the catalogue.
template <typename Check>
void forEachTweak(Check check) {
    for (const CatalogueGroup& group : catalogueGroups()) {
        for (const Unit* unit : group.units) {
            for (const Tweak& tweak : *unit) {
                SCOPED_TRACE("item " + std::to_string(tweak.id) + " " + std::string(tweak.title));
                check(tweak);
            }
        }
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

TEST(Catalogue, HasEveryRecordOnceInItsGroup) {
    std::vector<int> ids;
    int next = 0;
    for (const CatalogueGroup& group : catalogueGroups()) {
        EXPECT_EQ(group.first, next) << group.name;
        next = group.last + 1;
        for (const Unit* unit : group.units) {
            EXPECT_TRUE(std::ranges::is_sorted(*unit, {}, &Tweak::id)) << group.name;
            for (const Tweak& tweak : *unit) {
                EXPECT_TRUE(tweak.id >= group.first && tweak.id <= group.last) << tweak.id << " in " << group.name;
                ids.push_back(tweak.id);
            }
        }
    }
    std::ranges::sort(ids);
    ASSERT_EQ(ids.size(), 311u);
    for (int id = 0; id < 311; ++id) {
        EXPECT_EQ(ids[static_cast<std::size_t>(id)], id);
        ASSERT_NE(findTweak(id), nullptr);
        EXPECT_EQ(findTweak(id)->id, id);
    }
    EXPECT_EQ(findTweak(-1), nullptr);
    EXPECT_EQ(findTweak(311), nullptr);
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

TEST(Catalogue, OverviewsListTheTweaksOfTheirCategory) {
    forEachTweak([](const Tweak& category) {
        EXPECT_EQ(category.isCategory() && category.hasShow(), category.overview != nullptr);
        if (category.overview == nullptr) {
            return;
        }
        std::set<int> listed;
        for (const OverviewRow& row : category.overview->rows) {
            SCOPED_TRACE(row.id);
            EXPECT_TRUE(listed.insert(row.id).second) << "listed twice";
            const Tweak* tweak = findTweak(row.id);
            ASSERT_NE(tweak, nullptr);
            EXPECT_FALSE(tweak->isCategory());
            if (category.treeParent != kNoTreeRow) {
                EXPECT_EQ(tweak->treeParent, category.id) << "a row of another category";
            }
            // A date that is looked up under a text that no record has would make the date file anew at every show.
            EXPECT_TRUE(row.lookUp.empty() || row.lookUp == tweak->title);
        }
        for (int id = 0; category.treeParent != kNoTreeRow && id < kItemCount; ++id) {
            const Tweak& tweak = *findTweak(id);
            if (tweak.treeParent == category.id && !tweak.isCategory()) {
                EXPECT_TRUE(listed.contains(id)) << "the overview leaves out " << id;
            }
        }
    });
}

// ---- Rows that have a page

TEST(Catalogue, PagesHaveTheControlsThatTheirRowsUse) {
    forEachTweak([](const Tweak& tweak) {
        std::set<int> used;
        const auto expectControl = [&](int id, ControlKind kind) {
            EXPECT_TRUE(pageHas(tweak, id, kind)) << "control " << id;
            EXPECT_TRUE(used.insert(id).second) << "control " << id << " has two meanings";
        };
        for (std::size_t i = 0; i < tweak.boxes.size(); ++i) {
            expectControl(boxControl(tweak, i), ControlKind::CheckBox);
            EXPECT_TRUE(isControlText(tweak.boxes[i].text));
        }
        for (std::size_t i = 0; i < tweak.fields.size(); ++i) {
            expectControl(fieldControls(tweak, i).label, ControlKind::Label);
            expectControl(fieldControls(tweak, i).edit, ControlKind::Edit);
            if (tweak.fields[i].browse) {
                expectControl(fieldControls(tweak, i).browse, ControlKind::Button);
            }
            EXPECT_TRUE(isControlText(tweak.fields[i].label));
        }
        for (std::size_t i = 0; i < tweak.choices.size(); ++i) {
            expectControl(choiceControls(tweak, i).label, ControlKind::Label);
            expectControl(choiceControls(tweak, i).combo, ControlKind::Combo);
            EXPECT_TRUE(isControlText(tweak.choices[i].label));
        }
        if (tweak.colour != nullptr) {
            expectControl(IDC_LABEL1, ControlKind::Label);
            expectControl(IDC_COLOUR_COMBO, ControlKind::ColourCombo);
        }
        if (!tweak.note.empty()) {
            expectControl(layoutOf(tweak.page).note, ControlKind::Note);
            EXPECT_TRUE(isControlText(tweak.note));
        }
    });
}

TEST(Catalogue, AlertsExist) {
    const auto expectAlert = [](int id) { EXPECT_TRUE(id == 0 || !builtInString(id).empty()) << "alert " << id; };
    forEachTweak([&](const Tweak& tweak) {
        EXPECT_EQ(tweak.gate.alert == 0, tweak.gate.accepted.empty());
        EXPECT_FALSE(tweak.putBoxesBack && (tweak.gate.alert == 0 || tweak.boxes.empty())) << "nothing to put back";
        expectAlert(tweak.gate.alert);
        for (const Field& field : tweak.fields) {
            expectAlert(field.required);
        }
        for (const CheckBox& box : tweak.boxes) {
            const auto* verb = std::get_if<ShellVerbKey>(&box.binding);
            expectAlert(verb != nullptr ? verb->requiredAlert : 0);
        }
    });
}

// ---- Bindings

struct BindingChecks {
    static void expectKey(const KeyPath& key) {
        for (const std::string_view path : {key.path, key.created, key.otherPath, key.otherCreated}) {
            EXPECT_TRUE(isPath(path)) << path;
        }
        EXPECT_EQ(key.otherOn.empty(), key.otherPath.empty() && key.otherCreated.empty());
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
        if constexpr (requires { kind.also; }) {
            expectKey(kind.also.value_or(kind.key));
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
        const BindingChecks check;
        for (const CheckBox& box : tweak.boxes) {
            std::visit(check, box.binding);
        }
        for (const Field& field : tweak.fields) {
            std::visit(check, field.binding);
        }
        for (const Choice& choice : tweak.choices) {
            std::visit(check, choice.binding);
        }
        if (tweak.colour != nullptr) {
            std::visit(check, tweak.colour->binding);
        }
        if (tweak.table != nullptr) {
            std::visit(check, tweak.table->binding);
        }
    });
}

// ---- Pages

// Statics, check boxes and buttons are the skin's; edit boxes, combos and lists are not.
TEST(PageLayouts, HandEachOfTheirControlsToTheSkinOnce) {
    const std::map<ControlKind, std::string_view> elements = {{ControlKind::CheckBox, "CheckBox"},
                                                              {ControlKind::Button, "Button"},
                                                              {ControlKind::Header, "Label"},
                                                              {ControlKind::Label, "Label"},
                                                              {ControlKind::Note, "Label"}};
    for (int index = 0; index < kPageCount; ++index) {
        const PageLayout& layout = layoutOf(static_cast<Page>(index));
        SCOPED_TRACE(layout.templateId);
        ASSERT_FALSE(layout.skin.empty());
        EXPECT_EQ(layout.skin[0].control, 0);
        for (const ControlTemplate& control : findDialogTemplate(layout.templateId)->controls) {
            const auto skinned = std::ranges::find(layout.skin, control.id, &SkinElement::control);
            EXPECT_EQ(std::ranges::count(layout.skin, control.id, &SkinElement::control), elements.count(control.kind));
            EXPECT_TRUE(skinned == layout.skin.end() || skinned->element == elements.at(control.kind)) << control.id;
        }
    }
}

}  // namespace
}  // namespace korvane
