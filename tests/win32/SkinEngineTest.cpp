// The engine over real dialogs: what it paints, what it leaves to the
// platform, and what it refuses.
#include "platform/memory/StdioFiles.h"
#include "platform/win32/Win32Dialog.h"
#include "platform/win32/Win32MainWindow.h"
#include "res/ControlIds.h"
#include "skin/win32/SkinEngine.h"
#include "tests/win32/PictureOfWindow.h"
#include "tests/win32/Win32DialogEnvironment.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace korvane {
namespace {

constexpr const char* kOwnSkin = "data/Skin/skin.skn";

// Every state of every element has a colour of its own.
constexpr const char* kColourful = R"([Skin]
Format=1
[Main]
Fill=#110000
Fill.Inactive=#120000
Border=#130000
Text=#140000
Margins=5, 5, 5, 5
CaptionHeight=30
Buttons=HELP, Minimize, Close
[FrameButton]
Fill=#210000
[SubMain]
Fill=#310000
Text=#320000
[Label]
Fill=#410000
Border=#420000
Margins=4, 4, 4, 4
[CheckBox]
Fill=#510000
Fill.Disabled=#520000
Fill.Pressed=#530000
Mark=#540000
[Button]
Fill=#610000
Fill.Disabled=#620000
Fill.Pressed=#630000
Fill.Focused=#640000
[Splitter]
Fill=#710000
)";

class SkinFileInFolder {
public:
    explicit SkinFileInFolder(const std::string& text) {
        char folder[MAX_PATH] = "";
        char file[MAX_PATH] = "";
        GetTempPathA(MAX_PATH, folder);
        GetTempFileNameA(folder, "skn", 0, file);
        path = file;
        std::FILE* out = std::fopen(file, "wb");
        std::fwrite(text.data(), 1, text.size(), out);
        std::fclose(out);
    }
    SkinFileInFolder(const SkinFileInFolder&) = delete;
    SkinFileInFolder& operator=(const SkinFileInFolder&) = delete;
    ~SkinFileInFolder() { DeleteFileA(path.c_str()); }

    std::string path;
};

class SkinEngineTest : public ::testing::Test {
protected:
    void load(const std::string& text) { ASSERT_EQ(engine.LoadSkin(SkinFileInFolder(text).path), 0); }

    // A page of the given template, on which control 0 and the controls are skinned.
    void skinPage(int templateId, const std::vector<std::pair<int, const char*>>& elements) {
        dialog = &environment.open(templateId);
        EXPECT_EQ(engine.ApplySkinElement(*dialog, 0, "SubMain"), 0);
        for (const auto& [control, element] : elements) {
            EXPECT_EQ(engine.ApplySkinElement(*dialog, control, element), 0) << element;
            dialog->showControl(control, true);
        }
        page = static_cast<Win32Dialog*>(dialog)->window();
    }
    HWND control(int id) const { return GetDlgItem(page, id); }

    static COLORREF middleOf(HWND window) {
        RECT rect{};
        GetClientRect(window, &rect);
        PictureOfWindow picture(rect.right, rect.bottom, RGB(0, 255, 0));
        return picture.print(window).at(rect.right / 2, rect.bottom / 2);
    }
    static COLORREF squareOf(HWND checkBox) {
        RECT rect{};
        GetClientRect(checkBox, &rect);
        PictureOfWindow picture(rect.right, rect.bottom, RGB(0, 255, 0));
        return picture.print(checkBox).at(10, rect.bottom / 2 + 4);  // beside the mark
    }
    static int pixelsOf(HWND window, COLORREF colour) {
        RECT rect{};
        GetClientRect(window, &rect);
        PictureOfWindow picture(rect.right, rect.bottom, RGB(0, 255, 0));
        return picture.print(window).count(colour);
    }

    Win32DialogEnvironment environment;
    Win32SkinEngine engine;
    DialogControls* dialog = nullptr;
    HWND page = nullptr;
};

// ---- What is refused

TEST_F(SkinEngineTest, RefusesFilesThatAreNoSkins) {
    EXPECT_LT(engine.LoadSkin("C:\\no such folder\\skin.skn"), 0);
    EXPECT_LT(engine.LoadSkin(SkinFileInFolder("").path), 0);
    EXPECT_LT(engine.LoadSkin(SkinFileInFolder("MZ\x90").path), 0);
    EXPECT_LT(engine.LoadSkin(SkinFileInFolder(std::string(kLongestSkinFile + 1, ' ')).path), 0);
    EXPECT_EQ(engine.LoadSkin(kOwnSkin), 0);
}

TEST_F(SkinEngineTest, RefusesWhatTheSkinLacksAndWindowsThatAreNotThere) {
    DialogControls& controls = environment.open(IDD_CHECKS);
    EXPECT_LT(engine.ApplySkinElement(controls, 0, "SubMain"), 0) << "nothing is loaded";
    load("[Skin]\nFormat=1\n[SubMain]\nFill=#010101\n[Button]\nFill=nonsense\n[Label]\nPicture=missing.bmp\n");
    EXPECT_EQ(engine.ApplySkinElement(controls, 0, "SubMain"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_CHECK1, "Button"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_HEADER, "Label"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, 4711, "SubMain"), 0);
    EXPECT_LT(engine.ApplySkinElement(controls, 0, "FrameButton"), 0);
}

// ---- Painting

TEST_F(SkinEngineTest, PaintsEveryElementInItsColours) {
    load(kColourful);
    skinPage(IDD_CHECK_FIELDS, {{IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"}, {IDC_LABEL1, "Label"},
                                {IDC_BROWSE1, "Button"}});
    EXPECT_EQ(middleOf(page), RGB(0x31, 0, 0));
    dialog->setText(IDC_HEADER, "");
    EXPECT_EQ(middleOf(control(IDC_HEADER)), RGB(0x41, 0, 0)) << "the sunken label is a panel";
    dialog->setText(IDC_LABEL1, "");
    EXPECT_EQ(middleOf(control(IDC_LABEL1)), RGB(0x31, 0, 0)) << "other labels show the page";
    dialog->setText(IDC_BROWSE1, "");
    EXPECT_EQ(middleOf(control(IDC_BROWSE1)), RGB(0x61, 0, 0));
    EXPECT_EQ(squareOf(control(IDC_CHECK1)), RGB(0x51, 0, 0));
}

TEST_F(SkinEngineTest, ControlsShowTheirStates) {
    load(kColourful);
    skinPage(IDD_CHECK_FIELDS, {{IDC_CHECK1, "CheckBox"}, {IDC_BROWSE1, "Button"}});
    const HWND check = control(IDC_CHECK1);
    const HWND button = control(IDC_BROWSE1);
    dialog->setText(IDC_BROWSE1, "");
    EXPECT_EQ(pixelsOf(check, RGB(0x54, 0, 0)), 0);
    SendMessageA(check, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_GT(pixelsOf(check, RGB(0x54, 0, 0)), 0) << "the check mark";
    SendMessageA(check, BM_SETSTATE, TRUE, 0);
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(squareOf(check), RGB(0x53, 0, 0));
    EXPECT_EQ(middleOf(button), RGB(0x63, 0, 0));
    SendMessageA(check, BM_SETSTATE, FALSE, 0);
    SendMessageA(button, BM_SETSTATE, FALSE, 0);
    SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(middleOf(button), RGB(0x64, 0, 0));
    EnableWindow(check, FALSE);
    EnableWindow(button, FALSE);
    EXPECT_EQ(squareOf(check), RGB(0x52, 0, 0));
    EXPECT_EQ(middleOf(button), RGB(0x62, 0, 0));
}

TEST_F(SkinEngineTest, ControlsStayThePlatformsOwn) {
    load(kColourful);
    skinPage(IDD_CHECK_FIELDS, {{IDC_CHECK1, "CheckBox"}, {IDC_BROWSE1, "Button"}, {IDC_LABEL1, "Label"}});
    const HWND check = control(IDC_CHECK1);
    SendMessageA(check, BM_CLICK, 0, 0);
    EXPECT_EQ(dialog->check(IDC_CHECK1), 1u);
    SendMessageA(control(IDC_BROWSE1), BM_CLICK, 0, 0);
    EXPECT_EQ(environment.clicked(IDD_CHECK_FIELDS), (std::vector<int>{IDC_CHECK1, IDC_BROWSE1}));
    dialog->setText(IDC_LABEL1, "Another text");
    EXPECT_EQ(dialog->text(IDC_LABEL1), "Another text");
    SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0);
    SendMessageA(check, WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(dialog->check(IDC_CHECK1), 0u);
    // What is told to hidden controls does not show them.
    dialog->showControl(IDC_CHECK1, false);
    dialog->showControl(IDC_LABEL1, false);
    dialog->setCheck(IDC_CHECK1, 1);
    dialog->setText(IDC_LABEL1, "hidden");
    dialog->enableControl(IDC_LABEL1, false);
    EXPECT_FALSE(GetWindowLongA(check, GWL_STYLE) & WS_VISIBLE);
    EXPECT_FALSE(GetWindowLongA(control(IDC_LABEL1), GWL_STYLE) & WS_VISIBLE);
}

TEST_F(SkinEngineTest, HighContrastReplacesEveryColourAtOnce) {
    ASSERT_EQ(engine.LoadSkin(kOwnSkin), 0);
    skinPage(IDD_CHECK_FIELDS, {{IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"}, {IDC_BROWSE1, "Button"}});
    SystemSettings settings;
    settings.highContrast = true;
    settings.colours.window = 0xFF000001;
    settings.colours.windowText = 0xFFFFFF01;
    settings.colours.buttonFace = 0xFF000002;
    settings.colours.buttonText = 0xFFFFFF02;
    engine.useSettings(settings);
    for (const char* text : {"", "Text:\nMore text"}) {
        dialog->setText(IDC_HEADER, text);
        const int window = pixelsOf(control(IDC_HEADER), RGB(0, 0, 1));
        const int ink = pixelsOf(control(IDC_HEADER), RGB(0xFF, 0xFF, 1));
        RECT rect{};
        GetClientRect(control(IDC_HEADER), &rect);
        EXPECT_EQ(window + ink, rect.right * rect.bottom) << "there is another colour";
    }
    EXPECT_EQ(middleOf(page), RGB(0, 0, 1));
    dialog->setText(IDC_BROWSE1, "");
    EXPECT_EQ(middleOf(control(IDC_BROWSE1)), RGB(0, 0, 2));
    EXPECT_EQ(squareOf(control(IDC_CHECK1)), RGB(0, 0, 1));
    settings.highContrast = false;
    engine.useSettings(settings);
    EXPECT_NE(middleOf(page), RGB(0, 0, 1)) << "and back";
}

TEST_F(SkinEngineTest, ChecksGrowWithTheResolution) {
    load(kColourful);
    skinPage(IDD_CHECKS, {{IDC_CHECK1, "CheckBox"}});
    const HWND check = control(IDC_CHECK1);
    SetWindowPos(check, nullptr, 0, 0, 200, 60, SWP_NOMOVE | SWP_NOZORDER);
    dialog->setText(IDC_CHECK1, "");
    const int usual = pixelsOf(check, RGB(0x51, 0, 0));
    EXPECT_EQ(usual, 13 * 13);
    engine.useSettings({.highContrast = false, .colours = {}, .dpi = 192});
    EXPECT_EQ(pixelsOf(check, RGB(0x51, 0, 0)), 26 * 26);
}

TEST_F(SkinEngineTest, TheClientAreaIsLeftAloneWhenThePropertiesSayso) {
    load(kColourful);
    engine.setProperties({.skinClientArea = false});
    DialogControls& controls = environment.open(IDD_CHECKS);
    const HWND check = environment.control(IDD_CHECKS, IDC_CHECK1);
    const LONG_PTR before = GetWindowLongPtrA(check, GWLP_WNDPROC);
    EXPECT_EQ(engine.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);
    EXPECT_EQ(GetWindowLongPtrA(check, GWLP_WNDPROC), before);
    EXPECT_LT(engine.ApplySkinElement(controls, IDC_CHECK1, "Nothing"), 0);
}

TEST_F(SkinEngineTest, WindowsOutliveTheEngineAndItThem) {
    {
        Win32SkinEngine other;
        ASSERT_EQ(other.LoadSkin(kOwnSkin), 0);
        DialogControls& controls = environment.open(IDD_CHECKS);
        const HWND check = environment.control(IDD_CHECKS, IDC_CHECK1);
        const LONG_PTR before = GetWindowLongPtrA(check, GWLP_WNDPROC);
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK1, "CheckBox"), 0);  // twice
        EXPECT_NE(GetWindowLongPtrA(check, GWLP_WNDPROC), before);
        EXPECT_EQ(other.ApplySkinElement(controls, IDC_CHECK2, "CheckBox"), 0);
        DestroyWindow(environment.control(IDD_CHECKS, IDC_CHECK2));
        other.useSettings(readSystemSettings());
    }
    EXPECT_EQ(SendMessageA(environment.control(IDD_CHECKS, IDC_CHECK1), BM_GETCHECK, 0, 0), 0);
}

TEST_F(SkinEngineTest, PaintingLeavesNoObjectsBehind) {
    ASSERT_EQ(engine.LoadSkin(kOwnSkin), 0);
    skinPage(IDD_CHECK_FIELDS, {{IDC_CHECK1, "CheckBox"}, {IDC_HEADER, "Label"}, {IDC_BROWSE1, "Button"}});
    dialog->setText(IDC_HEADER, "Title:\nWhat it does.");
    const auto paint = [&] {
        for (const int id : {IDC_CHECK1, IDC_HEADER, IDC_BROWSE1}) {
            pixelsOf(control(id), 0);
        }
        pixelsOf(page, 0);
    };
    paint();  // fonts are kept
    const int before = drawingObjectMark();
    for (int i = 0; i < 1000; ++i) {
        paint();
    }
    EXPECT_LE(drawingObjectMark(), before + 2);
}

// ---- The frame

class SkinnedFrameTest : public SkinEngineTest {
protected:
    SkinnedFrameTest() {
        window = CreateWindowExA(0, "Static", "Title", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 100, 100,
                                 400, 300, nullptr, nullptr, nullptr, nullptr);
        GetClientRect(window, &inside);
        frame.emplace(window);
    }
    ~SkinnedFrameTest() override { DestroyWindow(window); }

    LRESULT hit(int x, int y) const {
        RECT rect{};
        GetWindowRect(window, &rect);
        return SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(rect.left + x, rect.top + y));
    }
    LPARAM screen(int x, int y) const {
        RECT rect{};
        GetWindowRect(window, &rect);
        return MAKELPARAM(rect.left + x, rect.top + y);
    }
    // Releasing the button is told in coordinates of the inside.
    void click(int x, int y) const {
        SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(x, y));
        SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x - 5, y - 30));
    }
    int width() const {
        RECT rect{};
        GetWindowRect(window, &rect);
        return rect.right - rect.left;
    }

    HWND window;
    RECT inside{};
    std::optional<Win32Dialog> frame;
};

TEST_F(SkinnedFrameTest, GoesAroundAnInsideThatKeepsItsSize) {
    load(kColourful);
    ASSERT_EQ(engine.ApplySkin(*frame), 0);
    RECT now{};
    GetClientRect(window, &now);
    EXPECT_TRUE(EqualRect(&now, &inside));
    RECT rect{};
    GetWindowRect(window, &rect);
    EXPECT_EQ(rect.right - rect.left, inside.right + 10);
    EXPECT_EQ(rect.bottom - rect.top, inside.bottom + 35);
    POINT origin{};
    ClientToScreen(window, &origin);
    EXPECT_EQ(origin.x - rect.left, 5);
    EXPECT_EQ(origin.y - rect.top, 30);
}

TEST_F(SkinnedFrameTest, ItsPartsAreWhereTheyAreDrawn) {
    load(kColourful);
    ASSERT_EQ(engine.ApplySkin(*frame), 0);
    const int right = width() - 5;
    EXPECT_EQ(hit(right - 5, 15), HTCLOSE);
    EXPECT_EQ(hit(right - 22 - 2 - 5, 15), HTMINBUTTON);
    EXPECT_EQ(hit(right - 2 * 24 - 5, 15), HTHELP);
    EXPECT_EQ(hit(10, 15), HTSYSMENU);
    EXPECT_EQ(hit(150, 15), HTCAPTION);
    EXPECT_EQ(hit(150, 60), HTCLIENT);
    EXPECT_EQ(hit(2, 60), HTBORDER);

    PictureOfWindow picture(width(), inside.bottom + 35, RGB(0, 255, 0));
    SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(picture.dc()), PRF_NONCLIENT);
    GdiFlush();
    EXPECT_EQ(picture.at(200, 15), RGB(0x12, 0, 0)) << "the caption of an inactive window";
    EXPECT_EQ(picture.at(0, 100), RGB(0x13, 0, 0)) << "the line around it";
    EXPECT_EQ(picture.at(2, 100), RGB(0x12, 0, 0));
    EXPECT_EQ(picture.at(right - 3, 7), RGB(0x21, 0, 0)) << "a button";
    SendMessageA(window, WM_NCACTIVATE, TRUE, 0);
    SendMessageA(window, WM_PRINT, reinterpret_cast<WPARAM>(picture.dc()), PRF_NONCLIENT);
    GdiFlush();
    EXPECT_EQ(picture.at(200, 15), RGB(0x11, 0, 0));
    EXPECT_GT(picture.count(RGB(0x14, 0, 0)), 20) << "the title";
}

TEST_F(SkinnedFrameTest, TellsTheNamesOfButtonsThatTheProgramKnows) {
    load(kColourful);
    ASSERT_EQ(engine.ApplySkin(*frame), 0);
    std::vector<std::string> pressed;
    engine.setFrameButtonHandler([&](const std::string& name) { pressed.push_back(name); });
    const int help = width() - 5 - 2 * 24 - 5;
    click(help, 15);
    EXPECT_EQ(pressed, std::vector<std::string>{"Help"});
    // Released elsewhere, or with the mouse taken away, nothing is pressed.
    SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(help, 15));
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(100, 100));
    SendMessageA(window, WM_NCLBUTTONDOWN, HTHELP, screen(help, 15));
    ReleaseCapture();
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(help - 5, -15));
    EXPECT_EQ(pressed.size(), 1u);
}

TEST_F(SkinnedFrameTest, AWindowWithoutMinimizeBoxHasOnlyTheCloseButton) {
    load(kColourful);
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) & ~WS_MINIMIZEBOX);
    ASSERT_EQ(engine.ApplySkin(*frame), 0);
    EXPECT_EQ(hit(width() - 10, 15), HTCLOSE);
    EXPECT_EQ(hit(width() - 5 - 24 - 5, 15), HTCAPTION);
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
}  // namespace korvane
