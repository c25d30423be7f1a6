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
    std::string bytes(3 << 20, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 7 + i / 256);
    }
    EXPECT_FALSE(replaceFile(registry_, bytes));
    std::string read = "old";
    EXPECT_FALSE(readInputFile(registry_, read));
    EXPECT_EQ(read, bytes);
    expectUntouched(bytes);
}

TEST_F(RegFileStoreTest, AVanishedFileOrFolderIsAFailure) {
    std::string bytes = "kept";
    EXPECT_TRUE(readInputFile(folder_.file("none.reg"), bytes));
    EXPECT_TRUE(readInputFile(folder_.path(), bytes));
    EXPECT_EQ(bytes, "kept");
    EXPECT_NE(replace(folder_.file("none.reg")), "replaced");
    EXPECT_NE(replace(folder_.file("none/machine.reg")), "replaced");
    EXPECT_NE(replace(folder_.path()), "replaced");
    expectUntouched();
}

#ifdef _WIN32

TEST_F(RegFileStoreTest, AReadOnlyFileStays) {
    chmod(registry_.c_str(), S_IREAD);
    EXPECT_EQ(replace(registry_), "is read-only");
    const KmctlResult result = kmctl({"apply", "11", "1013=1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "kmctl: " + registry_ + ": is read-only\n");
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
    chmod(registry_.c_str(), 0666);
    chmod(folder_.path().c_str(), 0555);
    {
        const AsNobody nobody;
        const KmctlResult result = kmctl({"apply", "11", "1013=1", "--json"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.starts_with("kmctl: " + registry_ + ": cannot be written: ")) << result.err;
    }
    expectUntouched();

    chmod(registry_.c_str(), 0444);
    chmod(folder_.path().c_str(), 0777);
    {
        const AsNobody nobody;
        EXPECT_EQ(kmctl({"apply", "11", "1013=1"}).status, 1);
    }
    expectUntouched();
}

TEST_F(RegFileStoreTest, PermissionsStay) {
    for (const mode_t mode : {0640U, 0600U, 0664U}) {
        chmod(registry_.c_str(), mode);
        EXPECT_EQ(replace(registry_), "replaced");
        struct stat status {};
        ASSERT_EQ(stat(registry_.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
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
    EXPECT_EQ(filesIn(inside), std::vector<std::string>{"link.reg"});

    ASSERT_EQ(unlink(registry_.c_str()), 0);
    EXPECT_EQ(replace(link).substr(0, 26), "cannot be found any more: ");
}

TEST_F(RegFileStoreTest, APipeIsNotReplaced) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_NE(replace(pipe), "replaced");
    struct stat status {};
    ASSERT_EQ(stat(pipe.c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

#endif

}  // namespace
}  // namespace korvane
