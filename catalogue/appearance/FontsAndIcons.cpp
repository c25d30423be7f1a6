// The Fonts and Icons tweaks: size, colors and titles of desktop icons, icons
// of the Recycle Bin and of bitmap files, and the smoothing of screen fonts.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kFontsAndIconsRows[] = {{61}, {62}, {63}, {65}, {66}};
constexpr Overview kFontsAndIconsOverview{.rows = kFontsAndIconsRows};

constexpr Tweak kTweaks[] = {
    {.id = 60,
     .title = "Fonts and Icons",
     .description = "Icon and Font display settings and Enhancements",
     .image = 9,
     .treeParent = 51,
     .page = Page::Category,
     .overview = &kFontsAndIconsOverview},
    {.id = 61,
     .title = "Automatically View Thumbnails of Bitmap Files",
     .description =
         "Shows every bitmap file (.bmp) with a small picture of its own contents instead of the common icon, for all "
         "users. Folders with many large bitmaps then open more slowly; clearing the box sets the standard picture "
         "icon.",
     .treeParent = 60},
    {.id = 62,
     .title = "Change the Recycle Bin Icons",
     .description =
         "Replaces the icons of the Recycle Bin for the current user: the one shown by default, the one for an empty "
         "and the one for a full bin. Name icon files, or a program or library followed by a comma and the number of "
         "the icon.",
     .treeParent = 60},
    {.id = 63,
     .title = "Change the Size of Desktop Icons",
     .description =
         "Sets the size of the icons on the desktop and in the large-icon view of folders, in pixels. The standard is "
         "32; 48 is easier to see on a high resolution, a smaller number makes room for more icons.",
     .treeParent = 60},
    {.id = 64,
     .title = "Control the Font Smoothing Mode",
     .description =
         "Chooses the method by which the edges of screen fonts are smoothed while font smoothing is on. ClearType "
         "makes text clearer on flat panels and notebooks; Standard suits picture tubes."},
    {.id = 65,
     .title = "Display High Color Icons",
     .description =
         "Sets the number of colors in which Windows draws the icons of the desktop for the current user. More colors "
         "let modern icons look as they were drawn; fewer save memory on old graphics cards.",
     .treeParent = 60},
    {.id = 66,
     .title = "Enable Font Smoothing",
     .description =
         "Smooths the jagged edges of large text on the screen for the current user. Choose the entry that names the "
         "Windows in use, since the other one is refused, or Disabled for text with sharp edges.",
     .treeParent = 60},
    {.id = 67,
     .title = "Wrap Icon Titles",
     .description =
         "Lets the titles below desktop icons run over several lines, so that long names can be read in full. With the "
         "box cleared each title keeps to one line and the icons look tidier."},
};

}  // namespace

constinit const Unit kFontsAndIconsUnit{kTweaks};

}  // namespace korvane
