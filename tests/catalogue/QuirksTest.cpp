// What the files of expected effects cannot say: fields that are switched, drives that come and go, and a colour list
// that keeps its row from one page to the next.
#include "catalogue/Catalogue.h"
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

namespace korvane {
namespace {

TEST(Quirks, TheScreenSaversBoxSwitchesItsFields) {
    // The box cannot show a two, but the fields tell it from a one.
    for (const auto& [stored, usable] : {std::pair{"0", false}, {" 1x", true}, {"2", false}}) {
        MemoryProgram program("[HKEY_USERS\\.DEFAULT\\Control Panel\\Desktop]\n\"ScreenSaveActive\"=\"" +
                              std::string(stored) + "\"\n" + std::string(kBareRegistry));
        ASSERT_TRUE(program.start());
        program.select(159);
        EXPECT_EQ(program.type(IDC_EDIT1, "a"), usable) << stored;
        EXPECT_EQ(program.type(IDC_EDIT2, "b"), usable) << stored;
        EXPECT_EQ(program.click(IDC_BROWSE1), usable) << stored;
        // The fields of the next item on the same page can be used again.
        program.select(171);
        EXPECT_TRUE(program.type(IDC_EDIT1, "a") && program.type(IDC_EDIT2, "b"));
    }
}

TEST(Quirks, AColourWithoutANameShowsTheOneOfBefore) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Control Panel\\Colors]\n\"HotTrackingColor\"=\"0 128 0\"\n"
                          "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer]\n"
                          "\"AltColor\"=hex:01,02,03,00\n" +
                          std::string(kBareRegistry));
    ASSERT_TRUE(program.start());
    for (const int id : {68, 69, 70}) {
        program.select(id);
        EXPECT_EQ(shownPage(program)->text(IDC_COLOUR_COMBO), "Green") << id;
    }
}

std::string driveRows(MemoryProgram& program, std::vector<Drive> drives) {
    program.system.folders.drives = std::move(drives);
    program.select(137);
    program.select(152);
    std::string texts;
    for (const MemoryListRow& row : program.window.page(IDD_CHECK_LIST)->find(IDC_CHECK_LIST)->rows) {
        texts += (row.checked ? " *" : " ") + std::string(row.cell(0));
    }
    return texts;
}

TEST(Quirks, DrivesAreAAndWhatCannotBeTakenOut) {
    const std::string key = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer]";
    MemoryProgram program(key + '\n' + std::string(kBareRegistry));
    ASSERT_TRUE(program.start());
    EXPECT_EQ(driveRows(program, {{"A:\\", 3}, {"B:\\", 3}, {"Z:\\", 4}, {"E:\\", 2}, {"D:\\", 5}, {"C:\\", 1}}),
              " A:\\ Z:\\ D:\\ C:\\ ALL");
    EXPECT_EQ(driveRows(program, {}), " A:\\ ALL");
    // A row means what was shown, even after a drive has gone.
    driveRows(program, {{"C:\\", 3}, {"D:\\", 3}, {"E:\\", 3}});
    program.system.folders.drives = {{"C:\\", 3}, {"E:\\", 3}, {"F:\\", 3}};
    ASSERT_TRUE(program.clickRow(IDC_CHECK_LIST, 3) && program.apply());
    EXPECT_NE(program.registryText().find("\"NoDriveAutoRun\"=dword:00000010"), std::string::npos);
}

}  // namespace
}  // namespace korvane
