// The top of System and its single tweaks: 16-bit programs, memory, updates,
// devices and the keyboard. Most of them are not in the tree.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kSystemRows[] = {{262}, {263}, {264}, {267}, {272}};
constexpr Overview kSystemOverview{.rows = kSystemRows};

constexpr Tweak kTweaks[] = {
    {.id = 226,
     .title = "System",
     .description = "Windows System Parameters and Settings",
     .image = 22,
     .treeParent = kTreeRoot,
     .page = Page::Category,
     .overview = &kSystemOverview},
    {.id = 256,
     .title = "Automatic Download of COM Components",
     .description =
         "When a program needs a COM component that is not installed, Windows can look for it in Active Directory "
         "and download it. This only has a use in domains that publish such components; set it for the current "
         "user, for all users or both."},
    {.id = 257,
     .title = "Change Power Management Configuration",
     .description =
         "Selects the power scheme of the current user, as Power Options in Control Panel does, by writing its "
         "number (0 to 5) to the value CurrentPowerPolicy. Choose Portable/Laptop or Max Battery to save power, "
         "Always On for a server."},
    {.id = 258,
     .title = "Change the Library Search Order",
     .description =
         "Programs look for DLL files in several folders. When checked, the system directories come before the "
         "current directory, so that a harmful file placed beside a document is not loaded by mistake. It applies "
         "to the whole computer."},
    {.id = 259,
     .title = "Configure Windows Software Update Services",
     .description =
         "Shows whether this computer gets its updates from a Software Update Services server of the local network "
         "and which addresses it uses for updates and statistics. The page is for viewing only: nothing is changed "
         "when it is applied."},
    {.id = 260,
     .title = "Configuring the Registry Size Limit",
     .description =
         "Windows NT 4 and 2000 limit the total size that the registry may reach in memory. A larger limit helps "
         "on servers with very many users or programs, when Windows warns that the registry is nearly full."},
    {.id = 261,
     .title = "Control Microsoft VM Garbage Collection",
     .description =
         "Concerns the Microsoft virtual machine for Java: how it collects the memory that Java programs no longer "
         "use. Adjusting the collection can help Java programs which pause often or take up more and more memory."},
    {.id = 262,
     .title = "Control the Default Virtual Machine Option",
     .description =
         "Runs each 16-bit Windows program in a virtual machine of its own, so that one which crashes does not "
         "take the others with it. It costs more memory, and programs that share data with each other may need the "
         "common machine.",
     .treeParent = 226},
    {.id = 263,
     .title = "Control the Display of Popup Error Messages",
     .description =
         "Choose whether Windows shows error messages of the system and of applications as popups. Suppress them "
         "on servers where nobody answers. The list does not mark the current setting, and the number stored is "
         "one less than the value shown.",
     .treeParent = 226},
    {.id = 264,
     .title = "Disable the Windows Key",
     .description =
         "Makes both Windows keys do nothing, which prevents accidental switches to the desktop in full-screen "
         "games. It holds for all users, and any other keyboard map of this computer is replaced or, when the box "
         "is cleared, removed.",
     .treeParent = 226},
    {.id = 265,
     .title = "Disable Update Device Driver Wizard",
     .description =
         "Sets the policy value NoDevMgrUpdate, for the current user and for all users, which keeps the update "
         "device driver wizard from looking for newer drivers at Windows Update. Use it where drivers are chosen "
         "by an administrator."},
    {.id = 266,
     .title = "Force Windows to Unload DLLs from Memory",
     .description =
         "Explorer keeps DLL files in memory for a while after they were last used. With this set they are "
         "unloaded at once, which saves memory and helps developers to replace a file. Windows 2000 and later "
         "accept the setting but ignore it."},
    {.id = 267,
     .title = "Hide Computer Management Option",
     .description =
         "Removes the Manage command, which opens Computer Management, from the right-click menu of My Computer "
         "for the current user. It hides the way only: the tool can still be started elsewhere.",
     .treeParent = 226},
    {.id = 268,
     .title = "Improve Core System Performance",
     .description =
         "Keeps the kernel and the drivers in memory by setting DisablePagingExecutive to 1, so that they are "
         "never moved to the page file. Worth trying on computers with plenty of memory; where memory is short it "
         "slows everything else down."},
    {.id = 269,
     .title = "Increase the USB Polling Interval",
     .description =
         "The first USB controller is asked for news every millisecond, which keeps some portable processors from "
         "resting. When checked, it is asked every five milliseconds, so that the battery lasts longer."},
    {.id = 270,
     .title = "Manage Automatic Windows Updates",
     .description =
         "Turns Automatic Updates on or off for this computer and sets whether you are asked before updates are "
         "downloaded and installed, and on which day and hour a scheduled installation takes place. A box without "
         "a choice removes that policy."},
    {.id = 271,
     .title = "Modify the Paged and Non Paged Pool Memory Sizes",
     .description =
         "Sets how much memory Windows reserves for its paged and non-paged pools, from which the kernel and "
         "drivers take their working space. Wrong sizes can keep a computer from starting; leave them to Windows "
         "unless a server runs out of pool memory."},
    {.id = 272,
     .title = "Show Run in Separate Memory Space Option",
     .description =
         "Adds the check box 'Run in Separate Memory Space' to the Run dialog, so that a 16-bit program can be "
         "kept apart from the others when you start it. Offered for the current user and for all users.",
     .treeParent = 226},
};

}  // namespace

constinit const Unit kSystemUnit{kTweaks};

}  // namespace korvane
