// The single Appearance tweaks and those of start-up and shutdown: colours that have no name, an image preview that is
// there when its key is, values kept for the user and for the login desktop.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Appearance : public TweakCases {
protected:
    Colour colour() {
        DialogControls& page = *shownPage(program());
        return page.comboData(IDC_COLOUR_COMBO, page.comboSelection(IDC_COLOUR_COMBO));
    }
};
INSTANTIATE_TEST_SUITE_P(Over, Appearance, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Appearance, FileColoursAreFourBytesAndKeepTheRowOfBeforeWithoutAName) {
    const std::string key = user(kExplorer);
    open(69, block(key, "\"AltColor\"=hex:00,00,ff,7f", "\"AltEncryptionColor\"=hex:ff"));
    EXPECT_EQ(colour(), rgb(0, 0, 255));
    EXPECT_EQ(apply(), replaced(key, "\"AltColor\"=hex:00,00,ff,7f", "\"AltColor\"=hex:00,00,ff,00"));
    program().select(70);
    EXPECT_EQ(colour(), rgb(255, 0, 0));

    open(68, block(user("Control Panel\\Colors"), text("HotTrackingColor", "0 128 0")) +
                 block(key, "\"AltColor\"=hex:01,02,03,00"));
    program().select(69);
    EXPECT_EQ(colour(), rgb(0, 128, 0));
    program().select(70);
    EXPECT_EQ(apply(), Changes{added(key, "\"AltEncryptionColor\"=hex:00,80,00,00")});
}

TEST_P(Appearance, EncryptedColourPassesMoreWindowsThanItsAlertNames) {
    for (const std::string_view windows : {"nt4", "2000", "98"}) {
        open(70, block(user(kExplorer)), windows);
        EXPECT_EQ(apply().empty(), windows == "98") << windows;
        EXPECT_EQ(alerts(), windows == "98" ? "These Tweak active only on Windows XP" : "");
    }
}

TEST_P(Appearance, ImagePreviewIsDisabledWithoutItsKey) {
    const std::string handlers = "SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers";
    const std::string preview = classes(handlers + "\\ShellImagePreview");
    const std::string right = text("", "{e84fda7c-1d6a-45f6-b725-cb260c236066}");
    open(75);
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), Changes{}) << "made without the key of the handlers";

    open(75, block(classes(handlers), text("", "none")) + block(preview, text("", "another class")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), replaced(preview, text("", "another class"), right));
    click();
    EXPECT_EQ(apply(), (Changes{removedKey(preview), removed(preview, right)}));
}

// ---- Start up and shutdown

TEST_P(Appearance, TheLoginDesktopDoesNotNeedTheUsers) {
    open(213, block(login(kDesktop)));
    click();
    type(IDC_COMBO1, "1 second");  // typed, not chosen
    EXPECT_EQ(apply(), (Changes{added(login(kDesktop), text("AutoEndTasks", "1")),
                                added(login(kDesktop), text("WaitToKillAppTimeout", "20000"))}));
    program().select(225);
    type(IDC_EDIT1, "soon");
    EXPECT_EQ(apply(), Changes{added(login(kDesktop), text("HungAppTimeout", "soon"))});
}

}  // namespace
}  // namespace korvane
