// A folder of its own for each test, removed afterwards with all that is in it.
#pragma once

#include "text/WholeFile.h"

#include <gtest/gtest.h>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#ifdef _WIN32
#include <direct.h>
#endif

namespace korvane {

inline void makeFolder(const std::string& path) {
#ifdef _WIN32
    ASSERT_EQ(_mkdir(path.c_str()), 0) << path;
#else
    ASSERT_EQ(mkdir(path.c_str(), 0755), 0) << path;
#endif
}

inline void writeFile(const std::string& path, std::string_view bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
    EXPECT_EQ(std::fclose(file), 0);
}

inline std::string readFile(const std::string& path) {
    std::string bytes;
    return readWholeFile(path, 1 << 26, bytes) ? bytes : "(no file " + path + ")";
}

inline std::vector<std::string> filesIn(const std::string& folder) {
    std::vector<std::string> names;
    if (DIR* entries = opendir(folder.c_str())) {
        while (const dirent* entry = readdir(entries)) {
            const std::string name = entry->d_name;
            if (name != "." && name != "..") {
                names.push_back(name);
            }
        }
        closedir(entries);
    }
    std::ranges::sort(names);
    return names;
}

class TestFolder {
public:
    TestFolder() {
        static int last = 0;
        path_ = ::testing::TempDir() + "kmctl-test-" + std::to_string(getpid()) + "-" + std::to_string(++last);
        makeFolder(path_);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder() { remove(path_); }

    const std::string& path() const { return path_; }
    std::string file(const std::string& name) const { return path_ + "/" + name; }

private:
    static void remove(const std::string& folder) {
        chmod(folder.c_str(), 0755);
        for (const std::string& name : filesIn(folder)) {
            const std::string path = folder + "/" + name;
            chmod(path.c_str(), 0755);
            if (unlink(path.c_str()) != 0) {
                remove(path);
            }
        }
        rmdir(folder.c_str());
    }

    std::string path_;
};

}  // namespace korvane
