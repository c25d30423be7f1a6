// With a program folder: its dates are read and written, its languages used, and the user's settings as well.
#include "cli/LockedFiles.h"
#include "tests/cli/KmctlTest.h"

namespace korvane {
namespace {

constexpr std::string_view kGermanSettings = "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\r\n\"Language\"=\"Deutsch\"\r\n";

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
        const std::string date = dates.substr(dates.find(',') + 1, dates.find(')') - dates.find(',') - 1);
        for (std::size_t at = 0; (at = dates.find(date, at)) != std::string::npos;) {
            dates.replace(at, date.size(), "1/2/2003");
        }
        writeFile(dateFile_, dates);
    }

    const std::string program_ = folder_.file("Korvane Manager");
    const std::string dateFile_ = program_ + "/DFile.mrc";
};

TEST_F(ProgramFolderTest, ShowWritesNothingAndTheFirstApplyMakesTheDateFileAlone) {
    EXPECT_EQ(inFolder({"show", "1"}).status, 0);
    EXPECT_EQ(contents(), kTestRegistry);
    EXPECT_TRUE(filesIn(program_).empty());
    EXPECT_EQ(inFolder({"apply", "11", "1013=1"}).out,
              "Quick Edit the Command Prompt (11): applied, and dated today\n" + registry_ + ": written\n");
    EXPECT_EQ(contents(), withChange(kTestRegistry, "\"QuickEdit\"=dword:00000000", "\"QuickEdit\"=dword:00000001"));
    EXPECT_EQ(filesIn(program_), std::vector<std::string>{"DFile.mrc"});
    EXPECT_TRUE(has(readFile(dateFile_), "korvane(\"Quick Edit the Command Prompt\","));
}

TEST_F(ProgramFolderTest, EarlierDatesAreShownAndOnlyTheAppliedOneIsReplaced) {
    constexpr const char* kOldDate = "Quick Edit the Command Prompt              1/2/2003\n";
    installWithDates();
    EXPECT_TRUE(has(inFolder({"show", "1"}).out, kOldDate));
    // Refused runs leave the dates.
    const std::string dates = readFile(dateFile_);
    const std::string registry = contents();
    EXPECT_EQ(inFolder({"apply", "11", "1013=1", "1099=1"}).status, 2);
    EXPECT_EQ(inFolder({"apply", "11", "1013=1", "--windows=95"}).status, 3);
    EXPECT_EQ(contents(), registry);
    EXPECT_EQ(readFile(dateFile_), dates);
    EXPECT_EQ(inFolder({"apply", "11", "1013=1"}).status, 0);
    EXPECT_FALSE(has(inFolder({"show", "1"}).out, kOldDate));
    EXPECT_TRUE(has(inFolder({"show", "1"}).out, "1/2/2003\n")) << "the others keep theirs";
}

// Whatever flag the registry of another machine holds, the dates are those of this folder.
TEST_F(ProgramFolderTest, EveryRegistryFileLeavesTheDatesOfTheOtherItems) {
    installWithDates();
    const std::string dates = readFile(dateFile_);
    const std::string settings = "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\r\n\"DateModefiedFlage\"=dword:";
    for (const std::string& flag : {std::string(), settings + "00000000\r\n", settings + "00000001\r\n"}) {
        SCOPED_TRACE(flag);
        writeFile(dateFile_, dates);
        writeFile(registry_, std::string(kTestRegistry) + flag);
        EXPECT_TRUE(has(inFolder({"show", "1"}).out, "1/2/2003"));
        EXPECT_EQ(readFile(dateFile_), dates);
        EXPECT_EQ(inFolder({"apply", "11", "1013=1"}).status, 0);
        const std::string after = readFile(dateFile_);
        EXPECT_EQ(std::ranges::count(after, '\n'), 311);
        EXPECT_EQ(after.find("1/2/2003"), dates.find("1/2/2003"));
        EXPECT_FALSE(has(contents(), "\"Language\""));
        EXPECT_EQ(has(contents(), "DateModefiedFlage"), !flag.empty());
    }
}

// A stamp is put into the file as it is by then. What another kmctl has written meanwhile stays.
TEST_F(ProgramFolderTest, TwoAtOnceKeepEachOthersDatesAndAFileIsNeverSeenHalfWritten) {
    installWithDates();
    const ProgramFolder folder(program_);
    const std::string path = program_ + "\\DFile.mrc";
    LockedFiles files(folder);
    std::string text;
    std::unique_ptr<File> first = files.openExisting(path);
    ASSERT_TRUE(first != nullptr && first->readAll(text));
    EXPECT_EQ(text, readFile(dateFile_));
    EXPECT_TRUE(first->rewrite("shorter"));
    EXPECT_EQ(readFile(dateFile_), "shorter");
    EXPECT_EQ(filesIn(program_), std::vector<std::string>{"DFile.mrc"});
    // What was never opened may not be made anew, for it may be another's, made just now.
    EXPECT_EQ(LockedFiles(folder).createAlways(path), nullptr);
    EXPECT_NE(files.createAlways(path), nullptr);
    EXPECT_EQ(readFile(dateFile_), "shorter");
}

TEST_F(ProgramFolderTest, DatesThatCannotBeWrittenAreNotClaimed) {
    makeFolder(dateFile_);  // no file can take this name
    const KmctlResult result = inFolder({"apply", "11", "1013=1", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "kmctl: the dates could not be written to the program folder\n");
    EXPECT_TRUE(has(result.out, "\"stamped\":false"));
    EXPECT_TRUE(has(contents(), "\"QuickEdit\"=dword:00000001"));
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
    EXPECT_TRUE(shown.out.starts_with("{\"item\":11,\"title\":\"Schnelles \u00c4ndern\",")) << shown.out << shown.err;
    EXPECT_TRUE(has(controlOf(shown.out, 1013), "\"text\":\"Einschalten\""));
    EXPECT_EQ(inFolder({"apply", "11", "--language", "Deutsch", "--windows=95"}).err, alert);
    // Two items of one title: the exact spelling decides, and otherwise it is ambiguous.
    EXPECT_EQ(inFolder({"show", "FARBEN", "--language", "Deutsch"}).out.substr(0, 11), "FARBEN (6)\n");
    const KmctlResult ambiguous = inFolder({"show", "farben", "--language", "Deutsch"});
    EXPECT_EQ(ambiguous.status, 2);
    EXPECT_EQ(ambiguous.err, "kmctl: \"farben\" is the title of several items: 5 6\nkmctl --help tells more\n");
}

TEST_F(ProgramFolderTest, TheUsersLanguageIsUsedOnlyWithAFolderThatIsThere) {
    makeFolder(program_ + "/Language");
    writeFile(program_ + "/Language/Deutsch.ini", "[1004]\r\n112=Schnell\r\n");
    writeFile(registry_, std::string(kTestRegistry) + std::string(kGermanSettings));
    EXPECT_TRUE(inFolder({"show", "11"}).out.starts_with("Schnell (11)\n"));
    EXPECT_TRUE(kmctl({"show", "11"}).out.starts_with("Quick Edit the Command Prompt (11)\n"));
    EXPECT_TRUE(inFolder({"show", "11", "--language=English"}).out.starts_with("Quick Edit"));
    EXPECT_EQ(kmctl({"show", "11", "--program-folder", folder_.file("none")}).status, 2);
    writeFile(program_ + "/x.ini", "[1004]\r\n112=No\r\n");
    for (const char* wrong : {"Nederlands", "..\\x", "../x", "..", "C:x", "Deutsch.ini"}) {
        const KmctlResult result = inFolder({"show", "11", "--language", wrong});
        EXPECT_EQ(result.status, 2) << wrong;
        EXPECT_TRUE(has(result.err, "; there are: English, Deutsch\n")) << result.err;
    }
}

}  // namespace
}  // namespace korvane
