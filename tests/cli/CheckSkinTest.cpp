// kmctl check-skin over files on the disk.
#include "tests/cli/KmctlTest.h"
#include "tests/skin/BitmapBytes.h"

namespace korvane {
namespace {

TEST(CheckSkin, SaysWhatAFileIsAndNamesEveryMistake) {
    const TestFolder folder;
    const std::string skin =
        "[Skin]\nFormat=1\n[Main]\n[SubMain]\n[CheckBox]\nPicture=a.bmp\n[Label]\n[Button]\nPicture=a.bmp\n"
        "[Splitter]\nPicture=a.bmp\n[FrameButton]\n";
    writeFile(folder.file("a.bmp"), skin::greyBitmap(2, 2));
    writeFile(folder.file("good.skn"), skin);
    writeFile(folder.file("bad.skn"), withChange(withChange(skin, "Picture=a", "Picture=c"), "[Main]", "X=y\n[Main]"));
    writeFile(folder.file("good.SPL"), "[Splash]\nFormat=1\nPicture=a.bmp\n");
    writeFile(folder.file("bad.spl"), skin);
    const auto expectCheck = [&](const char* name, int status, const char* out, const char* err, bool json = false) {
        const KmctlResult result = runKmctl({json ? "--json" : "--", "check-skin", folder.file(name)});
        EXPECT_EQ(result.status, status) << name;
        EXPECT_EQ(result.out, out);
        EXPECT_EQ(result.err, err);
    };
    expectCheck("good.skn", 0, "good.skn: a skin of 7 elements, 1 picture\n", "");
    expectCheck("good.SPL", 0, "good.SPL: a splash of 2 x 2 pixels\n", "");
    expectCheck("good.skn", 0, "{\"problems\":[]}\n", "", true);
    expectCheck("bad.skn", 1,
                "{\"problems\":[{\"file\":\"bad.skn\",\"line\":3,\"reason\":\"\\\"X\\\" is no key of this section\"},"
                "{\"file\":\"bad.skn\",\"line\":7,"
                "\"reason\":\"Picture: \\\"c.bmp\\\" cannot be read, or is longer than 16 MB\"}]}\n",
                "", true);
    expectCheck("bad.spl", 1, "", "bad.spl: is no splash: there is no Format=1 in a section [Splash]\n");
    EXPECT_EQ(runKmctl({"check-skin", folder.file("none.skn")}).status, 2);
    EXPECT_EQ(runKmctl({"check-skin", folder.path()}).status, 2) << "a folder";
}

}  // namespace
}  // namespace korvane
