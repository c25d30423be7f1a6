// The engine over real dialogs: what it paints, what it leaves to the
// platform, and what it refuses.
#include "platform/win32/Win32Dialog.h"
#include "res/ControlIds.h"
#include "skin/win32/SkinEngine.h"
#include "tests/cli/TestFolder.h"
#include "tests/win32/PictureOfWindow.h"
#include "tests/win32/Win32DialogEnvironment.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace korvane::skin {
namespace {

constexpr const char* kOwnSkin = "data/Skin/skin.skn";

// Every state of every element has a colour of its own.
constexpr const char* kColourful =
    "[Skin]\nFormat=1\n"
    "[Main]\nFill=#110000\nFill.Inactive=#120000\nBorder=#130000\nText=#140000\nMargins=5, 5, 5, 5\n"
    "CaptionHeight=30\nButtons=HELP, Minimize, Close\n"
    "[FrameButton]\nFill=#210000\nFill.Hot=#220000\n"
    "[SubMain]\nFill=#310000\nText=#320000\n"
    "[Label]\nFill=#410000\nBorder=#420000\nMargins=4, 4, 4, 4\n"
    "[CheckBox]\nFill=#510000\nFill.Disabled=#520000\nFill.Pressed=#530000\nMark=#540000\n"
    "[Button]\nFill=#610000\nFill.Disabled=#620000\nFill.Pressed=#630000\nFill.Focused=#640000\n";

class SkinEngineTest : public ::testing::Test {
protected:
    int loadText(const std::string& text) {
        writeFile(folder.file("skin.skn"), text);
        return engine.LoadSkin(folder.file("skin.skn"));
    }

    // A page on which the check box, the header and the button are skinned.
    void skinPage() {
        dialog = &environment.open(IDD_CHECK_FIELDS);
        page = environment.page(IDD_CHECK_FIELDS);
        EXPECT_EQ(engine.ApplySkinElement(*dialog, 0, "SubMain"), 0);
        const std::pair<int, const char*> elements[] = {
            {IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"}, {IDC_LABEL1, "Label"}, {IDC_BROWSE1, "Button"}};
        for (const auto& [id, element] : elements) {
            EXPECT_EQ(engine.ApplySkinElement(*dialog, id, element), 0) << element;
            dialog->showControl(id, true);
            dialog->setText(id, "");
        }
        check = GetDlgItem(page, IDC_CHECK1);
        button = GetDlgItem(page, IDC_BROWSE1);
        header = GetDlgItem(page, IDC_HEADER);
        label = GetDlgItem(page, IDC_LABEL1);
    }

    static int pixelsOf(HWND window, COLORREF colour) { return PictureOfWindow(window).count(colour); }
    // In the middle of a button or page; a check box has its square there from the left.
    static COLORREF fillOf(HWND window, bool isCheck = false) {
        const SIZE size = PictureOfWindow::clientSize(window);
        return isCheck ? PictureOfWindow(window).at(10, size.cy / 2 + 4)
                       : PictureOfWindow(window).at(size.cx / 2, size.cy / 2);
    }

    TestFolder folder;
    Win32DialogEnvironment environment;
    Win32SkinEngine engine;
    DialogControls* dialog = nullptr;
    HWND page = nullptr;
    HWND check = nullptr;
    HWND button = nullptr;
    HWND header = nullptr;
    HWND label = nullptr;
};

TEST_F(SkinEngineTest, RefusesWhatIsNoSkinWhatItLacksAndWindowsThatAreNotThere) {
    DialogControls& controls = environment.open(IDD_CHECKS);
    EXPECT_LT(engine.ApplySkinElement(controls, 0, "SubMain"), 0) << "nothing is loaded";
    EXPECT_LT(engine.LoadSkin(folder.file("none.skn")), 0);
    EXPECT_LT(loadText(std::string(kLongestSkinFile + 1, ' ')), 0);
    EXPECT_EQ(loadText("[Skin]\nFormat=1\n[SubMain]\nFill=#010101\n[Button]\nFill=nonsense\n"
                       "[Label]\nPicture=missing.bmp\n"), 0);
    EXPECT_EQ(engine.ApplySkinElement(controls, 0, "SubMain"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_CHECK1, "Button"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_HEADER, "Label"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, 4711, "SubMain"), 0);
}

TEST_F(SkinEngineTest, PaintsEveryElementInTheColourOfItsState) {
    ASSERT_EQ(loadText(kColourful), 0);
    skinPage();
    EXPECT_EQ(fillOf(page), RGB(0x31, 0, 0));
    EXPECT_EQ(fillOf(header), RGB(0x41, 0, 0)) << "the sunken label is a panel";
    EXPECT_EQ(fillOf(label), RGB(0x31, 0, 0)) << "other labels show the page";
    EXPECT_EQ(fillOf(button), RGB(0x61, 0, 0));
    EXPECT_EQ(fillOf(check, true), RGB(0x51, 0, 0));
    EXPECT_EQ(pixelsOf(check, RGB(0x54, 0, 0)), 0);
    SendMessageA(check, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_GT(pixelsOf(check, RGB(0x54, 0, 0)), 0) << "the check mark";
    SendMessageA(check, BM_SETSTATE, TRUE, 0);
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(fillOf(check, true), RGB(0x53, 0, 0));
    EXPECT_EQ(fillOf(button), RGB(0x63, 0, 0));
    SendMessageA(check, BM_SETSTATE, FALSE, 0);
    SendMessageA(button, BM_SETSTATE, FALSE, 0);
    SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(fillOf(button), RGB(0x64, 0, 0));
    EnableWindow(check, FALSE);
    EnableWindow(button, FALSE);
    EXPECT_EQ(fillOf(check, true), RGB(0x52, 0, 0));
    EXPECT_EQ(fillOf(button), RGB(0x62, 0, 0));
}

TEST_F(SkinEngineTest, ControlsStayThePlatformsOwn) {
    ASSERT_EQ(loadText(kColourful), 0);
    skinPage();
    SendMessageA(check, BM_CLICK, 0, 0);
    EXPECT_EQ(dialog->check(IDC_CHECK1), 1u);
    SendMessageA(button, BM_CLICK, 0, 0);
    EXPECT_EQ(environment.clicked(IDD_CHECK_FIELDS), (std::vector<int>{IDC_CHECK1, IDC_BROWSE1}));
    // What is told to hidden controls does not show them.
    dialog->showControl(IDC_CHECK1, false);
    dialog->showControl(IDC_LABEL1, false);
    dialog->setCheck(IDC_CHECK1, 1);
    dialog->setText(IDC_LABEL1, "hidden");
    EXPECT_FALSE(GetWindowLongA(check, GWL_STYLE) & WS_VISIBLE);
    EXPECT_FALSE(GetWindowLongA(label, GWL_STYLE) & WS_VISIBLE);
}

TEST_F(SkinEngineTest, HighContrastReplacesEveryColourAtOnce) {
    ASSERT_EQ(engine.LoadSkin(kOwnSkin), 0);
    skinPage();
    SystemSettings settings;
    settings.highContrast = true;
    settings.colours.window = 0xFF000001;
    settings.colours.windowText = 0xFFFFFF01;
    settings.colours.buttonFace = 0xFF000002;
    engine.useSettings(settings);
    dialog->setText(IDC_HEADER, "Text:\nMore text");
    const SIZE size = PictureOfWindow::clientSize(header);
    EXPECT_EQ(pixelsOf(header, RGB(0, 0, 1)) + pixelsOf(header, RGB(0xFF, 0xFF, 1)), size.cx * size.cy);
    EXPECT_EQ(fillOf(page), RGB(0, 0, 1));
    EXPECT_EQ(fillOf(button), RGB(0, 0, 2));
    EXPECT_EQ(fillOf(check, true), RGB(0, 0, 1));
    settings.highContrast = false;
    engine.useSettings(settings);
    EXPECT_NE(fillOf(page), RGB(0, 0, 1)) << "and back";
}

TEST_F(SkinEngineTest, WindowsOutliveTheEngineAndItThem) {
    DialogControls& controls = environment.open(IDD_CHECKS);
    {
        Win32SkinEngine other;
        ASSERT_EQ(other.LoadSkin(kOwnSkin), 0);
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);  // twice
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK2, "CheckBox"), 0);
        DestroyWindow(environment.control(IDD_CHECKS, IDC_CHECK2));
        other.useSettings(readSystemSettings());
    }
    EXPECT_EQ(SendMessageA(environment.control(IDD_CHECKS, IDC_CHECK1), BM_GETCHECK, 0, 0), 0);
}

TEST_F(SkinEngineTest, PaintingLeavesNoObjectsBehind) {
    ASSERT_EQ(engine.LoadSkin(kOwnSkin), 0);
    skinPage();
    dialog->setText(IDC_HEADER, "Title:\nWhat it does.");
    const auto paint = [&](int times) {
        for (int i = 0; i < times; ++i) {
            for (const HWND window : {check, header, button, page}) {
                pixelsOf(window, 0);
            }
        }
    };
    paint(1);  // fonts are kept
    const int before = drawingObjectMark();
    paint(1000);
    EXPECT_LE(drawingObjectMark(), before + 2);
}

class SkinnedFrameTest : public SkinEngineTest {
protected:
    SkinnedFrameTest() {
        window = CreateWindowExA(0, "Static", "Title", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 100, 100,
                                 400, 300, nullptr, nullptr, nullptr, nullptr);
        GetClientRect(window, &inside);
        frame.emplace(window);
        EXPECT_EQ(loadText(kColourful), 0);
        EXPECT_EQ(engine.ApplySkin(*frame), 0);
        GetWindowRect(window, &outside);
        right = outside.right - outside.left - 5;
    }
    ~SkinnedFrameTest() override { DestroyWindow(window); }

    LPARAM screen(int x, int y) const { return MAKELPARAM(outside.left + x, outside.top + y); }
    LRESULT hit(int x, int y) const { return SendMessageA(window, WM_NCHITTEST, 0, screen(x, y)); }

    HWND window;
    RECT inside{};
    RECT outside{};
    int right = 0;  // where the frame begins at that side
    std::optional<Win32Dialog> frame;
};

TEST_F(SkinnedFrameTest, GoesAroundAnInsideThatKeepsItsSizeAndIsHitWhereItIsDrawn) {
    RECT now{};
    GetClientRect(window, &now);
    EXPECT_TRUE(EqualRect(&now, &inside));
    EXPECT_EQ(outside.right - outside.left, inside.right + 10);
    EXPECT_EQ(outside.bottom - outside.top, inside.bottom + 35);
    POINT origin{};
    ClientToScreen(window, &origin);
    EXPECT_EQ(screen(5, 30), MAKELPARAM(origin.x, origin.y));

    EXPECT_EQ(hit(right - 5, 15), HTCLOSE);
    EXPECT_EQ(hit(right - 22 - 2 - 5, 15), HTMINBUTTON);
    EXPECT_EQ(hit(right - 2 * 24 - 5, 15), HTHELP);
    PictureOfWindow picture(right + 5, inside.bottom + 35, RGB(0, 255, 0));
    SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(picture.dc()), PRF_NONCLIENT);
    GdiFlush();
    EXPECT_EQ(picture.at(200, 15), RGB(0x12, 0, 0)) << "the caption of an inactive window";
    EXPECT_EQ(picture.at(0, 100), RGB(0x13, 0, 0)) << "the line around it";
    EXPECT_EQ(picture.at(right - 3, 7), RGB(0x21, 0, 0)) << "a button";
    const auto expectClose = [&](COLORREF colour) {
        SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(picture.dc()), PRF_NONCLIENT);
        GdiFlush();
        EXPECT_EQ(picture.at(right - 3, 7), colour);
    };
    ShowWindow(window, SW_SHOWNA);
    SetCursorPos(outside.left + right - 5, outside.top + 15);
    SendMessageA(window, WM_NCMOUSEMOVE, HTCLOSE, screen(right - 5, 15));
    expectClose(RGB(0x22, 0, 0));
    SendMessageA(window, 0x02A2, 0, 0);  // WM_NCMOUSELEAVE
    expectClose(RGB(0x21, 0, 0));
    SetCursorPos(0, 0);
    SendMessageA(window, WM_NCMOUSEMOVE, HTCLOSE, screen(right - 5, 15));
    expectClose(RGB(0x21, 0, 0));  // the message came late
    SendMessageA(window, WM_NCACTIVATE, TRUE, 0);
    SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(picture.dc()), PRF_NONCLIENT);
    GdiFlush();
    EXPECT_EQ(picture.at(200, 15), RGB(0x11, 0, 0));
    EXPECT_GT(picture.count(RGB(0x14, 0, 0)), 20) << "the title";
}

TEST_F(SkinnedFrameTest, TellsTheNamesOfButtonsThatAreReleasedWhereTheyWerePressed) {
    std::vector<std::string> pressed;
    engine.setFrameButtonHandler([&](const std::string& name) { pressed.push_back(name); });
    const int help = right - 2 * 24 - 5;
    const LPARAM onHelp = MAKELPARAM(help - 5, -15);  // in coordinates of the inside
    SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(help, 15));
    SendMessageA(window, WM_LBUTTONUP, 0, onHelp);
    EXPECT_EQ(pressed, std::vector<std::string>{"Help"});
    SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(help, 15));
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(100, 100));
    SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(help, 15));
    ReleaseCapture();
    SendMessageA(window, WM_LBUTTONUP, 0, onHelp);
    EXPECT_EQ(pressed.size(), 1u);
}

// ---- Its properties

TEST(SkinEngineResource, HoldsWellFormedProperties) {
    const HRSRC resource = FindResourceA(nullptr, MAKEINTRESOURCEA(IDD_MAIN), MAKEINTRESOURCEA(240));
    ASSERT_NE(resource, nullptr);
    const auto* bytes = static_cast<const std::byte*>(LockResource(LoadResource(nullptr, resource)));
    const std::span<const std::byte> all(bytes, SizeofResource(nullptr, resource));
    std::vector<std::byte> data;
    for (const std::byte byte : controlData(all, IDC_SKIN)) {
        data.push_back(byte);
    }
    EXPECT_EQ(readSkinProperties(data), SkinProperties{});
    // Malformed data would give the same defaults; a changed hue is read only from data that is well formed.
    const std::string name("m\0_\0n\0H\0u\0e\0\0\0", 14);
    const auto* text = reinterpret_cast<const char*>(data.data());
    const std::size_t hue = std::string(text, data.size()).find(name);
    ASSERT_NE(hue, std::string::npos);
    data[hue + name.size() + 8] = std::byte{77};
    EXPECT_EQ(readSkinProperties(data).hue, 77);
}

}  // namespace
}  // namespace korvane::skin
