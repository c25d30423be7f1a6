// The program as it starts: its tree, its first page, its date file, and every
// row of the tree selected once.
#include "tests/program/Driver.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <commctrl.h>

namespace korvane::program {
namespace {

constexpr int kHeader = 1006;
constexpr int kOverviewList = 1007;

void forgetDates() {
    HKEY settings = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, "Software\\Korvane Manager", &settings);
    RegDeleteValueA(settings, "DateModefiedFlage");
    RegCloseKey(settings);
    std::remove((programFolder() + "\\DFile.mrc").c_str());
}

DWORD settingsFlag() {
    HKEY settings = nullptr;
    DWORD flag = 0;
    DWORD size = sizeof flag;
    RegOpenKeyExA(HKEY_CURRENT_USER, "Software\\Korvane Manager", 0, KEY_READ, &settings);
    RegQueryValueExA(settings, "DateModefiedFlage", nullptr, nullptr, reinterpret_cast<BYTE*>(&flag), &size);
    RegCloseKey(settings);
    return flag;
}

TEST(Program, StartsUnselectedOnTheFirstOverviewAndDatesEveryRecord) {
    forgetDates();
    Driver program("winxp");
    ASSERT_TRUE(program.running());

    EXPECT_FALSE(program.anyRowSelected());
    EXPECT_FALSE(program.applyVisible());
    ASSERT_NE(program.visiblePage(), nullptr);
    EXPECT_EQ(program.text(kHeader), "Accessories:\nTweak and Settings for Windows Accessories and Components.");
    EXPECT_EQ(program.send(kOverviewList, LVM_GETITEMCOUNT), 3);
    EXPECT_EQ(program.cell(kOverviewList, 0, 0), "Disable Task Manager");
    EXPECT_EQ(program.cell(kOverviewList, 0, 1), today());

    const auto dates = readFile(programFolder() + "\\DFile.mrc");
    ASSERT_TRUE(dates);
    EXPECT_EQ(std::count(dates->begin(), dates->end(), '\n'), 311);
    EXPECT_EQ(settingsFlag(), 1u);

    EXPECT_TRUE(program.close());
}

TEST(Program, ShowsOnePageForEveryRowOfTheTree) {
    Driver program("winxp");
    ASSERT_TRUE(program.running());
    const std::vector<TreeRow> rows = program.treeRows();
    EXPECT_EQ(rows.size(), 163u);
    EXPECT_EQ(std::ranges::count_if(rows, &TreeRow::bold), 22);

    for (const TreeRow& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.bold, row.image != 2);
        program.select(row);
        EXPECT_LE(program.visiblePages(), 1);
        if (row.bold) {
            ASSERT_NE(program.visiblePage(), nullptr);
            EXPECT_FALSE(program.applyVisible());
            EXPECT_GT(program.send(kOverviewList, LVM_GETITEMCOUNT), 0);
            const auto heading = reinterpret_cast<HWND>(program.send(kOverviewList, LVM_GETHEADER));
            EXPECT_EQ(SendMessageA(heading, HDM_GETITEMCOUNT, 0, 0), 2);
        } else {
            ASSERT_NE(program.visiblePage(), nullptr);
            EXPECT_TRUE(program.applyVisible());
        }
        const std::string header = program.text(kHeader);
        const std::size_t end = header.find(":\n");
        ASSERT_NE(end, std::string::npos) << header;
        EXPECT_GE(header.size() - end, 28u);
    }
    EXPECT_TRUE(program.close());
}

}  // namespace
}  // namespace korvane::program
