// What the canvas and the element painter draw, pixel by pixel at chosen places.
#include "skin/ElementPainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace korvane::skin {
namespace {

constexpr Pixel kWhite = 0xFFFFFFFF;
constexpr Pixel kBlack = 0xFF000000;
constexpr Pixel kRed = 0xFFFF0000;
constexpr Pixel kBlue = 0xFF0000FF;

class CanvasTest : public ::testing::Test {
protected:
    static constexpr int kWidth = 40;
    static constexpr int kHeight = 30;

    Pixel at(int x, int y) const { return pixels[static_cast<std::size_t>(y * kWidth + x)]; }
    auto count(Pixel colour) const { return std::ranges::count(pixels, colour); }

    std::vector<Pixel> pixels = std::vector<Pixel>(kWidth * kHeight, kWhite);
    Canvas canvas{pixels.data(), kWidth, kHeight};
};

TEST_F(CanvasTest, ColoursMixAndTurn) {
    EXPECT_EQ(mix(kBlack, kWhite, 128), 0xFF808080);
    EXPECT_EQ(turnHue(kRed, -120), kBlue);
    EXPECT_EQ(turnHue(0xFF808080, 77), 0xFF808080);  // grey has no hue
    EXPECT_EQ(turnHue(0x12FF0000, 120), 0x1200FF00u);  // the alpha stays
}

TEST_F(CanvasTest, AreasAreCutOffAtTheEdges) {
    const Rect whole{0, 0, kWidth, kHeight};
    canvas.gradient({-5, -5, 3, 2}, whole, kRed, kRed);
    canvas.gradient({38, 28, 100, 100}, whole, kBlue, kBlue);
    canvas.gradient({10, 10, 5, 20}, whole, kBlack, kBlack);  // turned inside out
    EXPECT_EQ(count(kRed), 6);
    EXPECT_EQ(count(kBlue), 4);
    EXPECT_EQ(count(kBlack), 0);
}

TEST_F(CanvasTest, AGradientGoesThroughTheWholeOfWhichItIsAPart) {
    canvas.gradient({0, 10, kWidth, 20}, {0, 0, kWidth, kHeight}, kBlack, kWhite);
    std::vector<Pixel> whole(kWidth * kHeight);
    Canvas(whole.data(), kWidth, kHeight).gradient({0, 0, kWidth, kHeight}, {0, 0, kWidth, kHeight}, kBlack, kWhite);
    EXPECT_EQ(whole.front(), kBlack);
    EXPECT_EQ(whole.back(), kWhite);
    for (int y = 10; y < 20; ++y) {
        EXPECT_EQ(at(7, y), whole[static_cast<std::size_t>(y * kWidth)]) << y;
    }
}

TEST_F(CanvasTest, ABoxHasItsBorderInsideAndSoftCorners) {
    canvas.box({5, 5, 35, 25}, {.filled = true, .top = kRed, .bottom = kRed, .borderWidth = 2, .border = kBlue,
                                .radius = 8});
    EXPECT_EQ(at(4, 15), kWhite);
    EXPECT_EQ(at(5, 15), kBlue);
    EXPECT_EQ(at(7, 15), kRed);
    EXPECT_EQ(at(20, 24), kBlue);
    EXPECT_EQ(at(5, 5), kWhite);  // outside the round corner
    EXPECT_LT(count(kWhite) + count(kBlue) + count(kRed), kWidth * kHeight) << "no soft edge";
    for (int x = 5; x < 13; ++x) {
        EXPECT_EQ(at(x, 5), at(39 - x, 5)) << "not symmetric at " << x;
        EXPECT_EQ(at(x, 5), at(x, 24)) << "not symmetric at " << x;
    }
}

TEST_F(CanvasTest, AStrokeIsAsThickAsAsked) {
    const CanvasPoint line[] = {{5, 15}, {35, 15}};
    canvas.stroke(line, 4, kBlack);
    for (int y = 12; y <= 17; ++y) {
        EXPECT_EQ(at(20, y), y == 12 || y == 17 ? kWhite : kBlack) << y;
    }
    const CanvasPoint far[] = {{-1000, -1000}, {5000, -900}};
    canvas.stroke(far, 3, kRed);
    canvas.stroke(std::span(line, 1), 3, kRed);  // a point is no line
    EXPECT_EQ(count(kRed), 0);
}

TEST_F(CanvasTest, APictureKeepsItsMarginsAndStretchesBetweenThem) {
    // Three columns and three rows: black corners, blue edges, a red middle; below it a second state, all white.
    Picture picture{3, 6, {kBlack, kBlue, kBlack, kBlue, kRed, kBlue, kBlack, kBlue, kBlack}};
    picture.pixels.resize(18, kWhite);
    canvas.picture({0, 0, 20, 10}, {picture, 0, 3, {1, 1, 1, 1}});
    EXPECT_EQ(count(kBlack), 4);
    EXPECT_EQ(at(19, 9), kBlack);
    EXPECT_EQ(count(kBlue), 2 * 18 + 2 * 8);
    EXPECT_EQ(count(kRed), 18 * 8);
    canvas.picture({0, 0, 20, 10}, {picture, 0, 3, {1, 1, 1, 1}, 192, 120});
    EXPECT_EQ(at(1, 1), kBlack);
    EXPECT_EQ(at(2, 2), 0xFF00FF00) << "the margins grow with the resolution, and colours turn";
    canvas.picture({0, 0, 20, 10}, {picture, 3, 3, {1, 1, 1, 1}});
    canvas.picture({0, 0, 20, 10}, {Picture{1, 1, {0x00FF0000}}, 0, 1});
    EXPECT_EQ(count(kWhite), kWidth * kHeight) << "the second state, and transparent pixels on top";
    canvas.picture({0, 0, 1, 1}, {picture, 0, 3, {1, 1, 1, 1}});
    canvas.picture({5, 5, 7, 7}, {picture, 0, 3, {1, 1, 1, 1}, 960});
    EXPECT_EQ(at(5, 5), kBlack) << "smaller than its margins";
}

// ---- Elements

ElementLook lookWith(Pixel fill, Pixel border) {
    ElementLook look;
    for (StateLook& state : look.states) {
        state.fill = SkinFill{{ColourSource::Own, fill}, {ColourSource::Own, fill}};
        state.border = SkinColour{ColourSource::Own, border};
        state.mark = SkinColour{ColourSource::Own, kBlack};
    }
    return look;
}

TEST_F(CanvasTest, ACheckMarkStandsInItsSquareAtEverySize) {
    const SkinPalette palette;
    ElementPainter painter(canvas, palette);
    for (const int side : {7, 13, 26}) {
        std::ranges::fill(pixels, kWhite);
        painter.checkSquare({1, 1, 1 + side, 1 + side}, lookWith(kRed, kBlue), ControlState::Normal, false);
        const std::vector<Pixel> empty = pixels;
        painter.checkSquare({1, 1, 1 + side, 1 + side}, lookWith(kRed, kBlue), ControlState::Normal, true);
        EXPECT_NE(pixels, empty) << "no mark to be seen";
        for (int x = 0; x < kWidth; ++x) {
            EXPECT_EQ(at(x, 1), empty[static_cast<std::size_t>(kWidth + x)]) << "the mark leaves its square at " << x;
            EXPECT_TRUE(at(x, side) == kBlue || at(x, side) == kWhite) << "the mark leaves its square at " << x;
        }
    }
}

TEST_F(CanvasTest, HighContrastHasOnlyTheSystemsColours) {
    SystemColours system;
    system.grayText = 0xFF070809;
    ElementLook skin = lookWith(kRed, kBlue);
    skin.picture = std::make_shared<Picture>(Picture{1, 1, {kRed}});
    skin.captionHeight = 28;
    for (const char* element : {"Main", "SubMain", "CheckBox", "Label", "Button", "FrameButton"}) {
        for (const StateLook& state : highContrastLook(element, skin, system).states) {
            EXPECT_NE(state.fill->top.own, kRed) << element;
            EXPECT_NE(state.text.own, state.fill->top.own) << element;
            EXPECT_NE(state.mark.own, state.fill->top.own) << element;
        }
    }
    EXPECT_EQ(highContrastLook("Main", skin, system).captionHeight, 28) << "sizes are the skin's";
    EXPECT_EQ(highContrastLook("Main", skin, system).picture, nullptr);
    EXPECT_EQ(highContrastLook("checkbox", skin, system).of(ControlState::Disabled).text.own, system.grayText);
}

}  // namespace
}  // namespace korvane::skin
