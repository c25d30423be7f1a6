// What the arguments mean, and how wrong ones are refused.
#include "cli/CommandLine.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Arguments = std::vector<std::string>;

CommandLine understood(const Arguments& arguments) {
    auto parsed = parseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    return std::get<CommandLine>(std::move(parsed));
}

std::string refused(const Arguments& arguments) {
    const auto parsed = parseCommandLine(arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return error != nullptr ? error->message : "understood";
}

TEST(CommandLine, OptionsStandBeforeAndBehindTheCommandInBothForms) {
    const CommandLine line =
        understood({"--registry", "a=b.reg", "--json", "show", "--windows=2000", "Quick Edit", "--drives",
                    "d:cdrom,C:fixed", "--windows-folder=C:\\WINNT\\", "--program-folder", "/opt"});
    EXPECT_EQ(line.command, Command::Show);
    EXPECT_TRUE(line.json);
    EXPECT_EQ(line.item, "Quick Edit");
    EXPECT_EQ(line.registry, "a=b.reg");
    EXPECT_EQ(line.windows->majorVersion, 5U);
    EXPECT_EQ(line.windowsFolder, "C:\\WINNT");
    ASSERT_EQ(line.drives->size(), 2U);
    EXPECT_EQ((*line.drives)[0].root, "C:\\");
    EXPECT_EQ((*line.drives)[1].root, "D:\\");
    EXPECT_EQ((*line.drives)[1].driveType, 5U);
    EXPECT_EQ(understood({"show", "--version", "--nonsense"}).command, Command::Version);
    EXPECT_EQ(understood({"show", "--", "--help"}).item, "--help");
}

TEST(CommandLine, AssignmentsKeepTheirOrderAndEverythingBehindTheFirstEqualsSign) {
    const CommandLine line = understood({"apply", "12", "1015=a = b", "1013=", "1009:3=1", "--", "1021=--all"});
    ASSERT_EQ(line.assignments.size(), 4U);
    EXPECT_EQ(line.assignments[0].control, 1015);
    EXPECT_EQ(line.assignments[0].value, "a = b");
    EXPECT_EQ(line.assignments[1].value, "");
    EXPECT_EQ(line.assignments[2].row, 3);
    EXPECT_EQ(line.assignments[3].value, "--all");
    for (const char* wrong : {"1013", "=1", "x=1", "-1013=1", "1013 =1", ":1=1", "1009:=1", "1009:-1=1", "1009:1:1=1",
                              "99999999999=1", "+5=1", ""}) {
        EXPECT_NE(refused({"apply", "12", "--", wrong}).find("is not CONTROL=VALUE"), std::string::npos) << wrong;
    }
}

TEST(CommandLine, WrongUsageIsNamed) {
    const std::string longest = "--windows-folder=" + std::string(99, 'x');
    for (const auto& [arguments, message] : {
             std::pair{Arguments{}, "a command is missing: list, show, apply or check-skin"},
             {{"Show", "11"}, "there is no command \"Show\""},
             {{"apply", ""}, "apply needs an item: its ItemId or its title"},
             {{"list", "--json=1"}, "there is no option \"--json\""},
             {{"list", "--registry"}, "--registry needs a value"},
             {{"list", "--registry", "a", "--registry=b"}, "--registry is given twice"},
             {{"show", "11", "--all"}, "--all belongs to list"},
             {{"list", "--language=x"}, "--language needs --program-folder, where the language files are"},
             {{"list", "--windows", "xp"}, "--windows needs --registry, the file of that system"},
             {{"check-skin", ""}, "check-skin needs a file: a skin or a splash"},
             {{"check-skin", "a", "--registry=x"}, "--registry does not belong to check-skin"},
             {{"list", "--registry=x", "--windows=XP"},
              "--windows knows 95, 98, me, nt4, 2000, xp, 2003 and vista, not \"XP\""},
             {{"list", "--registry=x", longest + "\\"}, "understood"},
             {{"list", "--code-page=1251"}, "--code-page needs --registry, the file of that system"},
             {{"list", "--registry=x", "--code-page=utf8"},
              "--code-page takes the number of a code page, such as 1251, not \"utf8\""},
             {{"list", "--registry=x", "--code-page=37"}, "--code-page names the page 37, which is not known here"},
             {{"list", "--registry=x", longest + 'x'}, "--windows-folder takes a folder's path of up to 99 characters"},
             {{"list", "--registry=x", "--drives=C:fixed,c:cdrom"}, "--drives names the drive C: twice"},
         }) {
        EXPECT_EQ(refused(arguments), message);
    }
    for (const char* wrong : {"C", "C:", "C:big", "C:\\:fixed", "C:fixed,", ",C:fixed", "1:fixed", "C:fixed;D:cdrom"}) {
        const std::string message = refused({"list", "--registry=x", std::string("--drives=") + wrong});
        EXPECT_TRUE(message.starts_with("--drives takes a list like")) << wrong << message;
    }
}

}  // namespace
}  // namespace korvane
