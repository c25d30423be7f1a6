// The tweaks without a category: folder locations, the registered owner and the
// Alt+Tab window. The last ItemId is reserved.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr KeyPath kUserFolders{Root::CurrentUser,
                               "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders"};
constexpr Field userFolder(std::string_view label, std::string_view name) {
    return {.label = label,
            .binding = StringValue{.key = kUserFolders,
                                   .name = name,
                                   .whenEmpty = WhenEmpty::WritesNothing,
                                   .type = ValueType::ExpandSz,
                                   .folding = Folding::ProfilePrefix},
            .picker = Picker::Folder};
}

constexpr Field kFolders[] = {userFolder("Cookies:", "Cookies"), userFolder("Desktop:", "Desktop"),
                              userFolder("Favorites:", "Favorites"), userFolder("Internet Cache:", "Cache"),
                              userFolder("My Documents:", "Personal")};
constexpr Tweak kChangeLocationSystemSpecialFolders = {
    .id = 306,
    .title = "Change the Location of System and Special Folders",
    .description =
        "Tells Windows where the current user keeps cookies, desktop, favorites, temporary Internet files and "
        "documents, for example on another drive. Existing files are not moved: copy them yourself. An empty "
        "field leaves its folder unchanged.",
    .treeParent = kTreeRoot,
    .page = Page::PathFields,
    .fields = kFolders,
    .registry = "The profile folder is what comes before `Application Data` in the path of that folder, the backslash "
                "included, so that a path is shown with two backslashes there. Letter case counts. On versions of "
                "Windows other than NT 4, 2000 and XP nothing is replaced.",
};

constexpr Field kSourcePath[] = {
    {.label = "Source Directory:",
     .binding = StringValue{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup"},
                            .name = "SourcePath",
                            .whenEmpty = WhenEmpty::WritesNothing},
     .picker = Picker::Folder},
};
constexpr Tweak kChangeLocationWindowsInstallationFiles = {
    .id = 307,
    .title = "Change the Location of Windows Installation Files",
    .description =
        "Tells Windows where its installation files are, for example in a copy on the hard disk, so that it does not "
        "ask for the CD. Enter the folder that contains I386 (Windows NT 4, 2000 and XP) or the folder with the .cab "
        "files (Windows 95, 98 and Me). An empty field changes nothing.",
    .treeParent = kTreeRoot,
    .page = Page::CheckFields,
    .fields = kSourcePath,
    .note = kSmallRestartOrLogOutNote,
};

// The date is recorded on Windows 95, 98 and Me only.
constexpr KeyPath kRegistration{.root = Root::LocalMachine,
                                .path = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                                .otherOn = kWindows9x,
                                .otherPath = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion"};
constexpr Field kOwner[] = {
    {.label = "Registered Owner:",
     .binding = StringValue{.key = kRegistration, .name = "RegisteredOwner", .whenEmpty = WhenEmpty::WritesNothing}},
    {.label = "Registered Organization:",
     .binding =
         StringValue{.key = kRegistration, .name = "RegisteredOrganization", .whenEmpty = WhenEmpty::WritesNothing}},
};
constexpr Tweak kChangeRegisteredOwnerOrganization = {
    .id = 308,
    .title = "Change the Registered Owner and Organization",
    .description =
        "Changes the name and the company shown on the General page of System and in About boxes, and offered by "
        "many setup programs. Fields left empty keep what is stored.",
    .treeParent = kTreeRoot,
    .page = Page::CheckFields,
    .fields = kOwner,
    .note = kSmallRestartOrLogOutNote,
    .stamp = Stamp::On9xAlone,
    .registry = "An apply is dated on Windows 95, 98 and Me only.",
};

// Every apply turns the window on, and no choice writes "-1".
constexpr KeyPath kDesktop{Root::CurrentUser, "Control Panel\\Desktop"};
constexpr StringChoice coolSwitch(std::string_view name) {
    return {.key = kDesktop, .name = name, .range = {.first = 0, .last = 99}, .initial = 0};
}

constexpr Choice kCoolSwitch[] = {
    {.label = "Number of Columns:", .binding = coolSwitch("CoolSwitchColumns")},
    {.label = "Number of Rows:", .binding = coolSwitch("CoolSwitchRows")},
};
constexpr FixedText kTurnedOn[] = {{kDesktop, "CoolSwitch", "1"}};
constexpr Tweak kConfigureCoolSwitchApplicationSwapping = {
    .id = 309,
    .title = "Configure CoolSwitch Application Swapping",
    .description =
        "Sets how many columns and rows of icons the Alt+Tab window shows. Pick an entry in both lists: a typed "
        "number does not count, and without an entry -1 is stored. Applying the page also turns that window on for "
        "the current user.",
    .treeParent = kTreeRoot,
    .page = Page::CheckCombos,
    .choices = kCoolSwitch,
    .note = kSmallRestartOrLogOutNote,
    .writesFirst = kTurnedOn,
};

constexpr Tweak kReserved = {
    .id = 310,
    .title = "Reserved",
    .description = "This number is kept free for a later setting and does nothing yet.",
};

constexpr const Tweak* kRows[] = {&kChangeLocationSystemSpecialFolders, &kChangeLocationWindowsInstallationFiles,
                                  &kChangeRegisteredOwnerOrganization, &kConfigureCoolSwitchApplicationSwapping,
                                  &kReserved};

}  // namespace

constinit decltype(kTopLevelUnit) kTopLevelUnit{kRows};

}  // namespace korvane
