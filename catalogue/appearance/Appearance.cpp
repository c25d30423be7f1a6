// The category Appearance and those of its tweaks that are in no subcategory:
// colours of links and files, wallpaper, thumbnails and previews, scrolling,
// hardware acceleration, and the Open and Save dialogs.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kDesktop{Root::CurrentUser, "Control Panel\\Desktop"};
constexpr KeyPath kExplorer{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"};
constexpr std::string_view kAlternateColorSource =
    "Explorer's option to show encrypted or compressed NTFS files in color, and its color values (from general "
    "knowledge)";

constexpr Tweak kAppearance = {
    .id = 51,
    .title = "Appearance",
    .description = "Windows Appearance and Display Settings.",
    .category = true,
    .image = 7,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr ColourField kLinkColour{
    .label = "Active Link Color (RGB):",
    .binding = ColourText{.key = {Root::CurrentUser, "Control Panel\\Colors"}, .name = "HotTrackingColor"}};
constexpr Tweak kChangeColorActiveFileFolderLinks = {
    .id = 68,
    .title = "Change the Color of Active File and Folder Links",
    .description =
        "Sets the color of file and folder names while they act as links, for example under the mouse pointer. Choose "
        "one that stands out from the window background. Unless a named color is stored, the list starts with a "
        "random one, so choose yours before you apply.",
    .treeParent = 51,
    .page = Page::CheckCombos,
    .colour = &kLinkColour,
    .note = kRestartOrLogOutNote,
    .gate = kGate98Me2000Xp,
    .source = "System color COLOR_HOTLIGHT (hot-tracked item), whose value stands beside the other colors of `Control "
              "Panel\\Colors` (from general knowledge)",
};

constexpr ColourField kCompressedColour{.label = "Compressed Files and Folders Color (RGB):",
                                        .binding = ColourBinary{.key = kExplorer, .name = "AltColor"}};
constexpr Tweak kChangeColorCompressedFilesFolders = {
    .id = 69,
    .title = "Change the Color of Compressed Files and Folders",
    .description =
        "Sets the color in which Explorer writes the names of compressed NTFS files and folders for the current user, "
        "while it shows them in an alternate color. Unless a named color is stored, the list starts with a random "
        "one, so choose yours before you apply.",
    .page = Page::CheckCombos,
    .colour = &kCompressedColour,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kAlternateColorSource,
};

constexpr ColourField kEncryptedColour{.label = "Encrypted Files Color (RGB):",
                                       .binding = ColourBinary{.key = kExplorer, .name = "AltEncryptionColor"}};
constexpr Tweak kChangeColorEncryptedFiles = {
    .id = 70,
    .title = "Change the Color of Encrypted Files",
    .description =
        "Sets the color in which Explorer writes the names of encrypted NTFS files for the current user, while it "
        "shows such files in color. Unless a named color is stored, the list starts with a random one, so choose "
        "yours before you apply.",
    .page = Page::CheckCombos,
    .colour = &kEncryptedColour,
    .note = kRestartOrLogOutNote,
    .gate = kGateNtNamingXp,
    .source = kAlternateColorSource,
};

constexpr Field kWallpaperPosition[] = {
    {.label = "Horizontal Position (pixels from the left):",
     .binding = StringValue{.key = kDesktop, .name = "WallpaperOriginX"}},
    {.label = "Vertical Position (pixels from the top):",
     .binding = StringValue{.key = kDesktop, .name = "WallpaperOriginY"}},
};
constexpr Tweak kChangePositionDesktopWallpaper = {
    .id = 71,
    .title = "Change the Position of the Desktop Wallpaper",
    .description =
        "Moves the desktop wallpaper of the current user to a position of your own, in pixels from the left and from "
        "the top edge of the screen. It suits small pictures that should not cover the icons; an empty field removes "
        "its value.",
    .treeParent = 51,
    .page = Page::CheckFields,
    .fields = kWallpaperPosition,
    .note = kRestartOrLogOutNote,
    .source = "Windows 2000 registry reference, `Control Panel\\Desktop` (from general knowledge)",
};

// The indexes of the entries for Windows' own defaults, which are shown for a stored number outside the list.
constexpr int kUsualSize = 96 - 32;
constexpr int kUsualQuality = 90 - 50;
constexpr Choice kThumbnails[] = {
    {.label = "Thumbnail Image Size (pixels):",
     .binding = DwordChoice{.key = kExplorer,
                            .name = "ThumbnailSize",
                            .range = {.first = 32, .last = 256},
                            .initial = kUsualSize,
                            .unknown = kUsualSize,
                            .whenNone = WhenNone::WritesNothing}},
    {.label = "Thumbnail Image Quality (percent):",
     .binding = DwordChoice{.key = kExplorer,
                            .name = "ThumbnailQuality",
                            .range = {.first = 50, .last = 100},
                            .initial = kUsualQuality,
                            .unknown = kUsualQuality,
                            .whenNone = WhenNone::WritesNothing}},
};
constexpr Tweak kChangeThumbnailImageSettings = {
    .id = 72,
    .title = "Change the Thumbnail Image Settings",
    .description =
        "Sets the size and the picture quality of the thumbnails in folders for the current user. Larger and better "
        "thumbnails show more of a photo, smaller ones save disk space and open large folders faster.",
    .treeParent = 51,
    .page = Page::CheckCombos,
    .choices = kThumbnails,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "Thumbnail values of the Windows XP shell (from general knowledge)",
};

constexpr CheckBox kSmoothScrolling[] = {
    {.text = "Enable Smooth Scrolling.", .binding = DwordCheckState{.key = kDesktop, .name = "SmoothScroll"}}};
constexpr Tweak kControlWhetherWindowsPerformsSmoothScrolling = {
    .id = 73,
    .title = "Control Whether Windows Performs Smooth Scrolling",
    .description = "Lets lists and windows glide when they are scrolled instead of jumping. It is stored as the value "
                   "SmoothScroll of the current user's desktop settings; turn it off where scrolling feels slow.",
    .page = Page::Checks,
    .boxes = kSmoothScrolling,
    .note = kRestartOrLogOutNote,
    .source = "Smooth scrolling of the common controls (from general knowledge)",
};

constexpr KeyPath kDirectDraw{Root::LocalMachine, "SOFTWARE\\Microsoft\\DirectDraw"};
constexpr KeyPath kDirect3DDrivers{Root::LocalMachine, "SOFTWARE\\Microsoft\\Direct3D\\Drivers"};
constexpr CheckBox kAcceleration[] = {
    {.text = "Disable DirectDraw Hardware Acceleration.",
     .binding = DwordCheckState{.key = kDirectDraw, .name = "EmulationOnly"}},
    {.text = "Disable Direct3D Hardware Acceleration.",
     .binding = DwordCheckState{.key = kDirect3DDrivers, .name = "SoftwareOnly"}},
    {.text = "Disable AGP Texture Acceleration.",
     .binding = DwordCheckState{.key = kDirectDraw, .name = "DisableAGPSupport"}},
};
constexpr Tweak kDirectDrawDirect3DSettings = {
    .id = 74,
    .title = "DirectDraw and Direct3D Settings",
    .description =
        "Switches off parts of graphics acceleration for all users, to find out whether a display driver causes "
        "crashes or faulty pictures. It sets EmulationOnly and DisableAGPSupport of DirectDraw and SoftwareOnly of "
        "the Direct3D drivers; games become much slower.",
    .page = Page::Checks,
    .boxes = kAcceleration,
    .note = kRestartOrLogOutNote,
    .source =
        "The values behind the three acceleration switches of the DirectX diagnostic tool (from general knowledge)",
};

constexpr CheckBox kImagePreview[] = {
    {.text = "Disable Image Preview.",
     .binding = SubkeyFlag{.parent = {Root::ClassesRoot, "SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers"},
                           .name = "ShellImagePreview",
                           .checkedWhenAbsent = true,
                           .text = "{e84fda7c-1d6a-45f6-b725-cb260c236066}"}},
};
constexpr Tweak kDisableImagePreview = {
    .id = 75,
    .title = "Disable Image Preview",
    .description =
        "Removes the Preview command, which opens a picture in the viewer of Windows, from the right-click menu of "
        "image files for all users. Useful if you work with another viewer; clearing the box restores the command.",
    .treeParent = 51,
    .page = Page::Checks,
    .boxes = kImagePreview,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "The Windows XP shell's context menu handler for pictures (from general knowledge)",
};

constexpr KeyPath kDialogPolicies{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies",
                                  "comdlg32"};
constexpr CheckBox kOpenAndSave[] = {
    {.text = "Hide the Back Button.", .binding = PolicyDwordFlag(kDialogPolicies, "NoBackButton")},
    {.text = "Hide the List of Recently Used Files.", .binding = PolicyDwordFlag(kDialogPolicies, "NoFileMru")},
    {.text = "Hide the Places Bar.", .binding = PolicyDwordFlag(kDialogPolicies, "NoPlacesBar")},
};
constexpr Tweak kOpenSaveDialogBoxCustomization = {
    .id = 76,
    .title = "Open and Save Dialog Box Customization",
    .description =
        "Removes parts of the common Open and Save boxes for the current user: the Back button, the list of recently "
        "used files and the bar with places on the left. The boxes get simpler, and the names of earlier files stay "
        "private.",
    .treeParent = 51,
    .page = Page::Checks,
    .boxes = kOpenAndSave,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000MeXp,
    .source = "Group Policy, Windows Explorer, Common Open File Dialog; three policies, Windows 2000 and later (from "
              "general knowledge)",
};

constexpr KeyPath kAdvanced{Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"};
constexpr CheckBox kCompressedFiles[] = {{.text = "Show Compressed Files in an Alternate Color.",
                                          .binding = DwordCheckState{.key = kAdvanced, .name = "ShowCompColor"}}};
constexpr Tweak kShowCompressedFilesAlternateColor = {
    .id = 77,
    .title = "Show Compressed Files in an Alternate Color",
    .description =
        "Lets Explorer write the names of compressed files and folders on NTFS drives in a different color for the "
        "current user. It shows at a glance which files Windows keeps compressed.",
    .page = Page::Checks,
    .boxes = kCompressedFiles,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = kAlternateColorSource,
};

constexpr const Tweak* kRows[] = {&kAppearance, &kChangeColorActiveFileFolderLinks, &kChangeColorCompressedFilesFolders,
                                  &kChangeColorEncryptedFiles, &kChangePositionDesktopWallpaper,
                                  &kChangeThumbnailImageSettings, &kControlWhetherWindowsPerformsSmoothScrolling,
                                  &kDirectDrawDirect3DSettings, &kDisableImagePreview, &kOpenSaveDialogBoxCustomization,
                                  &kShowCompressedFilesAlternateColor};

}  // namespace

constinit decltype(kAppearanceUnit) kAppearanceUnit{kRows};

}  // namespace korvane
