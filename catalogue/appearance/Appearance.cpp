// The Appearance category and those of its tweaks that belong to no group:
// colors of links and files, the wallpaper, thumbnails and previews, scrolling,
// drawing acceleration and the Open and Save boxes.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kAppearanceRows[] = {{68}, {71}, {72}, {75}, {76}};
constexpr Overview kAppearanceOverview{.rows = kAppearanceRows};

constexpr Tweak kTweaks[] = {
    {.id = 51,
     .title = "Appearance",
     .description = "Windows Appearance and Display Settings.",
     .image = 7,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kAppearanceOverview},
    {.id = 68,
     .title = "Change the Color of Active File and Folder Links",
     .description =
         "Sets the color in which names of files and folders are shown while they act as links, for example when the "
         "mouse rests on them. Choose one that stands out clearly from the background of the windows.",
     .treeParent = 51},
    {.id = 69,
     .title = "Change the Color of Compressed Files and Folders",
     .description =
         "Sets the color in which Explorer writes the names of compressed NTFS files and folders for the current user. "
         "Explorer uses it only while compressed files are shown in an alternate color; choose one that can be read "
         "well on white."},
    {.id = 70,
     .title = "Change the Color of Encrypted Files",
     .description =
         "Sets the color in which Explorer writes the names of encrypted NTFS files for the current user, so that "
         "protected files are recognized at a glance. It is used only while Explorer shows such files in color."},
    {.id = 71,
     .title = "Change the Position of the Desktop Wallpaper",
     .description =
         "Moves the desktop wallpaper of the current user to a position of your own, in pixels from the left and from "
         "the top edge of the screen. It suits small pictures that should not cover the icons; an empty field removes "
         "its value.",
     .treeParent = 51},
    {.id = 72,
     .title = "Change the Thumbnail Image Settings",
     .description =
         "Sets the size and the picture quality of the thumbnails in folders for the current user. Larger and better "
         "thumbnails show more of a photo, smaller ones save disk space and open large folders faster.",
     .treeParent = 51},
    {.id = 73,
     .title = "Control Whether Windows Performs Smooth Scrolling",
     .description = "Lets lists and windows glide when they are scrolled instead of jumping. It is stored as the value "
                    "SmoothScroll of the current user's desktop settings; turn it off where scrolling feels slow."},
    {.id = 74,
     .title = "DirectDraw and Direct3D Settings",
     .description =
         "Switches off parts of graphics acceleration for all users, to find out whether a display driver causes "
         "crashes or faulty pictures. It sets EmulationOnly and DisableAGPSupport of DirectDraw and SoftwareOnly of "
         "the Direct3D drivers; games become much slower."},
    {.id = 75,
     .title = "Disable Image Preview",
     .description =
         "Removes the Preview command, which opens a picture in the viewer of Windows, from the right-click menu of "
         "image files for all users. Useful if you work with another viewer; clearing the box restores the command.",
     .treeParent = 51},
    {.id = 76,
     .title = "Open and Save Dialog Box Customization",
     .description =
         "Removes parts of the common Open and Save boxes for the current user: the Back button, the list of recently "
         "used files and the bar with places on the left. The boxes get simpler, and the names of earlier files stay "
         "private.",
     .treeParent = 51},
    {.id = 77,
     .title = "Show Compressed Files in an Alternate Color",
     .description =
         "Lets Explorer write the names of compressed files and folders on NTFS drives in a different color for the "
         "current user. It shows at a glance which files Windows keeps compressed."},
};

}  // namespace

constinit const Unit kAppearanceUnit{kTweaks};

}  // namespace korvane
