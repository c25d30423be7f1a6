// The Registry Editor items: restrictions and repairs of regedit and of remote
// access to the registry. They only have texts in the item table; none of them has
// a page.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr Tweak kRegistryEditor = {
    .id = 25,
    .title = "Registry Editor",
    .description = "Settings to manage the Windows Registry Editor",
    .category = true,
    .image = 4,
};

constexpr Tweak kAvoidAccidentalRegistryImportsRegedit = {
    .id = 26,
    .title = "Avoid Accidental Registry Imports with Regedit",
    .description =
        "A double-click on a registration file (.reg) normally adds its contents to the registry. With Edit instead "
        "of Merge as the default action, the file opens as text, and only the menu command Merge imports it.",
};

constexpr Tweak kDisableRegistryEditingTools = {
    .id = 27,
    .title = "Disable Registry Editing Tools",
    .description =
        "Prevents a user from starting the registry editing tools regedit and regedt32. It protects shared computers "
        "from careless changes, but other programs can still change the registry.",
};

constexpr Tweak kRepareRegistryEditor = {
    .id = 28,
    .title = "Repare The Registry Editor",  // Intended: spelled so.
    .description =
        "The Registry Editor remembers its window position, its column widths and the key opened last. If its columns "
        "vanish or its window opens in the wrong place, deleting the remembered view brings the standard appearance "
        "back.",
};

constexpr Tweak kSpecifyAnonymousRemoteRegistryAccess = {
    .id = 29,
    .title = "Specify Anonymous Remote Registry Access",
    .description =
        "Lists the registry keys that can be reached over the network even by accounts, anonymous ones included, to "
        "which remote access to the registry is otherwise closed. A shorter list is safer, but services such as "
        "printing may depend on its entries.",
};

constexpr const Tweak* kRows[] = {&kRegistryEditor, &kAvoidAccidentalRegistryImportsRegedit,
                                  &kDisableRegistryEditingTools, &kRepareRegistryEditor,
                                  &kSpecifyAnonymousRemoteRegistryAccess};

}  // namespace

constinit decltype(kRegistryEditorUnit) kRegistryEditorUnit{kRows};

}  // namespace korvane
