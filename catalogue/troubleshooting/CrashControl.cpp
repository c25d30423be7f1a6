// The Crash Control tweaks: what Windows writes and whom it tells when the
// system stops with an error.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kCrashControlRows[] = {{275}, {277}, {278}, {279}, {280}};
constexpr Overview kCrashControlOverview{.rows = kCrashControlRows};

constexpr Tweak kTweaks[] = {
    {.id = 274,
     .title = "Crash Control",
     .description = "Settings to manage system errors and restoration",
     .image = 27,
     .treeParent = 273,
     .page = Page::Category,
     .overview = &kCrashControlOverview},
    {.id = 275,
     .title = "Control the Dump Creation Method",
     .description =
         "Decides what becomes of the memory dump of an earlier crash when the system crashes again. Overwrite "
         "replaces it with the new one; with Append the existing file is not overwritten.",
     .treeParent = 274},
    {.id = 276,
     .title = "Control Whether Windows Logs a System Crash",
     .description =
         "Writes an entry to the system event log whenever Windows stops with an error, so that an administrator "
         "can see later when and with which code it happened."},
    {.id = 277,
     .title = "Create a System Crash Dump File",
     .description =
         "Chooses how much memory Windows writes to a file when it stops with an error: nothing, everything, the "
         "kernel memory or a small dump. Support staff need a dump to find the cause; a complete one is as large "
         "as the memory.",
     .treeParent = 274},
    {.id = 278,
     .title = "Send Administrative Alerts of System Crashes",
     .description =
         "Sends a message to the administrators over the network when the system stops with an error, so that a "
         "crashed server is noticed quickly. The alerts have to be set up on the computer, with the Alerter "
         "service running.",
     .treeParent = 274},
    {.id = 279,
     .title = "Specify the Small Memory Dump Directory",
     .description =
         "Names the folder in which Windows keeps its small memory dumps, one file for each crash. An empty field "
         "leaves the present folder as it is.",
     .treeParent = 274},
    {.id = 280,
     .title = "Specify the System Crash Dump File Location",
     .description =
         "Names the file to which Windows writes a kernel or complete memory dump after a crash. Move it to "
         "another drive if the system drive has too little room; an empty field leaves the present file as it is.",
     .treeParent = 274},
};

}  // namespace

constinit const Unit kCrashControlUnit{kTweaks};

}  // namespace korvane
