// The Effects and Menus tweaks: how menus open and align, animation, dragging, and
// the tooltips of the caption buttons. All of them are settings of the current
// user; one also applies to the login screen.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kDesktop{Root::CurrentUser, "Control Panel\\Desktop"};
constexpr std::string_view kRestartOrLogoffNote = "Note:\n\tRestart or logoff Windows for the changes to take effect.";
constexpr std::string_view kRestartOrLogOffNote = "Note:\n\tRestart or log off Windows for the change to take effect.";

constexpr Tweak kEffectsMenus = {
    .id = 52,
    .title = "Effects and Menus",
    .description = "Effects and Menus Display Settings",
    .category = true,
    .image = 8,
    .treeParent = 51,
    .page = Page::Category,
};

constexpr TextEntry kAlignments[] = {{"Left Alignment", "0"}, {"Right Alignment", "1"}};
constexpr Choice kMenuAlignment[] = {{.label = "Change the Alignment of Drop-Down Menus:",
                                      .binding = StringChoice{.key = kDesktop,
                                                              .name = "MenuDropAlignment",
                                                              .entries = kAlignments,
                                                              .initial = 0,
                                                              .unknown = 0,
                                                              .noneText = "0"}}};
constexpr Tweak kChangeAlignmentDropDownMenus = {
    .id = 53,
    .title = "Change the Alignment of Drop-Down Menus",
    .description =
        "Aligns drop-down menus with the left or with the right edge of their menu title. Right alignment opens menus "
        "toward the left, so that they are not covered by the hand of a right-handed user with a pen or a touch "
        "screen.",
    .page = Page::CheckCombos,
    .choices = kMenuAlignment,
    .note = kRestartOrLogoffNote,
};

constexpr TextEntry kDelays[] = {{"No Delay", "0"},
                                 {"Faster (200 milliseconds)", "200"},
                                 {"Standard (400 milliseconds)", "400"},
                                 {"Slower (800 milliseconds)", "800"},
                                 {"Slowest (999 milliseconds)", "999"}};
// Any other stored delay shows as "No Delay", and is lost with the next apply.
constexpr Choice kMenuDelay[] = {
    {.label = "Change the Menu Show Delay:",
     .binding = StringChoice{
         .key = kDesktop, .name = "MenuShowDelay", .entries = kDelays, .initial = 0, .unknown = 0, .noneText = "0"}}};
constexpr Tweak kChangeMenuShowDelay = {
    .id = 54,
    .title = "Change the Menu Show Delay",
    .description =
        "Sets how long Windows waits before it opens a submenu on which the mouse rests. A short delay makes menus "
        "feel faster; a longer one keeps submenus from opening by accident while the mouse crosses them.",
    .treeParent = 52,
    .page = Page::CheckCombos,
    .choices = kMenuDelay,
    .note = kRestartOrLogoffNote,
};

constexpr Tweak kChangeTransitionEffectMenusTooltips = {
    .id = 55,
    .title = "Change the Transition Effect for Menus and Tooltips",
    .description =
        "Selects whether menus and tooltips appear with a fade or with a scroll effect when their animation is on. "
        "The scroll effect is easier for slow graphics hardware, the fade looks calmer.",
};

constexpr CheckBox kAnimation[] = {
    {.text = "Show Window Animation.",
     .binding = StringFlag{.key = {Root::CurrentUser, "Control Panel\\Desktop\\WindowMetrics"}, .name = "MinAnimate"}},
};
constexpr Tweak kControlWindowsAnimationFunction = {
    .id = 56,
    .title = "Control the Windows Animation Function",
    .description =
        "Shows or hides the animation that Windows draws while a window is minimized, maximized or restored. Turning "
        "it off makes slow computers and remote connections feel quicker.",
    .treeParent = 52,
    .page = Page::Checks,
    .boxes = kAnimation,
    .note = kRestartOrLogOffNote,
};

constexpr CheckBox kDragFull[] = {
    {.text = "Display the Contents of Moving Windows.",
     .binding = StringFlag{.key = kDesktop, .name = "DragFullWindows"}},
};
constexpr Tweak kDisplayContentsMovingWindows = {
    .id = 57,
    .title = "Display the Contents of Moving Windows",
    .description =
        "Shows a window with its contents while it is dragged or resized. With the box cleared only an outline "
        "follows the mouse, which is smoother on slow computers and over remote connections.",
    .treeParent = 52,
    .page = Page::Checks,
    .boxes = kDragFull,
    .note = kRestartOrLogOffNote,
};

// Intended: every apply also clears the four low bits of the byte, and also writes to the default user.
constexpr KeyPath kLoginDesktop{Root::Users, ".DEFAULT\\Control Panel\\Desktop"};
constexpr CheckBox kCaptionTips[] = {
    {.text = "Remove the Minimize, Maximize and Close Tooltips.",
     .binding = MaskBit{.key = kDesktop.writtenAlsoTo(kLoginDesktop),
                        .name = "UserPreferencesMask",
                        .byte = 0,
                        .bit = 0x80,
                        .checkedWhenClear = true,
                        .kept = 0xF0}},
};
constexpr Tweak kRemoveMinimizeMaximizeCloseTooltips = {
    .id = 58,
    .title = "Remove the Minimize Maximize and Close Tooltips",  // Intended: no comma, unlike in the tree.
    .description =
        "Hides the little labels of the Minimize, Maximize and Close buttons by turning off hot tracking, for the "
        "current user and for the login screen. Each time it is applied, focus that follows the mouse, animation of "
        "menus and combo boxes and smooth scrolling of lists are turned off too.",
    .treeParent = 52,
    .treeText = "Remove the Minimize, Maximize and Close Tooltips",
    .overviewShowsTreeText = true,
    .page = Page::Checks,
    .boxes = kCaptionTips,
    .note = kRestartOrLogOutNote,
};

constexpr TextEntry kNoYes[] = {{"No", "No"}, {"Yes", "Yes"}};
constexpr KeyPath kAdvanced{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};
constexpr Choice kPersonalizedMenus[] = {
    {.label = "Use Personalized Menus:",
     .binding = StringChoice{.key = kAdvanced,
                             .name = "IntelliMenus",
                             .entries = kNoYes,
                             .initial = 0,
                             .unknown = 0,
                             .noneText = "No"}},
};
constexpr Tweak kUsePersonalizedMenus = {
    .id = 59,
    .title = "Use Personalized Menus",
    .description =
        "Personalized menus hide the entries of the Programs menu that the current user seldom opens, so that the "
        "others are found faster. Choose No to see all entries at once, in the same place every time.",
    .page = Page::CheckCombos,
    .choices = kPersonalizedMenus,
    .note = "Note:\n\tExit your registry and log off for the changes to take effect.",
    .gate = kGate2000MeXp,
};

constexpr const Tweak* kRows[] = {&kEffectsMenus, &kChangeAlignmentDropDownMenus, &kChangeMenuShowDelay,
                                  &kChangeTransitionEffectMenusTooltips, &kControlWindowsAnimationFunction,
                                  &kDisplayContentsMovingWindows, &kRemoveMinimizeMaximizeCloseTooltips,
                                  &kUsePersonalizedMenus};

}  // namespace

constinit decltype(kEffectsAndMenusUnit) kEffectsAndMenusUnit{kRows};

}  // namespace korvane
