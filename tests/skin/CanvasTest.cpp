// What the canvas and the element painter draw, pixel by pixel at chosen places.
#include "skin/ElementPainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace korvane {
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
    EXPECT_EQ(mix(kBlack, kWhite, 0), kBlack);
    EXPECT_EQ(mix(kBlack, kWhite, 256), kWhite);
    EXPECT_EQ(mix(kBlack, kWhite, 128), 0xFF808080);
    EXPECT_EQ(turnHue(kRed, 120), 0xFF00FF00);
    EXPECT_EQ(turnHue(kRed, 240), kBlue);
    EXPECT_EQ(turnHue(kRed, -120), kBlue);
    EXPECT_EQ(turnHue(kRed, 720), kRed);
    EXPECT_EQ(turnHue(kRed, 60), 0xFFFFFF00);
    EXPECT_EQ(turnHue(0xFF808080, 77), 0xFF808080);  // grey has no hue
    EXPECT_EQ(turnHue(0x12FF0000, 120), 0x1200FF00u);  // the alpha stays
}

TEST_F(CanvasTest, AreasAreCutOffAtTheEdges) {
    canvas.fill({-5, -5, 3, 2}, kRed);
    canvas.fill({38, 28, 100, 100}, kBlue);
    canvas.fill({10, 10, 5, 20}, kBlack);  // turned inside out
    canvas.box({-100, -100, -10, -10}, {.filled = true, .top = kBlack, .bottom = kBlack});
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
        EXPECT_GT(at(7, y), at(7, y - 1) == kWhite ? 0u : at(7, y - 1));
    }
}

TEST_F(CanvasTest, ABoxHasItsBorderInsideAndSoftCorners) {
    canvas.box({5, 5, 35, 25}, {.filled = true, .top = kRed, .bottom = kRed, .borderWidth = 2, .border = kBlue,
                                .radius = 8});
    EXPECT_EQ(at(4, 15), kWhite);
    EXPECT_EQ(at(5, 15), kBlue);
    EXPECT_EQ(at(6, 15), kBlue);
    EXPECT_EQ(at(7, 15), kRed);
    EXPECT_EQ(at(20, 24), kBlue);
    EXPECT_EQ(at(20, 25), kWhite);
    EXPECT_EQ(at(5, 5), kWhite);  // outside the round corner
    // Somewhere on the corner the border is half there.
    bool soft = false;
    for (int x = 5; x < 13; ++x) {
        soft = soft || (at(x, 5) != kWhite && at(x, 5) != kBlue);
        EXPECT_EQ(at(x, 5), at(39 - x, 5)) << "not symmetric at " << x;
        EXPECT_EQ(at(x, 5), at(x, 24)) << "not symmetric at " << x;
    }
    EXPECT_TRUE(soft);
}

TEST_F(CanvasTest, AnEmptyBoxLeavesItsInsideAlone) {
    canvas.box({5, 5, 35, 25}, {.borderWidth = 1, .border = kBlue});
    EXPECT_EQ(count(kBlue), 2 * 30 + 2 * 18);
    EXPECT_EQ(at(20, 15), kWhite);
}

TEST_F(CanvasTest, AStrokeIsAsThickAsAsked) {
    const CanvasPoint line[] = {{5, 15}, {35, 15}};
    canvas.stroke(line, 4, kBlack);
    EXPECT_EQ(at(20, 12), kWhite);
    for (int y = 13; y < 17; ++y) {
        EXPECT_EQ(at(20, y), kBlack) << y;
    }
    EXPECT_EQ(at(20, 17), kWhite);
    EXPECT_EQ(at(1, 15), kWhite);
    const CanvasPoint far[] = {{-1000, -1000}, {5000, -900}};
    canvas.stroke(far, 3, kRed);
    canvas.stroke(std::span(line, 1), 3, kRed);  // a point is no line
    EXPECT_EQ(count(kRed), 0);
}

TEST_F(CanvasTest, APictureKeepsItsMarginsAndStretchesBetweenThem) {
    // Three columns and three rows: black corners, blue edges, a red middle; below it a second state, all white.
    Picture picture{3, 6, {kBlack, kBlue, kBlack, kBlue, kRed, kBlue, kBlack, kBlue, kBlack}};
    picture.pixels.resize(18, kWhite);
    canvas.picture({0, 0, 20, 10}, picture, 0, 3, {1, 1, 1, 1}, 96, 0);
    EXPECT_EQ(at(0, 0), kBlack);
    EXPECT_EQ(at(1, 0), kBlue);
    EXPECT_EQ(at(18, 0), kBlue);
    EXPECT_EQ(at(19, 0), kBlack);
    EXPECT_EQ(at(19, 9), kBlack);
    EXPECT_EQ(at(1, 1), kRed);
    EXPECT_EQ(at(18, 8), kRed);
    canvas.picture({0, 0, 20, 10}, picture, 0, 3, {1, 1, 1, 1}, 192, 120);
    EXPECT_EQ(at(1, 1), kBlack);
    EXPECT_EQ(at(2, 2), 0xFF00FF00) << "the margins grow with the resolution, and colours turn";
    canvas.picture({0, 0, 20, 10}, picture, 3, 3, {1, 1, 1, 1}, 96, 0);
    EXPECT_EQ(count(kWhite), kWidth * kHeight);
    // Transparent pixels show what is behind.
    canvas.picture({0, 0, 20, 10}, {1, 1, {0x00FF0000}}, 0, 1, {}, 96, 0);
    EXPECT_EQ(count(kWhite), kWidth * kHeight);
    // Smaller than its margins, and smaller than nothing.
    canvas.picture({0, 0, 1, 1}, picture, 0, 3, {1, 1, 1, 1}, 96, 0);
    canvas.picture({5, 5, 7, 7}, picture, 0, 3, {1, 1, 1, 1}, 960, 0);
    EXPECT_EQ(at(5, 5), kBlack);
    canvas.picture({9, 9, 12, 12}, picture, 0, 3, {1, 1, 1, 1}, 96, 0);
    EXPECT_EQ(at(10, 10), kRed);
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

TEST_F(CanvasTest, TheProgramsColoursHoldOnlyWhenTheyApply) {
    SkinFile skin;
    SkinProblem problem;
    const auto nothing = [](const std::string&) { return std::nullopt; };
    ASSERT_TRUE(skin.load("a.skn", "[Skin]\nFormat=1\n[Colors]\nPanel=#123456\n", nothing, problem));
    SkinProperties properties;
    properties.panel = kRed;
    properties.hue = 120;
    const SkinColour panel{ColourSource::Panel, 0};
    EXPECT_EQ(makePalette(skin, properties, 96).of(panel), 0xFF00FF00);
    EXPECT_EQ(makePalette(skin, properties, 96).of({ColourSource::Own, 0x000000FF}), kRed);
    properties.applyColours = false;
    properties.hue = 0;
    EXPECT_EQ(makePalette(skin, properties, 96).of(panel), 0xFF123456);
}

TEST_F(CanvasTest, LengthsGrowWithTheResolutionAndNeverVanish) {
    EXPECT_EQ(scaled(13, 96), 13);
    EXPECT_EQ(scaled(13, 192), 26);
    EXPECT_EQ(scaled(1, 120), 1);
    EXPECT_EQ(scaled(1, 40), 1);
    EXPECT_EQ(scaled(0, 192), 0);
}

TEST_F(CanvasTest, ACheckMarkStandsInItsSquareAtEverySize) {
    const SkinPalette palette;
    ElementPainter painter(canvas, palette);
    for (const int side : {7, 13, 16, 20, 26}) {
        std::ranges::fill(pixels, kWhite);
        painter.checkSquare({1, 1, 1 + side, 1 + side}, lookWith(kRed, kBlue), ControlState::Normal, false);
        EXPECT_EQ(at(1 + side / 2, 1 + side / 2), kRed);
        const std::vector<Pixel> empty = pixels;
        painter.checkSquare({1, 1, 1 + side, 1 + side}, lookWith(kRed, kBlue), ControlState::Normal, true);
        int changed = 0;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const bool inside = x > 1 && x < side && y > 1 && y < side;
                const bool differs = at(x, y) != empty[static_cast<std::size_t>(y * kWidth + x)];
                EXPECT_TRUE(inside || !differs) << "outside the border at " << x << ',' << y << " of " << side;
                changed += differs;
            }
        }
        EXPECT_GT(changed, side) << "no mark to be seen";
    }
}

TEST_F(CanvasTest, EachButtonOfTheFrameHasItsSign) {
    const SkinPalette palette;
    ElementPainter painter(canvas, palette);
    std::vector<std::vector<Pixel>> signs;
    for (const char* name : {"Help", "Minimize", "Close"}) {
        std::ranges::fill(pixels, kWhite);
        painter.frameButton({2, 2, 22, 22}, lookWith(kRed, kBlue), ControlState::Hot, name);
        EXPECT_EQ(at(2, 12), kBlue);
        EXPECT_EQ(std::ranges::count(signs, pixels), 0);
        signs.push_back(pixels);
    }
}

TEST_F(CanvasTest, APictureOfFewStatesShowsTheNormalOneForTheRest) {
    ElementLook look;
    look.picture = std::make_shared<Picture>(Picture{1, 2, {kRed, kBlue}});
    look.pictureStates = 2;
    const SkinPalette palette;
    ElementPainter painter(canvas, palette);
    painter.background({0, 0, 5, 5}, look, ControlState::Hot);
    EXPECT_EQ(at(2, 2), kBlue);
    painter.background({0, 0, 5, 5}, look, ControlState::Disabled);
    EXPECT_EQ(at(2, 2), kRed);
}

TEST_F(CanvasTest, HighContrastHasOnlyTheSystemsColours) {
    SystemColours system;
    system.window = 0xFF010203;
    system.windowText = 0xFF040506;
    system.grayText = 0xFF070809;
    system.highlight = 0xFF0A0B0C;
    system.highlightText = 0xFF0D0E0F;
    system.buttonFace = 0xFF101112;
    ElementLook skin = lookWith(kRed, kBlue);
    skin.picture = std::make_shared<Picture>(Picture{1, 1, {kRed}});
    skin.radius = 9;
    skin.captionHeight = 28;
    for (const char* element : {"Main", "SubMain", "CheckBox", "Label", "Button", "Splitter", "FrameButton"}) {
        const ElementLook look = highContrastLook(element, skin, system);
        EXPECT_EQ(look.picture, nullptr);
        EXPECT_EQ(look.radius, 0);
        EXPECT_EQ(look.captionHeight, 28) << "sizes are the skin's";
        for (const StateLook& state : look.states) {
            EXPECT_NE(state.fill->top.own, kRed) << element;
            if (element != std::string_view("Splitter")) {  // has neither
                EXPECT_NE(state.text.own, state.fill->top.own) << element;
                EXPECT_NE(state.mark.own, state.fill->top.own) << element;
            }
        }
    }
    EXPECT_EQ(highContrastLook("checkbox", skin, system).of(ControlState::Disabled).text.own, system.grayText);
    EXPECT_EQ(highContrastLook("Button", skin, system).of(ControlState::Hot).fill->top.own, system.highlight);
}

}  // namespace
}  // namespace korvane
