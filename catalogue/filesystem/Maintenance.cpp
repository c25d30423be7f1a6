// The category File System and its tweaks except Files and Shortcuts: caching, disk
// maintenance, NTFS, AutoRun, CD burning and the Recycle Bin.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "catalogue/filesystem/FileSystemKeys.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

#include <vector>

namespace korvane {
namespace {

constexpr Tweak kFileSystem = {
    .id = 122,
    .title = "File System",
    .description = "File System and Storage Enhancements",
    .category = true,
    .image = 13,
    .treeParent = kTreeRoot,
    .page = Page::Category,
};

constexpr int kCachingAndMemoryRows[] = {124};
constexpr Tweak kCachingMemory = {
    .id = 123,
    .title = "Caching and Memory",
    .description = "File System Caching and Memory Settings",
    .category = true,
    .image = 14,
    .page = Page::Category,
    .overview = {.rows = kCachingAndMemoryRows},
};

// No choice writes 0xFFFFFFFF.
constexpr NumberEntry kCacheUses[] = {{"Desktop Computers", 0}, {"Network Servers", 1}};
constexpr Choice kCacheUse[] = {
    {.label = "Optimize System Cache for:",
     .binding = DwordChoice{
         .key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"},
         .name = "LargeSystemCache",
         .entries = kCacheUses}}};
constexpr Tweak kOptimizeSystemCacheSize = {
    .id = 124,
    .title = "Optimize the System Cache Size",
    .description =
        "Chooses what Windows keeps most of the memory for: programs (Desktop Computers) or the file system cache "
        "(Network Servers). The server setting speeds up file sharing but leaves less memory to programs. Choose an "
        "entry before you apply; without one, 0xFFFFFFFF is stored.",
    .page = Page::CheckCombos,
    .choices = kCacheUse,
    .gate = kGateNt,
};

constexpr Tweak kMaintenance = {
    .id = 137,
    .title = "Maintenance",
    .description = "Error Checking and Defragmentation Settings",
    .category = true,
    .image = 16,
    .treeParent = 122,
    .page = Page::Category,
};

constexpr CheckBox kBootOptimization[] = {
    {.text = "Enable Automatic Boot Disk Optimization .",
     .binding = StringFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction"},
                           .name = "Enable",
                           .checked = "Y",
                           .cleared = "N"}}};
constexpr Tweak kAutomaticBootDiskOptimization = {
    .id = 138,
    .title = "Automatic Boot Disk Optimization",
    .description =
        "Lets Windows XP move the files that it needs at startup next to each other on the disk while the computer is "
        "idle. The computer then starts faster; turn it off if you leave this work to another defragmenter.",
    .treeParent = 137,
    .page = Page::Checks,
    .boxes = kBootOptimization,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
};

// The stored number is the index plus 1, so that no choice writes 0.
constexpr NumberEntry kTableZones[] = {{"Small Zone Reservation (Default)", 1},
                                       {"Medium Zone Reservation", 2},
                                       {"Large Zone Reservation", 3},
                                       {"Maximum Zone Reservation", 4}};
constexpr Choice kTableZone[] = {
    {.label = "NTFS Reserves Space for its Master File:",
     .binding = DwordChoice{
         .key = kFileSystemControl, .name = "NtfsMftZoneReservation", .entries = kTableZones, .noneNumber = 0}}};
constexpr Tweak kControlHowNtfsReservesSpaceMaster = {
    .id = 139,
    .title = "Control How NTFS Reserves Space for its Master File Table",
    .description =
        "NTFS keeps part of each drive free for its master file table, so that the table does not get fragmented. "
        "Choose a larger zone for drives with very many small files; other files are stored in it only when the rest "
        "is full.",
    .page = Page::CheckCombos,
    .choices = kTableZone,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
};

constexpr auto kLowDiskSpace =
    ScopePair("Disable Low Disk Space Notification (Current User).", "Disable Low Disk Space Notification (All Users).",
              DwordCheckState{.key = kFileSystemPolicies, .name = "NoLowDiskSpaceChecks"});
constexpr Tweak kDisableLowDiskSpaceNotification = {
    .id = 140,
    .title = "Disable Low Disk Space Notification",
    .description =
        "Stops the warnings that appear when a drive is nearly full, for the current user or for all users. Useful "
        "for small or deliberately filled drives, but then watch the free space yourself.",
    .treeParent = 137,
    .page = Page::Checks,
    .boxes = kLowDiskSpace,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr Choice kAutocheckTimeOut[] = {
    {.label = "The Autocheck Time-out Value\n(Time in Seconds or (0) to disable,(default=10)):",
     .binding = DwordChoice{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager"},
                            .name = "AutoChkTimeOut",
                            .range = {.first = 0, .last = 3600}}}};
constexpr Tweak kModifyingAutocheckTimeOutValue = {
    .id = 141,
    .title = "Modifying the Autocheck Time-out Value",
    .description =
        "Sets how many seconds Windows waits for a key that skips the disk check after an improper shutdown. The "
        "default is 10; with 0 the check starts at once and cannot be skipped. Pick an entry of the list: a typed "
        "number does not count, and without an entry 0xFFFFFFFF is stored.",
    .treeParent = 137,
    .page = Page::CheckCombos,
    .choices = kAutocheckTimeOut,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kDiscAutoRun[] = {
    {.text = "Automatically Start CD-R and DVD-R Disks .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Services\\Cdrom"},
                                .name = "AutoRun"}}};
constexpr Tweak kAutomaticStartCdRDvdR = {
    .id = 142,
    .title = "Automatic Start CD-R and DVD-R Disks",
    .description =
        "Lets Windows notice inserted CDs and DVDs and start them by itself, for all users. Clear it if unknown discs "
        "should not run programs, or if the constant checking of the drive disturbs burning.",
    .treeParent = 122,
    .page = Page::Checks,
    .boxes = kDiscAutoRun,
    .note = kRestartOrLogOutNote,
};

constexpr CheckBox kKeepPermissions[] = {
    {.text = "Force Windows to preserve the current permissions instead.",
     .binding = DwordCheckState{.key = kFileSystemPolicies, .name = "ForceCopyAclwithFile"}}};
constexpr Tweak kChangeCopyMoveNtfsPermission = {
    .id = 143,
    .title = "Change Copy and Move NTFS Permission",
    .description =
        "Lets files that the current user copies or moves with Explorer keep their own NTFS permissions instead of "
        "taking over those of the target folder. Use it when protected files are moved to another place.",
    .page = Page::Checks,
    .boxes = kKeepPermissions,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Tweak kChangeDriveNameIcon = {
    .id = 144,
    .title = "Change Drive Name and Icon",  // Intended: the title of item 106 too.
    .description =
        "Gives a drive letter a name and an icon of its own in Explorer. It makes partitions, card readers and "
        "network drives easier to tell apart without changing the label of the disk.",
};

constexpr Tweak kChangeDefaultDiskUtilities = {
    .id = 145,
    .title = "Change the Default Disk Utilities",
    .description =
        "Names the programs that the Tools page of a drive's properties starts for error checking, defragmenting and "
        "backup. Useful if you have bought disk tools that should be started from there.",
};

// Only the key for all users is created, and the two texts end differently.
constexpr std::string_view kNoBurning = "NoCDBurning";
constexpr CheckBox kBurning[] = {
    {.text = "Disable CD Burning (Current User).",
     .binding = DwordCheckState{.key = kFileSystemPolicies, .name = kNoBurning}},
    {.text = "Disable CD Burning.(All Users)",
     .binding = DwordCheckState{.key = kFileSystemPolicies.under(Root::LocalMachine).madeWhole(), .name = kNoBurning}}};
constexpr Tweak kDisableCdBurning = {
    .id = 146,
    .title = "Disable CD Burning",
    .description =
        "Removes the CD burning functions of Explorer, for the current user or for all users. Separate burning "
        "programs still work; use it if you prefer one of those or if no data should be carried away this way.",
    .treeParent = 122,
    .page = Page::Checks,
    .boxes = kBurning,
    .note = kRestartOrLogOutNote,
    .gate = kGateXp,
};

constexpr CheckBox kLastAccess[] = {
    {.text = "Disable the NTFS Last Access Time Stamp.",
     .binding = DwordCheckState{.key = kFileSystemControl, .name = "NtfsDisableLastAccessUpdate"}}};
constexpr Tweak kDisableNtfsLastAccessTimeStamp = {
    .id = 147,
    .title = "Disable the NTFS Last Access Time Stamp",
    .description =
        "Stops NTFS from noting the time of the last access for each file and folder that is read. Large folders are "
        "read faster, but backup and cleanup programs can no longer tell which files were used lately.",
    .page = Page::Checks,
    .boxes = kLastAccess,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr CheckBox kRecycleBin[] = {
    {.text = "Disable the Recycle Bin .",
     .binding = DwordCheckState{
         .key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\BitBucket"},
         .name = "NukeOnDelete"}}};
constexpr Tweak kDisableRecycleBin = {
    .id = 148,
    .title = "Disable the Recycle Bin",
    .description =
        "Deletes files at once instead of moving them to the Recycle Bin, for all users. It works only while the "
        "Recycle Bin uses one setting for all drives. The space is free immediately, but a file deleted by mistake "
        "cannot be restored.",
    .treeParent = 122,
    .page = Page::Checks,
    .boxes = kRecycleBin,
    .note = kRestartOrLogOutNote,
    .gate = kGateNt,
};

constexpr Tweak kEnable48BitLbaSupportLarge = {
    .id = 149,
    .title = "Enable 48-bit LBA Support or Large Hard Drive",
    .description =
        "Lets Windows use IDE disks larger than 137 GB in full, by 48-bit addresses. The disk controller must support "
        "it, and Windows needs a recent service pack; otherwise data at the end of the disk may be lost.",
};

constexpr Tweak kEnableAdvancedFileSystemSharingSecurity = {
    .id = 150,
    .title = "Enable Advanced File System and Sharing Security",
    .description =
        "Windows XP can share folders in a simple way, in which everybody on the network acts as a guest. Turning "
        "this off brings back the Security page and permissions for single users and groups.",
};

constexpr CheckBox kEncryption[] = {
    {.text = "Disable The Encrypting File System .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\EFS"},
                                .name = "EfsConfiguration"}}};
constexpr Tweak kManageEncryptingFileSystem = {
    .id = 151,
    .title = "Manage the Encrypting File System",
    .description =
        "Turns the Encrypting File System off or on for the whole computer. Without it nobody can encrypt files, nor "
        "lose them along with a key; files that are already encrypted cannot be opened while it is off.",
    .page = Page::Checks,
    .boxes = kEncryption,
    .note = kRestartOrLogOutNote,
    .gate = kGate2000Xp,
};

constexpr Tweak kSelectDriveTypesStartAutomatically = {
    .id = 153,
    .title = "Select the Drive Types to Start Automatically",
    .description =
        "Sets the kinds of drives, such as CD-ROM, network or removable drives, that may start the programs on a disk "
        "by themselves. Restricting it protects against unwanted programs on unknown disks.",
};

constexpr CheckBox kNameCase[] = {
    {.text = "Show File and Folder Names Using the Correct Case .",
     .binding =
         DwordCheckState{.key = {Root::CurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"},
                         .name = "DontPrettyPath"}}};
constexpr Tweak kShowFileFolderNamesUsingCorrect = {
    .id = 154,
    .title = "Show File and Folder Names Using the Correct Case",
    .description =
        "Shows file and folder names that are all in capital letters exactly as they were typed, for the current "
        "user. Without it Explorer writes them with one capital letter and the rest small.",
    .page = Page::Checks,
    .boxes = kNameCase,
    .note = kRestartOrLogOutNote,
    .gate = kGateNotNt4,
};

// A row for each drive that is not removable, and always one for A: and one for ALL.
constexpr TableColumn kDriveColumns[] = {{"Drive", 372}};
constexpr Table kDriveList{.columns = kDriveColumns};
constexpr std::uint32_t kRemovable = 2;
constexpr std::uint32_t kAllDrives = 0x3FFFFFF;
constexpr std::string_view kAllRow = "ALL";
// 0 if this is not the root of a drive that gets a row. Intended: B: never gets one.
std::uint32_t driveBit(std::string_view root) {
    const bool drive = root.size() == 3 && root[0] >= 'A' && root[0] <= 'Z' && root.substr(1) == ":\\";
    return drive && root[0] != 'B' ? std::uint32_t{1} << (root[0] - 'A') : 0;
}

void showDrives(PageContext& context) {
    int row = 0;
    const auto addRow = [&](std::string_view text) { context.page.insertRow(IDC_CHECK_LIST, row++, text); };
    addRow("A:\\");
    for (const Drive& drive : context.platform.folders.logicalDrives()) {
        if (driveBit(drive.root) > 1 && drive.driveType != kRemovable) {
            addRow(drive.root);
        }
    }
    addRow(kAllRow);
}

// A row is identified by its text, so that a drive that appears or disappears while the page is open does no harm.
// Intended: the bits are added, not combined by OR, so that ALL together with a drive carries into bit 26.
void applyDrives(PageContext& context) {
    std::uint32_t sum = 0;
    for (int row = 0; row < context.page.rowCount(IDC_CHECK_LIST); ++row) {
        const std::string text = context.page.rowText(IDC_CHECK_LIST, row);
        const std::uint32_t bits = text == kAllRow ? kAllDrives : driveBit(text);
        sum += context.page.rowCheck(IDC_CHECK_LIST, row) ? bits : 0;
    }
    if (const OpenedKey key = context.openForWriting(kFileSystemPolicies)) {
        writeNumber(context.platform.registry, key, "NoDriveAutoRun", sum);
    }
}

constexpr Tweak kSelectDiskDrivesStartAutomatically = {
    .id = 152,
    .title = "Select the Disk Drives to Start Automatically",
    .description =
        "Sets the drives on which AutoRun is switched off for the current user: checked drives no longer start "
        "inserted disks, all others may. The list does not show what is stored, so check every drive you mean, or "
        "only the row ALL.",
    .page = Page::CheckList,
    .table = &kDriveList,
    .show = showDrives,
    .apply = applyDrives,
    .registry =
        "`NoDriveAutoRun` (REG_DWORD) in `HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer` "
        "(opened) becomes the sum of the checked rows: 1 for A:, 4 for C:, twice as much for each further letter, "
        "`0x3FFFFFF` for ALL. The stored number is not shown.",
};

constexpr const Tweak* kRows[] = {&kFileSystem, &kCachingMemory, &kOptimizeSystemCacheSize, &kMaintenance,
                                  &kAutomaticBootDiskOptimization, &kControlHowNtfsReservesSpaceMaster,
                                  &kDisableLowDiskSpaceNotification, &kModifyingAutocheckTimeOutValue,
                                  &kAutomaticStartCdRDvdR, &kChangeCopyMoveNtfsPermission, &kChangeDriveNameIcon,
                                  &kChangeDefaultDiskUtilities, &kDisableCdBurning, &kDisableNtfsLastAccessTimeStamp,
                                  &kDisableRecycleBin, &kEnable48BitLbaSupportLarge,
                                  &kEnableAdvancedFileSystemSharingSecurity, &kManageEncryptingFileSystem,
                                  &kSelectDiskDrivesStartAutomatically, &kSelectDriveTypesStartAutomatically,
                                  &kShowFileFolderNamesUsingCorrect};

}  // namespace

constinit decltype(kMaintenanceUnit) kMaintenanceUnit{kRows};

}  // namespace korvane
