// What the arguments mean, and how wrong ones are refused.
#include "cli/CommandLine.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

CommandLine understood(const std::vector<std::string>& arguments) {
    auto parsed = parseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    return std::get<CommandLine>(std::move(parsed));
}

std::string refused(const std::vector<std::string>& arguments) {
    const auto parsed = parseCommandLine(arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return error != nullptr ? error->message : "understood";
}

TEST(CommandLine, OptionsStandBeforeAndBehindTheCommandInBothForms) {
    const CommandLine line =
        understood({"--registry", "a=b.reg", "--json", "show", "--windows=2000", "Quick Edit", "--drives",
                    "d:cdrom,C:fixed", "--windows-folder=C:\\WINNT\\", "--program-folder", "/opt", "--language=Deutsch",
                    "--appdata-folder", "C:\\Data"});
    EXPECT_EQ(line.command, Command::Show);
    EXPECT_TRUE(line.json);
    EXPECT_EQ(line.item, "Quick Edit");
    EXPECT_EQ(line.registry, "a=b.reg");
    EXPECT_EQ(line.windows->majorVersion, 5U);
    EXPECT_EQ(line.windows->minorVersion, 0U);
    EXPECT_EQ(line.windowsFolder, "C:\\WINNT");
    EXPECT_EQ(line.appDataFolder, "C:\\Data");
    EXPECT_EQ(line.programFolder, "/opt");
    EXPECT_EQ(line.language, "Deutsch");
    ASSERT_EQ(line.drives->size(), 2U);
    EXPECT_EQ((*line.drives)[0].root, "C:\\");
    EXPECT_EQ((*line.drives)[0].driveType, 3U);
    EXPECT_EQ((*line.drives)[1].root, "D:\\");
    EXPECT_EQ((*line.drives)[1].driveType, 5U);
}

TEST(CommandLine, AssignmentsKeepTheirOrderAndEverythingBehindTheFirstEqualsSign) {
    const CommandLine line = understood({"apply", "12", "1015=a = b", "1013=", "1009:3=1", "--", "1021=--all"});
    ASSERT_EQ(line.assignments.size(), 4U);
    EXPECT_EQ(line.assignments[0].control, 1015);
    EXPECT_EQ(line.assignments[0].value, "a = b");
    EXPECT_EQ(line.assignments[1].value, "");
    EXPECT_EQ(line.assignments[2].control, 1009);
    EXPECT_EQ(line.assignments[2].row, 3);
    EXPECT_EQ(line.assignments[3].value, "--all");
    for (const char* wrong : {"1013", "=1", "x=1", "-1013=1", "1013 =1", ":1=1", "1009:=1", "1009:-1=1", "1009:1:1=1",
                              "99999999999=1", "+5=1", ""}) {
        EXPECT_NE(refused({"apply", "12", "--", wrong}).find("is not CONTROL=VALUE"), std::string::npos) << wrong;
    }
}

TEST(CommandLine, HelpAndVersionNeedNothingElse) {
    EXPECT_EQ(understood({"--help"}).command, Command::Help);
    EXPECT_EQ(understood({"show", "--version", "--nonsense"}).command, Command::Version);
    EXPECT_EQ(understood({"show", "--", "--help"}).item, "--help");
}

TEST(CommandLine, WrongUsageIsNamed) {
    EXPECT_EQ(refused({}), "a command is missing: list, show, apply or check-skin");
    EXPECT_EQ(refused({"Show", "11"}), "there is no command \"Show\"");
    EXPECT_EQ(refused({"show"}), "show needs an item: its ItemId or its title");
    EXPECT_EQ(refused({"apply", ""}), "apply needs an item: its ItemId or its title");
    EXPECT_EQ(refused({"show", "11", "12"}), "unexpected argument \"12\"");
    EXPECT_EQ(refused({"list", "11"}), "unexpected argument \"11\"");
    EXPECT_EQ(refused({"list", "-x"}), "there is no option \"-x\"");
    EXPECT_EQ(refused({"list", "--json=1"}), "there is no option \"--json\"");
    EXPECT_EQ(refused({"list", "--registry"}), "--registry needs a value");
    EXPECT_EQ(refused({"list", "--registry="}), "--registry needs a value");
    EXPECT_EQ(refused({"list", "--registry", "a", "--registry=b"}), "--registry is given twice");
    EXPECT_EQ(refused({"show", "11", "--all"}), "--all belongs to list");
    EXPECT_EQ(refused({"list", "--language", "Deutsch"}),
              "--language needs --program-folder, where the language files are");
    EXPECT_EQ(refused({"list", "--windows", "xp"}), "--windows needs --registry, the file of that system");
    EXPECT_EQ(refused({"list", "--\x1b[31m\n"}), "there is no option \"--?[31m?\"");
}

TEST(CommandLine, CheckSkinTakesAFileAndNothingOfARegistry) {
    const CommandLine line = understood({"--json", "check-skin", "a=b.skn"});
    EXPECT_EQ(line.command, Command::CheckSkin);
    EXPECT_EQ(line.skinFile, "a=b.skn");
    EXPECT_EQ(line.item, "");
    EXPECT_TRUE(line.json);
    EXPECT_EQ(refused({"check-skin"}), "check-skin needs a file: a skin or a splash");
    EXPECT_EQ(refused({"check-skin", ""}), "check-skin needs a file: a skin or a splash");
    EXPECT_EQ(refused({"check-skin", "a", "b"}), "unexpected argument \"b\"");
    EXPECT_EQ(refused({"check-skin", "a", "--all"}), "--all belongs to list");
    EXPECT_EQ(refused({"check-skin", "a", "--registry=x", "--windows=xp"}), "--registry does not belong to check-skin");
}

TEST(CommandLine, SystemOptionsTakeOnlyWhatTheyKnow) {
    const auto withFile = [](const std::string& option) { return refused({"list", "--registry=x", option}); };
    EXPECT_EQ(withFile("--windows=XP"), "--windows knows 95, 98, me, nt4, 2000, xp, 2003 and vista, not \"XP\"");
    EXPECT_EQ(withFile("--windows-folder=\\\\"), "--windows-folder takes a folder's path of up to 99 characters");
    EXPECT_EQ(withFile("--windows-folder=" + std::string(99, 'x') + "\\"), "understood");
    EXPECT_EQ(withFile("--windows-folder=" + std::string(100, 'x')),
              "--windows-folder takes a folder's path of up to 99 characters");
    EXPECT_EQ(withFile("--drives=C:fixed,c:cdrom"), "--drives names the drive C: twice");
    for (const char* wrong : {"C", "C:", "C:big", "C:\\:fixed", "C:fixed,", ",C:fixed", "1:fixed", "C:fixed;D:cdrom"}) {
        EXPECT_NE(withFile(std::string("--drives=") + wrong).find("--drives takes a list like"), std::string::npos)
            << wrong;
    }
}

}  // namespace
}  // namespace korvane
