// What the main window asks for while it starts, in its order, and what becomes
// of it when the skin engine refuses a call.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace korvane {
namespace {

// The calls from that one on, one to a line; the elements of a dialog stand in the line of what came before them.
std::string callsFrom(const MemoryMainWindow& window, std::size_t first = 0) {
    constexpr std::string_view kElement = "element ";
    std::string text;
    for (std::size_t i = first; i < window.calls().size(); ++i) {
        const std::string& call = window.calls()[i];
        text += call.starts_with(kElement) ? ", " + call.substr(kElement.size()) : '\n' + call;
    }
    return text;
}

TEST(StartUp, AsksItsWindowsForEverythingInOrder) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n");
    program.setLanguageFile("[KorvaneManagerStringTable]\n101=About\n");
    program.setLanguageFile("[KorvaneManagerStringTable]\n101=Info\n[1004]\n112=Titel\n", "Deutsch");
    program.system.fixedClock.seedValue = 40;
    ASSERT_TRUE(program.start());
    std::string images;
    for (int bitmap = 132; bitmap <= 161; ++bitmap) {
        images += "image " + std::to_string(bitmap) + " ff\n";  // transparent where it is red
    }
    EXPECT_EQ(callsFrom(program.window),
              "\nmenu separator\nmenu 16 About\nicons 128\n"
              "splash C:\\Korvane\\Skin\\Splash.spl\nsplash minimum time 0\nsplash shown\n"
              "skin C:\\Korvane\\Skin\\skin.skn\nskin applied, 1016 Button, 1053 Splitter\n"
              "image list 16 1 1\ntree background C:\\Korvane\\Skin\\BG.jpg\n" +
                  images +
                  "divider 1053 50 10\ntree style 306700e3\ntree image list\n"
                  "tree column [ ] 504144 0 -1 0 0\ntree column modify 0 1\ntree column width 0 500 0 0\n"
                  "tree cleared\nmenu text 16 Info\n"
                  "page 106, 0 SubMain, 1013 CheckBox, 1006 Label\n"
                  "page 170, 0 SubMain, 1013 CheckBox, 1018 CheckBox, 1028 CheckBox, 1032 CheckBox, 1033 CheckBox, "
                  "1034 CheckBox, 1035 CheckBox, 1036 CheckBox, 1037 CheckBox, 1038 CheckBox, 1006 Label, 1024 Label\n"
                  "page 171, 0 SubMain, 1013 CheckBox, 1018 CheckBox, 1006 Label, 1024 Label, 1014 Label, 1019 Label, "
                  "1020 Label, 1023 Button, 1026 Button, 1027 Button\n"
                  "page 172, 0 SubMain, 1013 CheckBox, 1006 Label, 1024 Label, 1014 Label, 1019 Label\n"
                  "page 173, 0 SubMain, 1006 Label\n"
                  "page 107, 0 SubMain, 1014 Label, 1019 Label, 1020 Label, 1039 Label, 1041 Label, 1006 Label, "
                  "1023 Button, 1026 Button, 1027 Button, 1048 Button, 1050 Button\n"
                  "page 174, 0 SubMain, 1014 Label, 1019 Label, 1020 Label, 1039 Label, 1041 Label, 1046 Label, "
                  "1006 Label\n"
                  "page 175, 0 SubMain, 1014 Label, 1019 Label, 1020 Label, 1039 Label, 1006 Label, 1024 Label\n"
                  "page 176, 0 SubMain, 1013 CheckBox, 1006 Label, 1024 Label, 1014 Label");
    ASSERT_EQ(program.window.systemMenu().size(), 2u);
    EXPECT_EQ(program.window.systemMenu()[1].text, "Info");
    // The dates are those of the translated titles.
    EXPECT_EQ(dateOf(program, "Titel"), kFirstDay);
    EXPECT_EQ(dateOf(program, "Quick Edit the Command Prompt"), "");

    std::srand(40);
    EXPECT_EQ(program.window.page(IDD_CHECK_COMBOS)->comboSelection(IDC_COLOUR_COMBO), std::rand() % 139);
    constexpr Colour kNearlyWhite = rgb(249, 250, 251);
    const MemoryControl& overview = *program.window.page(IDD_CATEGORY)->find(IDC_LIST);
    const MemoryControl& checkList = *program.window.page(IDD_CHECK_LIST)->find(IDC_CHECK_LIST);
    EXPECT_TRUE(overview.extendedStyle == 0x620 && overview.background == kNearlyWhite);
    EXPECT_TRUE(checkList.extendedStyle == 0x624 && checkList.background == kNearlyWhite);
    const MemoryControl& numbers = *program.window.page(IDD_CHECK_COMBO)->find(IDC_COMBO1);
    ASSERT_EQ(numbers.entries.size(), 10001u);
    for (std::size_t i = 0; i < numbers.entries.size(); ++i) {
        ASSERT_EQ(numbers.entries[i].text, std::to_string(i));
    }
    EXPECT_TRUE(numbers.redraws);
}

TEST(StartUp, OffersAnAboutBox) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    const std::size_t before = program.window.calls().size();
    ASSERT_TRUE(program.window.chooseSystemMenu(16));
    EXPECT_EQ(callsFrom(program.window, before), "\nabout box, 0 Main, 1 Button, 1066 Label, 1065 Label, 1064 Label");
    ASSERT_NE(program.window.aboutBox(), nullptr);
    const MemoryDialog& box = *program.window.aboutBox();
    EXPECT_EQ(box.templateId(), 100);
    EXPECT_EQ(box.find(1066)->text, "Korvane Manager Manager Version 1.0.0.1");
    EXPECT_EQ(box.find(1064)->text, "The Korvane Manager  is the best utility for modifying system settings in the "
                                    "Microsoft Windows operating systems.");
}

TEST(StartUp, ShowsTheFirstOverviewAndNoSelection) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    EXPECT_EQ(pageText(program),
              "page 106\n"
              "1006 Accessories:\nTweak and Settings for Windows Accessories and Components.\n"
              "1007 3 rows, selected -1\n");
    EXPECT_EQ(registryChanges("", program.registryText()),
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"DateModefiedFlage\"=dword:00000001\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"Language\"=\"English\"\n");
    EXPECT_FALSE(program.apply());
    // Even a press that got through finds nothing to apply: no item is selected.
    const std::string before = program.registryText() + program.dateFile();
    program.setToday({.year = 2006, .month = 7, .day = 16});
    program.main->OnApplyChanges();
    EXPECT_EQ(program.registryText() + program.dateFile(), before);
    EXPECT_EQ(program.openHandles(), 0u);
}

// ---- Refusals

// Behind the splash it could not be read.
void expectSkinMessage(MemoryProgram& program) {
    ASSERT_EQ(program.messages().size(), 1u);
    const MessageBoxRequest& message = program.messages()[0];
    EXPECT_EQ(message.text, "Could load or apply the skin.");
    EXPECT_EQ(message.caption, "Korvane Manager");
    EXPECT_EQ(message.icon, MessageIcon::None);
    EXPECT_TRUE(message.ownedByMainWindow);
    EXPECT_EQ(std::ranges::count(program.window.calls(), "splash hidden"), 1);
}

TEST(SkinRefusal, EndsTheProgramWhenTheMainWindowIsRefused) {
    // A missing engine, and loading and applying the skin, close the window as a person does; the main window's
    // elements end the dialog with 0.
    constexpr int kClosed = 2;
    for (int call = 0; call <= 4; ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        program.window.offerSkinEngine(call != 0);
        EXPECT_FALSE(program.start());
        expectSkinMessage(program);
        EXPECT_EQ(program.window.dialog().result(), call <= 2 ? kClosed : 0);
        // It ended before it looked at settings, dates and tree.
        EXPECT_EQ(program.window.calls().back(), "splash hidden");
        EXPECT_TRUE(program.dateFile().empty());
        EXPECT_TRUE(program.window.tree().rows().empty());
    }
}

TEST(SkinRefusal, EndsOnlyThePageThatIsRefused) {
    MemoryProgram whole;
    ASSERT_TRUE(whole.start());
    const int calls = whole.window.skinEngine()->callCount();
    std::set<int> tried;
    for (int call = 5; call <= calls && !HasFailure(); ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        EXPECT_TRUE(program.start());
        expectSkinMessage(program);
        const auto& log = program.window.calls();
        const auto message = std::ranges::find(log, "splash hidden");
        // The page is given up at once.
        EXPECT_TRUE(message + 1 == log.end() || message[1].starts_with("page ")) << message[1];
        const auto made = std::find_if(std::make_reverse_iterator(message), log.rend(),
                                       [](const std::string& line) { return line.starts_with("page "); });
        MemoryDialog& page = *program.window.page(std::stoi(made->substr(5)));
        EXPECT_EQ(page.result(), 0);
        // What comes behind the skin is left out.
        for (const MemoryControl& control : page.allControls()) {
            EXPECT_EQ(control.extendedStyle, 0u);
            EXPECT_TRUE(control.kind != ControlKind::ColourCombo || control.entries.empty());
        }
        // Everything that can be reached is selected and applied; the page must stay away.
        const bool isFirst = tried.insert(page.templateId()).second;
        for (int id = 0; isFirst && id < kItemCount; ++id) {
            program.select(id);
            ASSERT_FALSE(page.visible()) << "item " << id;
            program.apply();
        }
    }
    EXPECT_EQ(tried.size(), 9u);
}

}  // namespace
}  // namespace korvane
