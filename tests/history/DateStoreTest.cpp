// The date file: its form, how dates are found and renewed, and every way in
// which the file can be missing, refused, damaged or not this program's.
#include "history/DateStore.h"
#include "platform/memory/RegFile.h"
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

TEST(DateStore, FirstRunDatesEveryRecordOfTheProgram) {
    MemoryProgram program;
    program.setToday({.year = 2006, .month = 3, .day = 1});
    ASSERT_TRUE(program.start());
    const std::string file = program.dateFile();
    EXPECT_EQ(std::ranges::count(file, '\n'), 311);
    EXPECT_TRUE(file.starts_with("korvane(\"Accessories\",3/1/2006)\r\nkorvane(\"Command Processor\",3/1/2006)\r\n"));
    EXPECT_TRUE(file.ends_with("\",3/1/2006)\r\n"));
    std::size_t dated = 0;
    for (std::size_t at = 0; (at = file.find("\",3/1/2006)\r\n", at)) != std::string::npos; ++at) {
        ++dated;
    }
    EXPECT_EQ(dated, 311u);
}

TEST(DateStore, WritesMonthDayAndYearWithoutZeros) {
    struct {
        int year, month, day;
        const char* text;
    } const cases[] = {{2006, 3, 1, "3/1/2006"}, {2005, 11, 3, "11/3/2005"}, {2005, 12, 31, "12/31/2005"}};
    for (const auto& each : cases) {
        Dates dates;
        dates.today(each.year, each.month, each.day);
        dates.start();
        EXPECT_EQ(dates.file(), earlier(each.text));
        EXPECT_EQ(dates.store->LookUp("Two"), each.text);
        EXPECT_EQ(dates.state(),
                  "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n"
                  "\"DateModefiedFlage\"=dword:00000001\n\"Language\"=\"English\"\n");
        EXPECT_EQ(dates.registry.openHandles(), 0u);
    }
}

TEST(DateStore, OnlyTheNumberOneMeansThatTheFileWasCreated) {
    struct {
        std::string data;
        bool created;
    } const cases[] = {
        {"dword:00000000", false},     {"dword:00000002", false},
        {"dword:00000101", false},     {"\"1\"", false},
        {"hex:01,00,00,00", true},     {"hex:01,00,00,00,ff", true},
        {"hex(7):31,00,00,00", false}, {"dword:00000001", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.data);
        Dates dates("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n\"DateModefiedFlage\"=" +
                    each.data + '\n');
        dates.files.put(kPath, {.text = earlier("1/2/2001")});
        const std::string before = dates.state();
        dates.start();
        EXPECT_EQ(dates.file(), earlier(each.created ? "1/2/2001" : "6/15/2005"));
        EXPECT_EQ(dates.store->LookUp("One"), each.created ? "1/2/2001" : "6/15/2005");
        EXPECT_EQ(dates.state() == before, each.created);
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
    EXPECT_EQ(dates.file(), expected);
    EXPECT_EQ(dates.store->LookUp("Two"), "10/20/2006");
    EXPECT_EQ(dates.store->LookUp("Two and a half"), "1/2/2001");
    dates.start();
    EXPECT_EQ(dates.file(), expected);
    EXPECT_EQ(dates.store->LookUp("Two"), "10/20/2006");
}

TEST(DateStore, AStampReadsTheFileAgain) {
    CreatedBefore dates;
    dates.files.put(kPath, {.text = earlier("3/4/2002")});  // by another copy of the program
    EXPECT_EQ(dates.store->LookUp("One"), "1/2/2001");
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("One"), "3/4/2002");
}

TEST(DateStore, RecordsThatShareATitleShareTheFirstOnesDate) {
    constexpr const char* kShared = "Remove My Computer from the Desktop and Start Menu";
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    DateStore store(program.registry, program.system.memoryFiles, program.system.fixedClock, kDateFile,
                    [&] { return program.app->items().titles(); });
    store.Initialise();
    program.setToday({.year = 2006, .month = 7, .day = 16});
    ASSERT_TRUE(store.Stamp(kShared));
    const std::string record = "korvane(\"" + std::string(kShared) + "\",7/16/2006)\r\n";
    const std::string file = program.dateFile();
    EXPECT_NE(file.find(record), file.rfind(record)) << "the two were identical, so both are renewed";
    EXPECT_EQ(std::ranges::count(file, '\n'), 311);

    // Once the two differ, the first alone is looked up and renewed.
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

    CreatedBefore stamped(damaged);
    EXPECT_TRUE(stamped.store->Stamp("Two"));
    EXPECT_EQ(stamped.file(), earlier("6/15/2005"));
    EXPECT_EQ(stamped.store->LookUp("One"), "6/15/2005");
    EXPECT_EQ(registryChanges(stamped.state(), lookedUp.state()), "");

    CreatedBefore renamed;
    renamed.titles[1] = "Zwei";
    EXPECT_EQ(renamed.store->LookUp("Zwei"), "6/15/2005");
    EXPECT_EQ(renamed.file().find("Two\""), std::string::npos);
}

TEST(DateStore, AMissingFileIsMadeAtTheFirstLookUp) {
    Dates dates(kCreated);
    dates.start();
    EXPECT_EQ(dates.file(), "none");
    EXPECT_FALSE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.file(), "none");
    dates.today(2006, 7, 16);
    EXPECT_EQ(dates.store->LookUp("Two"), "7/16/2006");
    EXPECT_EQ(dates.file(), earlier("7/16/2006"));
    EXPECT_TRUE(dates.store->Stamp("Two"));
}

TEST(DateStore, ATitleThatNoRecordHasFindsNothing) {
    CreatedBefore dates;
    EXPECT_EQ(dates.store->LookUp("Three"), "");
    EXPECT_EQ(dates.store->LookUp("Tw"), "");
    EXPECT_EQ(dates.store->LookUp(""), "");
}

// ---- Refusals

// A file system whose files fail where they are told to.
class FailingFiles final : public Files {
public:
    explicit FailingFiles(MemoryFiles& files) : files_(files) {}

    bool readFails = false;

    std::unique_ptr<File> openExisting(const std::string& path) override { return wrap(files_.openExisting(path)); }
    std::unique_ptr<File> createAlways(const std::string& path) override { return wrap(files_.createAlways(path)); }

private:
    struct FailingFile final : File {
        FailingFile(std::unique_ptr<File> inner, bool fails) : file(std::move(inner)), readFails(fails) {}
        bool readAll(std::string& text) override { return !readFails && file->readAll(text); }
        bool rewrite(std::string_view text) override { return file->rewrite(text); }
        std::unique_ptr<File> file;
        bool readFails;
    };

    std::unique_ptr<File> wrap(std::unique_ptr<File> file) const {
        return file == nullptr ? nullptr : std::make_unique<FailingFile>(std::move(file), readFails);
    }

    MemoryFiles& files_;
};

TEST(DateStore, AFailedReadOrWriteKeepsTheTextAndTheNextStampWorks) {
    Dates dates(kCreated);
    dates.files.put(kPath, {.text = earlier("1/2/2001")});
    FailingFiles files(dates.files);
    DateStore store(dates.registry, files, dates.clock, kPath, [&] { return dates.titles; });
    store.Initialise();
    const auto expectUnchanged = [&] {
        EXPECT_EQ(store.LookUp("One"), "1/2/2001");
        EXPECT_EQ(store.LookUp("Two"), "1/2/2001");
        EXPECT_EQ(dates.file(), earlier("1/2/2001"));
        EXPECT_TRUE(store.lastFailure().starts_with("The file could not be encrypted because of this error:"));
    };
    files.readFails = true;
    EXPECT_FALSE(store.Stamp("One"));
    expectUnchanged();
    files.readFails = false;
    dates.files.diskFull = true;
    EXPECT_FALSE(store.Stamp("One"));
    expectUnchanged();
    dates.files.diskFull = false;
    EXPECT_TRUE(store.Stamp("Two"));
    EXPECT_EQ(store.LookUp("Two"), "6/15/2005");
    EXPECT_EQ(store.LookUp("One"), "1/2/2001") << "a date that could not be recorded is not made up for";
}

TEST(DateStore, AReadOnlyFileStaysAsItIs) {
    CreatedBefore dates;
    dates.files.put(kPath, {.text = earlier("1/2/2001"), .readOnly = true});
    EXPECT_FALSE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("Two"), "1/2/2001");
    // The next run cannot even open it, and cannot make it anew either.
    dates.start();
    EXPECT_FALSE(dates.store->Stamp("Two"));
    dates.store->LookUp("Two");
    EXPECT_EQ(dates.file(), earlier("1/2/2001"));
}

TEST(DateStore, WithoutTheUsersSettingsNothingIsTouched) {
    const auto expectNothing = [](Dates& dates) {
        const std::string before = dates.state();
        dates.start();
        EXPECT_EQ(dates.store->LookUp("Two"), "");
        EXPECT_FALSE(dates.store->Stamp("Two"));
        EXPECT_EQ(dates.file(), "none");
        EXPECT_EQ(dates.state(), before);
    };
    Dates noSoftware("[HKEY_CURRENT_USER\\Console]\n");
    expectNothing(noSoftware);
    Dates deniedSoftware;
    deniedSoftware.registry.deny(Root::CurrentUser, "Software");
    expectNothing(deniedSoftware);
    Dates deniedRoot;
    deniedRoot.registry.deny(Root::CurrentUser, "");
    expectNothing(deniedRoot);
    Dates deniedOwn(kCreated);
    deniedOwn.registry.deny(Root::CurrentUser, "Software\\Korvane Manager");
    expectNothing(deniedOwn);
}

TEST(DateStore, InMemoryItLeavesNoTrace) {
    Dates dates;
    const std::string before = dates.state();
    dates.start("");
    dates.today(2006, 7, 16);
    EXPECT_TRUE(dates.store->Stamp("Two"));
    EXPECT_EQ(dates.store->LookUp("Two"), "7/16/2006");
    EXPECT_EQ(dates.store->LookUp("One"), "6/15/2005");
    EXPECT_EQ(dates.store->LookUp("Three"), "");
    EXPECT_EQ(dates.file(), "none");
    EXPECT_EQ(dates.state(), before);
}

// ---- Foreign and damaged files

TEST(DateStore, SurvivesFilesOfAnyForm) {
    std::string lineFeedsOnly = earlier("1/2/2001");
    std::erase(lineFeedsOnly, '\r');
    std::string noLineEnds = lineFeedsOnly;
    std::erase(noLineEnds, '\n');
    for (const std::string& text :
         {std::string(), std::string("\0\0\0", 3), lineFeedsOnly, noLineEnds, std::string("korvane(\"Two\""),
          std::string("korvane(\"Two\"\r"), std::string("korvane(\"Two\",\r\n"), earlier("")}) {
        SCOPED_TRACE(text);
        CreatedBefore dates(text);
        dates.store->LookUp("Two");
        EXPECT_TRUE(dates.store->Stamp("Two"));
        EXPECT_EQ(dates.store->LookUp("Two"), "6/15/2005");
        EXPECT_NE(dates.file().find("korvane(\"Two\",6/15/2005)"), std::string::npos);
    }
}

// Processor time, so that a busy machine does not count.
double secondsOf(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(DateStore, HandlesHugeFilesInAMoment) {
    std::string rubbish;
    while (rubbish.size() < 10 << 20) {
        rubbish += "korvane(\"korvane(\"Tw\"\r";
    }
    CreatedBefore damaged(rubbish);
    EXPECT_LT(secondsOf([&] {
                  EXPECT_EQ(damaged.store->LookUp("Two"), "6/15/2005");
                  EXPECT_TRUE(damaged.store->Stamp("One"));
              }),
              1.0);

    // Each of these is an occurrence of the old record, and the new one is longer.
    std::string repeated;
    while (repeated.size() < 1 << 20) {
        repeated += "korvane(\"Two\",1/2/2001)\r\n";
    }
    CreatedBefore dates(repeated);
    dates.today(2006, 10, 20);
    EXPECT_LT(secondsOf([&] { EXPECT_TRUE(dates.store->Stamp("Two")); }), 1.0);
    EXPECT_EQ(dates.file().find("1/2/2001"), std::string::npos);
}

}  // namespace
}  // namespace korvane
