// The File System tweaks: a policy that is made, and the drives of the machine.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class FileSystem : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, FileSystem, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(FileSystem, OnlyTheMachinesBurningPolicyIsMade) {
    open(146);
    click(IDC_CHECK1);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{addedKey(machine(kExplorerPolicies)),
                                added(machine(kExplorerPolicies), number("NoCDBurning", 1))}));
    // The other pair of policies makes neither.
    open(140);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), Changes{});
}

// ---- Drives: the machine's drives are set here, which only the program in memory allows.

class Drives : public ::testing::Test {
protected:
    Drives() : program_(block(kPolicies) + std::string(kBareRegistry)) {}

    void show(std::vector<Drive> drives) {
        program_.system.folders.drives = std::move(drives);
        if (!program_.main) {
            ASSERT_TRUE(program_.start());
        }
        program_.select(137);
        program_.select(152);
    }
    // The rows' texts, each with a mark in front of it when it is checked.
    std::string rows() {
        std::string texts;
        for (const MemoryListRow& row : program_.window.page(IDD_CHECK_LIST)->find(IDC_CHECK_LIST)->rows) {
            texts += (row.checked ? " *" : " ") + std::string(row.cell(0));
        }
        return texts;
    }
    std::string applied(const std::vector<int>& checkedRows) {
        for (const int row : checkedRows) {
            EXPECT_TRUE(program_.clickRow(IDC_CHECK_LIST, row));
        }
        const std::string before = program_.registryText();
        EXPECT_TRUE(program_.apply());
        return registryChanges(before, program_.registryText());
    }

    const std::string kPolicies = user(kExplorerPolicies);
    const std::string written_ = '+' + kPolicies + " \"NoDriveAutoRun\"=dword:";
    MemoryProgram program_;
};

TEST_F(Drives, ListsAAndWhatCannotBeTakenOut) {
    show({{"A:\\", 3}, {"B:\\", 3}, {"Z:\\", 4}, {"E:\\", 2}, {"D:\\", 5}, {"C:\\", 1}});
    EXPECT_EQ(rows(), " A:\\ Z:\\ D:\\ C:\\ ALL");
    show({});
    EXPECT_EQ(rows(), " A:\\ ALL");
}

TEST_F(Drives, AreAddedUp) {
    const std::pair<std::vector<int>, const char*> cases[] = {
        {{}, "00000000"}, {{0, 2}, "00000009"}, {{1}, "02000000"}, {{3}, "03ffffff"}, {{0, 1, 2, 3}, "06000008"}};
    for (const auto& [rowsToCheck, sum] : cases) {
        loadRegistry(program_.registry, kPolicies + "\n\"NoDriveAutoRun\"=-\n");
        show({{"Z:\\", 4}, {"D:\\", 3}});
        EXPECT_EQ(rows(), " A:\\ Z:\\ D:\\ ALL") << "what is stored is never shown";
        EXPECT_EQ(applied(rowsToCheck), written_ + sum + '\n');
    }
}

TEST_F(Drives, MeanWhatWasShownEvenAfterADriveHasGone) {
    show({{"C:\\", 3}, {"D:\\", 3}, {"E:\\", 3}});
    program_.system.folders.drives = {{"C:\\", 3}, {"E:\\", 3}, {"F:\\", 3}};
    EXPECT_EQ(applied({3}), written_ + "00000010\n");
}

TEST_F(Drives, AreLeftAloneWithoutThePolicyKeyButDated) {
    loadRegistry(program_.registry, "[-" + kPolicies.substr(1) + '\n');
    show({{"C:\\", 3}});
    program_.setToday({.year = 2006, .month = 7, .day = 16});
    EXPECT_EQ(applied({0, 1}), "");
    EXPECT_EQ(dateOf(program_, "Select the Disk Drives to Start Automatically"), kLaterDay);
}

}  // namespace
}  // namespace korvane
