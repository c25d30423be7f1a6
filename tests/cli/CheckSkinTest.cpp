// kmctl check-skin over files on the disk.
#include "tests/cli/KmctlTest.h"
#include "tests/skin/BitmapBytes.h"

namespace korvane {
namespace {

constexpr std::string_view kSkin =
    "[Skin]\nFormat=1\n[Main]\n[SubMain]\n[CheckBox]\nPicture=a.bmp\n[Label]\n[Button]\nPicture=b.bmp\n"
    "[Splitter]\nPicture=a.bmp\n[FrameButton]\n";

class CheckSkinTest : public ::testing::Test {
protected:
    CheckSkinTest() {
        writeFile(folder_.file("a.bmp"), greyBitmap(2, 2));
        writeFile(folder_.file("b.bmp"), greyBitmap(2, 2));
        writeFile(folder_.file("good.skn"), kSkin);
        writeFile(folder_.file("bad.skn"), withChange(withChange(kSkin, "b.bmp", "c.bmp"), "[Main]", "Site=x\n[Main]"));
        writeFile(folder_.file("good.SPL"), "[Splash]\nFormat=1\nPicture=a.bmp\n");
        writeFile(folder_.file("bad.spl"), kSkin);
    }

    KmctlResult check(const std::string& name, std::vector<std::string> arguments = {}) const {
        arguments.insert(arguments.begin(), {"check-skin", folder_.file(name)});
        return runKmctl(arguments);
    }

    TestFolder folder_;
};

TEST_F(CheckSkinTest, SaysWhatAFileIs) {
    const KmctlResult skin = check("good.skn");
    EXPECT_EQ(skin.status, 0);
    EXPECT_EQ(skin.out, "good.skn: a skin of 7 elements, 2 pictures\n");
    EXPECT_EQ(skin.err, "");
    EXPECT_EQ(check("good.SPL").out, "good.SPL: a splash of 2 x 2 pixels\n");
    EXPECT_EQ(check("good.skn", {"--json"}).out, "{\"problems\":[]}\n");
}

TEST_F(CheckSkinTest, NamesEveryMistake) {
    const KmctlResult skin = check("bad.skn");
    EXPECT_EQ(skin.status, 1);
    EXPECT_EQ(skin.out, "");
    EXPECT_EQ(skin.err, "bad.skn, line 3: \"Site\" is no key of this section\n"
                        "bad.skn, line 10: Picture: \"c.bmp\" cannot be read, or is longer than 16 MB\n");
    const KmctlResult splash = check("bad.spl");
    EXPECT_EQ(splash.status, 1);
    EXPECT_EQ(splash.err, "bad.spl: is no splash: there is no Format=1 in a section [Splash]\n");

    const KmctlResult json = check("bad.skn", {"--json"});
    EXPECT_EQ(json.status, 1);
    EXPECT_EQ(json.err, "");
    const JsonValue problems = JsonReader::read(json.out)["problems"];
    ASSERT_EQ(problems.items.size(), 2U);
    EXPECT_EQ(problems[0].names(), "file line reason");
    EXPECT_EQ(problems[0]["file"].text, "bad.skn");
    EXPECT_EQ(problems[1]["line"].number, 10);
    EXPECT_EQ(problems[1]["reason"].text, "Picture: \"c.bmp\" cannot be read, or is longer than 16 MB");
}

TEST_F(CheckSkinTest, AFileThatCannotBeReadIsNoMistakeOfASkin) {
    const KmctlResult missing = check("none.skn");
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.out, "");
    EXPECT_TRUE(missing.err.starts_with("kmctl: " + folder_.file("none.skn") + ": cannot be opened: ")) << missing.err;
    EXPECT_EQ(check("").status, 2) << "a folder";
}

}  // namespace
}  // namespace korvane
