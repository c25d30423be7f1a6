// The real main window, run modally with a handler that looks at it from
// inside: what lies above what, where the keyboard goes, what it is told.
#include "app/win32/Win32MainWindow.h"
#include "platform/win32/Win32System.h"
#include "res/ControlIds.h"
#include "tests/win32/PictureOfWindow.h"
#include "tests/win32/WindowsProgram.h"
#include "tests/win32/Win32DialogEnvironment.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace korvane {
namespace {

class Win32MainWindowTest : public ::testing::Test, protected MainWindowHandler {
protected:
    // Runs the window as the program does, with `look` called once it is complete; then closes it.
    void run(const std::function<void()>& look) {
        looker = look;
        EXPECT_EQ(window.runModal(*this), IDCANCEL);
        EXPECT_EQ(told.back(), "destroy");
    }
    bool OnInitDialog() override {
        constexpr int kNoTemplate = 99;
        ClickRecorder none;
        window.createDivider(IDC_DIVIDER, 50, 10);
        window.createPage(kNoTemplate, none);
        EXPECT_EQ(none.controls, nullptr);
        window.createPage(IDD_CHECK_FIELDS, page);
        dialog = static_cast<Win32Dialog&>(window.controls()).window();
        pageWindow = static_cast<Win32Dialog*>(page.controls)->window();
        looker();
        window.postClose();
        return true;
    }
    void OnSelectionChanged() override { told.emplace_back("selection"); }
    void OnApplyChanges() override { told.emplace_back("apply"); }
    void OnAbout() override { told.emplace_back("about"); }
    void OnHelp() override { told.emplace_back("help"); }
    void OnFrameButton(const std::string& name) override { told.emplace_back("button " + name); }
    void OnDividerMoved(int distance) override { told.push_back("divider " + std::to_string(distance)); }
    void OnDestroy() override { told.emplace_back("destroy"); }

    HWND control(int id) const { return GetDlgItem(dialog, id); }
    HWND onPage(int id) const { return GetDlgItem(pageWindow, id); }
    HWND nextTabStop(HWND from) const { return GetNextDlgTabItem(dialog, from, FALSE); }
    static bool isAbove(HWND upper, HWND lower) {
        HWND next = GetWindow(upper, GW_HWNDNEXT);
        while (next != nullptr && next != lower) {
            next = GetWindow(next, GW_HWNDNEXT);
        }
        return next == lower;
    }

    Win32System system;
    Win32MainWindow window{GetModuleHandleA(nullptr), system};
    std::function<void()> looker;
    std::vector<std::string> told;
    ClickRecorder page;
    HWND dialog = nullptr;
    HWND pageWindow = nullptr;
};

TEST_F(Win32MainWindowTest, PagesLieBelowWhatTheirEdgesReachIntoAndTheMenuEndsWithItsItem) {
    run([&] {
        for (const int id : {IDC_TREE, IDC_APPLY, IDC_DIVIDER}) {
            EXPECT_TRUE(isAbove(control(id), pageWindow)) << id;
        }
        EXPECT_TRUE(isAbove(pageWindow, control(IDC_SPLASH)));
        window.appendSystemMenuSeparator();
        window.appendSystemMenu(IDM_ABOUT, "first");
        window.setSystemMenuText(IDM_ABOUT, "renamed");
        const HMENU menu = GetSystemMenu(dialog, FALSE);
        const int last = GetMenuItemCount(menu) - 1;
        char text[20] = "";
        GetMenuStringA(menu, static_cast<UINT>(last), text, sizeof text, MF_BYPOSITION);
        EXPECT_STREQ(text, "renamed");
        EXPECT_EQ(GetMenuItemID(menu, last), static_cast<UINT>(IDM_ABOUT));
        EXPECT_TRUE(GetMenuState(menu, static_cast<UINT>(last - 1), MF_BYPOSITION) & MF_SEPARATOR);
        // Without that style a window paints over those above it.
        for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            const LONG style = GetWindowLongA(child, GWL_STYLE);
            EXPECT_TRUE((style & WS_CLIPSIBLINGS) || !(style & WS_VISIBLE)) << GetDlgCtrlID(child);
        }
    });
}

TEST_F(Win32MainWindowTest, TheTabKeyGoesFromTheTreeThroughThePageToTheButton) {
    run([&] {
        window.controls().show(true);
        page.controls->show(true);
        page.controls->showControl(IDC_CHECK1, true);
        page.controls->showControl(IDC_BROWSE1, true);
        const HWND inTree = FindWindowExA(control(IDC_TREE), nullptr, WC_TREEVIEWA, nullptr);
        EXPECT_EQ(nextTabStop(inTree), onPage(IDC_CHECK1));
        EXPECT_EQ(nextTabStop(onPage(IDC_CHECK1)), onPage(IDC_BROWSE1));
        EXPECT_EQ(nextTabStop(onPage(IDC_BROWSE1)), control(IDC_TREE));  // the button is hidden
        window.controls().showControl(IDC_APPLY, true);
        EXPECT_EQ(nextTabStop(onPage(IDC_BROWSE1)), control(IDC_APPLY));
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
        EXPECT_TRUE(told.empty());  // hidden
        window.controls().showControl(IDC_APPLY, true);
        press(control(IDC_APPLY));
        press(onPage(IDC_BROWSE1));
        EXPECT_EQ(page.clicked, std::vector<int>{IDC_BROWSE1});
        SendMessageA(dialog, WM_SYSCOMMAND, IDM_ABOUT + 3, 0);
        SendMessageA(dialog, WM_USER + 203, 0, 0);
        window.tree().InsertItem("row", kRootItem, kInsertLast);
        SendMessageA(control(IDC_TREE), TVM_SELECTITEM, TVGN_CARET,
                     SendMessageA(control(IDC_TREE), TVM_GETNEXTITEM, TVGN_ROOT, 0));
        SendMessageA(control(IDC_DIVIDER), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 50));
        SendMessageA(control(IDC_DIVIDER), WM_LBUTTONUP, 0, MAKELPARAM(-19, 50));
        EXPECT_EQ(told, (std::vector<std::string>{"apply", "about", "help", "selection", "divider -20"}));
        EXPECT_TRUE(IsWindowVisible(dialog));  // drawing was off while the page changed
    });
}

// Nothing may pile up while a user looks around for a long time.
TEST(MainWindowObjects, AThousandSelectionsLeaveNoneBehind) {
    WindowsProgram program({.windows = "xp", .registry = sampleRegistry()});
    const auto select = [&](int times) {
        for (int i = 0; i < times; ++i) {
            program.select(i % 120);
        }
    };
    select(120);
    const int before = drawingObjectMark();
    select(1000);
    EXPECT_LE(drawingObjectMark(), before + 2);
}

}  // namespace
}  // namespace korvane
