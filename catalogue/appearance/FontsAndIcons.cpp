// The Fonts and Icons tweaks: size, colours and titles of desktop icons, icons of
// the Recycle Bin and of bitmap files, and font smoothing.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr KeyPath kDesktop{Root::CurrentUser, "Control Panel\\Desktop"};
constexpr KeyPath kMetrics{Root::CurrentUser, "Control Panel\\Desktop\\WindowMetrics"};

constexpr Tweak kFontsIcons = {
    .id = 60,
    .title = "Fonts and Icons",
    .description = "Icon and Font display settings and Enhancements",
    .category = true,
    .image = 9,
    .treeParent = 51,
    .page = Page::Category,
};

constexpr CheckBox kBitmapThumbnails[] = {
    {.text = "Automatically View Thumbnails of Bitmap Files.",
     .binding = StringFlag{.key = {Root::ClassesRoot, "Paint.Picture\\DefaultIcon"},
                           .name = "",
                           .checked = "%1",
                           .cleared = "shimgvw.dll,1"}},
};
constexpr Tweak kAutomaticallyViewThumbnailsBitmapFiles = {
    .id = 61,
    .title = "Automatically View Thumbnails of Bitmap Files",
    .description =
        "Shows every bitmap file (.bmp) as a small picture of its own contents instead of the common icon, for all "
        "users. Folders with many large bitmaps then open more slowly. Clearing the box sets an icon of shimgvw.dll, "
        "which only Windows Me and XP have.",
    .treeParent = 60,
    .page = Page::Checks,
    .boxes = kBitmapThumbnails,
    .note = kRestartWindowsNote,
};

constexpr KeyPath kRecycleBin{Root::CurrentUser,
                              "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CLSID\\"
                              "{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon"};
constexpr StringValue recycleBinIcon(std::string_view name) {
    return {.key = kRecycleBin, .name = name, .whenEmpty = WhenEmpty::WritesEmpty, .folding = Folding::WindowsFolder};
}

constexpr Field kRecycleBinIcons[] = {
    {.label = "Default Icon:", .binding = recycleBinIcon(""), .picker = Picker::IconFile},
    {.label = "Empty Icon:", .binding = recycleBinIcon("Empty"), .picker = Picker::IconFile},
    {.label = "Full Icon:", .binding = recycleBinIcon("Full"), .picker = Picker::IconFile},
};
constexpr Tweak kChangeRecycleBinIcons = {
    .id = 62,
    .title = "Change the Recycle Bin Icons",
    .description =
        "Replaces the icons of the Recycle Bin for the current user: the default one, the one of an empty bin and the "
        "one of a full bin. Name an icon file, or a program or library followed by a comma and the number of the "
        "icon. An empty field is stored as an empty name, so fill in all three.",
    .treeParent = 60,
    .page = Page::CheckFields,
    .fields = kRecycleBinIcons,
    .note = kRestartOrLogOutNote,
};

// An empty size is not written, because Windows would read it as 0.
constexpr Field kIconSize[] = {
    {.label = "Change the Size of Desktop Icons:",
     .binding = StringValue{.key = kMetrics, .name = "Shell Icon Size", .whenEmpty = WhenEmpty::WritesNothing}}};
constexpr Tweak kChangeSizeDesktopIcons = {
    .id = 63,
    .title = "Change the Size of Desktop Icons",
    .description =
        "Sets the size of the icons on the desktop and in the large-icon view of folders, in pixels. The standard is "
        "32; 48 is easier to see on a high resolution, a smaller number makes room for more icons.",
    .treeParent = 60,
    .page = Page::CheckFields,
    .fields = kIconSize,
    .note = kRestartOrLogOutNote,
};

constexpr NumberEntry kSmoothingModes[] = {{"Disabled", 0}, {"Standard", 1}, {"ClearType", 2}};
constexpr Choice kSmoothingMode[] = {{.label = "Font Smoothing Mode:",
                                      .binding = DwordChoice{.key = kDesktop,
                                                             .name = "FontSmoothingType",
                                                             .entries = kSmoothingModes,
                                                             .initial = 0,
                                                             .whenNone = WhenNone::WritesNothing}}};
constexpr Tweak kControlFontSmoothingMode = {
    .id = 64,
    .title = "Control the Font Smoothing Mode",
    .description =
        "Chooses the method by which the edges of screen fonts are smoothed while font smoothing is on. ClearType "
        "makes text clearer on flat panels and notebooks; Standard suits picture tubes.",
    .page = Page::CheckCombos,
    .choices = kSmoothingMode,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr TextEntry kDepths[] = {
    {"Low(16 colors)", "4"}, {"Normal(256 colors)", "8"}, {"Medium(64k colors)", "16"}, {"High(16.7M colors)", "24"}};
// Any other stored depth shows as the highest, and is written as that with the next apply.
constexpr Choice kHighColour[] = {{.label = "High Color Icons :",
                                   .binding = StringChoice{.key = kMetrics,
                                                           .name = "Shell Icon BPP",
                                                           .entries = kDepths,
                                                           .initial = 0,
                                                           .unknown = 3,
                                                           .whenNone = WhenNone::WritesNothing}}};
constexpr Tweak kDisplayHighColorIcons = {
    .id = 65,
    .title = "Display High Color Icons",
    .description =
        "Sets the number of colors in which Windows draws the icons of the desktop for the current user. More colors "
        "let modern icons look as they were drawn; fewer save memory on old graphics cards.",
    .treeParent = 60,
    .page = Page::CheckCombos,
    .choices = kHighColour,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kWrapTitles[] = {
    {.text = "The Icon Titles should be Word Wrapped over Multiple Lines.",
     .binding = StringFlag{.key = kMetrics, .name = "IconTitleWrap"}},
};
constexpr Tweak kWrapIconTitles = {
    .id = 67,
    .title = "Wrap Icon Titles",
    .description =
        "Lets the titles below desktop icons run over several lines, so that long names can be read in full. With the "
        "box cleared each title keeps to one line and the icons look tidier.",
    .page = Page::Checks,
    .boxes = kWrapTitles,
    .note = kRestartOrLogOutNote,
};

constexpr TextEntry kSmoothing[] = {{"Disabled", "0"}, {"On Windows 95/98/Me", "1"}, {"On Windows NT/2000/XP", "2"}};
constexpr Choice kFontSmoothing[] = {{.label = "Enable Font Smoothing:",
                                      .binding = StringChoice{.key = kDesktop,
                                                              .name = "FontSmoothing",
                                                              .entries = kSmoothing,
                                                              .initial = 0,
                                                              .compare = Compare::AsNumber,
                                                              .whenNone = WhenNone::WritesNothing}}};
// This tweak has its own routine because each entry has its own gate.
void applyFontSmoothing(PageContext& context) {
    const int entry = context.page.comboSelection(IDC_COMBO1);
    const int kOn9x = 1;
    const int kOnNt = 2;
    if (entry == kOn9x && !kWindows9x.contains(context.version)) {
        context.host.alert(Alert::SmoothingFor9xOnNt);
    } else if (entry == kOnNt && !kWindowsNT.contains(context.version)) {
        context.host.alert(Alert::SmoothingForNtOn9x);
    } else {
        context.host.stamp();
        applyChoice(context, IDC_COMBO1, kFontSmoothing[0].binding);
    }
}

constexpr Tweak kEnableFontSmoothing = {
    .id = 66,
    .title = "Enable Font Smoothing",
    .description =
        "Smooths the jagged edges of large text on the screen for the current user. Choose the entry that names the "
        "Windows in use, since the other one is refused, or Disabled for text with sharp edges.",
    .treeParent = 60,
    .page = Page::CheckCombos,
    .choices = kFontSmoothing,
    .note = kRestartOrLogOutNote,
    .stamp = Stamp::ByRoutine,
    .apply = applyFontSmoothing,
    .registry = "An entry is written only where it fits the running Windows: the second on Windows 95, 98 and Me, the "
                "third on Windows NT 4, 2000 and XP.",
};

constexpr const Tweak* kRows[] = {&kFontsIcons, &kAutomaticallyViewThumbnailsBitmapFiles, &kChangeRecycleBinIcons,
                                  &kChangeSizeDesktopIcons, &kControlFontSmoothingMode, &kDisplayHighColorIcons,
                                  &kEnableFontSmoothing, &kWrapIconTitles};

}  // namespace

constinit decltype(kFontsAndIconsUnit) kFontsAndIconsUnit{kRows};

}  // namespace korvane
