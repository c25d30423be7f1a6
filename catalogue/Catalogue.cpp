// The list of all units, by group.
#include "catalogue/Catalogue.h"

#include <array>

namespace korvane {
namespace {

constexpr const Unit* kAccessories[] = {&kCommandProcessorUnit, &kDrWatsonUnit,         &kRegistryEditorUnit,
                                        &kTaskSchedulerUnit,    &kWindowsInstallerUnit, &kOtherAccessoriesUnit};
constexpr const Unit* kAppearance[] = {&kEffectsAndMenusUnit, &kFontsAndIconsUnit, &kAppearanceUnit};
constexpr const Unit* kDesktop[] = {&kDesktopUnit};
constexpr const Unit* kExplorer[] = {&kSearchUnit, &kExplorerUnit};
constexpr const Unit* kFileSystem[] = {&kFilesAndShortcutsUnit, &kMaintenanceUnit};
constexpr const Unit* kLogin[] = {&kLoginUnit};
constexpr const Unit* kStartMenu[] = {&kDocumentsAndFoldersUnit, &kTaskbarUnit, &kStartMenuUnit};
constexpr const Unit* kStartup[] = {&kStartupAndShutdownUnit};
constexpr const Unit* kSystem[] = {&kScriptsUnit, &kServicesUnit, &kWindowsFileCheckerUnit, &kSystemUnit};
constexpr const Unit* kTroubleshooting[] = {&kCrashControlUnit, &kLoggingUnit, &kRepairUnit, &kTroubleshootingUnit};
constexpr const Unit* kTopLevel[] = {&kTopLevelUnit};

constexpr CatalogueGroup kGroups[] = {
    {"Accessories", 0, 50, kAccessories},
    {"Appearance", 51, 77, kAppearance},
    {"Desktop", 78, 94, kDesktop},
    {"Explorer", 95, 121, kExplorer},
    {"File System", 122, 154, kFileSystem},
    {"Login and Authentication", 155, 176, kLogin},
    {"Start Menu and Taskbar", 177, 210, kStartMenu},
    {"Start up and Shutdown", 211, 225, kStartup},
    {"System", 226, 272, kSystem},
    {"Troubleshooting", 273, 305, kTroubleshooting},
    // The reserved item 310 is kept with the tweaks that have no category.
    {"Top level", 306, 310, kTopLevel},
};

// One pointer per ItemId, filled on first use.
const std::array<const Tweak*, kItemCount>& table() {
    static const auto made = [] {
        std::array<const Tweak*, kItemCount> rows{};
        for (const CatalogueGroup& group : kGroups) {
            for (const Unit* unit : group.units) {
                for (const Tweak& tweak : *unit) {
                    rows[static_cast<std::size_t>(tweak.id)] = &tweak;
                }
            }
        }
        return rows;
    }();
    return made;
}

}  // namespace

std::span<const CatalogueGroup> catalogueGroups() { return kGroups; }

const Tweak* findTweak(int id) { return id < 0 || id >= kItemCount ? nullptr : table()[static_cast<std::size_t>(id)]; }

std::vector<int> overviewItems(const Tweak& category) {
    const std::span<const int> own = category.overview.rows;
    std::vector<int> items(own.begin(), own.end());
    for (int id = 0; own.empty() && id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        if (tweak.treeParent == category.id && !tweak.isCategory()) {
            items.push_back(id);
        }
    }
    return items;
}

}  // namespace korvane
