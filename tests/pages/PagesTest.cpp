// What the nine pages do on their own: binding and skinning, hiding, browse buttons, and the lists filled at the start.
#include "pages/Pages.h"

#include "pages/ColourCombo.h"
#include "platform/memory/MemoryDialog.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace korvane {
namespace {

class ScriptedHost final : public DialogHost {
public:
    int refusesAt = -1;  // the number of the skin element that is refused, from 0
    std::uint32_t seed = 1;
    int item = 1;
    std::string answer;

    std::vector<SkinElement> elements;
    int failuresShown = 0;

    bool applySkinElement(DialogControls&, const SkinElement& element) override {
        elements.push_back(element);
        return static_cast<int>(elements.size()) - 1 != refusesAt;
    }
    void showSkinFailure() override { ++failuresShown; }
    std::uint32_t randomSeed() override { return seed; }
    int currentItem() override { return item; }
    std::string browse() override { return answer; }
};

// One page in its own dialog; every control is visible, as if a row used them all.
class OnePage {
public:
    explicit OnePage(Page which, ScriptedHost scripted = {})
        : host(std::move(scripted)),
          pages_(makePages(host)),
          page(*pages_[static_cast<std::size_t>(which)]),
          dialog(*findDialogTemplate(page.templateId())) {
        dialog.setHandler(page);
        dialog.show(true);
        for (const int id : dialog.controlIds()) {
            dialog.showControl(id, true);
        }
        DialogHandler& handler = page;
        initialised = handler.OnInitDialog(dialog);
    }

    ScriptedHost host;

private:
    std::vector<std::unique_ptr<CPage>> pages_;

public:
    CPage& page;
    MemoryDialog dialog;
    bool initialised = false;
};

constexpr Page kPages[] = {Page::Category,   Page::Checks, Page::CheckFields, Page::CheckCombos, Page::CheckList,
                           Page::PathFields, Page::Combos, Page::EditCombos,  Page::CheckCombo};

TEST(Pages, AreMadeInTheirFixedOrder) {
    ScriptedHost host;
    std::vector<int> templates;
    for (const auto& page : makePages(host)) {
        templates.push_back(page->templateId());
        EXPECT_FALSE(page->exists());
    }
    EXPECT_EQ(templates, (std::vector{106, 170, 171, 172, 173, 107, 174, 175, 176}));
}

TEST(Pages, BindAllControlsOfTheirTemplateAndNoticeWhenOneIsMissing) {
    for (const Page which : kPages) {
        OnePage whole(which);
        EXPECT_TRUE(whole.initialised);
        EXPECT_TRUE(whole.page.bound());
        const DialogTemplate& found = *findDialogTemplate(whole.page.templateId());
        EXPECT_EQ(found.controls.size(), layoutOf(which).members.size()) << found.id;
        for (std::size_t missing = 0; missing < found.controls.size(); ++missing) {
            std::vector<ControlTemplate> controls(found.controls.begin(), found.controls.end());
            controls.erase(controls.begin() + static_cast<std::ptrdiff_t>(missing));
            DialogTemplate lacking = found;
            lacking.controls = controls;
            ScriptedHost host;
            const auto pages = makePages(host);
            CPage& page = *pages[static_cast<std::size_t>(which)];
            MemoryDialog dialog(lacking);
            DialogHandler& handler = page;
            EXPECT_TRUE(handler.OnInitDialog(dialog));
            EXPECT_FALSE(page.bound()) << found.id << " without " << found.controls[missing].id;
        }
    }
}

TEST(Pages, SkinTheirWindowFirstThenEachControlAtMostOnce) {
    for (const Page which : kPages) {
        OnePage page(which);
        std::set<int> seen;
        ASSERT_FALSE(page.host.elements.empty());
        EXPECT_EQ(page.host.elements.front().control, 0);
        for (const SkinElement& element : page.host.elements) {
            EXPECT_TRUE(seen.insert(element.control).second) << element.control;
            EXPECT_TRUE(element.control == 0 || page.dialog.find(element.control) != nullptr) << element.control;
        }
        EXPECT_EQ(page.host.failuresShown, 0);
        EXPECT_FALSE(page.dialog.result());
    }
}

TEST(Pages, AnySkinRefusalEndsThePageAfterOneMessage) {
    for (const Page which : kPages) {
        const int elements = static_cast<int>(OnePage(which).host.elements.size());
        for (int refused = 0; refused < elements; ++refused) {
            ScriptedHost refusing;
            refusing.refusesAt = refused;
            OnePage page(which, refusing);
            EXPECT_FALSE(page.initialised);
            EXPECT_EQ(page.host.failuresShown, 1);
            EXPECT_EQ(page.dialog.result(), 0);
            EXPECT_EQ(page.host.elements.size(), static_cast<std::size_t>(refused) + 1);
            // What follows the skin is left out: list styles and the colours.
            for (const MemoryControl& control : page.dialog.allControls()) {
                EXPECT_EQ(control.extendedStyle, 0U);
                EXPECT_TRUE(control.kind != ControlKind::ColourCombo || control.entries.empty());
            }
        }
    }
}

TEST(Pages, HideControlsLeavesTheHeader) {
    const auto visible = [](OnePage& page) {
        page.page.HideControls();
        std::vector<int> ids;
        for (const MemoryControl& control : page.dialog.allControls()) {
            if (control.visible) {
                ids.push_back(control.id);
            }
        }
        return ids;
    };
    for (const Page which : {Page::Category, Page::Checks, Page::CheckFields, Page::CheckCombos, Page::CheckList}) {
        OnePage page(which);
        EXPECT_EQ(visible(page), std::vector{IDC_HEADER}) << page.page.templateId();
        EXPECT_TRUE(page.dialog.visible());
    }
    // Here only the two that share a place take turns.
    OnePage page(Page::EditCombos);
    visible(page);
    EXPECT_FALSE(page.dialog.usable(IDC_EDIT1));
    EXPECT_FALSE(page.dialog.usable(IDC_COMBO4));
    EXPECT_TRUE(page.dialog.usable(IDC_COMBO1));
}

TEST(Pages, ListsGetTheirStylesAndBackground) {
    const MemoryControl overview = *OnePage(Page::Category).dialog.find(IDC_LIST);
    EXPECT_EQ(overview.extendedStyle, 0x620U);
    EXPECT_EQ(overview.background, rgb(249, 250, 251));
    const MemoryControl checked = *OnePage(Page::CheckList).dialog.find(IDC_CHECK_LIST);
    EXPECT_EQ(checked.extendedStyle, 0x624U);
    EXPECT_EQ(checked.background, rgb(249, 250, 251));
}

// ---- Browse buttons

const MemoryControl* editBeside(const MemoryDialog& dialog, const MemoryControl& button) {
    for (const MemoryControl& control : dialog.allControls()) {
        if (control.kind == ControlKind::Edit && control.rect.top == button.rect.top) {
            return &control;
        }
    }
    return nullptr;
}

TEST(BrowseButtons, EachFillsTheEditBoxToItsLeftAndNoOther) {
    for (const Page which : {Page::CheckFields, Page::PathFields}) {
        OnePage page(which);
        int buttons = 0;
        for (const MemoryControl& button : page.dialog.allControls()) {
            if (button.kind != ControlKind::Button) {
                continue;
            }
            ++buttons;
            const MemoryControl* edit = editBeside(page.dialog, button);
            ASSERT_NE(edit, nullptr) << button.id;
            EXPECT_LE(edit->rect.right, button.rect.left);
            // Quotes come through, and a cancelled dialog empties the field.
            for (const char* answer : {"\"C:\\A File.exe\"", "D:\\A Folder", ""}) {
                for (const MemoryControl& control : page.dialog.allControls()) {
                    if (control.kind == ControlKind::Edit) {
                        page.dialog.setText(control.id, "old");
                    }
                }
                page.host.answer = answer;
                ASSERT_TRUE(page.dialog.clickButton(button.id));
                for (const MemoryControl& control : page.dialog.allControls()) {
                    if (control.kind == ControlKind::Edit) {
                        EXPECT_EQ(control.text, control.id == edit->id ? answer : "old") << button.id;
                    }
                }
            }
        }
        EXPECT_EQ(buttons, which == Page::CheckFields ? 3 : 5);
    }
}

TEST(LogonScreenSaver, ItsBoxSwitchesThreeControlsAndNoOtherItemsBoxDoes) {
    OnePage page(Page::CheckFields);
    const auto enabled = [&page] {
        std::string result;
        for (const int id : {IDC_EDIT1, IDC_EDIT2, IDC_BROWSE1, IDC_EDIT3, IDC_BROWSE2, IDC_BROWSE3}) {
            result += page.dialog.find(id)->enabled ? '1' : '0';
        }
        return result;
    };
    page.host.item = 158;
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(enabled(), "111111");

    page.host.item = 159;
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK2));
    EXPECT_EQ(enabled(), "111111");
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(enabled(), "111111");
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(enabled(), "000111");
    EXPECT_FALSE(page.dialog.clickButton(IDC_BROWSE1));
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(enabled(), "111111");

    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    page.host.item = 160;
    ASSERT_TRUE(page.dialog.clickCheckBox(IDC_CHECK1));
    EXPECT_EQ(enabled(), "000111");
    static_cast<CCheckFieldsPage&>(page.page).EnableFields(true);
    EXPECT_EQ(enabled(), "111111");
}

// ---- The colour list and the long list of numbers

TEST(ColourList, HoldsTheNamedColoursInAlphabeticalOrder) {
    const MemoryControl combo = *OnePage(Page::CheckCombos).dialog.find(IDC_COLOUR_COMBO);
    ASSERT_EQ(combo.entries.size(), 140U);
    EXPECT_TRUE(std::ranges::is_sorted(combo.entries, {}, &MemoryComboEntry::text));
    EXPECT_EQ(combo.entries.front().text, "AliceBlue");
    EXPECT_EQ(combo.entries.back().text, "YellowGreen");
    // Each entry keeps its own colour however the control sorts; no two share one but the two pairs known by two names.
    std::map<Colour, std::string> names;
    for (std::size_t i = 0; i < combo.entries.size(); ++i) {
        EXPECT_EQ(combo.entries[i].text, namedColours()[i].name);
        EXPECT_EQ(combo.entries[i].data, namedColours()[i].colour);
        EXPECT_LE(combo.entries[i].text.size(), 31U);
        names[combo.entries[i].data] += combo.entries[i].text + ' ';
    }
    EXPECT_EQ(names.size(), 138U);
    EXPECT_EQ(names[rgb(0, 255, 255)], "Aqua Cyan ");
    EXPECT_EQ(names[rgb(255, 0, 255)], "Fuchsia Magenta ");
    // Spread over the table, so that a colour with its parts swapped or a row shifted is found out.
    EXPECT_EQ(names[rgb(240, 248, 255)], "AliceBlue ");
    EXPECT_EQ(names[rgb(138, 43, 226)], "BlueViolet ");
    EXPECT_EQ(names[rgb(178, 34, 34)], "FireBrick ");
    EXPECT_EQ(names[rgb(211, 211, 211)], "LightGrey ");
    EXPECT_EQ(names[rgb(102, 51, 153)], "");
    EXPECT_EQ(names[rgb(219, 112, 147)], "PaleVioletRed ");
    EXPECT_EQ(names[rgb(154, 205, 50)], "YellowGreen ");
}

TEST(ColourList, TheFirstColourDependsOnTheSeedAndIsNeverTheLast) {
    std::set<int> seen;
    for (std::uint32_t seed = 0; seed < 1000; ++seed) {
        ScriptedHost seeded;
        seeded.seed = seed * 2654435761U;
        const int selected = OnePage(Page::CheckCombos, seeded).dialog.comboSelection(IDC_COLOUR_COMBO);
        ASSERT_GE(selected, 0);
        ASSERT_LE(selected, 138);
        seen.insert(selected);
    }
    EXPECT_GT(seen.size(), 100U);
}

TEST(ColourList, SelectsTheFirstRowOfAColourAndKeepsItsRowForAnUnknownOne) {
    OnePage page(Page::CheckCombos);
    CColourCombo colours(page.dialog, IDC_COLOUR_COMBO);
    const auto selectedName = [&] {
        const MemoryControl& combo = *page.dialog.find(IDC_COLOUR_COMBO);
        return combo.selection < 0 ? "" : combo.entries[static_cast<std::size_t>(combo.selection)].text;
    };
    colours.SelectColour(rgb(0, 255, 255));
    EXPECT_EQ(selectedName(), "Aqua");
    colours.SelectColour(rgb(1, 2, 3));
    EXPECT_EQ(selectedName(), "Aqua");
    colours.SelectColour(rgb(0, 255, 255) | 0x01000000);
    EXPECT_EQ(selectedName(), "Aqua");
    EXPECT_EQ(colours.GetSelectedColour(), rgb(0, 255, 255));
    colours.SelectColour(rgb(255, 255, 255));
    EXPECT_EQ(selectedName(), "White");
    colours.SelectColour(0);
    EXPECT_EQ(selectedName(), "Black");
    page.dialog.selectComboEntry(IDC_COLOUR_COMBO, kNoSelection);
    EXPECT_EQ(colours.GetSelectedColour(), rgb(0, 0, 0));

    // Filling again empties first, and ends where the control has no more space.
    colours.FillColours();
    EXPECT_EQ(page.dialog.comboCount(IDC_COLOUR_COMBO), 140);
    page.dialog.limitComboSpace(IDC_COLOUR_COMBO, 3);
    colours.FillColours();
    EXPECT_EQ(page.dialog.comboCount(IDC_COLOUR_COMBO), 3);
    colours.SelectColour(rgb(255, 255, 255));
    EXPECT_EQ(selectedName(), "");
    page.dialog.limitComboSpace(IDC_COLOUR_COMBO, 0);
    colours.FillColours();
    colours.SelectColour(0);
    EXPECT_EQ(selectedName(), "");
}

TEST(NumberList, HoldsEveryNumberFromZeroToTenThousandBeforeTheSkinIsApplied) {
    ScriptedHost refusing;
    refusing.refusesAt = 0;
    for (const ScriptedHost& host : {ScriptedHost{}, refusing}) {
        const MemoryControl combo = *OnePage(Page::CheckCombo, host).dialog.find(IDC_COMBO1);
        ASSERT_EQ(combo.entries.size(), 10001U);
        for (std::size_t i = 0; i < combo.entries.size(); ++i) {
            ASSERT_EQ(combo.entries[i].text, std::to_string(i));
        }
        EXPECT_EQ(combo.selection, kNoSelection);
    }
}

// ---- Templates

TEST(PageTemplates, ControlsFitThePageAndShareAPlaceOnlyWhereTheyTakeTurns) {
    for (const Page which : kPages) {
        const DialogTemplate& found = *findDialogTemplate(layoutOf(which).templateId);
        for (const ControlTemplate& control : found.controls) {
            const bool drops = control.kind == ControlKind::Combo || control.kind == ControlKind::ColourCombo;
            EXPECT_GE(control.x, 0);
            EXPECT_GE(control.y, 0);
            EXPECT_LE(control.x + control.width, found.width) << found.id << ' ' << control.id;
            EXPECT_LE(control.y + (drops ? 13 : control.height), found.height) << found.id << ' ' << control.id;
            EXPECT_EQ(control.visible, control.id == IDC_HEADER) << found.id << ' ' << control.id;
        }
        std::string sharing;
        MemoryDialog dialog(found);
        const auto& controls = dialog.allControls();
        for (std::size_t i = 0; i < controls.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const Rect& a = controls[i].rect;
                const Rect& b = controls[j].rect;
                if (a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom) {
                    sharing += std::to_string(controls[j].id) + '/' + std::to_string(controls[i].id) + ' ';
                }
            }
        }
        const bool two = which == Page::CheckCombos || which == Page::EditCombos;
        const std::string expected = which == Page::CheckCombos ? "1055/1021 " : "1015/1030 ";
        EXPECT_EQ(sharing, two ? expected : "") << found.id;
    }
}

TEST(PageTemplates, TheTenBoxesStandBelowEachOtherInTheOrderOfTheirRows) {
    const DialogTemplate& found = *findDialogTemplate(IDD_CHECKS);
    int above = 0;
    for (const int id : {1013, 1018, 1028, 1032, 1033, 1034, 1035, 1036, 1037, 1038}) {
        const auto box = std::ranges::find(found.controls, id, &ControlTemplate::id);
        ASSERT_NE(box, found.controls.end()) << id;
        EXPECT_TRUE(above == 0 || box->y == above + 13) << id;
        above = box->y;
    }
}

}  // namespace
}  // namespace korvane
