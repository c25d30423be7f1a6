// The File System category and all its tweaks but those of files and shortcuts:
// caching, upkeep of disks and NTFS, discs that start by themselves, burning and
// the Recycle Bin.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kFileSystemRows[] = {{142}, {146}, {148}};
constexpr Overview kFileSystemOverview{.rows = kFileSystemRows};

constexpr OverviewRow kCachingAndMemoryRows[] = {{124}};
constexpr Overview kCachingAndMemoryOverview{.rows = kCachingAndMemoryRows};

constexpr OverviewRow kMaintenanceRows[] = {{138}, {140}, {141}};
constexpr Overview kMaintenanceOverview{.rows = kMaintenanceRows};

constexpr Tweak kTweaks[] = {
    {.id = 122,
     .title = "File System",
     .description = "File System and Storage Enhancements",
     .image = 13,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kFileSystemOverview},
    {.id = 123,
     .title = "Caching and Memory",
     .description = "File System Caching and Memory Settings",
     .image = 14,
     .page = Page::Category,
     .overview = &kCachingAndMemoryOverview},
    {.id = 124,
     .title = "Optimize the System Cache Size",
     .description =
         "Chooses what most of the memory is kept for: programs on desktop computers, or the cache of the file system "
         "on network servers. The server setting speeds up file sharing but leaves less memory to programs."},
    {.id = 137,
     .title = "Maintenance",
     .description = "Error Checking and Defragmentation Settings",
     .image = 16,
     .treeParent = 122,
     .page = Page::Category,
     .overview = &kMaintenanceOverview},
    {.id = 138,
     .title = "Automatic Boot Disk Optimization",
     .description =
         "Lets Windows XP move the files that it needs at startup next to each other on the disk while the computer is "
         "idle. The computer then starts faster; turn it off if you leave this work to another defragmenter.",
     .treeParent = 137},
    {.id = 139,
     .title = "Control How NTFS Reserves Space for its Master File Table",
     .description =
         "NTFS keeps part of each drive free for its master file table, so that the table does not get fragmented. "
         "Choose a larger zone for drives with very many small files; other files are stored in it only when the rest "
         "is full."},
    {.id = 140,
     .title = "Disable Low Disk Space Notification",
     .description =
         "Stops the warnings that appear when a drive is nearly full, for the current user or for all users. Useful "
         "for small or deliberately filled drives, but then watch the free space yourself.",
     .treeParent = 137},
    {.id = 141,
     .title = "Modifying the Autocheck Time-out Value",
     .description =
         "Sets how many seconds Windows waits for a key to skip the disk check that follows an improper shutdown. The "
         "usual value is 10; 0 starts the check at once and leaves no chance to skip it.",
     .treeParent = 137},
    {.id = 142,
     .title = "Automatic Start CD-R and DVD-R Disks",
     .description =
         "Lets Windows notice inserted CDs and DVDs and start them by itself, for all users. Clear it if unknown discs "
         "should not run programs, or if the constant checking of the drive disturbs burning.",
     .treeParent = 122},
    {.id = 143,
     .title = "Change Copy and Move NTFS Permission",
     .description =
         "Lets files that the current user copies or moves with Explorer keep their own NTFS permissions instead of "
         "taking over those of the target folder. Use it when protected files are moved to another place."},
    {.id = 144,
     .title = "Change Drive Name and Icon",  // same title as record 106, on purpose
     .description =
         "Gives a drive letter a name and an icon of its own in Explorer. It makes partitions, card readers and "
         "network drives easier to tell apart without changing the label of the disk."},
    {.id = 145,
     .title = "Change the Default Disk Utilities",
     .description =
         "Names the programs that the Tools page of a drive's properties starts for error checking, defragmenting and "
         "backup. Useful if you have bought disk tools that should be started from there."},
    {.id = 146,
     .title = "Disable CD Burning",
     .description =
         "Removes the CD burning functions of Explorer, for the current user or for all users. Separate burning "
         "programs still work; use it if you prefer one of those or if no data should be carried away this way.",
     .treeParent = 122},
    {.id = 147,
     .title = "Disable the NTFS Last Access Time Stamp",
     .description =
         "Stops NTFS from noting the time of the last access for each file and folder that is read. Large folders are "
         "read faster, but backup and cleanup programs can no longer tell which files were used lately."},
    {.id = 148,
     .title = "Disable the Recycle Bin",
     .description =
         "Deletes files at once instead of moving them to the Recycle Bin, for all users, as long as all drives share "
         "one setting. It frees the space immediately, but a file deleted by mistake cannot be fetched back.",
     .treeParent = 122},
    {.id = 149,
     .title = "Enable 48-bit LBA Support or Large Hard Drive",
     .description =
         "Lets Windows use IDE disks larger than 137 GB in full, by 48-bit addresses. The disk controller must support "
         "it, and Windows needs a recent service pack; otherwise data at the end of the disk may be lost."},
    {.id = 150,
     .title = "Enable Advanced File System and Sharing Security",
     .description =
         "Windows XP can share folders in a simple way, in which everybody on the network acts as a guest. Turning "
         "this off brings back the Security page and permissions for single users and groups."},
    {.id = 151,
     .title = "Manage the Encrypting File System",
     .description =
         "Turns the Encrypting File System off or on for the whole computer. Without it nobody can encrypt files, nor "
         "lose them along with a key; files that are already encrypted cannot be opened while it is off."},
    {.id = 152,
     .title = "Select the Disk Drives to Start Automatically",
     .description =
         "Sets the drives on which AutoRun is switched off for the current user: checked drives no longer start "
         "inserted disks, all others may. The list does not show what is stored, so check every drive you mean, or "
         "only the row ALL."},
    {.id = 153,
     .title = "Select the Drive Types to Start Automatically",
     .description =
         "Sets the kinds of drives, such as CD-ROM, network or removable drives, that may start the programs on a disk "
         "by themselves. Restricting it protects against unwanted programs on unknown disks."},
    {.id = 154,
     .title = "Show File and Folder Names Using the Correct Case",
     .description =
         "Shows file and folder names that are all in capital letters exactly as they were typed, for the current "
         "user. Without it Explorer writes them with one capital letter and the rest small."},
};

}  // namespace

constinit const Unit kMaintenanceUnit{kTweaks};

}  // namespace korvane
