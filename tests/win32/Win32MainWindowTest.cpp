// The real main window, run modally with a handler that looks at it from
// inside: what lies above what, where the keyboard goes, what it is told.
#include "platform/win32/Splitter.h"
#include "platform/win32/Win32MainWindow.h"
#include "platform/win32/Win32System.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace korvane {
namespace {

constexpr int kPages[] = {IDD_CATEGORY, IDD_CHECK_FIELDS};

class PageHandler final : public DialogHandler {
public:
    DialogControls* controls = nullptr;
    std::vector<int> clicked;

    bool OnInitDialog(DialogControls& made) override {
        controls = &made;
        return true;
    }
    void OnClicked(int id) override { clicked.push_back(id); }
};

class Owner final : public MainWindowHandler {
public:
    std::function<void()> onInit;
    std::vector<std::string> told;
    int dragged = 0;

    bool OnInitDialog() override {
        onInit();
        return true;
    }
    void OnSelectionChanged() override { told.emplace_back("selection"); }
    void OnApplyChanges() override { told.emplace_back("apply"); }
    void OnAbout() override { told.emplace_back("about"); }
    void OnHelp() override { told.emplace_back("help"); }
    void OnFrameButton(const std::string& name) override { told.emplace_back("button " + name); }
    void OnDividerMoved(int distance) override { dragged = distance; }
    void OnDestroy() override { told.emplace_back("destroy"); }
};

class Win32MainWindowTest : public ::testing::Test {
protected:
    // Runs the window as the program does, with `look` called once it is complete; then closes it.
    int run(const std::function<void()>& look) {
        owner.onInit = [&] {
            window.createImageList(16, 1, 1);
            window.addImage(IDB_FIRST_TREE_IMAGE, rgb(255, 0, 0));
            window.tree().SetImageList();
            window.createDivider(IDC_DIVIDER, 50, 10);
            for (std::size_t i = 0; i < std::size(kPages); ++i) {
                window.createPage(kPages[i], pages[i]);
            }
            dialog = static_cast<Win32Dialog&>(window.controls()).window();
            look();
            window.postClose();
        };
        return window.runModal(owner);
    }

    HWND pageWindow(std::size_t index) const { return static_cast<Win32Dialog*>(pages[index].controls)->window(); }
    HWND control(int id) const { return GetDlgItem(dialog, id); }
    HWND nextTabStop(HWND from) const { return GetNextDlgTabItem(dialog, from, FALSE); }

    // Places in the order from the top of the dialog's windows to the bottom.
    bool isAbove(HWND upper, HWND lower) const {
        HWND next = upper;
        while (next != nullptr && next != lower) {
            next = GetWindow(next, GW_HWNDNEXT);
        }
        return next == lower && upper != lower;
    }

    Win32System system;
    Win32MainWindow window{GetModuleHandleA(nullptr), system};
    Owner owner;
    PageHandler pages[std::size(kPages)];
    HWND dialog = nullptr;
};

TEST_F(Win32MainWindowTest, PagesLieBelowWhatTheirEdgesReachInto) {
    const int result = run([&] {
        for (std::size_t i = 0; i < std::size(kPages); ++i) {
            const HWND page = pageWindow(i);
            EXPECT_TRUE(isAbove(control(IDC_TREE), page));
            EXPECT_TRUE(isAbove(control(IDC_APPLY), page));
            EXPECT_TRUE(isAbove(control(IDC_DIVIDER), page));
            EXPECT_TRUE(isAbove(page, control(IDC_SPLASH)));
        }
        char name[32] = "";
        GetClassNameA(control(IDC_DIVIDER), name, sizeof name);  // not its placeholder
        EXPECT_STREQ(name, "Korvane.Splitter");
        // Without that style a window paints over those above it.
        for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            const LONG style = GetWindowLongA(child, GWL_STYLE);
            EXPECT_TRUE((style & WS_CLIPSIBLINGS) || !(style & WS_VISIBLE)) << GetDlgCtrlID(child);
        }
    });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(Win32MainWindowTest, TheTabKeyGoesFromTheTreeThroughThePageToTheButton) {
    run([&] {
        window.controls().show(true);
        pages[1].controls->show(true);
        for (const int id : {IDC_CHECK1, IDC_EDIT1, IDC_BROWSE1}) {
            pages[1].controls->showControl(id, true);
        }
        const auto onPage = [&](int id) { return GetDlgItem(pageWindow(1), id); };
        const HWND inTree = FindWindowExA(control(IDC_TREE), nullptr, WC_TREEVIEWA, nullptr);
        EXPECT_EQ(nextTabStop(inTree), onPage(IDC_CHECK1));
        EXPECT_EQ(nextTabStop(onPage(IDC_CHECK1)), onPage(IDC_EDIT1));
        EXPECT_EQ(nextTabStop(onPage(IDC_EDIT1)), onPage(IDC_BROWSE1));
        EXPECT_EQ(nextTabStop(onPage(IDC_BROWSE1)), control(IDC_TREE));  // the button is hidden
        window.controls().showControl(IDC_APPLY, true);
        EXPECT_EQ(nextTabStop(onPage(IDC_BROWSE1)), control(IDC_APPLY));
        EXPECT_EQ(nextTabStop(control(IDC_APPLY)), control(IDC_TREE));
        EXPECT_EQ(GetNextDlgTabItem(dialog, inTree, TRUE), control(IDC_APPLY));
    });
}

// Enter sends the dialog the default button's command, and that of a button which has the focus, wherever it is.
TEST_F(Win32MainWindowTest, CommandsReachTheirOwners) {
    run([&] {
        const auto press = [&](HWND button) {
            SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(GetDlgCtrlID(button)),
                         reinterpret_cast<LPARAM>(button));
        };
        window.controls().show(true);
        press(control(IDC_APPLY));
        EXPECT_TRUE(owner.told.empty());  // hidden
        window.controls().showControl(IDC_APPLY, true);
        press(control(IDC_APPLY));
        press(GetDlgItem(pageWindow(1), IDC_BROWSE1));
        EXPECT_EQ(pages[1].clicked, std::vector<int>{IDC_BROWSE1});
        SendMessageA(dialog, WM_SYSCOMMAND, IDM_ABOUT + 3, 0);
        SendMessageA(dialog, WM_USER + 203, 0, 0);
        window.tree().InsertItem("row", kRootItem, kInsertLast);
        SendMessageA(control(IDC_TREE), TVM_SELECTITEM, TVGN_CARET,
                     SendMessageA(control(IDC_TREE), TVM_GETNEXTITEM, TVGN_ROOT, 0));
        EXPECT_EQ(owner.told, (std::vector<std::string>{"apply", "about", "help", "selection"}));
        EXPECT_TRUE(IsWindowVisible(dialog));  // drawing was off while the page changed
    });
    EXPECT_EQ(owner.told.back(), "destroy");
}

TEST_F(Win32MainWindowTest, DraggingTheDividerTellsTheDistance) {
    run([&] {
        const HWND divider = control(IDC_DIVIDER);
        SendMessageA(divider, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 50));
        SendMessageA(divider, WM_LBUTTONUP, 0, MAKELPARAM(-19, 50));
    });
    EXPECT_EQ(owner.dragged, -20);
}

// A template that does not exist: the page stays away, and the rest works.
TEST_F(Win32MainWindowTest, APageThatCannotBeMadeIsLeftOut) {
    constexpr int kNoTemplate = 99;
    run([&] {
        PageHandler none;
        window.createPage(kNoTemplate, none);
        EXPECT_EQ(none.controls, nullptr);
        EXPECT_NE(pages[1].controls, nullptr);
    });
    EXPECT_EQ(owner.told, std::vector<std::string>{"destroy"});
}

TEST_F(Win32MainWindowTest, TheSystemMenuAndTheIconsAreItsOwn) {
    run([&] {
        window.appendSystemMenu(IDM_ABOUT, "&About Korvane Manager...");
        window.setIcons(IDI_KORVANE);
        const HMENU menu = GetSystemMenu(dialog, FALSE);
        const int count = GetMenuItemCount(menu);
        EXPECT_EQ(GetMenuItemID(menu, count - 1), UINT{IDM_ABOUT});
        EXPECT_EQ(GetMenuItemID(menu, count - 2), 0u);  // a separator
        for (const WPARAM which : {ICON_BIG, ICON_SMALL}) {
            EXPECT_NE(SendMessageA(dialog, WM_GETICON, which, 0), 0);
        }
        EXPECT_EQ(SendMessageA(dialog, WM_QUERYDRAGICON, 0, 0), SendMessageA(dialog, WM_GETICON, ICON_BIG, 0));
    });
}

}  // namespace
}  // namespace korvane
