// Logging as a machine policy and in the current user's copy of it. The letters
// only inform: checked always writes all of them but the last two.
#include "catalogue/accessories/InstallerLogging.h"

#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr std::string_view kMirroredPolicies = "\\Software";
constexpr std::string_view kLogging = "Logging";
constexpr std::string_view kAllLetters = "voicewarmup";

constexpr TableColumn kColumns[] = {{"Letter", 99}, {"Option", 277}};
constexpr std::string_view kCells[] = {"v", "Verbose output",
                                       "o", "Out-of-disk-space messages",
                                       "i", "Status messages",
                                       "c", "Initial UI parameters",
                                       "e", "All error messages",
                                       "w", "Non-fatal warnings",
                                       "a", "Start up of actions",
                                       "r", "Action-specific records",
                                       "m", "Out-of-memory or fatal exit information",
                                       "u", "User requests",
                                       "p", "Terminal properties",
                                       "+", "Append to existing file",
                                       "!", "Flush each line to the log"};

}  // namespace

constinit const CheckBox kInstallerLoggingBox[1] = {
    {.text = "Check it to a Combination of the Letters below to Enable the Logging Options"},
};

constinit const Table kInstallerLoggingLetters{.columns = kColumns, .cells = kCells};

// Checked when the value can be read in both places.
void showInstallerLogging(PageContext& context) {
    if (context.read(kInstallerPolicy, kLogging) && context.read(kInstallerMirror, kLogging)) {
        context.page.setCheck(IDC_CHECK1, 1);
    }
}

// Clearing removes every mirrored policy of the current user, not only the installer's: meant so.
void applyInstallerLogging(PageContext& context) {
    if (!context.checked(IDC_CHECK1)) {
        context.remove(kInstallerPolicy, kLogging);
        deleteTree(context.platform.registry, kInstallerMirror.root,
                   std::string(kInstallerMirror.path).append(kMirroredPolicies));
        return;
    }
    for (const KeyPath& place : {kInstallerPolicy, kInstallerMirror}) {
        if (const OpenedKey key = context.openForWriting(place)) {
            writeText(context.platform.registry, key, kLogging, kAllLetters);
        }
    }
}

}  // namespace korvane
