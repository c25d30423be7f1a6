// What the nine pages do on their own: skinning, browse buttons, the colour list, and where their controls stand.
#include "pages/Pages.h"

#include "pages/ColourCombo.h"
#include "platform/memory/MemoryDialog.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace korvane {
namespace {

class ScriptedHost final : public DialogHost {
public:
    int refusesAt = -1;  // the number of the skin element that is refused, from 0
    bool switchesFields = false;
    std::string answer;

    std::vector<SkinElement> elements;
    int failuresShown = 0;

    bool applySkinElement(DialogControls&, const SkinElement& element) override {
        elements.push_back(element);
        return static_cast<int>(elements.size()) - 1 != refusesAt;
    }
    void showSkinFailure() override { ++failuresShown; }
    std::uint32_t randomSeed() override { return 1; }
    bool boxEnablesFields() override { return switchesFields; }
    std::string browse(int) override { return answer; }
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

// ---- Browse buttons

TEST(BrowseButtons, EachFillsTheEditBoxToItsLeftAndNoOther) {
    for (const Page which : {Page::CheckFields, Page::PathFields}) {
        OnePage page(which);
        for (const MemoryControl& button : page.dialog.allControls()) {
            if (button.kind != ControlKind::Button) {
                continue;
            }
            // Quotes come through, and a cancelled dialog empties the field.
            for (const char* answer : {"\"C:\\A File.exe\"", ""}) {
                page.host.answer = answer;
                for (const MemoryControl& control : page.dialog.allControls()) {
                    page.dialog.setText(control.id, "old");
                }
                ASSERT_TRUE(page.dialog.clickButton(button.id));
                for (const MemoryControl& control : page.dialog.allControls()) {
                    const bool beside = control.rect.top == button.rect.top && control.kind == ControlKind::Edit;
                    EXPECT_EQ(control.text, beside ? answer : "old") << button.id << ' ' << control.id;
                }
            }
        }
    }
}

TEST(LogonScreenSaver, ItsBoxSwitchesThreeControlsAndNoOtherItemsBoxDoes) {
    OnePage page(Page::CheckFields);
    const auto enabledAfterClick = [&page](bool switches, int box) {
        page.host.switchesFields = switches;
        EXPECT_TRUE(page.dialog.clickCheckBox(box));
        std::string result;
        for (const int id : {IDC_EDIT1, IDC_EDIT2, IDC_BROWSE1, IDC_EDIT3, IDC_BROWSE2, IDC_BROWSE3}) {
            result += page.dialog.find(id)->enabled ? '1' : '0';
        }
        return result;
    };
    EXPECT_EQ(enabledAfterClick(false, IDC_CHECK1), "111111");
    EXPECT_EQ(enabledAfterClick(true, IDC_CHECK2), "111111");
    EXPECT_EQ(enabledAfterClick(true, IDC_CHECK1), "000111");
    EXPECT_EQ(enabledAfterClick(false, IDC_CHECK1), "000111");
    EXPECT_EQ(enabledAfterClick(false, IDC_CHECK1), "000111");
    EXPECT_EQ(enabledAfterClick(true, IDC_CHECK1), "111111");
}

// ---- The colour list

TEST(ColourList, KeepsEachNamesOwnColourInAlphabeticalOrder) {
    const MemoryControl combo = *OnePage(Page::CheckCombos).dialog.find(IDC_COLOUR_COMBO);
    ASSERT_EQ(combo.entries.size(), 140U);
    EXPECT_TRUE(std::ranges::is_sorted(combo.entries, {}, &MemoryComboEntry::text));
    std::map<Colour, std::string> names;
    for (const MemoryComboEntry& entry : combo.entries) {
        names[entry.data] += entry.text + ' ';
    }
    EXPECT_EQ(names.size(), 138U) << "no two share a colour but the two pairs known by two names";
    EXPECT_EQ(names[rgb(0, 255, 255)], "Aqua Cyan ");
    // Spread over the table, so that a colour with its parts swapped or a row shifted is found out.
    EXPECT_EQ(names[rgb(178, 34, 34)], "FireBrick ");
    EXPECT_EQ(names[rgb(154, 205, 50)], "YellowGreen ");
}

TEST(ColourList, SelectsTheFirstRowOfAColourAndKeepsItsRowForAnUnknownOne) {
    OnePage page(Page::CheckCombos);
    CColourCombo colours(page.dialog, IDC_COLOUR_COMBO);
    colours.SelectColour(rgb(0, 255, 255));
    EXPECT_EQ(page.dialog.text(IDC_COLOUR_COMBO), "Aqua");
    colours.SelectColour(rgb(1, 2, 3));
    EXPECT_EQ(page.dialog.text(IDC_COLOUR_COMBO), "Aqua");
    page.dialog.selectComboEntry(IDC_COLOUR_COMBO, kNoSelection);
    EXPECT_EQ(colours.GetSelectedColour(), rgb(0, 0, 0));
    // Filling again empties first, and ends where the control has no more space.
    page.dialog.limitComboSpace(IDC_COLOUR_COMBO, 3);
    colours.FillColours();
    colours.SelectColour(rgb(255, 255, 255));
    EXPECT_EQ(page.dialog.comboCount(IDC_COLOUR_COMBO), 3);
    EXPECT_EQ(page.dialog.text(IDC_COLOUR_COMBO), "");
}

// ---- Templates

TEST(PageTemplates, ControlsFitThePageAndShareAPlaceOnlyWhereTheyTakeTurns) {
    for (const Page which : kPages) {
        const DialogTemplate& found = *findDialogTemplate(layoutOf(which).templateId);
        for (const ControlTemplate& control : found.controls) {
            const bool drops = control.kind == ControlKind::Combo || control.kind == ControlKind::ColourCombo;
            EXPECT_LE(control.x + control.width, found.width) << found.id << ' ' << control.id;
            EXPECT_LE(control.y + (drops ? 13 : control.height), found.height) << found.id << ' ' << control.id;
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

}  // namespace
}  // namespace korvane
