// apply: what it writes to the file, what it says, and what leaves the file untouched.
#include "platform/memory/Codepage.h"
#include "tests/cli/KmctlTest.h"

namespace korvane {
namespace {

using ApplyTest = KmctlTest;

constexpr std::string_view kQuickEditOff = "\"QuickEdit\"=dword:00000000";
constexpr std::string_view kQuickEditOn = "\"QuickEdit\"=dword:00000001";
constexpr std::string_view kCompletionOfUser = "Software\\Microsoft\\Command Processor]\r\n\"CompletionChar\"=dword:";

std::string utf16File(std::string_view ansi) {
    std::string bytes = "\xff\xfe";
    for (const std::byte each : toStored(fromAnsi(ansi))) {
        bytes += static_cast<char>(each);
    }
    bytes.resize(2 + ansi.size() * 2);  // without the terminating zero, should there be one
    return bytes;
}

TEST_F(ApplyTest, ChangesOneValueAndKeepsFormEncodingAndEverythingElse) {
    const std::string version5 = withChange(kTestRegistry, "Lucida", "Lucid\xe4");
    const std::string regedit4 = withChange(version5, "Windows Registry Editor Version 5.00", "REGEDIT4");
    for (const bool wide : {false, true}) {
        for (const std::string& text : {version5, regedit4}) {
            if (wide && text == regedit4) {
                continue;  // that form is always 8-bit
            }
            const auto file = [&](const std::string& content) { return wide ? utf16File(content) : content; };
            writeFile(registry_, file(text));
            const KmctlResult result = kmctl({"apply", "11", "1013=1"});
            EXPECT_EQ(result.status, 0) << result.err;
            EXPECT_EQ(result.out, "Quick Edit the Command Prompt (11): applied\n" + registry_ + ": written\n");
            expectUntouched(file(withChange(text, kQuickEditOff, kQuickEditOn)));
        }
    }
}

TEST_F(ApplyTest, AnApplyThatChangesNothingLeavesEvenCommentsAlone) {
    const std::string own = "REGEDIT4\n; written by hand\n[HKEY_CURRENT_USER\\Console]\n\"QuickEdit\" = dword:1\n";
    writeFile(registry_, own);
    const KmctlResult result = kmctl({"apply", "11", "1013=1"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "Quick Edit the Command Prompt (11): applied\n" + registry_ + ": nothing in it has changed\n");
    expectUntouched(own);
}

TEST_F(ApplyTest, ControlsAreSetInTheOrderGiven) {
    // Picking an entry replaces a typed text; typing takes the selection away, and then -1 is written.
    EXPECT_EQ(kmctl({"apply", "8", "1021=whatever", "1021=#3"}).status, 0);
    EXPECT_EQ(contents(), withChange(kTestRegistry, std::string(kCompletionOfUser) + "00000009",
                                     std::string(kCompletionOfUser) + "00000004"));
    EXPECT_EQ(kmctl({"apply", "8", "1021=#3", "1021=whatever"}).status, 0);
    EXPECT_EQ(contents(), withChange(kTestRegistry, std::string(kCompletionOfUser) + "00000009",
                                     std::string(kCompletionOfUser) + "ffffffff"));
    writeFile(registry_, kTestRegistry);
    EXPECT_EQ(kmctl({"apply", "8", "1021=#1", "1021=#-1"}).status, 0);
    EXPECT_NE(contents().find(std::string(kCompletionOfUser) + "ffffffff"), std::string::npos);

    writeFile(registry_, kTestRegistry);
    EXPECT_EQ(kmctl({"apply", "12", "1015=first", "1015=C:\\other = 1.bat"}).status, 0);
    EXPECT_EQ(contents(), withChange(kTestRegistry, "start.bat", "other = 1.bat"));
    EXPECT_EQ(kmctl({"apply", "5", "1007=#2", "1007=#12"}).status, 0);
    EXPECT_NE(contents().find("\"DefaultColor\"=dword:0000000c"), std::string::npos);
}

TEST_F(ApplyTest, TextsReachTheFileInItsEncoding) {
#ifdef _WIN32
    const std::string argument = "1015=gr\xfc\xdf.bat";
#else
    const std::string argument = "1015=gr\u00fc\u00df.bat";
#endif
    EXPECT_EQ(kmctl({"apply", "12", argument}).status, 0);
    EXPECT_EQ(contents(), withChange(kTestRegistry, "C:\\\\start.bat", "gr\xfc\xdf.bat"));
#ifndef _WIN32
    for (const char* wrong : {"1015=\u0416", "1015=\xff"}) {
        const KmctlResult result = kmctl({"apply", "12", wrong});
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.err.find("control 1015 cannot take"), std::string::npos) << result.err;
    }
#endif
}

TEST_F(ApplyTest, JsonTellsWhatHappened) {
    const JsonValue result = json({"apply", "11", "1013=1"});
    EXPECT_EQ(result.names(), "item alerts stamped page");
    EXPECT_EQ(result["item"].number, 11);
    EXPECT_TRUE(result["alerts"].items.empty());
    EXPECT_TRUE(result["stamped"].boolean);
    EXPECT_EQ(result["page"]["page"].text, "CChecksPage");
    EXPECT_EQ(controlOf(result["page"], 1013)["check"].number, 1);
}

TEST_F(ApplyTest, ARefusalShowsItsAlertAndLeavesTheFile) {
    const JsonValue result = json({"apply", "11", "1013=1", "--windows", "95"}, 3);
    ASSERT_EQ(result["alerts"].items.size(), 1U);
    EXPECT_EQ(result["alerts"][0].names(), "id caption text");
    EXPECT_EQ(result["alerts"][0]["id"].number, 2002);
    EXPECT_EQ(result["alerts"][0]["caption"].text, "A L E R T");
    EXPECT_EQ(result["alerts"][0]["text"].text, "These Tweak active only on Windows NT/2000/XP");
    EXPECT_FALSE(result["stamped"].boolean);
    EXPECT_EQ(controlOf(result["page"], 1013)["check"].number, 0);  // the program puts the box back
    expectUntouched();

    const KmctlResult text = kmctl({"apply", "2", "1013=1", "1015="});
    EXPECT_EQ(text.status, 3);
    EXPECT_EQ(text.err, "kmctl: Please Set the Command Prompt Menu Name\n");
    EXPECT_EQ(text.out, "Add Command Prompt Option to Every Folder (2): refused\n" + registry_ +
                            ": nothing in it has changed\n");
    expectUntouched();
}

TEST_F(ApplyTest, WhatAPersonCouldNotDoIsWrongUsageAndNothingIsApplied) {
    struct Case {
        const char* item;
        const char* assignment;
        const char* reason;
    };
    for (const auto& [item, assignment, reason] : {
             Case{"11", "1099=1", "the page has no control 1099"},
             Case{"11", "1018=1", "control 1018 is hidden"},
             Case{"11", "1013=2", "control 1013 is a check box and takes 0 or 1, not \"2\""},
             Case{"11", "1013=", "control 1013 is a check box and takes 0 or 1, not \"\""},
             Case{"11", "1006=x", "control 1006 cannot be set"},
             Case{"11", "1013:0=1", "control 1013 is no list and has no rows"},
             Case{"12", "1023=1", "control 1023 cannot be set"},
             Case{"12", "1015=a\nb", "control 1015 takes one line"},
             Case{"8", "1021=#5", "control 1021 has no entry \"#5\" (it has 5 entries, counted from #0)"},
             Case{"8", "1021=#-2", "control 1021 has no entry \"#-2\""},
             Case{"8", "1021=#x", "control 1021 has no entry \"#x\""},
             Case{"8", "1055=#0", "control 1055 is hidden"},
             Case{"7", "1007=#3", "control 1007 has no such row (it has 3 rows, counted from 0)"},
             Case{"7", "1007=2", "control 1007 is a list and takes a row, such as #0, not \"2\""},
             Case{"7", "1007:0=1", "the rows of control 1007 have no check boxes"},
             Case{"7", "1007:3=1", "control 1007 has no such row"},
             Case{"7", "1007:0=x", "a row's check box takes 0 or 1, not \"x\""},
         }) {
        const char* fine = std::string_view(item) == "11"   ? "1013=1"
                           : std::string_view(item) == "12" ? "1015=x"
                           : std::string_view(item) == "8"  ? "1021=#0"
                                                            : "1007=#1";
        const KmctlResult result = kmctl({"apply", item, fine, assignment, "--json"});
        EXPECT_EQ(result.status, 2) << assignment;
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
        EXPECT_TRUE(result.err.ends_with("\nkmctl --help tells more\n"));
        expectUntouched();
    }
}

TEST_F(ApplyTest, ItemsWithoutAnythingToApply) {
    const KmctlResult noPage = kmctl({"apply", "4"});
    EXPECT_EQ(noPage.status, 1);
    EXPECT_EQ(noPage.out, "");
    EXPECT_EQ(noPage.err, "kmctl: item 4 shows no page: there is nothing to apply\n");
    EXPECT_EQ(json({"apply", "4"}, 1)["page"]["page"].kind, JsonValue::Kind::Null);

    const KmctlResult category = kmctl({"apply", "1", "1007=#1"});
    EXPECT_EQ(category.status, 0);
    EXPECT_EQ(category.out, "Command Processor (1): nothing to apply\n");
    EXPECT_FALSE(json({"apply", "1"})["stamped"].boolean);
    expectUntouched();
}

TEST_F(ApplyTest, BrokenFilesAreNotWritten) {
    const std::string broken = std::string(kTestRegistry) + "\"unfinished";
    writeFile(registry_, broken);
    EXPECT_EQ(kmctl({"apply", "11", "1013=1"}).status, 2);
    expectUntouched(broken);
}

}  // namespace
}  // namespace korvane
