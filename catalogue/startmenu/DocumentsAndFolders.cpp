// The Documents and Folders tweaks: the list of recent documents, and which
// folders the Start menu opens as cascading menus.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kDocumentsAndFoldersRows[] = {{180}, {181}, {182}, {183}, {184}, {185}};
constexpr Overview kDocumentsAndFoldersOverview{.rows = kDocumentsAndFoldersRows};

constexpr Tweak kTweaks[] = {
    {.id = 178,
     .title = "Documents and Folders",
     .description = "Manage Documents and Folders on the Start Menu",
     .image = 19,
     .treeParent = 177,
     .page = Page::Category,
     .overview = &kDocumentsAndFoldersOverview},
    {.id = 179,
     .title = "Change the Number of Recent Documents Displayed",
     .description =
         "Controls how many documents the recent documents list of the Start menu may hold, for the current user "
         "and for all users. Windows shows 15 if nothing is set; an empty field goes back to that."},
    {.id = 180,
     .title = "Clear Recent Documents When Windows Exits",
     .description =
         "Empties the list of recently used documents each time you log off or shut down, so that nobody can see "
         "from the Start menu what you worked on. It can be switched on for the current user and for all users.",
     .treeParent = 178},
    {.id = 181,
     .title = "Hide Start Menu Subfolders",
     .description =
         "Hides the folders that were dragged into the Start menu and keeps its upper part short; single shortcuts "
         "remain. It is meant for administrators who give users a Start menu of fixed contents.",
     .treeParent = 178},
    {.id = 182,
     .title = "Show Cascading Control Panel Items",
     .description =
         "Opens the Control Panel as a cascading menu, so that each of its items can be started from the Start "
         "menu directly. Unchecked, the entry is hidden; a plain link can be had with 'View Enhanced Start Menu "
         "Folders'.",
     .treeParent = 178},
    {.id = 183,
     .title = "Show Cascading My Documents Folder",
     .description =
         "Lists the files in My Documents as a cascading menu on the Start menu, which saves opening the folder "
         "first. When you clear the box, My Documents disappears from the Start menu altogether.",
     .treeParent = 178},
    {.id = 184,
     .title = "Show Cascading My Pictures Folder",
     .description =
         "With this on, the My Pictures entry of the Start menu unfolds into the pictures and folders inside it. "
         "Clearing the box takes the entry off the Start menu.",
     .treeParent = 178},
    {.id = 185,
     .title = "Show Cascading Network Connections",
     .description =
         "Unfolds Network Connections on the Start menu, so that a dial-up or network connection can be picked "
         "without opening its folder. Unchecked, Network Connections is not shown there at all.",
     .treeParent = 178},
    {.id = 186,
     .title = "Show Cascading Printers Folder",
     .description =
         "The installed printers appear as a cascading menu on the Start menu, which makes their queues quick to "
         "reach. Without the check mark the Printers entry is hidden."},
};

}  // namespace

constinit const Unit kDocumentsAndFoldersUnit{kTweaks};

}  // namespace korvane
