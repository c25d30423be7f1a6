// The tweaks that stand in the tree below no category: folder locations, the
// registered owner and the Alt+Tab window. The last number is kept in reserve.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr Tweak kTweaks[] = {
    {.id = 306,
     .title = "Change the Location of System and Special Folders",
     .description =
         "Tells Windows where the current user keeps cookies, desktop, favorites, temporary Internet files and "
         "documents, for example on another drive. Existing files are not moved: copy them yourself. An empty "
         "field leaves its folder unchanged.",
     .treeParent = kTreeRoot},
    {.id = 307,
     .title = "Change the Location of Windows Installation Files",
     .description =
         "Windows asks for its CD in the place from which it was installed. Enter the folder or drive where the "
         "installation files are now, such as a copy on the hard disk; an empty field changes nothing.",
     .treeParent = kTreeRoot},
    {.id = 308,
     .title = "Change the Registered Owner and Organization",
     .description =
         "Changes the name and the company shown on the General page of System and in About boxes, and offered by "
         "many setup programs. Fields left empty keep what is stored.",
     .treeParent = kTreeRoot},
    {.id = 309,
     .title = "Configure CoolSwitch Application Swapping",
     .description =
         "Sets how many columns and rows of icons the window shows that appears when you switch between programs "
         "with Alt+Tab. Applying the page also turns that window on for the current user.",
     .treeParent = kTreeRoot},
    {.id = 310,
     .title = "Reserved",
     .description = "This number is kept free for a later setting and does nothing yet."},
};

}  // namespace

constinit const Unit kTopLevelUnit{kTweaks};

}  // namespace korvane
