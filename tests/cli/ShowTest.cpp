// list and show: what they print, for people and for scripts, and what they refuse.
#include "catalogue/Catalogue.h"
#include "text/Utf.h"
#include "tests/cli/KmctlTest.h"

#ifdef _WIN32
#include "platform/win32/Win32Registry.h"
#endif

namespace korvane {
namespace {

using ShowTest = KmctlTest;

TEST_F(ShowTest, PagesAsAPersonReadsThem) {
    for (const auto& [item, part] :
         {std::pair{"11", "\n1013  [ ] Enable Quick Edit the Command Prompt\n\nNote:\n"
                          "    You may need to restart or log out of Windows for the change to take\n    effect.\n"},
          {"8", "\n1021  Command Completion(Current User): [TAB key]\n        #0  Disable\n        #1  Backspace key\n"
                "      > #2  TAB key\n        #3  Ctrl-D\n"},
          {"12", "\n1015  The Command or Program Path: [C:\\start.bat]\n1023  <...>\n"},
          {"7", "\n1007        Value  Discription\n"
                "        #0  0      (default) enable command prompt and batch files\n"},
          {"4", "Change the Command Prompt (4)\n\nNothing is shown for this item.\n"}}) {
        const KmctlResult shown = kmctl({"show", item});
        EXPECT_EQ(shown.status, 0) << shown.err;
        EXPECT_TRUE(has(shown.out, part)) << shown.out;
    }
}

TEST_F(ShowTest, JsonHoldsEveryControlOfTheTemplate) {
    const std::string checks = json({"show", "11"});
    EXPECT_TRUE(checks.starts_with("{\"item\":11,\"title\":\"Quick Edit the Command Prompt\",\"page\":\"CChecksPage\","
                                   "\"header\":\"Quick Edit the Command Prompt:\\n"))
        << checks;
    EXPECT_TRUE(has(checks, "\",\"applyVisible\":true,\"controls\":[{\"id\":1006,\"kind\":\"header\","));
    EXPECT_EQ(controlOf(checks, 1013),
              "{\"id\":1013,\"kind\":\"checkbox\",\"visible\":true,\"enabled\":true,"
              "\"text\":\"Enable Quick Edit the Command Prompt\",\"check\":0}");
    EXPECT_TRUE(controlOf(checks, 1018).starts_with("{\"id\":1018,\"kind\":\"checkbox\",\"visible\":false,"));
    const std::string combo = controlOf(json({"show", "8"}), 1021);
    EXPECT_TRUE(has(combo, "\"text\":\"TAB key\",\"items\":[\"Disable\",\"Backspace key\",\"TAB key\",")) << combo;
    EXPECT_TRUE(combo.ends_with("],\"selection\":2}")) << combo;
    EXPECT_EQ(json({"show", "4"}),
              "{\"item\":4,\"title\":\"Change the Command Prompt\",\"page\":null,\"header\":\"\","
              "\"applyVisible\":false,\"controls\":[]}\n");
}

TEST_F(ShowTest, TextsOfTheRegistryCannotBreakTheOutput) {
    // A quotation mark, an escape, a tabulator, a C1 control and a letter beyond ASCII, as 8-bit text in the file.
    writeFile(registry_, withChange(kTestRegistry, "C:\\\\start.bat", "\\\"\x1b[2J\t\x81\xfc"));
    EXPECT_TRUE(has(controlOf(json({"show", "12"}), 1015), "\"text\":\"\\\"\\u001b[2J\\t\\u0081\u00fc\""));
    const std::string shown = kmctl({"show", "12"}).out;
    EXPECT_TRUE(has(shown, "[\"\\x1b[2J\\x09\\u0081")) << shown;
}

TEST_F(ShowTest, MessagesAndNamesCannotBreakTheOutput) {
    const KmctlResult wrong = runKmctl({"list", "--\x1b[31m\n\xff"});
#ifdef _WIN32
    EXPECT_EQ(wrong.err, "kmctl: there is no option \"--\\x1b[31m\\x0a\xff\"\nkmctl --help tells more\n");
#else
    EXPECT_EQ(wrong.err, "kmctl: there is no option \"--\\x1b[31m\\x0a\\xff\"\nkmctl --help tells more\n");
    const std::string odd = folder_.file("a\n\x1b[2J\u009b\u202e\xc3\x28\u00fc.reg");
    writeFile(odd, kTestRegistry);
    EXPECT_TRUE(has(runKmctl({"--registry", odd, "apply", "11", "1013=0"}).out,
                    "a\\x0a\\x1b[2J\\u009b\\u202e\\xc3(\u00fc.reg: nothing in it has changed\n"));
#endif
}

TEST_F(ShowTest, EveryItemOfTheSampleCanBeShown) {
    constexpr const char* kSample = "samples/windows-xp.reg";
    const std::string before = readFile(kSample);
    for (int item = 0; item < kItemCount; ++item) {
        const KmctlResult result = runKmctl({"show", "--registry", kSample, "--json", std::to_string(item)});
        ASSERT_EQ(result.status, 0) << item << ": " << result.err;
        EXPECT_TRUE(fromUtf8(result.out)) << result.out;
        EXPECT_EQ(has(result.out, "\"page\":null"), !findTweak(item)->hasShow()) << item;
    }
    EXPECT_EQ(readFile(kSample), before);
}

TEST_F(ShowTest, ItemsAreFoundByTitle) {
    EXPECT_TRUE(json({"show", "quick EDIT the command prompt"}).starts_with("{\"item\":11,"));
    EXPECT_TRUE(json({"show", "Allow UNC Paths at the Command Prompt"}).starts_with("{\"item\":3,"))
        << "a record without a row in the tree";
    for (const auto& [item, error] :
         {std::pair{"Quick Edit", "kmctl: no item has the title \"Quick Edit\"\nkmctl --help tells more\n"},
          {"311", "kmctl: there is no item 311: the last one is 310\nkmctl --help tells more\n"}}) {
        EXPECT_EQ(kmctl({"show", item}).status, 2);
        EXPECT_EQ(kmctl({"show", item}).err, error);
    }
}

TEST_F(ShowTest, ListFollowsTheTree) {
    const std::string list = kmctl({"list"}).out;
    EXPECT_TRUE(list.starts_with("  0  category  Accessories\n  1  category    Command Processor\n"
                                 "  2  tweak         Add Command Prompt Option to Every Folder\n"))
        << list;
    EXPECT_EQ(std::ranges::count(list, '\n'), 163);
    EXPECT_TRUE(has(kmctl({"list", "--all"}).out, "\n  3* tweak         Allow UNC Paths at the Command Prompt\n"));
    EXPECT_TRUE(has(json({"list", "--all"}),
                    ",{\"item\":3,\"category\":false,\"title\":\"Allow UNC Paths at the Command Prompt\","
                    "\"inTree\":false},"));
}

TEST_F(ShowTest, InputThatCannotBeReadIsNamedWithItsLine) {
    for (const std::string& path : {folder_.file("none.reg"), folder_.path()}) {
        const KmctlResult missing = runKmctl({"show", "11", "--registry", path});
        EXPECT_EQ(missing.status, 2);
        EXPECT_TRUE(missing.err.starts_with("kmctl: " + path + ": cannot be ")) << missing.err;
    }
    writeFile(registry_, "REGEDIT4\n\n[HKEY_CURRENT_USER\\Console]\n\"QuickEdit\"=dword:0000000g\n");
    const KmctlResult broken = kmctl({"show", "11"});
    EXPECT_EQ(broken.status, 2);
    EXPECT_EQ(broken.out, "");
    EXPECT_TRUE(broken.err.starts_with("kmctl: " + registry_ + ":4: ")) << broken.err;
}

#ifdef _WIN32

// Over the registry of the running Windows; the setting is put back.
TEST(LiveRegistry, IsShownAndChangedWithoutAFile) {
    Win32Registry registry;
    RegistryHandle user;
    RegistryHandle console;  // a fresh account may not have it yet, and the program does not make it
    ASSERT_EQ(registry.connect(Root::CurrentUser, user), Status::Success);
    ASSERT_EQ(registry.createKey(user, "Console", console), Status::Success);
    const auto quickEdit = [] { return has(runKmctl({"show", "11"}).out, "[x] Enable Quick Edit"); };
    const bool before = quickEdit();
    for (const bool wanted : {!before, before}) {
        const KmctlResult result = runKmctl({"apply", "11", wanted ? "1013=1" : "1013=0"});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out, "Quick Edit the Command Prompt (11): applied\n");
        EXPECT_EQ(quickEdit(), wanted);
    }
}

#endif

}  // namespace
}  // namespace korvane
