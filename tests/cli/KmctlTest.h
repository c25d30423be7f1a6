// What the tests of kmctl's commands have in common: a folder, a .reg file in it, and a run over it.
#pragma once

#include "cli/Run.h"
#include "tests/cli/TestFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

inline constexpr std::string_view kTestRegistry =
    "Windows Registry Editor Version 5.00\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Console]\r\n"
    "\"QuickEdit\"=dword:00000000\r\n"
    "\"FaceName\"=\"Lucida Console\"\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software]\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Command Processor]\r\n"
    "\"CompletionChar\"=dword:00000009\r\n"
    "\"AutoRun\"=\"C:\\\\start.bat\"\r\n"
    "\r\n"
    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Command Processor]\r\n"
    "\"CompletionChar\"=dword:00000009\r\n"
    "\r\n";

struct KmctlResult {
    int status = -1;
    std::string out{};
    std::string err{};
};

inline KmctlResult runKmctl(const std::vector<std::string>& arguments) {
    KmctlResult result;
    result.status = run(arguments, result.out, result.err);
    return result;
}

class KmctlTest : public ::testing::Test {
protected:
    KmctlTest() { writeFile(registry_, kTestRegistry); }

    // With the registry file in front.
    KmctlResult kmctl(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--registry", registry_});
        return runKmctl(arguments);
    }

    std::string json(std::vector<std::string> arguments, int expectedStatus = 0) const {
        arguments.push_back("--json");
        const KmctlResult result = kmctl(std::move(arguments));
        EXPECT_EQ(result.status, expectedStatus) << result.err;
        return result.out;
    }

    std::string contents() const { return readFile(registry_); }

    // Neither the registry file nor anything beside it has been touched.
    void expectUntouched(std::string_view bytes = kTestRegistry) const {
        EXPECT_EQ(contents(), bytes);
        EXPECT_EQ(filesIn(folder_.path()), std::vector<std::string>{"machine.reg"});
    }

    TestFolder folder_;
    const std::string registry_ = folder_.file("machine.reg");
};

inline bool has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// The control of that number in a page's JSON, with its braces.
inline std::string controlOf(const std::string& page, int id) {
    const std::size_t start = page.find("{\"id\":" + std::to_string(id) + ',');
    return start == std::string::npos ? "none" : page.substr(start, page.find_first_of("}", start) + 1 - start);
}

// The same text with one part replaced, which must be there.
inline std::string withChange(std::string_view text, std::string_view before, std::string_view after) {
    std::string changed(text);
    const std::size_t at = changed.find(before);
    EXPECT_NE(at, std::string::npos) << before;
    return at == std::string::npos ? changed : changed.replace(at, before.size(), after);
}

}  // namespace korvane
