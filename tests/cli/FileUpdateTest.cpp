// Changing a file: whole or not at all, one run after the other, with nothing left beside it.
#include "cli/FileUpdate.h"

#include "cli/InputFile.h"
#include "tests/cli/KmctlTest.h"

#ifndef _WIN32
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <sys/xattr.h>

#include <csignal>
#include <cstring>
#endif

namespace korvane {
namespace {

class FileUpdateTest : public KmctlTest {
protected:
    static std::string replace(const std::string& path, std::string_view bytes = "new content") {
        FileUpdate update(std::chrono::milliseconds(50));
        std::string before;
        std::optional<Problem> problem = update.begin(path, before);
        if (!problem) {
            problem = update.commit(bytes);
        }
        return problem ? problem->message.substr(std::min(path.size() + 2, problem->message.size())) : "replaced";
    }
};

TEST_F(FileUpdateTest, BytesComeBackAsTheyWereWritten) {
    const std::string bytes = std::string(3 << 20, '\0') + "\r\n\x1a\xff";
    EXPECT_EQ(replace(registry_, bytes), "replaced");
    std::string read = "old";
    EXPECT_FALSE(readInputFile(registry_, read));
    EXPECT_EQ(read, bytes);
    expectUntouched(bytes);
}

TEST_F(FileUpdateTest, AVanishedFileOrFolderIsAFailure) {
    std::string bytes = "kept";
    for (const std::string& wrong : {folder_.file("none.reg"), folder_.path()}) {
        EXPECT_TRUE(readInputFile(wrong, bytes));
        EXPECT_NE(replace(wrong), "replaced");
    }
    EXPECT_EQ(bytes, "kept");
    expectUntouched();
}

TEST_F(FileUpdateTest, OnlyOneRunAtATimeAndOnlyWhatWasRead) {
    std::string bytes;
    {
        FileUpdate first;
        EXPECT_FALSE(first.begin(registry_, bytes));
        EXPECT_TRUE(replace(registry_).starts_with("another kmctl is changing it")) << "and it waits in vain";
        EXPECT_EQ(kmctl({"show", "11"}).status, 0);
        EXPECT_FALSE(first.commit("first"));
    }
    EXPECT_EQ(replace(registry_, "second"), "replaced");
    {
        FileUpdate update;
        EXPECT_FALSE(update.begin(registry_, bytes));
        EXPECT_EQ(bytes, "second");
        writeFile(registry_, "an editor's");
        const std::optional<Problem> problem = update.commit("third");
        EXPECT_TRUE(problem && has(problem->message, "was changed by another program meanwhile"));
    }
    expectUntouched("an editor's");
}

TEST_F(FileUpdateTest, WhatAKilledRunLeftIsTakenOverAndLongNamesAreNoHindrance) {
    writeFile(registry_ + ".kmctl-lock", "half a");
    EXPECT_EQ(replace(registry_), "replaced");
    expectUntouched("new content");
#ifdef _WIN32
    const std::size_t length = 250 - folder_.path().size();  // a whole path has 259 characters
#else
    const std::size_t length = 251;
#endif
    const std::string longest = folder_.file(std::string(length, 'x') + ".reg");
    writeFile(longest, kTestRegistry);
    EXPECT_EQ(replace(longest), "replaced");
    EXPECT_EQ(filesIn(folder_.path()).size(), 2U);
}

#ifdef _WIN32

TEST_F(FileUpdateTest, AReadOnlyFileStays) {
    chmod(registry_.c_str(), S_IREAD);
    EXPECT_EQ(replace(registry_), "is read-only");
    chmod(registry_.c_str(), S_IREAD | S_IWRITE);
    expectUntouched();
}

TEST_F(FileUpdateTest, AFileInUseStaysAndTheNewOneBesideItGoes) {
    std::FILE* user = std::fopen(registry_.c_str(), "rb");
    ASSERT_NE(user, nullptr);
    EXPECT_TRUE(replace(registry_).starts_with("cannot be replaced (error "));
    EXPECT_EQ(std::fclose(user), 0);
    expectUntouched();
    EXPECT_EQ(replace(registry_), "replaced");
}

#else

TEST_F(FileUpdateTest, AFullDiskLosesNothing) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 4096, .rlim_max = before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string error = replace(registry_, std::string(10000, 'x'));
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(error.starts_with("cannot be written: a new file beside it failed: ")) << error;
    expectUntouched();
}

// Permissions say nothing to the superuser, so the rest of a test runs as nobody.
class AsNobody {
public:
    AsNobody() : isRoot_(geteuid() == 0) { EXPECT_TRUE(!isRoot_ || seteuid(65534) == 0); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody() { EXPECT_TRUE(!isRoot_ || seteuid(0) == 0); }

private:
    bool isRoot_;
};

TEST_F(FileUpdateTest, AReadOnlyFolderOrFileStays) {
    for (const auto& [file, folder] : {std::pair<mode_t, mode_t>{0666, 0555}, {0444, 0777}}) {
        chmod(registry_.c_str(), file);
        chmod(folder_.path().c_str(), folder);
        {
            const AsNobody nobody;
            const KmctlResult result = kmctl({"apply", "11", "1013=1"});
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.err.starts_with("kmctl: " + registry_ + ": ")) << result.err;
            EXPECT_EQ(kmctl({"show", "11"}).status + kmctl({"list"}).status, 0);
        }
        expectUntouched();
    }
}

TEST_F(FileUpdateTest, PermissionsAndPipesStay) {
    struct stat status {};
    chmod(registry_.c_str(), 0640);
    const bool hasAttributes = setxattr(registry_.c_str(), "user.note", "kept", 4, 0) == 0;  // not every file system
    EXPECT_EQ(replace(registry_), "replaced");
    ASSERT_EQ(stat(registry_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    char value[8] = "";
    EXPECT_EQ(hasAttributes ? getxattr(registry_.c_str(), "user.note", value, sizeof value) : 4, 4);
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(SideFile().hold(pipe), SideFile::Answer::Impossible);
    ASSERT_EQ(stat(pipe.c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

// Each pair starts from the same file and changes two values of it.
TEST_F(FileUpdateTest, RunsAtTheSameTimeLoseNothing) {
    for (int pair = 0; pair < 20; ++pair) {
        writeFile(registry_, kTestRegistry);
        pid_t children[2];
        const char* const changes[2][2] = {{"11", "1013=1"}, {"12", "1015=C:\\other.bat"}};
        for (int i = 0; i < 2; ++i) {
            children[i] = fork();
            if (children[i] == 0) {
                _exit(kmctl({"apply", changes[i][0], changes[i][1]}).status);
            }
        }
        for (const pid_t child : children) {
            int status = -1;
            EXPECT_EQ(waitpid(child, &status, 0), child);
            EXPECT_EQ(status, 0);
        }
        ASSERT_TRUE(has(contents(), "dword:00000001") && has(contents(), "C:\\\\other.bat")) << pair << contents();
    }
    EXPECT_EQ(filesIn(folder_.path()).size(), 1U);
}

TEST_F(FileUpdateTest, ALinkIsFollowedAndStaysALink) {
    const std::string inside = folder_.file("links");
    makeFolder(inside);
    const std::string link = inside + "/link.reg";
    ASSERT_EQ(symlink("../machine.reg", link.c_str()), 0);
    EXPECT_EQ(runKmctl({"apply", "11", "1013=1", "--registry", link}).status, 0);
    struct stat status {};
    ASSERT_EQ(lstat(link.c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(contents(), withChange(kTestRegistry, "dword:00000000", "dword:00000001"));
}

#endif

}  // namespace
}  // namespace korvane
