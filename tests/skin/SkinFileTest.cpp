// Skin files: what their keys mean, and that every mistake is named with its line and costs no more than its element.
#include "skin/SkinFile.h"

#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace korvane {
namespace {

constexpr const char* kHead = "[Skin]\nFormat=1\n";
constexpr const char* kOthers = "[SubMain]\n[CheckBox]\n[Label]\n[Splitter]\n[FrameButton]\n[Main]\n";

class SkinFileTest : public ::testing::Test {
protected:
    bool load(const std::string& text) {
        read_.clear();
        return skin_.load("skin.skn", text, [this](const std::string& name) -> std::optional<std::string> {
            read_.push_back(name);
            const auto found = files_.find(name);
            return found != files_.end() ? std::optional(found->second) : std::nullopt;
        }, problem_);
    }

    // A whole skin whose button has these lines; the first is line 4.
    void loadButton(const std::string& lines) {
        ASSERT_TRUE(load(std::string(kHead) + "[Button]\n" + lines + '\n' + kOthers)) << problem_.reason;
    }

    const ElementLook& look(const char* element) {
        const ElementLook* found = skin_.element(element, problem_);
        if (found == nullptr) {
            ADD_FAILURE() << describe(problem_);
            static const ElementLook none;
            return none;
        }
        return *found;
    }

    // What is wrong with the button of such a skin; every other element must be well.
    std::string buttonProblem(const std::string& lines) {
        loadButton(lines);
        for (const char* other : {"Main", "SubMain", "CheckBox", "Label", "Splitter", "FrameButton"}) {
            look(other);
        }
        if (skin_.element("Button", problem_) != nullptr) {
            return "nothing";
        }
        return describe(problem_);
    }

    std::string loadProblem(const std::string& text) {
        if (load(text)) {
            return "nothing";
        }
        SkinProblem none;
        EXPECT_EQ(skin_.element("Button", none), nullptr);
        return describe(problem_);
    }

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

TEST_F(SkinFileTest, EveryKeyIsRead) {
    loadButton("Fill = #102030 , Panel\r\nborder=#ABCdef\r; a comment\n\n  TEXT=PanelText\nMark=Back\n"
               "Font=Trebuchet MS, 10, bold\nMargins=1,2,3,4\nRadius=5\nBorderWidth=0\nPicture=grey.bmp\n"
               "PictureStates=3");
    EXPECT_EQ(problems(), std::vector<std::string>());
    const ElementLook& button = look("BUTTON");
    const StateLook& normal = button.of(ControlState::Normal);
    EXPECT_EQ(normal.fill, (SkinFill{own(0xFF102030), {.source = ColourSource::Panel}}));
    EXPECT_EQ(normal.border, own(0xFFABCDEF));
    EXPECT_EQ(normal.text.source, ColourSource::PanelText);
    EXPECT_EQ(normal.mark.source, ColourSource::Back);
    EXPECT_EQ(button.font.face, "Trebuchet MS");
    EXPECT_EQ(button.font.points, 10);
    EXPECT_TRUE(button.font.bold);
    EXPECT_EQ(button.margins.left * 1000 + button.margins.top * 100 + button.margins.right * 10 + button.margins.bottom,
              1234);
    EXPECT_EQ(button.radius, 5);
    EXPECT_EQ(button.borderWidth, 0);
    EXPECT_EQ(button.pictureStates, 3);
    ASSERT_NE(button.picture, nullptr);
    EXPECT_EQ(button.picture->height, 24);
}

TEST_F(SkinFileTest, AStateHasTheNormalLookButForWhatItSays) {
    loadButton("Fill.Hot=#FFFFFF\nFill=#000000\nText=#000001\nBorder=#000002\nBorder.Disabled=none\n"
               "Text.Disabled=Fore\nMark.Focused=Back\nFill.Pressed=none");
    const ElementLook& button = look("Button");
    const SkinFill black{own(0xFF000000), own(0xFF000000)};
    EXPECT_EQ(button.of(ControlState::Normal).fill, black);
    EXPECT_EQ(button.of(ControlState::Hot).fill, (SkinFill{own(0xFFFFFFFF), own(0xFFFFFFFF)}));
    EXPECT_EQ(button.of(ControlState::Hot).border, own(0xFF000002));
    EXPECT_EQ(button.of(ControlState::Pressed).fill, std::nullopt);
    EXPECT_EQ(button.of(ControlState::Disabled).fill, black);
    EXPECT_EQ(button.of(ControlState::Disabled).border, std::nullopt);
    EXPECT_EQ(button.of(ControlState::Disabled).text.source, ColourSource::Fore);
    // A mark that is not said has the colour of the text.
    EXPECT_EQ(button.of(ControlState::Disabled).mark.source, ColourSource::Fore);
    EXPECT_EQ(button.of(ControlState::Focused).mark.source, ColourSource::Back);
    EXPECT_EQ(button.of(ControlState::Inactive).mark, own(0xFF000001));

    const ElementLook& label = look("Label");
    EXPECT_EQ(label.of(ControlState::Hot).fill, std::nullopt);
    EXPECT_EQ(label.of(ControlState::Hot).text.source, ColourSource::Fore);
    EXPECT_EQ(label.font.face, "");
    EXPECT_EQ(label.picture, nullptr);
}

TEST_F(SkinFileTest, TheFrame) {
    const std::string main = std::string(kHead) + "[Main]\n";
    ASSERT_TRUE(load(main));
    EXPECT_EQ(look("Main").buttons, (std::vector<std::string>{"Help", "Minimize", "Close"}));
    EXPECT_EQ(look("Main").captionHeight, 26);
    ASSERT_TRUE(load(main + "Buttons=close, HELP\nCaptionHeight=40"));
    EXPECT_EQ(look("Main").buttons, (std::vector<std::string>{"Close", "Help"}));
    EXPECT_EQ(look("Main").captionHeight, 40);
    ASSERT_TRUE(load(main + "Buttons=none"));
    EXPECT_TRUE(look("Main").buttons.empty());
    for (const auto& [line, reason] :
         {std::pair{"Buttons=Help, Maximize", "Buttons: \"Maximize\" is no button: Help, Minimize or Close"},
          std::pair{"Buttons=Help,help", "Buttons: the button Help is named twice"},
          std::pair{"CaptionHeight=5", "CaptionHeight: \"5\" is no number from 16 to 200"}}) {
        ASSERT_TRUE(load(main + line));
        EXPECT_EQ(skin_.element("Main", problem_), nullptr);
        EXPECT_EQ(describe(problem_), std::string("skin.skn, line 4: ") + reason);
    }
    EXPECT_EQ(buttonProblem("CaptionHeight=20"), "skin.skn, line 4: \"CaptionHeight\" is no key of this section");
}

TEST_F(SkinFileTest, MistakesInAnElementAreItsOwnAndNamed) {
    const auto inButton = [this](const std::string& line) {
        const std::string problem = buttonProblem(line);
        constexpr std::string_view kBefore = "skin.skn, line 4: ";
        EXPECT_TRUE(problem.starts_with(kBefore)) << problem;
        EXPECT_EQ(problems(), std::vector<std::string>{problem});
        return problem.substr(kBefore.size());
    };
    EXPECT_EQ(inButton("Fill=#12345"), "Fill: \"#12345\" is no colour: #RRGGBB, Back, Fore, Panel or PanelText");
    for (const char* wrong : {"Fill.Hot=123456", "Fill=#1234567", "Fill=#12345G", "Fill=#+12345", "Fill=#-12345",
                              "Fill=,", "Fill=#123456,", "Border=red", "Text=none", "Mark=#0x1234",
                              "Fill=none, none"}) {
        EXPECT_NE(inButton(wrong).find("is no colour"), std::string::npos) << wrong;
    }
    EXPECT_EQ(inButton("Fill=Back,Fore,Back"), "Fill: \"Back,Fore,Back\" is more than two colours");
    EXPECT_EQ(inButton("Radius=201"), "Radius: \"201\" is no number from 0 to 200");
    for (const char* wrong : {"Radius=-1", "Radius=1.5", "Radius=+1", "Radius=99999999999999999999", "Radius=5px",
                              "BorderWidth=a", "Margins=1,2,3,-4", "Margins=1,,3,4", "Font=Tahoma, 3",
                              "Font=Tahoma, 73", "Font=Tahoma, bold"}) {
        EXPECT_NE(inButton(wrong).find("is no number"), std::string::npos) << wrong;
    }
    for (const char* wrong : {"Margins=1,2,3", "Margins=1,2,3,4,5", "Margins=1 2 3 4"}) {
        EXPECT_NE(inButton(wrong).find("is not four numbers"), std::string::npos) << wrong;
    }
    for (const char* wrong : {"Font=Tahoma", "Font=, 8", "Font=Tahoma, 8, italic", "Font=Tahoma, 8, bold, bold"}) {
        EXPECT_NE(inButton(wrong).find("is no font"), std::string::npos) << wrong;
    }
    EXPECT_NE(inButton("Font=" + std::string(32, 'x') + ",8").find("longer than the name"), std::string::npos);
    for (const char* wrong : {"Fil=Back", "Fill.Hott=Back", "Fill.=Back", "Fill.Hot.Hot=Back",
                              "Fill.Normal=Back", "Radius.Hot=1", "=Back", "Format=1"}) {
        EXPECT_NE(inButton(wrong).find("is no key of this section"), std::string::npos) << wrong;
    }
    EXPECT_EQ(inButton("Fill=;\x1b[31m\xff"),
              "Fill: \";?[31m?\" is no colour: #RRGGBB, Back, Fore, Panel or PanelText");
    EXPECT_EQ(inButton("Picture="), "Picture: the value is missing");
    EXPECT_EQ(inButton("Fill"), "\"Fill\" is neither a section nor a key with a value");
    EXPECT_EQ(inButton("PictureStates=2"), "PictureStates needs a Picture");
}

TEST_F(SkinFileTest, LinesAreCountedWhateverTheirEnds) {
    for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string lines = std::string("; one") + end + end + "Radius=1" + end + "Radius=x";
        EXPECT_EQ(buttonProblem(lines), "skin.skn, line 7: \"Radius\" stands in line 6 already");
    }
    ASSERT_TRUE(load(std::string("\xef\xbb\xbf") + kHead + kOthers + "[Button]\nFill=1\nFill.Hot=2"));
    EXPECT_EQ(problems().size(), 2U) << "every mistake is kept";
    EXPECT_EQ(skin_.element("Button", problem_), nullptr);
    EXPECT_EQ(problem_.line, 10) << "the first is told";
}

TEST_F(SkinFileTest, Pictures) {
    const auto problem = [this](const std::string& name) { return buttonProblem("Picture=" + name); };
    EXPECT_EQ(problem("none.bmp"), "skin.skn, line 4: Picture: \"none.bmp\" cannot be read, or is longer than 16 MB");
    files_["run.bmp"] = BitmapBytes{.width = 1, .height = 1, .bits = 8, .compression = 1}.str();
    EXPECT_EQ(problem("run.bmp"),
              "skin.skn, line 4: Picture: \"run.bmp\" is a compressed bitmap: save it without compression");
    files_["long.bmp"] = std::string(kLongestSkinFile + 1, 'x');
    EXPECT_EQ(problem("long.bmp"), "skin.skn, line 4: Picture: \"long.bmp\" cannot be read, or is longer than 16 MB");
    for (const char* states : {"0", "7"}) {
        EXPECT_EQ(problem(std::string("grey.bmp\nPictureStates=") + states),
                  std::string("skin.skn, line 5: PictureStates: \"") + states + "\" is no number from 1 to 6");
    }
    EXPECT_EQ(problem("grey.bmp\nPictureStates=5"),
              "skin.skn, line 4: Picture: its height of 24 pixels is not a multiple of its 5 states");
    EXPECT_EQ(problem("grey.bmp\nMargins=5,0,6,0"),
              "skin.skn, line 5: Margins: they are wider or higher than the picture of a state, 10 x 24 pixels");
    EXPECT_EQ(problem("grey.bmp\nPictureStates=6\nMargins=5,2,5,3"),
              "skin.skn, line 6: Margins: they are wider or higher than the picture of a state, 10 x 4 pixels");
    EXPECT_EQ(problem("grey.bmp\nPictureStates=6\nMargins=5,2,5,2"), "nothing");

    for (const char* name : {"../x.bmp", "..", "a\\x.bmp", "/x.bmp", "c:x.bmp", "x.bmp:y", "*.bmp", "con", "Nul.bmp",
                             "com1.bmp", "LPT9", "aux .bmp"}) {
        EXPECT_NE(problem(name).find("is no name of a file beside this one"), std::string::npos) << name;
        EXPECT_TRUE(read_.empty()) << name;
    }
    EXPECT_NE(problem("com.bmp").find("cannot be read"), std::string::npos) << "this is no device";
}

TEST_F(SkinFileTest, APictureIsReadOnceForAllElements) {
    ASSERT_TRUE(load(std::string(kHead) + "[Button]\nPicture=b.bmp\n[FrameButton]\nPicture=b.bmp\n"
                                          "[Label]\nPicture=no\n"));
    EXPECT_EQ(look("Button").picture, look("FrameButton").picture);
    EXPECT_EQ(std::ranges::count(read_, "b.bmp"), 1);
    EXPECT_EQ(skin_.element("Label", problem_), nullptr);
}

TEST_F(SkinFileTest, ElementsThatAreMissingOrTwice) {
    ASSERT_TRUE(load(std::string(kHead) +
                     "[button]\n[Label]\nText=x\n[BUTTON]\n[Labels]\nanything\n[Main\nFill=x\n"));
    EXPECT_EQ(skin_.element("Splitter", problem_), nullptr);
    EXPECT_EQ(describe(problem_), "skin.skn: there is no section [Splitter]");
    EXPECT_EQ(skin_.element("Button", problem_), nullptr);
    EXPECT_EQ(skin_.element("Labels", problem_), nullptr);
    EXPECT_EQ(describe(problem_), "skin.skn: there is no element \"Labels\"");
    EXPECT_EQ(problems(),
              (std::vector<std::string>{
                  "skin.skn, line 5: Text: \"x\" is no colour: #RRGGBB, Back, Fore, Panel or PanelText",
                  "skin.skn, line 6: there is a section \"BUTTON\" above already",
                  "skin.skn, line 7: there is no section \"Labels\" in a skin",
                  "skin.skn, line 9: \"[Main\" does not end with a bracket",
                  "skin.skn: there is no section [Main]", "skin.skn: there is no section [SubMain]",
                  "skin.skn: there is no section [CheckBox]", "skin.skn: there is no section [Splitter]",
                  "skin.skn: there is no section [FrameButton]"}));
    ASSERT_TRUE(load(std::string(kHead) + kOthers + "[Button]"));
    EXPECT_EQ(problems(), std::vector<std::string>()) << "nothing is left of the skin before";
}

TEST_F(SkinFileTest, ColoursOfTheProgram) {
    ASSERT_TRUE(load(std::string(kHead) + "[Colors]\nPanel=#010203\nback=#FEFEFE\n"));
    EXPECT_EQ(skin_.colour(ColourSource::Panel), 0xFF010203);
    EXPECT_EQ(skin_.colour(ColourSource::Back), 0xFFFEFEFE);
    EXPECT_EQ(skin_.colour(ColourSource::Fore), 0xFF000000);
    EXPECT_EQ(loadProblem(std::string(kHead) + "[Colors]\nPanel=Back\n"),
              "skin.skn, line 4: Panel: \"Back\" is no colour of the form #RRGGBB");
    EXPECT_EQ(skin_.problems().size(), 8U) << "the rest is checked all the same";
    ASSERT_TRUE(load(std::string(kHead) + "Site=x\n[Colors]\nBlack=#000000\nPanel=#010203\nPanel=#FFFFFF"));
    EXPECT_EQ(skin_.colour(ColourSource::Panel), 0xFF010203) << "the first counts";
    EXPECT_EQ(skin_.problems()[0].line, 3);
    EXPECT_EQ(skin_.problems()[1].line, 5);
    EXPECT_EQ(skin_.problems()[2].line, 7);
}

TEST_F(SkinFileTest, WhatIsNoSkinIsRefusedWithAReason) {
    EXPECT_EQ(loadProblem(""), "skin.skn: is empty");
    EXPECT_EQ(loadProblem(std::string(kHead) + '\0'), "skin.skn: is no text");
    EXPECT_EQ(loadProblem("PK\3\4" + std::string(20, '\0')), "skin.skn: is no text");
    EXPECT_EQ(loadProblem(std::string("\xff\xfe[\0S\0", 6)), "skin.skn: is saved as UTF-16: save it as ANSI or UTF-8");
    EXPECT_EQ(loadProblem(std::string(kLongestSkinFile + 1, ';')), "skin.skn: is longer than 16 MB");
    const std::string noFormat = "skin.skn: is no skin: there is no Format=1 in a section [Skin]";
    EXPECT_EQ(loadProblem("\xef\xbb\xbf"), noFormat);
    EXPECT_EQ(loadProblem("Format=1\n[Skin]\n[Main]\nFormat=1\n[Skin]\nFormat=1"), noFormat);
    EXPECT_EQ(problems(), std::vector<std::string>{noFormat}) << "its lines are not judged";
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
        const std::string text = head + (piece[0] == ',' ? "Fill=" : "") + rubbish;
        const auto start = std::chrono::steady_clock::now();
        load(text);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        // With the sanitizers a pass over the text takes a tenth of a second; anything quadratic takes hours.
        EXPECT_LT(taken.count(), 10) << piece;
        EXPECT_LE(skin_.problems().size(), 108U) << piece;
    }
    std::string many = head;
    for (int i = 0; i < 101; ++i) {
        many += "x=1\n";
    }
    EXPECT_EQ(loadProblem(many), "skin.skn, line 104: there are more than 100 mistakes: reading ends here");
}

}  // namespace
}  // namespace korvane
