// The single Appearance tweaks: colours that have no name, thumbnails outside
// their lists, and the image preview, which is there when its key is.
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

const std::string kColours = user("Control Panel\\Colors");
const std::string kDesktop = user("Control Panel\\Desktop");
const std::string kExplorer = user("Software\\Microsoft\\Windows\\CurrentVersion\\Explorer");

TEST_P(Appearance, LinkColourIsAText) {
    open(68, block(kColours, text("HotTrackingColor", "0 0 255")));
    EXPECT_EQ(colour(), rgb(0, 0, 255));
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(68));
}

TEST_P(Appearance, FileColoursAreFourBytesWithTheLastOneEmpty) {
    // The fourth byte, and bytes that are missing, count as zero; other colours leave the row that was selected before.
    open(69, block(kExplorer, "\"AltColor\"=hex:00,00,ff,7f", "\"AltEncryptionColor\"=hex:ff"));
    EXPECT_EQ(colour(), rgb(0, 0, 255));
    EXPECT_EQ(apply(), (Changes{removed(kExplorer, "\"AltColor\"=hex:00,00,ff,7f"),
                                added(kExplorer, "\"AltColor\"=hex:00,00,ff,00")}));
    program().select(70);
    EXPECT_EQ(colour(), rgb(255, 0, 0));

    open(68, block(kColours, text("HotTrackingColor", "0 128 0")) + block(kExplorer, "\"AltColor\"=hex:01,02,03,00"));
    program().select(69);
    EXPECT_EQ(colour(), rgb(0, 128, 0));
    program().select(70);
    EXPECT_EQ(apply(), Changes{added(kExplorer, "\"AltEncryptionColor\"=hex:00,80,00,00")});
}

TEST_P(Appearance, EncryptedColourPassesMoreWindowsThanItsAlertNames) {
    for (const std::string_view windows : {"nt4", "2000", "2003"}) {
        open(70, block(kExplorer), windows);
        EXPECT_EQ(apply().size(), 1u) << windows;
        EXPECT_EQ(alerts(), "");
    }
    open(70, block(kExplorer), "98");
    EXPECT_EQ(apply(), Changes{});
    EXPECT_EQ(alerts(), "These Tweak active only on Windows XP");
    EXPECT_FALSE(dated(70));
}

TEST_P(Appearance, AnEmptyWallpaperPositionIsDeletedByItself) {
    const std::string x = text("WallpaperOriginX", "10");
    const std::string y = text("WallpaperOriginY", "20");
    open(71, block(kDesktop, x, y));
    EXPECT_EQ(edit(IDC_EDIT2), "20");
    type(IDC_EDIT1, "ten");
    type(IDC_EDIT2, "");
    EXPECT_EQ(apply(),
              (Changes{removed(kDesktop, x), removed(kDesktop, y), added(kDesktop, text("WallpaperOriginX", "ten"))}));
}

TEST_P(Appearance, ThumbnailsOutsideTheListsShowTheUsualOnes) {
    struct {
        std::uint32_t size;
        int sizeEntry;
        std::uint32_t quality;
        int qualityEntry;
    } const cases[] = {
        {31, 64, 49, 40}, {32, 0, 50, 0}, {256, 224, 100, 50}, {257, 64, 101, 40}, {0xFFFFFFFF, 64, 0, 40}};
    for (const auto& each : cases) {
        open(72, block(kExplorer, number("ThumbnailSize", each.size), number("ThumbnailQuality", each.quality)));
        EXPECT_EQ(combo(IDC_COMBO1), each.sizeEntry);
        EXPECT_EQ(combo(IDC_COMBO2), each.qualityEntry);
    }
    const std::string size = number("ThumbnailSize", 300);
    open(72, block(kExplorer, size));
    EXPECT_EQ(shownPage(program())->text(IDC_COMBO1), "96");
    EXPECT_EQ(shownPage(program())->text(IDC_COMBO2), "90");
    type(IDC_COMBO2, "75");  // typed, not chosen
    EXPECT_EQ(apply(), (Changes{removed(kExplorer, size), added(kExplorer, number("ThumbnailSize", 96))}));
}

TEST_P(Appearance, AccelerationSkipsOnlyTheMissingKey) {
    const std::string directDraw = machine("SOFTWARE\\Microsoft\\DirectDraw");
    open(74, block(directDraw), "95");
    click(IDC_CHECK2);
    click(IDC_CHECK3);
    EXPECT_EQ(apply(), (Changes{added(directDraw, number("EmulationOnly", 0)),
                                added(directDraw, number("DisableAGPSupport", 1))}));
}

TEST_P(Appearance, ImagePreviewIsDisabledWithoutItsKey) {
    const std::string handlers = "SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers";
    const std::string preview = classes(handlers + "\\ShellImagePreview");
    open(75);
    EXPECT_EQ(box(), 1u);
    click();
    EXPECT_EQ(apply(), Changes{}) << "made without the key of the handlers";

    open(75, block(classes(handlers), text("", "none")) + block(preview, text("", "another class")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), (Changes{removed(preview, text("", "another class")),
                                added(preview, text("", "{e84fda7c-1d6a-45f6-b725-cb260c236066}"))}));
    click();
    EXPECT_EQ(apply(),
              (Changes{removedKey(preview), removed(preview, text("", "{e84fda7c-1d6a-45f6-b725-cb260c236066}"))}));
    program().select(75);
    EXPECT_EQ(box(), 1u);
}

TEST_P(Appearance, DialogPoliciesAreMadeBelowThePolicies) {
    const std::string policies = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies";
    const std::string key = user(policies + "\\comdlg32");
    open(76);
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), Changes{});
    open(76, block(user(policies), text("x", "")));
    click(IDC_CHECK2);
    EXPECT_EQ(apply(), (Changes{addedKey(key), added(key, number("NoBackButton", 0)),
                                added(key, number("NoFileMru", 1)), added(key, number("NoPlacesBar", 0))}));
}

}  // namespace
}  // namespace korvane
