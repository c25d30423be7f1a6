// list and show: what they print, for people and for scripts, and what they refuse.
#include "app/KorvaneApp.h"
#include "catalogue/Catalogue.h"
#include "tests/cli/KmctlTest.h"

#ifdef _WIN32
#include "platform/win32/Win32Registry.h"
#endif

namespace korvane {
namespace {

using ShowTest = KmctlTest;

constexpr const char* kSample = "samples/windows-xp.reg";

TEST_F(ShowTest, PagesAsAPersonReadsThem) {
    const KmctlResult checks = kmctl({"show", "11"});
    EXPECT_EQ(checks.status, 0);
    EXPECT_EQ(checks.err, "");
    EXPECT_TRUE(checks.out.starts_with("Quick Edit the Command Prompt (11)\n\n")) << checks.out;
    EXPECT_TRUE(checks.out.ends_with("1013  [ ] Enable Quick Edit the Command Prompt\n"
                                     "\n"
                                     "Note:\n"
                                     "    You may need to restart or log out of Windows for the change to take\n"
                                     "    effect.\n"))
        << checks.out;

    const KmctlResult choices = kmctl({"show", "8"});
    EXPECT_NE(choices.out.find("\n1021  Command Completion(Current User): [TAB key]\n"
                               "        #0  Disable\n"
                               "        #1  Backspace key\n"
                               "      > #2  TAB key\n"
                               "        #3  Ctrl-D\n"),
              std::string::npos)
        << choices.out;

    const KmctlResult field = kmctl({"show", "12"});
    EXPECT_NE(field.out.find("\n1015  The Command or Program Path: [C:\\start.bat]\n1023  <...>\n"), std::string::npos)
        << field.out;

    const KmctlResult table = kmctl({"show", "7"});
    EXPECT_NE(table.out.find("\n1007        Value  Discription\n"
                             "        #0  0      (default) enable command prompt and batch files\n"
                             "        #1  1      disable command prompt and batch files\n"),
              std::string::npos)
        << table.out;
    EXPECT_EQ(kmctl({"show", "4"}).out, "Change the Command Prompt (4)\n\nNothing is shown for this item.\n");
}

TEST_F(ShowTest, NoLineOfAPageIsWiderThanATerminal) {
    for (const char* item : {"1", "2", "3", "5", "6", "7", "8", "9", "10", "11", "12"}) {
        const std::string text = kmctl({"show", item}).out;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find('\n', start);
            ASSERT_NE(end, std::string::npos);
            EXPECT_LE(end - start, 78U) << text.substr(start, end - start);
            start = end + 1;
        }
    }
}

TEST_F(ShowTest, JsonHoldsEveryControlOfTheTemplate) {
    const JsonValue page = json({"show", "11"});
    EXPECT_EQ(page.names(), "item title page header applyVisible controls");
    EXPECT_EQ(page["item"].number, 11);
    EXPECT_EQ(page["title"].text, "Quick Edit the Command Prompt");
    EXPECT_EQ(page["page"].text, "CChecksPage");
    EXPECT_EQ(page["header"].text,
              page["title"].text + ":\n" + std::string(findTweak(11)->description));
    EXPECT_TRUE(page["applyVisible"].boolean);
    EXPECT_EQ(page["controls"].items.size(), 12U);
    EXPECT_EQ(page["controls"][0]["kind"].text, "header");
    EXPECT_EQ(page["controls"][11]["kind"].text, "note");

    const JsonValue& used = controlOf(page, 1013);
    EXPECT_EQ(used.names(), "id kind visible enabled text check");
    EXPECT_EQ(used["kind"].text, "checkbox");
    EXPECT_TRUE(used["visible"].boolean);
    EXPECT_TRUE(used["enabled"].boolean);
    EXPECT_EQ(used["check"].number, 0);
    EXPECT_FALSE(controlOf(page, 1018)["visible"].boolean);
}

TEST_F(ShowTest, JsonOfListsCombosAndEmptyPages) {
    const JsonValue table = json({"show", "5"});
    EXPECT_EQ(table["page"].text, "CCategoryPage");
    const JsonValue& list = controlOf(table, 1007);
    EXPECT_EQ(list.names(), "id kind visible enabled text columns rows checked selected");
    EXPECT_EQ(list["columns"][1]["text"].text, "Color");
    EXPECT_EQ(list["columns"][1]["width"].number, 265);
    ASSERT_EQ(list["rows"].items.size(), 16U);
    EXPECT_EQ(list["rows"][10][0].text, "A");
    EXPECT_EQ(list["rows"][10][1].text, "Light Green");
    EXPECT_TRUE(list["checked"].items.empty());
    EXPECT_EQ(list["selected"].number, -1);

    const JsonValue combos = json({"show", "8"});
    EXPECT_EQ(combos["page"].text, "CCheckCombosPage");
    const JsonValue& combo = controlOf(combos, 1021);
    EXPECT_EQ(combo.names(), "id kind visible enabled text items selection");
    EXPECT_EQ(combo["items"].items.size(), 5U);
    EXPECT_EQ(combo["selection"].number, 2);
    EXPECT_EQ(combo["text"].text, "TAB key");
    EXPECT_EQ(controlOf(combos, 1055)["kind"].text, "colourCombo");

    const JsonValue nothing = json({"show", "4"});
    EXPECT_EQ(nothing["page"].kind, JsonValue::Kind::Null);
    EXPECT_TRUE(nothing["controls"].items.empty());
    EXPECT_FALSE(nothing["applyVisible"].boolean);
    EXPECT_FALSE(json({"show", "1"})["applyVisible"].boolean);
}

TEST_F(ShowTest, TextsOfTheRegistryCannotBreakTheOutput) {
    // A quotation mark, an escape, a tabulator and a letter beyond ASCII, as 8-bit text in the file.
    writeFile(registry_, withChange(kTestRegistry, "C:\\\\start.bat", "\\\"\x1b[2J\t\xfc"));
    const JsonValue page = json({"show", "12"});
    EXPECT_EQ(controlOf(page, 1015)["text"].text, "\"\x1b[2J\t\u00fc");
    const std::string text = kmctl({"show", "12"}).out;
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
#ifdef _WIN32
    EXPECT_NE(text.find("[\"?[2J?\xfc]"), std::string::npos) << text;
#else
    EXPECT_NE(text.find("[\"?[2J?\u00fc]"), std::string::npos) << text;
#endif
}

TEST_F(ShowTest, EveryItemOfTheSampleCanBeShown) {
    const std::string before = readFile(kSample);
    for (int item = 0; item < kItemCount; ++item) {
        const KmctlResult result = runKmctl({"show", "--registry", kSample, "--json", std::to_string(item)});
        ASSERT_EQ(result.status, 0) << item << ": " << result.err;
        const JsonValue page = JsonReader::read(result.out);
        EXPECT_EQ(page["item"].number, item);
        EXPECT_EQ(page["page"].kind == JsonValue::Kind::Null, !findTweak(item)->hasShow()) << item;
    }
    EXPECT_EQ(readFile(kSample), before);
    const KmctlResult completion = runKmctl({"show", "8", "--json", "--registry", kSample});
    EXPECT_EQ(controlOf(JsonReader::read(completion.out), 1021)["text"].text, "TAB key");
}

TEST_F(ShowTest, ItemsAreFoundByTitle) {
    EXPECT_EQ(json({"show", "Quick Edit the Command Prompt"})["item"].number, 11);
    EXPECT_EQ(json({"show", "quick EDIT the command prompt"})["item"].number, 11);
    // A record without a row in the tree.
    EXPECT_EQ(json({"show", "Allow UNC Paths at the Command Prompt"})["page"].text, "CChecksPage");

    const KmctlResult unknown = kmctl({"show", "Quick Edit"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.out, "");
    EXPECT_EQ(unknown.err, "kmctl: no item has the title \"Quick Edit\"\nkmctl --help tells more\n");
    EXPECT_EQ(kmctl({"show", "311"}).err,
              "kmctl: there is no item 311: the last one is 310\nkmctl --help tells more\n");
    EXPECT_EQ(kmctl({"show", "\xff\xfe"}).status, 2);
}

TEST_F(ShowTest, ListFollowsTheTree) {
    const KmctlResult list = kmctl({"list"});
    EXPECT_EQ(list.status, 0);
    EXPECT_TRUE(list.out.starts_with("  0  category  Accessories\n"
                                     "  1  category    Command Processor\n"
                                     "  2  tweak         Add Command Prompt Option to Every Folder\n"
                                     "  5  tweak         Change the Command Prompt Colors\n"))
        << list.out;
    EXPECT_EQ(std::ranges::count(list.out, '\n'), 163);
    const KmctlResult all = kmctl({"list", "--all"});
    EXPECT_NE(all.out.find("\n  3* tweak         Allow UNC Paths at the Command Prompt\n"), std::string::npos);
    EXPECT_TRUE(all.out.ends_with("\n\n* has no row in the tree\n"));

    EXPECT_EQ(json({"list"})["items"].items.size(), 163U);
    const JsonValue items = json({"list", "--all"})["items"];
    ASSERT_EQ(items.items.size(), 311U);
    EXPECT_EQ(items[3].names(), "item category title inTree");
    EXPECT_EQ(items[3]["item"].number, 3);
    EXPECT_FALSE(items[3]["inTree"].boolean);
    EXPECT_TRUE(items[1]["category"].boolean);
    EXPECT_EQ(items[1]["title"].text, "Command Processor");
}

TEST_F(ShowTest, HelpVersionAndWrongUsage) {
    const KmctlResult help = runKmctl({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* word : {"--registry", "--drives", "A:removable,C:fixed,D:cdrom", "apply ITEM", "exit status"}) {
        EXPECT_NE(help.out.find(word), std::string::npos) << word;
    }
    EXPECT_EQ(runKmctl({"--version"}).out, "kmctl " + std::string(kProgramVersion) + "\n");
    const KmctlResult wrong = runKmctl({"frobnicate"});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.out, "");
    EXPECT_EQ(wrong.err, "kmctl: there is no command \"frobnicate\"\nkmctl --help tells more\n");
}

TEST_F(ShowTest, InputThatCannotBeReadIsNamedWithItsLine) {
    const KmctlResult missing = runKmctl({"show", "11", "--registry", folder_.file("none.reg")});
    EXPECT_EQ(missing.status, 2);
    EXPECT_TRUE(missing.err.starts_with("kmctl: " + folder_.file("none.reg") + ": cannot be opened: ")) << missing.err;
    EXPECT_EQ(runKmctl({"show", "11", "--registry", folder_.path()}).status, 2);

    writeFile(registry_, "REGEDIT4\n\n[HKEY_CURRENT_USER\\Console]\n\"QuickEdit\"=dword:0000000g\n");
    const KmctlResult broken = kmctl({"show", "11"});
    EXPECT_EQ(broken.status, 2);
    EXPECT_EQ(broken.out, "");
    EXPECT_TRUE(broken.err.starts_with("kmctl: " + registry_ + ":4: ")) << broken.err;
    writeFile(registry_, "");
    EXPECT_TRUE(kmctl({"list"}).err.starts_with("kmctl: " + registry_ + ":1: "));
}

#ifdef _WIN32

// Over the registry of the running Windows; the setting is put back.
TEST(LiveRegistry, IsShownAndChangedWithoutAFile) {
    Win32Registry registry;
    RegistryHandle user;
    RegistryHandle console;  // a fresh account may not have it yet, and the program does not make it
    ASSERT_EQ(registry.connect(Root::CurrentUser, user), Status::Success);
    ASSERT_EQ(registry.createKey(user, "Console", console), Status::Success);
    const auto quickEdit = [] {
        const KmctlResult result = runKmctl({"show", "11", "--json"});
        EXPECT_EQ(result.status, 0) << result.err;
        return controlOf(JsonReader::read(result.out), 1013)["check"].number;
    };
    const long long before = quickEdit();
    const auto assignment = [](long long check) { return "1013=" + std::to_string(check); };
    const KmctlResult result = runKmctl({"apply", "11", assignment(1 - before)});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "Quick Edit the Command Prompt (11): applied\n");
    EXPECT_EQ(quickEdit(), 1 - before);
    EXPECT_EQ(runKmctl({"apply", "11", assignment(before)}).status, 0);
    EXPECT_EQ(quickEdit(), before);
}

#else

TEST(LiveRegistry, IsMissingElsewhereThanOnWindows) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"list"}, {"show", "11"}, {"apply", "11", "1013=1"}}) {
        const KmctlResult result = runKmctl(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, "kmctl: --registry is needed: this system has no registry\nkmctl --help tells more\n");
    }
}

#endif

}  // namespace
}  // namespace korvane
