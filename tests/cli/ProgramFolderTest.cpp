// With a program folder: its dates are read and written, its languages used, and the user's settings as well.
#include "catalogue/Catalogue.h"
#include "platform/memory/MemorySystem.h"
#include "tests/cli/KmctlTest.h"

namespace korvane {
namespace {

constexpr std::string_view kSettings =
    "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\r\n"
    "\"Language\"=\"English\"\r\n"
    "\"DateModefiedFlage\"=dword:00000001\r\n";

std::string today() {
    const UtcDate date = SystemClock().utcDate();
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
}

class ProgramFolderTest : public KmctlTest {
protected:
    ProgramFolderTest() { makeFolder(program_); }

    KmctlResult inFolder(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--program-folder", program_});
        return kmctl(std::move(arguments));
    }

    // A machine on which the program ran before, long ago.
    void installWithDates() const {
        EXPECT_EQ(inFolder({"apply", "11", "1013=0"}).status, 0);
        std::string dates = readFile(dateFile_);
        for (std::size_t at = 0; (at = dates.find(',', at)) != std::string::npos; ++at) {
            if (dates[at + 1] >= '0' && dates[at + 1] <= '9') {  // some titles have commas too
                dates.replace(at + 1, dates.find(')', at) - at - 1, "1/2/2003");
            }
        }
        writeFile(dateFile_, dates);
    }

    // How often that date stands in the date file.
    int count(const std::string& date) const {
        const std::string dates = readFile(dateFile_);
        int found = 0;
        for (std::size_t at = 0; (at = dates.find(',' + date + ")\r\n", at)) != std::string::npos; ++at) {
            ++found;
        }
        return found;
    }

    const std::string program_ = folder_.file("Korvane Manager");
    const std::string dateFile_ = program_ + "/DFile.mrc";
};

TEST_F(ProgramFolderTest, ShowWritesNothingAtAll) {
    const KmctlResult overview = inFolder({"show", "1"});
    EXPECT_EQ(overview.status, 0) << overview.err;
    EXPECT_EQ(contents(), kTestRegistry);
    EXPECT_TRUE(filesIn(program_).empty());
}

TEST_F(ProgramFolderTest, TheFirstApplyMakesDateFileAndSettings) {
    const std::string before = today();
    const KmctlResult result = inFolder({"apply", "11", "1013=1"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out,
              "Quick Edit the Command Prompt (11): applied, and dated today\n" + registry_ + ": written\n");
    EXPECT_NE(contents().find(kSettings), std::string::npos) << contents();
    const std::string dates = readFile(dateFile_);
    const auto record = [](const std::string& date) {
        return "korvane(\"Quick Edit the Command Prompt\"," + date + ")\r\n";
    };
    EXPECT_TRUE(dates.find(record(before)) != std::string::npos || dates.find(record(today())) != std::string::npos);
}

TEST_F(ProgramFolderTest, EarlierDatesAreShownAndOnlyTheAppliedOneIsReplaced) {
    installWithDates();
    EXPECT_EQ(count("1/2/2003"), kItemCount);
    EXPECT_NE(inFolder({"show", "1"}).out.find("Quick Edit the Command Prompt              1/2/2003\n"),
              std::string::npos);
    EXPECT_EQ(inFolder({"apply", "11", "1013=1"}).status, 0);
    EXPECT_EQ(count("1/2/2003"), kItemCount - 1);
    EXPECT_EQ(inFolder({"show", "1"}).out.find("Quick Edit the Command Prompt              1/2/2003\n"),
              std::string::npos);
}

TEST_F(ProgramFolderTest, ARefusedRunLeavesTheDates) {
    installWithDates();
    const std::string dates = readFile(dateFile_);
    const std::string registry = contents();
    EXPECT_EQ(inFolder({"apply", "11", "1013=1", "1099=1"}).status, 2);
    EXPECT_EQ(inFolder({"apply", "11", "1013=1", "--windows=95"}).status, 3);
    EXPECT_EQ(readFile(dateFile_), dates);
    EXPECT_EQ(contents(), registry);
}

// The date file is as old as the registry says: where the user's settings are missing, all dates are made anew, but a
// look at them alone may not destroy what is there.
TEST_F(ProgramFolderTest, ShowLeavesTheDatesOfAnotherUsersFile) {
    installWithDates();
    writeFile(registry_, kTestRegistry);
    EXPECT_EQ(inFolder({"show", "1"}).out.find("1/2/2003"), std::string::npos);
    EXPECT_EQ(count("1/2/2003"), kItemCount);
}

// The start has made the settings before the alert comes, and what has changed is kept.
TEST_F(ProgramFolderTest, AnAlertOnTheFirstRunKeepsTheSettingsButNotTheTweak) {
    const KmctlResult result = inFolder({"apply", "11", "1013=1", "--windows=95"});
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.out.find(": written\n"), std::string::npos);
    EXPECT_NE(contents().find(kSettings), std::string::npos);
    EXPECT_NE(contents().find("\"QuickEdit\"=dword:00000000"), std::string::npos);
}

TEST_F(ProgramFolderTest, DatesThatCannotBeWrittenAreNotClaimed) {
    makeFolder(dateFile_);  // no file can take this name
    const KmctlResult result = inFolder({"apply", "11", "1013=1", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "kmctl: the dates could not be written to the program folder\n");
    EXPECT_FALSE(JsonReader::read(result.out)["stamped"].boolean);
    EXPECT_NE(contents().find("\"QuickEdit\"=dword:00000001"), std::string::npos);
}

TEST_F(ProgramFolderTest, LanguageFilesTranslateTitlesAndAlerts) {
    // Spelled as an old system or a careless copy would.
    makeFolder(program_ + "/LANGUAGE");
    writeFile(program_ + "/LANGUAGE/deutsch.INI",
              "[1004]\r\n112=Schnelles \xc4ndern\r\n52=Farben\r\n62=FARBEN\r\n"
              "[Item11]\r\n1013=Einschalten\r\n"
              "[KorvaneManagerStringTable]\r\n2002=Nur f\xfcr Windows NT\r\n");
#ifdef _WIN32
    const std::string title = "schnelles \xe4ndern";
    const std::string alert = "kmctl: Nur f\xfcr Windows NT\n";
#else
    const std::string title = "schnelles \u00e4ndern";
    const std::string alert = "kmctl: Nur f\u00fcr Windows NT\n";
#endif
    const KmctlResult shown = inFolder({"show", title, "--language", "Deutsch", "--json"});
    ASSERT_EQ(shown.status, 0) << shown.err;
    const JsonValue page = JsonReader::read(shown.out);
    EXPECT_EQ(page["item"].number, 11);
    EXPECT_EQ(page["title"].text, "Schnelles \u00c4ndern");
    EXPECT_EQ(controlOf(page, 1013)["text"].text, "Einschalten");
    EXPECT_EQ(inFolder({"apply", "11", "--language", "Deutsch", "--windows=95"}).err, alert);

    // Two items of one title: the exact spelling decides, and otherwise it is ambiguous.
    EXPECT_EQ(inFolder({"show", "FARBEN", "--language", "Deutsch"}).out.substr(0, 11), "FARBEN (6)\n");
    const KmctlResult ambiguous = inFolder({"show", "farben", "--language", "Deutsch"});
    EXPECT_EQ(ambiguous.status, 2);
    EXPECT_EQ(ambiguous.err, "kmctl: \"farben\" is the title of several items: 5 6\nkmctl --help tells more\n");
}

TEST_F(ProgramFolderTest, TheUsersLanguageIsUsedOnlyWithAFolder) {
    makeFolder(program_ + "/Language");
    writeFile(program_ + "/Language/Deutsch.ini", "[1004]\r\n112=Schnell\r\n");
    writeFile(registry_,
              std::string(kTestRegistry) + withChange(kSettings, "=\"English\"", "=\"Deutsch\""));
    EXPECT_TRUE(inFolder({"show", "11"}).out.starts_with("Schnell (11)\n"));
    EXPECT_TRUE(kmctl({"show", "11"}).out.starts_with("Quick Edit the Command Prompt (11)\n"));
    EXPECT_TRUE(inFolder({"show", "11", "--language=English"}).out.starts_with("Quick Edit"));
}

TEST_F(ProgramFolderTest, AFolderThatIsNotThereIsUnreadableInput) {
    const KmctlResult result = kmctl({"show", "11", "--program-folder", folder_.file("none")});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "kmctl: " + folder_.file("none") + ": there is no such folder\n");
    EXPECT_EQ(kmctl({"show", "11", "--program-folder", registry_}).status, 2);
}

}  // namespace
}  // namespace korvane
