// The Effects and Menus tweaks: how menus open and align, what moves on the
// screen while windows do, and the tooltips of the caption buttons.
// All of them are settings of the current user; one reaches the login screen too.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kEffectsAndMenusRows[] = {
    {54}, {56}, {57}, {58, "Remove the Minimize, Maximize and Close Tooltips"},
};
// The last row shows the tree's text; its date is looked up under the title, which has no comma.
constexpr Overview kEffectsAndMenusOverview{.rows = kEffectsAndMenusRows};

constexpr Tweak kTweaks[] = {
    {.id = 52,
     .title = "Effects and Menus",
     .description = "Effects and Menus Display Settings",
     .image = 8,
     .treeParent = 51,
     .page = Page::Category,
     .overview = &kEffectsAndMenusOverview},
    {.id = 53,
     .title = "Change the Alignment of Drop-Down Menus",
     .description =
         "Aligns drop-down menus with the left or with the right edge of their menu title. Right alignment opens menus "
         "toward the left, so that they are not covered by the hand of a right-handed user with a pen or a touch "
         "screen."},
    {.id = 54,
     .title = "Change the Menu Show Delay",
     .description =
         "Sets how long Windows waits before it opens a submenu on which the mouse rests. A short delay makes menus "
         "feel faster; a longer one keeps submenus from opening by accident while the mouse crosses them.",
     .treeParent = 52},
    {.id = 55,
     .title = "Change the Transition Effect for Menus and Tooltips",
     .description =
         "Selects whether menus and tooltips appear with a fade or with a scroll effect when their animation is on. "
         "The scroll effect is easier for slow graphics hardware, the fade looks calmer."},
    {.id = 56,
     .title = "Control the Windows Animation Function",
     .description =
         "Shows or hides the animation that Windows draws while a window is minimized, maximized or restored. Turning "
         "it off makes slow computers and remote connections feel quicker.",
     .treeParent = 52},
    {.id = 57,
     .title = "Display the Contents of Moving Windows",
     .description =
         "Shows a window with its contents while it is dragged or resized. With the box cleared only an outline "
         "follows the mouse, which is smoother on slow computers and over remote connections.",
     .treeParent = 52},
    {.id = 58,
     .title = "Remove the Minimize Maximize and Close Tooltips",  // no comma, unlike the tree; on purpose
     .description =
         "Hides the little labels of the Minimize, Maximize and Close buttons by turning off hot tracking, for the "
         "current user and for the login screen. Each time it is applied, focus that follows the mouse, animation of "
         "menus and combo boxes and smooth scrolling of lists are turned off too.",
     .treeParent = 52,
     .treeText = "Remove the Minimize, Maximize and Close Tooltips"},
    {.id = 59,
     .title = "Use Personalized Menus",
     .description =
         "Personalized menus hide the entries of the Programs menu that the current user seldom opens, so that the "
         "others are found faster. Choose No to see all entries at once, in the same place every time."},
};

}  // namespace

constinit const Unit kEffectsAndMenusUnit{kTweaks};

}  // namespace korvane
