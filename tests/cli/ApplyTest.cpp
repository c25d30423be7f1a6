// apply: what it writes to the file, what it says, and what leaves the file untouched.
#include "cli/ApplyReport.h"
#include "regfile/MemoryRegistry.h"
#include "text/CodePage.h"
#include "tests/cli/KmctlTest.h"
#include "tests/platform/RegistryBehaviour.h"

namespace korvane {
namespace {

using ApplyTest = KmctlTest;

std::string utf16File(std::string_view ansi) {
    std::string bytes = "\xff\xfe";
    for (const char16_t unit : CodePage::western().toUtf16(ansi)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

TEST_F(ApplyTest, ChangesOneValueAndKeepsFormEncodingAndEverythingElse) {
    const std::string version5 = withChange(kTestRegistry, "Lucida", "Lucid\xe4");
    const std::string regedit4 = withChange(version5, "Windows Registry Editor Version 5.00", "REGEDIT4");
    const auto changed = [](std::string_view text) { return withChange(text, "dword:00000000", "dword:00000001"); };
    for (const auto& [before, after] : {std::pair{version5, changed(version5)},
                                        {regedit4, changed(regedit4)},
                                        {utf16File(version5), utf16File(changed(version5))}}) {
        writeFile(registry_, before);
        EXPECT_EQ(kmctl({"apply", "11", "1013=1"}).out,
                  "Quick Edit the Command Prompt (11): applied\n" + registry_ + ": written\n");
        expectUntouched(after);
    }
}

TEST_F(ApplyTest, WhatSomebodyWroteIntoTheFileStays) {
    const std::string own = "REGEDIT4\n; written by hand\n[HKCU\\Console]\n\"QuickEdit\" = dword:1 ; on\n[-HKCU\\Old]";
    writeFile(registry_, own);
    EXPECT_EQ(kmctl({"apply", "11", "1013=1"}).out,
              "Quick Edit the Command Prompt (11): applied\n" + registry_ + ": nothing in it has changed\n");
    expectUntouched(own);
    EXPECT_EQ(kmctl({"apply", "11", "1013=0"}).out,
              "Quick Edit the Command Prompt (11): applied\n" + registry_ + ": written\n");
    expectUntouched(withChange(own, "dword:1 ;", "dword:00000000 ;"));
}

TEST_F(ApplyTest, ControlsAreSetInTheOrderGiven) {
    struct Case {
        const char* item;
        const char* first;
        const char* second;
        const char* written;
    };
    // An entry goes by its number or its text; none at all is written as -1.
    for (const auto& [item, first, second, written] :
         {Case{"8", "1021=#-1", "1021=ctrl-d", "Command Processor]\r\n\"CompletionChar\"=dword:00000004"},
          Case{"8", "1021=#3", "1021=#-1", "Command Processor]\r\n\"CompletionChar\"=dword:ffffffff"},
          Case{"12", "1015=first", "1015=C:\\other = 1.bat", "\"AutoRun\"=\"C:\\\\other = 1.bat\""},
          Case{"5", "1007=#2", "1007=#12", "\"DefaultColor\"=dword:0000000c"}}) {
        writeFile(registry_, kTestRegistry);
        EXPECT_EQ(kmctl({"apply", item, first, second}).status, 0);
        EXPECT_TRUE(has(contents(), written)) << contents();
    }
}

TEST_F(ApplyTest, RowsOfACheckedList) {
    writeFile(registry_, readFile("samples/windows-xp.reg"));
    const std::string list = json({"apply", "119", "1009:0=1", "1009:2=0", "1009:4=1", "1009=#1"});
    EXPECT_TRUE(has(list, "\"columns\":[{\"text\":\"Program\",\"width\":372}],"
                          "\"rows\":[[\"hh.exe\"],[\"iexplore.exe\"],"));
    EXPECT_TRUE(has(list, "\"checked\":[0,1,3,4,5,6,7],\"selected\":1}")) << list;
    EXPECT_TRUE(has(kmctl({"show", "119"}).out, "\n1009            Program\n        #0  [x] hh.exe\n"
                                                "        #1  [x] iexplore.exe\n        #2  [ ] moviemk.exe\n"));
    EXPECT_EQ(kmctl({"apply", "119", "1009:8=1"}).status, 2);
}

TEST_F(ApplyTest, TextsReachTheFileInItsEncoding) {
#ifdef _WIN32
    EXPECT_EQ(kmctl({"apply", "12", "1015=gr\xfc\xdf.bat"}).status, 0);
#else
    for (const char* wrong : {"1015=\u0416", "1015=\xff"}) {
        const KmctlResult result = kmctl({"apply", "12", wrong});
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(has(result.err, "control 1015 cannot take")) << result.err;
    }
    EXPECT_EQ(kmctl({"apply", "12", "1015=gr\u00fc\u00df.bat"}).status, 0);
#endif
    EXPECT_EQ(contents(), withChange(kTestRegistry, "C:\\\\start.bat", "gr\xfc\xdf.bat"));
}

TEST_F(ApplyTest, ARefusalShowsItsAlertAndLeavesTheFile) {
    const std::string result = json({"apply", "11", "1013=1", "--windows", "95"}, 3);
    EXPECT_TRUE(result.starts_with(
        "{\"item\":11,\"alerts\":[{\"id\":2002,\"caption\":\"A L E R T\","
        "\"text\":\"These Tweak active only on Windows NT/2000/XP\"}],\"stamped\":false,\"page\":{\"item\":11,"))
        << result;
    EXPECT_TRUE(has(controlOf(result, 1013), "\"check\":0")) << "the program puts the box back";
    const KmctlResult text = kmctl({"apply", "2", "1013=1", "1015="});
    EXPECT_EQ(text.status, 3);
    EXPECT_EQ(text.err, "kmctl: Please Set the Command Prompt Menu Name\n");
    EXPECT_TRUE(text.out.starts_with("Add Command Prompt Option to Every Folder (2): refused\n")) << text.out;
    expectUntouched();
    EXPECT_TRUE(json({"apply", "11", "1013=1"}).starts_with("{\"item\":11,\"alerts\":[],\"stamped\":true,\"page\":"));
}

TEST_F(ApplyTest, WhatAPersonCouldNotDoIsWrongUsageAndNothingIsApplied) {
    struct Case {
        const char* item;
        const char* fine;
        const char* wrong;
        const char* reason;
    };
    for (const auto& [item, fine, wrong, reason] : {
             Case{"11", "1013=1", "1099=1", "the page has no control 1099"},
             Case{"11", "1013=1", "1018=1", "control 1018 is hidden"},
             Case{"11", "1013=1", "1013=2", "control 1013 is a check box and takes 0 or 1, not \"2\""},
             Case{"11", "1013=1", "1013:0=1", "control 1013 is no list and has no rows"},
             Case{"12", "1015=x", "1015=a\nb", "control 1015 takes one line"},
             Case{"8", "1021=#0", "1021=#5", "control 1021 has no entry \"#5\"; it has #0 Disable, #1 Backspace key, "},
             Case{"8", "1021=#0", "1022=nope", "#3 Ctrl-D, #4 Ctrl-F, and #-1 for none\n"},
             Case{"7", "1007=#1", "1007=#3", "control 1007 has no such row (it has 3 rows, counted from 0)"},
             Case{"68", "1055=Red", "1055=Puce", "control 1055 has no entry \"Puce\""},
             Case{"68", "1055=Red", "1055=#-1", "control 1055 always has an entry selected"},
             Case{"68", "", "", "add 1055=NAME; it has #0 AliceBlue, "},
             Case{"7", "1007=#1", "1007:0=1", "the rows of control 1007 have no check boxes"},
         }) {
        const KmctlResult result = *fine == '\0' ? kmctl({"apply", item, "--json"})
                                                : kmctl({"apply", item, fine, wrong, "--json"});
        EXPECT_EQ(result.status, 2) << wrong;
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(has(result.err, reason)) << result.err;
        expectUntouched();
    }
}

TEST_F(ApplyTest, AColourIsAskedForOnlyWhereARandomOneWouldBeStored) {
    EXPECT_EQ(kmctl({"apply", "68", "--windows=95"}).status, 3) << "the gate comes first";
    EXPECT_EQ(kmctl({"apply", "68", "1055=Red"}).status, 0);
    const std::string explorer =
        "\r\n[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer]\r\n";
    for (const auto& [stored, status] : {std::pair{"ff,00,00,00", 0}, {"fe,00,00,00", 2}}) {
        writeFile(registry_, std::string(kTestRegistry) + explorer + "\"AltColor\"=hex:" + stored + "\r\n");
        EXPECT_EQ(kmctl({"apply", "69"}).status, status) << stored;
    }
}

TEST_F(ApplyTest, SaysWhatWasAndWhatWasNotWritten) {
    writeFile(registry_, withChange(kTestRegistry, "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Comm", "[HKEY_USERS\\x"));
    const KmctlResult part = kmctl({"apply", "8", "1021=#1", "1022=#1"});
    EXPECT_EQ(part.status, 0);
    EXPECT_EQ(part.out, "Enable Command Completion (8): applied in part\nwritten: HKEY_CURRENT_USER\\Software\\Micro"
                        "soft\\Command Processor, value \"CompletionChar\"\n" + registry_ + ": written\n");
    EXPECT_EQ(part.err, "kmctl: not written: HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Command Processor: "
                        "there is no such key\n");
    writeFile(registry_, "REGEDIT4\r\n");
    EXPECT_TRUE(has(kmctl({"apply", "8", "1021=#1"}).out, "(8): nothing written\n"));
    EXPECT_EQ(kmctl({"apply", "8", "1021=#1"}).status, 0);
    EXPECT_TRUE(has(kmctl({"apply", "7"}).out, "(7): nothing to write\n")) << "no row is selected";
}

struct MemoryMember {
    MemoryRegistry memory;
};
class JournalledRegistry final : private MemoryMember, public WriteJournal {
public:
    JournalledRegistry() : WriteJournal(memory) {}
};
INSTANTIATE_TYPED_TEST_SUITE_P(Journalled, RegistryBehaviour, JournalledRegistry);

// What the .reg files that kmctl reads never do: refuse.
TEST(ApplyReport, DeniedWritesAreFailuresUnlessDoneInAnotherWay) {
    MemoryRegistry memory;
    WriteJournal journal(memory);
    RegistryHandle root;
    RegistryHandle key;
    RegistryHandle below;
    ASSERT_EQ(memory.connect(Root::LocalMachine, root), Status::Success);
    ASSERT_EQ(memory.createKey(root, "Parent\\Child", key), Status::Success);
    ASSERT_EQ(journal.connect(Root::LocalMachine, root), Status::Success);
    ignoreFailure(journal.openKey(root, "new", key));
    EXPECT_EQ(journal.createKey(root, "New", key), Status::Success);
    EXPECT_EQ(journal.openKey(key, "one of many", below), Status::FileNotFound);
    EXPECT_EQ(journal.setValue(key, "a", ValueType::Sz, {}), Status::Success);
    EXPECT_EQ(journal.deleteValue(root, "gone", "b"), Status::FileNotFound);
    EXPECT_EQ(journal.deleteKey(root, "Parent"), Status::AccessDenied);
    const ApplyReport fine = reportOf(journal.attempts());
    EXPECT_EQ(fine.written, std::vector<std::string>{"HKEY_LOCAL_MACHINE\\New, value \"a\""});
    EXPECT_EQ(fine.notWritten,
              std::vector<std::string>{"HKEY_LOCAL_MACHINE\\Parent: the key stays because it has subkeys"});
    EXPECT_FALSE(fine.failed);
    journal.clear();
    memory.deny(Root::LocalMachine, "Parent");
    memory.deny(Root::Users, "");
    EXPECT_EQ(journal.openKey(root, "Parent\\Child", below), Status::AccessDenied);
    EXPECT_EQ(journal.setValue(below, "c", ValueType::Sz, {}), Status::InvalidHandle);
    EXPECT_EQ(journal.connect(Root::Users, below), Status::AccessDenied);
    const ApplyReport denied = reportOf(journal.attempts());
    EXPECT_EQ(denied.notWritten, (std::vector<std::string>{"HKEY_LOCAL_MACHINE\\Parent\\Child: access is denied",
                                                           "HKEY_USERS: access is denied"}));
    EXPECT_TRUE(denied.failed);
    EXPECT_EQ(denied.summary(), "nothing written");
}

TEST_F(ApplyTest, BrokenFilesAreNotWritten) {
    const std::string broken = std::string(kTestRegistry) + "\"unfinished";
    writeFile(registry_, broken);
    EXPECT_EQ(kmctl({"apply", "11", "1013=1"}).status, 2);
    expectUntouched(broken);
}

}  // namespace
}  // namespace korvane
