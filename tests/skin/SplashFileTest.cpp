// Splash files are read whole or not at all.
#include "skin/SplashFile.h"

#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

std::string readSplashText(const std::string& text, Picture& picture) {
    SkinProblem problem{"before", 3, "left over"};
    const auto read = [](const std::string& name) {
        return name == "p.bmp" ? std::optional(greyBitmap(4, 2)) : std::nullopt;
    };
    return readSplash("Splash.spl", text, read, picture, problem) ? "" : describe(problem);
}

TEST(SplashFile, ThePictureIsRead) {
    Picture picture;
    EXPECT_EQ(readSplashText("; ours\r\n[SPLASH]\r\npicture = p.bmp\r\nFormat=1\r\n", picture), "");
    EXPECT_EQ(picture.width, 4);
    EXPECT_EQ(picture.pixels.at(7), 0xFF808080);
}

TEST(SplashFile, MistakesAreNamed) {
    const auto problem = [](const std::string& text) {
        Picture picture;
        std::string found = readSplashText(text, picture);
        EXPECT_EQ(picture.width, 0);
        return found;
    };
    const std::string head = "[Splash]\nFormat=1\n";
    EXPECT_EQ(problem(""), "Splash.spl: is empty");
    EXPECT_EQ(problem("[Skin]\nFormat=1\n"), "Splash.spl: is no splash: there is no Format=1 in a section [Splash]");
    EXPECT_EQ(problem("[Splash]\nFormat=\n"), "Splash.spl, line 2: Format: \"\" is not known, only 1 is");
    EXPECT_EQ(problem(head), "Splash.spl: there is no Picture in [Splash]");
    EXPECT_EQ(problem(head + "Picture="), "Splash.spl, line 3: \"Picture\" has no value");
    EXPECT_EQ(problem(head + "Picture=q.bmp"),
              "Splash.spl, line 3: \"q.bmp\" cannot be read, or is longer than 16 MB");
    EXPECT_EQ(problem(head + "Picture=..\\p.bmp"),
              "Splash.spl, line 3: \"..\\p.bmp\" is no name of a file beside this one");
    EXPECT_EQ(problem(head + "Picture=p.bmp\nPicture=p.bmp"),
              "Splash.spl, line 4: \"Picture\" stands in [Splash] twice");
    EXPECT_EQ(problem(head + "Pictures=p.bmp"), "Splash.spl, line 3: \"Pictures\" is no key of [Splash]");
    EXPECT_EQ(problem(head + "Picture=p.bmp\n[Other]"),
              "Splash.spl, line 4: a splash file has one section, [Splash], not \"Other\"");
    EXPECT_EQ(problem("x=1\n" + head), "Splash.spl, line 1: \"x\" is neither a section nor a key of one");
}

}  // namespace
}  // namespace korvane
