// Replacing a file: whole or not at all, with nothing left beside it.
#include "cli/RegFileStore.h"
#include "tests/cli/KmctlTest.h"

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

namespace korvane {
namespace {

class RegFileStoreTest : public KmctlTest {
protected:
    std::string replace(const std::string& path) const {
        return replaceFile(path, "new content").value_or("replaced");
    }
};

TEST_F(RegFileStoreTest, BytesComeBackAsTheyWereWritten) {
    const std::string bytes = std::string(3 << 20, '\0') + "\r\n\x1a\xff";
    EXPECT_FALSE(replaceFile(registry_, bytes));
    std::string read = "old";
    EXPECT_FALSE(readInputFile(registry_, read));
    EXPECT_EQ(read, bytes);
    expectUntouched(bytes);
}

TEST_F(RegFileStoreTest, AVanishedFileOrFolderIsAFailure) {
    std::string bytes = "kept";
    for (const std::string& wrong : {folder_.file("none.reg"), folder_.path()}) {
        EXPECT_TRUE(readInputFile(wrong, bytes));
        EXPECT_NE(replace(wrong), "replaced");
    }
    EXPECT_EQ(bytes, "kept");
    expectUntouched();
}

#ifdef _WIN32

TEST_F(RegFileStoreTest, AReadOnlyFileStays) {
    chmod(registry_.c_str(), S_IREAD);
    EXPECT_EQ(replace(registry_), "is read-only");
    chmod(registry_.c_str(), S_IREAD | S_IWRITE);
    expectUntouched();
}

TEST_F(RegFileStoreTest, AFileInUseStaysAndTheNewOneBesideItGoes) {
    std::FILE* user = std::fopen(registry_.c_str(), "rb");
    ASSERT_NE(user, nullptr);
    EXPECT_TRUE(replace(registry_).starts_with("cannot be replaced (error "));
    EXPECT_EQ(std::fclose(user), 0);
    expectUntouched();
    EXPECT_EQ(replace(registry_), "replaced");
}

#else

TEST_F(RegFileStoreTest, AFullDiskLosesNothing) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 4096, .rlim_max = before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::optional<std::string> error = replaceFile(registry_, std::string(10000, 'x'));
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(error && error->starts_with("cannot be written: a new file beside it failed: ")) << error.value_or("");
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

TEST_F(RegFileStoreTest, AReadOnlyFolderOrFileStays) {
    for (const auto& [file, folder] : {std::pair<mode_t, mode_t>{0666, 0555}, {0444, 0777}}) {
        chmod(registry_.c_str(), file);
        chmod(folder_.path().c_str(), folder);
        {
            const AsNobody nobody;
            const KmctlResult result = kmctl({"apply", "11", "1013=1"});
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.err.starts_with("kmctl: " + registry_ + ": ")) << result.err;
        }
        expectUntouched();
    }
}

TEST_F(RegFileStoreTest, PermissionsAndPipesStay) {
    struct stat status {};
    chmod(registry_.c_str(), 0640);
    EXPECT_EQ(replace(registry_), "replaced");
    ASSERT_EQ(stat(registry_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_NE(replace(pipe), "replaced");
    ASSERT_EQ(stat(pipe.c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(RegFileStoreTest, ALinkIsFollowedAndStaysALink) {
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
