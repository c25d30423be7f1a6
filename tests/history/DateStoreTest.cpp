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

struct Dates {
    explicit Dates(std::string_view registryText = kBareRegistry) { loadRegistry(registry, registryText); }

    // Started anew over the same registry and files.
    void start(const std::string& path = kPath) {
        store.emplace(registry, files, clock, path, [this] { return titles; });
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

struct CreatedBefore : Dates {
    explicit CreatedBefore(const std::string& text = earlier("1/2/2001")) : Dates(kCreated) {
        files.put(kPath, {.text = text});
        start();
    }
};

// ---- Creating

TEST(DateStore, WritesMonthDayAndYearWithoutZeros) {
    Dates dates;
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
        Dates dates("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n\"DateModefiedFlage\"=" +
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
    Dates dates;
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

}

TEST(DateStore, AMissingFileIsMadeAtTheFirstLookUp) {
    Dates dates(kCreated);
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
    Dates dates(kCreated);
    dates.files.put(kPath, {.text = earlier("1/2/2001")});
    FailingFiles files(dates.files);
    DateStore store(dates.registry, files, dates.clock, kPath, [&] { return dates.titles; });
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
        Dates dates(kCreated);
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
    Dates dates;
    dates.start("");
    dates.today(2006, 7, 16);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("Two"), "7/16/2006");
    EXPECT_EQ(dates.file(), "none");
    EXPECT_EQ(dates.state(), kBareRegistry);
}

// ---- Foreign and damaged files

TEST(DateStore, SurvivesFilesOfAnyForm) {
    std::string lineFeedsOnly = earlier("1/2/2001");
    std::erase(lineFeedsOnly, '\r');
    for (const std::string& text :
         {std::string(), std::string("\0\0\0", 3), lineFeedsOnly, std::string("korvane(\"Two\"\r"), earlier("")}) {
        SCOPED_TRACE(text);
        CreatedBefore dates(text);
        dates.store->LookUp("Two");
        EXPECT_TRUE(dates.store->Stamp("Two"));
        EXPECT_EQ(dates.store->LookUp("Two"), "6/15/2005");
        EXPECT_NE(dates.file().find("korvane(\"Two\",6/15/2005)"), std::string::npos);
    }
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
