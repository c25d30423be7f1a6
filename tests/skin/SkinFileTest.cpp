// Skin files: what their keys mean, and that every mistake is named with its line and costs no more than its element.
#include "skin/SkinFile.h"

#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace korvane::skin {
namespace {

constexpr const char* kHead = "[Skin]\nFormat=1\n";
constexpr const char* kOthers = "[SubMain]\n[CheckBox]\n[Label]\n[Splitter]\n[FrameButton]\n[Main]\n";

class SkinFileTest : public ::testing::Test {
protected:
    bool load(const std::string& text) {
        read_.clear();
        const auto read = [this](const std::string& name) {
            read_.push_back(name);
            const auto found = files_.find(name);
            return found != files_.end() ? std::optional(found->second) : std::nullopt;
        };
        return skin_.load("skin.skn", text, read, problem_);
    }

    // A whole skin whose button has these lines; the first is line 4.
    void loadButton(const std::string& lines) {
        ASSERT_TRUE(load(std::string(kHead) + "[Button]\n" + lines + '\n' + kOthers)) << problem_.reason;
    }

    // What is wrong with the button of such a skin; every other element must be well.
    std::string buttonProblem(const std::string& lines) {
        loadButton(lines);
        for (const char* other : {"Main", "SubMain", "CheckBox", "Label", "Splitter", "FrameButton"}) {
            EXPECT_NE(skin_.element(other, problem_), nullptr) << describe(problem_);
        }
        return skin_.element("Button", problem_) != nullptr ? "nothing" : describe(problem_);
    }

    std::string loadProblem(const std::string& text) { return load(text) ? "nothing" : describe(problem_); }

    std::vector<std::string> problems() const {
        std::vector<std::string> texts;
        for (const SkinProblem& problem : skin_.problems()) {
            texts.push_back(describe(problem));
        }
        return texts;
    }

    std::map<std::string, std::string> files_{{"grey.bmp", greyBitmap(10, 24)}, {"b.bmp", greyBitmap(3, 3)}};
    std::vector<std::string> read_;
    SkinFile skin_;
    SkinProblem problem_;
};

SkinColour own(Pixel pixel) { return {ColourSource::Own, pixel}; }

TEST_F(SkinFileTest, EveryKeyIsReadAndAStateHasTheNormalLookButForWhatItSays) {
    loadButton("Fill.Hot=#FFFFFF\r\nFill = #102030 , Panel\r\nborder=#ABCdef\r; a comment\n\n  TEXT=PanelText\n"
               "Border.Disabled=none\nText.Disabled=Fore\nMark.Focused=Back\nFill.Pressed=none\n"
               "Font=Trebuchet MS, 10, bold\nMargins=1,2,3,4\nRadius=5\nPicture=grey.bmp\nPictureStates=3");
    EXPECT_EQ(problems(), std::vector<std::string>());
    const ElementLook* found = skin_.element("BUTTON", problem_);
    ASSERT_NE(found, nullptr) << describe(problem_);
    const ElementLook& button = *found;
    const auto state = [&](ControlState of) { return button.of(of); };
    EXPECT_EQ(state(ControlState::Normal).fill, (SkinFill{own(0xFF102030), {.source = ColourSource::Panel}}));
    EXPECT_EQ(state(ControlState::Hot).fill, (SkinFill{own(0xFFFFFFFF), own(0xFFFFFFFF)}));
    EXPECT_EQ(state(ControlState::Hot).border, own(0xFFABCDEF));
    EXPECT_EQ(state(ControlState::Pressed).fill, std::nullopt);
    EXPECT_EQ(state(ControlState::Disabled).border, std::nullopt);
    EXPECT_EQ(state(ControlState::Disabled).mark.source, ColourSource::Fore) << "otherwise the colour of the text";
    EXPECT_EQ(state(ControlState::Focused).mark.source, ColourSource::Back);
    EXPECT_EQ(state(ControlState::Inactive).text.source, ColourSource::PanelText);
    EXPECT_EQ(button.font.face, "Trebuchet MS");
    EXPECT_TRUE(button.font.points == 10 && button.font.bold);
    EXPECT_EQ(button.margins.left * 10 + button.margins.bottom, 14);
    EXPECT_EQ(button.radius, 5);
    ASSERT_NE(button.picture, nullptr);
    EXPECT_EQ(button.picture->height, 24);
}

TEST_F(SkinFileTest, MistakesInAnElementAreItsOwnAndNamed) {
    struct Case {
        const char* reason;
        std::vector<std::string> lines;
    };
    for (const auto& [reason, lines] : {
             Case{" is no colour: #RRGGBB, Back, Fore, Panel or PanelText",
                  {"Fill.Hot=123456", "Fill=#1234567", "Fill=#12345G", "Fill=#+12345", "Fill=,", "Fill=#123456,",
                   "Border=red", "Text=none", "Mark=#0x1234", "Fill=none, none"}},
             Case{" is more than two colours", {"Fill=Back,Fore,Back"}},
             Case{" is no number", {"Radius=201", "Radius=-1", "Radius=1.5", "Radius=99999999999999999999",
                                    "Margins=1,2,3,-4", "Margins=1,,3,4", "Font=Tahoma, 3", "Font=Tahoma, 73"}},
             Case{" is not four numbers", {"Margins=1,2,3", "Margins=1,2,3,4,5"}},
             Case{" is no font", {"Font=Tahoma", "Font=, 8", "Font=Tahoma, 8, italic", "Font=Tahoma, 8, bold, bold"}},
             Case{" is longer than the name", {"Font=" + std::string(32, 'x') + ",8"}},
             Case{" is no key of this section", {"Fil=Back", "Fill.Hott=Back", "Fill.=Back", "Fill.Hot.Hot=Back",
                                                 "Radius.Hot=1", "=Back", "Format=1", "CaptionHeight=20"}},
             Case{"Fill: \";?[31m?\" is no colour", {"Fill=;\x1b[31m\xff"}},
             Case{"Picture: the value is missing", {"Picture="}},
             Case{"\"Fill\" is neither a section nor a key with a value", {"Fill"}},
             Case{"PictureStates needs a Picture", {"PictureStates=2"}},
         }) {
        for (const std::string& line : lines) {
            const std::string problem = buttonProblem(line);
            EXPECT_TRUE(problem.starts_with("skin.skn, line 4: ")) << problem;
            EXPECT_NE(problem.find(reason), std::string::npos) << problem;
            EXPECT_EQ(problems(), std::vector<std::string>{problem});
        }
    }
}

TEST_F(SkinFileTest, LinesAreCountedWhateverTheirEnds) {
    for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string lines = std::string("; one") + end + end + "Radius=1" + end + "Radius=x";
        EXPECT_EQ(buttonProblem(lines), "skin.skn, line 7: \"Radius\" stands in line 6 already");
    }
}

TEST_F(SkinFileTest, Pictures) {
    const auto problem = [this](const std::string& name) { return buttonProblem("Picture=" + name); };
    EXPECT_EQ(problem("none.bmp"), "skin.skn, line 4: Picture: \"none.bmp\" cannot be read, or is longer than 16 MB");
    files_["run.bmp"] = BitmapBytes{.width = 1, .height = 1, .bits = 8, .compression = 1}.str();
    EXPECT_EQ(problem("run.bmp"),
              "skin.skn, line 4: Picture: \"run.bmp\" is a compressed bitmap: save it without compression");
    EXPECT_EQ(problem("grey.bmp\nPictureStates=5"),
              "skin.skn, line 4: Picture: its height of 24 pixels is not a multiple of its 5 states");
    EXPECT_EQ(problem("grey.bmp\nPictureStates=6\nMargins=5,2,5,3"),
              "skin.skn, line 6: Margins: they are wider or higher than the picture of a state, 10 x 4 pixels");
    EXPECT_EQ(problem("grey.bmp\nPictureStates=6\nMargins=5,2,5,2"), "nothing");

    for (const char* name : {"../x.bmp", "..", "a\\x.bmp", "/x.bmp", "c:x.bmp", "x.bmp:y", "*.bmp", "con", "Nul.bmp",
                             "com1.bmp", "LPT9", "aux .bmp"}) {
        EXPECT_NE(problem(name).find("is no name of a file beside this one"), std::string::npos) << name;
        EXPECT_TRUE(read_.empty()) << name;
    }
}

TEST_F(SkinFileTest, ElementsThatAreMissingOrTwice) {
    ASSERT_TRUE(load(std::string(kHead) +
                     "[button]\n[Label]\nText=x\n[BUTTON]\n[Labels]\nanything\n[Main\nFill=x\n"));
    EXPECT_EQ(problems(),
              (std::vector<std::string>{
                  "skin.skn, line 5: Text: \"x\" is no colour: #RRGGBB, Back, Fore, Panel or PanelText",
                  "skin.skn, line 6: there is a section \"BUTTON\" above already",
                  "skin.skn, line 7: there is no section \"Labels\" in a skin",
                  "skin.skn, line 9: \"[Main\" does not end with a bracket",
                  "skin.skn: there is no section [Main]", "skin.skn: there is no section [SubMain]",
                  "skin.skn: there is no section [CheckBox]", "skin.skn: there is no section [Splitter]",
                  "skin.skn: there is no section [FrameButton]"}));
}

TEST_F(SkinFileTest, WhatIsNoSkinIsRefusedWithAReason) {
    EXPECT_EQ(loadProblem(""), "skin.skn: is empty");
    EXPECT_EQ(loadProblem(std::string(kHead) + '\0'), "skin.skn: is no text");
    EXPECT_EQ(loadProblem(std::string("\xff\xfe[\0S\0", 6)), "skin.skn: is saved as UTF-16: save it as ANSI or UTF-8");
    const std::string noFormat = "skin.skn: is no skin: there is no Format=1 in a section [Skin]";
    EXPECT_EQ(loadProblem("Format=1\n[Skin]\n[Main]\nFormat=1\n[Skin]\nFormat=1"), noFormat);
    EXPECT_EQ(loadProblem("\n[skin]\nformat=2"), "skin.skn, line 3: Format: \"2\" is not known, only 1 is");
}

TEST_F(SkinFileTest, RubbishOfAnyLengthIsDoneWithAtOnce) {
    const std::string head = std::string(kHead) + "[Button]\n";
    for (const char* piece : {"x=1\n", "Fill=Back\n", "[Button]\n", "[x]\n", "x", ",", "=", "[", " ", "\n", "\r", ";\n",
                              "Margins=,,,,\n"}) {
        std::string rubbish = piece;
        while (rubbish.size() < kLongestSkinFile / 4) {
            rubbish += rubbish;
        }
        const auto start = std::chrono::steady_clock::now();
        load(head + (piece[0] == ',' ? "Fill=" : "") + rubbish);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        // With the sanitizers a pass over the text takes a tenth of a second; anything quadratic takes hours.
        EXPECT_LT(taken.count(), 10) << piece;
        EXPECT_LE(skin_.problems().size(), 108U) << piece;
    }
}

}  // namespace
}  // namespace korvane::skin
