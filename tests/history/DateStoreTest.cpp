// The date file: its form, how dates are found and renewed, and every way in
// which the file can be missing, refused, damaged or not this program's.
#include "history/DateStore.h"
#include "regfile/RegFile.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <ctime>

namespace korvane {
namespace {

constexpr std::string_view kCreated =
    "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"DateModefiedFlage\"=dword:00000001\n\"Language\"=\"English\"\n";
constexpr const char* kPath = "C:\\Korvane\\DFile.mrc";

struct Machine {
    explicit Machine(std::string_view registryText = kBareRegistry) { loadRegistry(registry, registryText); }

    // Started anew over the same registry and files.
    void start(Dates kept = Dates::InFile) {
        store.emplace(registry, files, clock, DatePlace{kept, kPath}, [this] { return titles; });
        store->Initialise();
    }
    void today(int year, int month, int day) { clock.date = {.year = year, .month = month, .day = day}; }
    // The file's text; "none" for no file.
    std::string file() const {
        const MemoryFile* found = files.find(kPath);
        return found == nullptr ? "none" : found->text;
    }
    std::string state() const { return dumpRegistry(registry); }

    MemoryRegistry registry;
    MemoryFiles files;
    FixedClock clock;
    std::vector<std::string> titles{"One", "Two", "Two and a half"};
    std::optional<DateStore> store;
};

// A file as an earlier run left it.
std::string earlier(const std::string& date) {
    return "korvane(\"One\"," + date + ")\r\nkorvane(\"Two\"," + date + ")\r\nkorvane(\"Two and a half\"," + date +
           ")\r\n";
}

struct CreatedBefore : Machine {
    explicit CreatedBefore(const std::string& text = earlier("1/2/2001")) : Machine(kCreated) {
        files.put(kPath, {.text = text});
        start();
    }
};

// ---- Creating

TEST(DateStore, WritesMonthDayAndYearWithoutZeros) {
    Machine dates;
    dates.today(2006, 3, 1);
    dates.start();
    EXPECT_EQ(dates.file(), earlier("3/1/2006"));
    EXPECT_EQ(dates.store->LookUp("Two"), "3/1/2006");
    EXPECT_EQ(dates.state(), kCreated);
    EXPECT_EQ(dates.registry.openHandles(), 0u);
}

TEST(DateStore, OnlyTheNumberOneMeansThatTheFileWasCreated) {
    for (const auto& [data, created] : {std::pair{"dword:00000000", false},
                                        {"dword:00000101", false},
                                        {"\"1\"", false},
                                        {"hex:01,00,00,00,ff", true},
                                        {"dword:00000001", true}}) {
        SCOPED_TRACE(data);
        Machine dates("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n\"DateModefiedFlage\"=" +
                    std::string(data) + '\n');
        dates.files.put(kPath, {.text = earlier("1/2/2001")});
        const std::string before = dates.state();
        dates.start();
        EXPECT_EQ(dates.file(), earlier(created ? "1/2/2001" : "6/15/2005"));
        EXPECT_EQ(dates.state() == before, created);
        EXPECT_NE(dates.state().find("\"Language\"=\"Deutsch\""), std::string::npos);
    }
}

// ---- Stamping and looking up

TEST(DateStore, AStampRenewsOneRecordAndOutlivesTheRun) {
    CreatedBefore dates;
    dates.today(2006, 10, 20);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    const std::string expected =
        "korvane(\"One\",1/2/2001)\r\nkorvane(\"Two\",10/20/2006)\r\nkorvane(\"Two and a half\",1/2/2001)\r\n";
    dates.start();
    EXPECT_EQ(dates.file(), expected);
    EXPECT_EQ(dates.store->LookUp("Two"), "10/20/2006");
}

TEST(DateStore, RecordsThatShareATitleShareTheFirstOnesDate) {
    CreatedBefore dates("korvane(\"Two\",1/2/2001)\r\nkorvane(\"One\",1/2/2001)\r\nkorvane(\"Two\",3/4/2002)\r\n");
    EXPECT_EQ(dates.store->LookUp("Two"), "1/2/2001");
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.file(), "korvane(\"Two\",6/15/2005)\r\nkorvane(\"One\",1/2/2001)\r\nkorvane(\"Two\",3/4/2002)\r\n");
}

TEST(DateStore, TheDateBeginsBehindTheFirstComma) {
    Machine dates;
    dates.titles = {"Cut, copy"};
    dates.start();
    EXPECT_EQ(dates.store->LookUp("Cut, copy"), " copy\",6/15/2005");
}

// ---- Missing records and files

TEST(DateStore, AMissingRecordMakesTheWholeFileAnew) {
    const std::string damaged = "korvane(\"One\",1/2/2001)\r\nkorvane(\"Two and a half\",1/2/2001)\r\n";
    CreatedBefore lookedUp(damaged);
    EXPECT_EQ(lookedUp.store->LookUp("One"), "1/2/2001");
    EXPECT_EQ(lookedUp.store->LookUp("Two"), "6/15/2005");
    EXPECT_EQ(lookedUp.file(), earlier("6/15/2005"));

    CreatedBefore stamped(damaged);
    EXPECT_TRUE(stamped.store->Stamp("Two"));
    EXPECT_EQ(stamped.file(), earlier("6/15/2005"));
    EXPECT_EQ(stamped.state(), kCreated);
    EXPECT_FALSE(stamped.store->Stamp("No such title"));

    // While somebody else reads the file, it cannot be made anew; nothing is claimed and nothing shown that is not there.
    CreatedBefore refused(damaged);
    const std::unique_ptr<File> reader = refused.files.openExisting(kPath);
    EXPECT_FALSE(refused.store->Stamp("Two"));
    EXPECT_EQ(refused.store->LookUp("Two"), "");
    EXPECT_EQ(refused.store->LookUp("One"), "1/2/2001");
    EXPECT_EQ(refused.file(), damaged);
    EXPECT_NE(refused.state(), kCreated);
}

TEST(DateStore, AFileThatIsThereAndReadableCountsAsCreatedWhereNoFlagIsKept) {
    Machine dates;
    dates.files.put(kPath, {.text = earlier("1/2/2001")});
    dates.start(Dates::InFileAlone);
    EXPECT_EQ(dates.store->LookUp("Two"), "1/2/2001");
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("One"), "1/2/2001");
    dates.files.put(kPath, {.text = "korvane(\"One\",1/2/2001)"});
    dates.start(Dates::InFileAlone);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.file(), earlier("6/15/2005"));

    Machine first;
    first.start(Dates::InFileAlone);
    EXPECT_EQ(first.file(), earlier("6/15/2005"));
    for (const Machine* each : {&dates, &first}) {
        EXPECT_EQ(each->state(), kBareRegistry);
    }
}

TEST(DateStore, AMissingFileIsMadeAtTheFirstLookUp) {
    Machine dates(kCreated);
    dates.start();
    EXPECT_FALSE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.file(), "none");
    EXPECT_EQ(dates.store->LookUp("Two"), "6/15/2005");
    EXPECT_EQ(dates.file(), earlier("6/15/2005"));
}

// ---- Refusals

// Files that cannot be read while they are told so.
struct FailingFiles final : Files {
    struct UnreadableFile final : File {
        bool readAll(std::string&) override { return false; }
        bool rewrite(std::string_view) override { return true; }
    };
    explicit FailingFiles(MemoryFiles& all) : files(all) {}
    std::unique_ptr<File> openExisting(const std::string& path) override {
        return readFails ? std::unique_ptr<File>(new UnreadableFile) : files.openExisting(path);
    }
    std::unique_ptr<File> createAlways(const std::string& path) override { return files.createAlways(path); }

    MemoryFiles& files;
    bool readFails = false;
};

TEST(DateStore, AFailedReadOrWriteKeepsTheTextAndTheNextStampWorks) {
    Machine dates(kCreated);
    dates.files.put(kPath, {.text = earlier("1/2/2001")});
    FailingFiles files(dates.files);
    DateStore store(dates.registry, files, dates.clock, {.path = kPath}, [&] { return dates.titles; });
    store.Initialise();
    for (const bool diskFull : {false, true}) {
        files.readFails = !diskFull;
        dates.files.diskFull = diskFull;
        EXPECT_FALSE(store.Stamp("One"));
        EXPECT_EQ(store.LookUp("One"), "1/2/2001");
        EXPECT_EQ(dates.file(), earlier("1/2/2001"));
        EXPECT_TRUE(store.lastFailure().starts_with("The file could not be encrypted because of this error:"));
    }
    dates.files.diskFull = false;
    EXPECT_TRUE(store.Stamp("Two"));
    EXPECT_EQ(store.LookUp("Two"), "6/15/2005");
    EXPECT_EQ(store.LookUp("One"), "1/2/2001") << "a date that could not be recorded is not made up for";
}

TEST(DateStore, AReadOnlyFileStaysAsItIs) {
    CreatedBefore dates;
    dates.files.put(kPath, {.text = earlier("1/2/2001"), .readOnly = true});
    EXPECT_FALSE(dates.store->Stamp("Two"));
    // The next run cannot even open it, and cannot make it anew either.
    dates.start();
    EXPECT_FALSE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.file(), earlier("1/2/2001"));
}

TEST(DateStore, WithoutTheUsersSettingsNothingIsTouched) {
    for (const char* denied : {"", "Software", "Software\\Korvane Manager"}) {
        Machine dates(kCreated);
        dates.registry.deny(Root::CurrentUser, denied);
        const std::string before = dates.state();
        dates.start();
        EXPECT_EQ(dates.store->LookUp("Two"), "");
        EXPECT_FALSE(dates.store->Stamp("Two"));
        EXPECT_EQ(dates.file(), "none");
        EXPECT_EQ(dates.state(), before);
    }
}

TEST(DateStore, InMemoryItLeavesNoTrace) {
    Machine dates;
    dates.start(Dates::InMemory);
    dates.today(2006, 7, 16);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("Two"), "7/16/2006");
    EXPECT_EQ(dates.file(), "none");
    EXPECT_EQ(dates.state(), kBareRegistry);
}

// ---- Foreign and damaged files

TEST(DateStore, AStampLosesNoOtherRecordWhateverTheLineEnds) {
    struct Form {
        std::string before;
        std::string after;
        std::string shown = "1/2/2001";  // of "Two", before
    };
    constexpr const char* kAfter =
        "korvane(\"One\",1/2/2001)\r\nkorvane(\"Two\",6/15/2005)\r\nkorvane(\"Two and a half\",1/2/2001)";
    const std::string one = "korvane(\"One\",1/2/2001)";
    const std::string two = "korvane(\"Two\",1/2/2001)";
    const std::string half = "korvane(\"Two and a half\",1/2/2001)";
    const std::string after(kAfter);
    for (const Form& form : {Form{one + '\n' + two + '\n' + half + '\n', after + "\r\n"},
                             {one + '\r' + two + '\r' + half, after},
                             {one + "\r\n" + two + '\n' + half + '\r', after + "\r\n"},
                             {half + "\n\n" + one + '\n' + two, half + "\r\n\r\n" + after.substr(0, after.rfind('\r'))},
                             {one + two + half, after},
                             {one + "\nkorvane(\"Two\",1/2/2001\n" + half, after, "1/2/200"},
                             {one + "\nkorvane(\"Two\"\n" + half, after, ""},
                             {"\xEF\xBB\xBF" + two + '\n' + one, "\xEF\xBB\xBFkorvane(\"Two\",6/15/2005)\r\n" + one}}) {
        SCOPED_TRACE(form.before);
        CreatedBefore dates(form.before);
        EXPECT_EQ(dates.store->LookUp("Two"), form.shown);
        EXPECT_EQ(dates.file(), form.before) << "a look writes nothing";
        EXPECT_TRUE(dates.store->Stamp("Two"));
        EXPECT_EQ(dates.file(), form.after);
        EXPECT_EQ(dates.store->LookUp("Two"), "6/15/2005");
        EXPECT_EQ(dates.store->LookUp("One"), "1/2/2001");
    }
    // A translated title may have line ends of its own.
    Machine translated;
    translated.titles = {"One\nmore", "Two"};
    translated.start();
    translated.today(2006, 7, 16);
    EXPECT_TRUE(translated.store->Stamp("Two"));
    EXPECT_EQ(translated.store->LookUp("One\nmore"), "6/15/2005");
}

TEST(DateStore, HandlesHugeFilesInAMoment) {
    std::string rubbish;
    while (rubbish.size() < 10 << 20) {
        rubbish += "korvane(\"korvane(\"Tw\"\r";
    }
    const std::clock_t start = std::clock();  // processor time, so that a busy machine does not count
    EXPECT_EQ(CreatedBefore(rubbish).store->LookUp("Two"), "6/15/2005");
    // Each of these is an occurrence of the old record, and the new one is longer.
    std::string repeated;
    while (repeated.size() < 1 << 20) {
        repeated += "korvane(\"Two\",1/2/2001)\r\n";
    }
    CreatedBefore dates(repeated);
    dates.today(2006, 10, 20);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC);
    EXPECT_EQ(dates.file().find("1/2/2001"), std::string::npos);
}

}  // namespace
}  // namespace korvane
