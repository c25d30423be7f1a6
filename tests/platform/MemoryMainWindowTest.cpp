// The main window in memory: the order of its tree, what its handler is told and when, and when nothing can be done.
#include "platform/memory/MemoryMainWindow.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "res/ControlIds.h"

namespace korvane {
namespace {

class Log final : public MainWindowHandler {
public:
    bool OnInitDialog() override {
        told.emplace_back("init");
        return whenInitialised();
    }
    void OnSelectionChanged() override { told.emplace_back("selection"); }
    void OnApplyChanges() override {
        told.emplace_back("apply");
        whenApplied();
    }
    void OnAbout() override { told.emplace_back("about"); }
    void OnHelp() override { told.emplace_back("help"); }
    void OnFrameButton(const std::string& name) override { told.emplace_back("button " + name); }
    void OnDividerMoved(int distance) override { told.push_back("divider " + std::to_string(distance)); }
    void OnDestroy() override { told.emplace_back("destroy"); }

    std::vector<std::string> told;
    std::function<bool()> whenInitialised = [] { return true; };
    std::function<void()> whenApplied = [] {};
};

class PageLog final : public DialogHandler {
public:
    bool OnInitDialog(DialogControls& controls) override {
        controls.setText(IDC_NOTE, "initialised");
        return true;
    }
    void OnClicked(int id) override { clicked.push_back(id); }

    std::vector<int> clicked;
};

using Told = std::vector<std::string>;

TEST(MemoryTreeTest, RowsStandInTheOrderInWhichTheTreeShowsThem) {
    MemoryTree tree;
    const CTreeListItem a = tree.InsertItem("a", kRootItem, kInsertLast);
    const CTreeListItem b = tree.InsertItem("b", kRootItem, kInsertLast);
    const CTreeListItem b1 = tree.InsertItem("b1", b, kInsertLast);
    tree.InsertItem("a1", a, kInsertLast);
    tree.InsertItem("a2", a, kInsertLast);
    tree.InsertItem("b1x", b1, kInsertLast);
    tree.InsertItem("b2", b, b1);
    tree.InsertItem("between", kRootItem, a);
    EXPECT_EQ(tree.InsertItem("orphan", 4711, kInsertLast), kRootItem);

    std::string shown;
    for (const MemoryTreeRow& row : tree.rows()) {
        shown += std::string(static_cast<std::size_t>(row.depth), '.') + row.text + " ";
    }
    EXPECT_EQ(shown, "a .a1 .a2 between b .b1 ..b1x .b2 ");
}

TEST(MemoryMainWindowTest, SelectingTellsTheHandlerAndEmptyingTheTreeDoesNot) {
    MemoryMainWindow window;
    Log log;
    EXPECT_FALSE(window.selectData(1));  // not shown yet
    ASSERT_TRUE(window.run(log));
    log.told.clear();
    std::uint32_t data = 99;
    EXPECT_FALSE(window.tree().GetSelectedItemData(data));
    EXPECT_EQ(data, 99U);

    window.tree().SetItemData(window.tree().InsertItem("row", kRootItem, kInsertLast), 42);
    EXPECT_FALSE(window.selectRow(1));
    EXPECT_TRUE(window.selectRow(0));
    EXPECT_TRUE(window.tree().GetSelectedItemData(data));
    EXPECT_EQ(data, 42U);
    EXPECT_TRUE(window.selectData(310));  // has no row
    EXPECT_TRUE(window.tree().GetSelectedItemData(data));
    EXPECT_EQ(data, 310U);
    EXPECT_EQ(log.told, (Told{"selection", "selection"}));
    window.tree().DeleteAllItems();
    EXPECT_FALSE(window.tree().GetSelectedItemData(data));
    EXPECT_EQ(log.told.size(), 2U);
}

TEST(MemoryMainWindowTest, ApplyIsPressedOnlyWhileItIsShown) {
    MemoryMainWindow window;
    Log log;
    ASSERT_TRUE(window.run(log));
    EXPECT_FALSE(window.clickApply());
    window.controls().showControl(IDC_APPLY, true);
    EXPECT_TRUE(window.clickApply());
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.clickApply());
    EXPECT_FALSE(window.close());
    EXPECT_EQ(log.told, (Told{"init", "apply", "destroy"}));
}

TEST(MemoryMainWindowTest, APostedCloseWaitsUntilTheHandlerHasReturned) {
    MemoryMainWindow window;
    Log log;
    ASSERT_TRUE(window.run(log));
    window.controls().showControl(IDC_APPLY, true);
    log.whenApplied = [&] {
        window.postClose();
        log.told.push_back(window.running() ? "still running" : "gone");
    };
    EXPECT_TRUE(window.clickApply());
    EXPECT_FALSE(window.running());
    EXPECT_EQ(log.told, (Told{"init", "apply", "still running", "destroy"}));
}

TEST(MemoryMainWindowTest, AWindowThatEndsWhileItIsInitialisedNeverRuns) {
    for (const bool answer : {false, true}) {
        MemoryMainWindow window;
        Log log;
        log.whenInitialised = [&] {
            window.controls().endDialog(0);
            return answer;
        };
        EXPECT_FALSE(window.run(log));
        EXPECT_EQ(window.dialog().result(), 0);
        EXPECT_FALSE(window.selectData(1));
        EXPECT_FALSE(window.pressFrameButton("Help"));
        EXPECT_EQ(log.told, (Told{"init", "destroy"}));
    }
}

TEST(MemoryMainWindowTest, PagesAreMadeOnceAndTellTheirOwnHandler) {
    MemoryMainWindow window;
    Log log;
    PageLog pageLog;
    ASSERT_TRUE(window.run(log));
    EXPECT_EQ(window.page(IDD_CHECK_FIELDS), nullptr);
    window.createPage(IDD_CHECK_FIELDS, pageLog);
    window.createPage(4711, pageLog);  // there is no such template
    MemoryDialog* page = window.page(IDD_CHECK_FIELDS);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->text(IDC_NOTE), "initialised");
    EXPECT_FALSE(page->visible());
    page->show(true);
    page->showControl(IDC_BROWSE3, true);
    EXPECT_TRUE(page->clickButton(IDC_BROWSE3));
    EXPECT_EQ(pageLog.clicked, (std::vector<int>{IDC_BROWSE3}));

    window.runAboutBox(pageLog);
    ASSERT_NE(window.aboutBox(), nullptr);
    EXPECT_EQ(window.aboutBox()->result(), 1);
    EXPECT_TRUE(window.running());
}

TEST(MemoryMainWindowTest, TheSystemMenuOffersWhatWasAppended) {
    MemoryMainWindow window;
    Log log;
    ASSERT_TRUE(window.run(log));
    EXPECT_FALSE(window.chooseSystemMenu(IDM_ABOUT));
    window.appendSystemMenu(IDM_ABOUT, "&About");
    EXPECT_TRUE(window.chooseSystemMenu(IDM_ABOUT));
    EXPECT_TRUE(window.pressFrameButton("Help"));
    EXPECT_EQ(log.told, (Told{"init", "about", "button Help"}));
}

TEST(MemoryMainWindowTest, TheDividerStaysWithinItsRange) {
    MemoryMainWindow window;
    Log log;
    ASSERT_TRUE(window.run(log));
    EXPECT_FALSE(window.dragDivider(5));  // not made yet
    window.createDivider(IDC_DIVIDER, 50, 10);
    const int start = window.dividerRect().left;
    EXPECT_TRUE(window.dragDivider(100));
    EXPECT_FALSE(window.dragDivider(1));
    EXPECT_TRUE(window.dragDivider(-20));
    EXPECT_TRUE(window.dragDivider(-100));
    EXPECT_EQ(window.dividerRect().left, start - 50);
    EXPECT_EQ(log.told, (Told{"init", "divider 10", "divider -20", "divider -40"}));
}

TEST(ScriptedSkinEngineTest, OnlyTheChosenCallIsRefused) {
    ScriptedSkinEngine engine;
    MemoryDialog dialog(*findDialogTemplate(IDD_MAIN));
    engine.refuseCall(2);
    EXPECT_FALSE(failed(engine.LoadSkin("C:\\Skin\\skin.skn")));
    EXPECT_TRUE(failed(engine.ApplySkin(dialog)));
    EXPECT_FALSE(failed(engine.ApplySkinElement(dialog, IDC_APPLY, "Button")));
    ASSERT_EQ(engine.calls().size(), 3U);
    EXPECT_EQ(engine.calls()[0].path, "C:\\Skin\\skin.skn");
    EXPECT_EQ(engine.calls()[1].dialog, &dialog);
    EXPECT_EQ(engine.calls()[2].controlId, IDC_APPLY);
    EXPECT_EQ(engine.calls()[2].element, "Button");
}

}  // namespace
}  // namespace korvane
