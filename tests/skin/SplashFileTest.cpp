// Splash files are read whole or not at all.
#include "skin/SplashFile.h"

#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

namespace korvane::skin {
namespace {

TEST(SplashFile, ThePictureIsReadOrTheMistakeNamed) {
    const std::string head = "[Splash]\nFormat=1\n";
    for (const auto& [text, expected] :
         {std::pair<std::string, const char*>{"; ours\r\n[SPLASH]\r\npicture = p.bmp\r\nFormat=1\r\n", ""},
          {"", "Splash.spl: is empty"},
          {"[Skin]\nFormat=1\n", "Splash.spl: is no splash: there is no Format=1 in a section [Splash]"},
          {"[Splash]\nFormat=\n", "Splash.spl, line 2: Format: \"\" is not known, only 1 is"},
          {head, "Splash.spl: there is no Picture in [Splash]"},
          {head + "Picture=q.bmp", "Splash.spl, line 3: \"q.bmp\" cannot be read, or is longer than 16 MB"},
          {head + "Picture=..\\p.bmp", "Splash.spl, line 3: \"..\\p.bmp\" is no name of a file beside this one"},
          {head + "Picture=p.bmp\nPicture=p.bmp", "Splash.spl, line 4: \"Picture\" stands in [Splash] twice"},
          {head + "Pictures=p.bmp", "Splash.spl, line 3: \"Pictures\" is no key of [Splash]"},
          {"x=1\n" + head, "Splash.spl, line 1: \"x\" is neither a section nor a key of one"}}) {
        SkinProblem problem{"before", 3, "left over"};
        Picture picture;
        const auto read = [](const std::string& name) {
            return name == "p.bmp" ? std::optional(greyBitmap(4, 2)) : std::nullopt;
        };
        const bool isRead = readSplash("Splash.spl", text, read, picture, problem);
        EXPECT_EQ(isRead ? "" : describe(problem), expected);
        EXPECT_EQ(picture.pixels, std::vector<Pixel>(isRead ? 8 : 0, 0xFF808080));
    }
}

}  // namespace
}  // namespace korvane::skin
