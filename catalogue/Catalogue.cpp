// The list of all units, by group.
#include "catalogue/Catalogue.h"

#include <algorithm>
#include <array>

namespace korvane {

// Not defined: what is called here is what the compiler's message about a wrong list of units names.
void theGroupsUnitsDoNotHaveEachOfItsIdsOnce();
void anItemIdIsInNoUnitOrInTwo();

namespace {

// The last ItemId that belongs to a group by its number.
constexpr int kLastGroupedId = 310;

// A group's units, which must have each of the ItemIds from first to last once, and may have later ones.
template <std::size_t count>
struct GroupUnits {
    IdRange ids;
    std::array<const Unit*, count> units;
    std::array<int, kItemCount> uses{};

    template <typename... UnitTypes>
    consteval explicit GroupUnits(IdRange range, const UnitTypes&... members) : ids(range), units{&members...} {
        (countUses(UnitTypes::kIds), ...);
        for (int id = 0; id <= kLastGroupedId; ++id) {
            if (uses[static_cast<std::size_t>(id)] != (id >= ids.first && id <= ids.last ? 1 : 0)) {
                theGroupsUnitsDoNotHaveEachOfItsIdsOnce();
            }
        }
    }

private:
    consteval void countUses(std::span<const IdRange> ranges) {
        for (const IdRange& range : ranges) {
            for (int id = range.first; id <= range.last; ++id) {
                ++uses[static_cast<std::size_t>(id)];
            }
        }
    }
};

template <typename... UnitTypes>
GroupUnits(IdRange, const UnitTypes&...) -> GroupUnits<sizeof...(UnitTypes)>;

constexpr GroupUnits kAccessories({0, 50}, kCommandProcessorUnit, kDrWatsonUnit, kRegistryEditorUnit,
                                  kTaskSchedulerUnit, kWindowsInstallerUnit, kOtherAccessoriesUnit);
constexpr GroupUnits kAppearance({51, 77}, kEffectsAndMenusUnit, kFontsAndIconsUnit, kAppearanceUnit);
constexpr GroupUnits kDesktop({78, 94}, kDesktopUnit, kDesktopIconsUnit);
constexpr GroupUnits kExplorer({95, 121}, kSearchUnit, kExplorerUnit);
constexpr GroupUnits kFileSystem({122, 154}, kFilesAndShortcutsUnit, kMaintenanceUnit);
constexpr GroupUnits kLogin({155, 176}, kLoginUnit, kAutomaticLoginUnit);
constexpr GroupUnits kStartMenu({177, 210}, kDocumentsAndFoldersUnit, kTaskbarUnit, kStartMenuUnit);
constexpr GroupUnits kStartup({211, 225}, kStartupAndShutdownUnit);
constexpr GroupUnits kSystem({226, 272}, kScriptsUnit, kServicesUnit, kWindowsFileCheckerUnit, kSystemUnit);
constexpr GroupUnits kTroubleshooting({273, 305}, kCrashControlUnit, kLoggingUnit, kRepairUnit, kTroubleshootingUnit);
// The reserved record 310 is kept with the tweaks that have no category.
constexpr GroupUnits kTopLevel({306, 310}, kTopLevelUnit);

constexpr CatalogueGroup kGroups[] = {
    {"Accessories", kAccessories.units},
    {"Appearance", kAppearance.units},
    {"Desktop", kDesktop.units},
    {"Explorer", kExplorer.units},
    {"File System", kFileSystem.units},
    {"Login and Authentication", kLogin.units},
    {"Start Menu and Taskbar", kStartMenu.units},
    {"Start up and Shutdown", kStartup.units},
    {"System", kSystem.units},
    {"Troubleshooting", kTroubleshooting.units},
    {"Top level", kTopLevel.units},
};

consteval bool everyIdIsInOneUnit(const auto&... groups) {
    for (std::size_t id = 0; id < kItemCount; ++id) {
        if ((groups.uses[id] + ...) != 1) {
            anItemIdIsInNoUnitOrInTwo();
        }
    }
    return true;
}
static_assert(everyIdIsInOneUnit(kAccessories, kAppearance, kDesktop, kExplorer, kFileSystem, kLogin, kStartMenu,
                                 kStartup, kSystem, kTroubleshooting, kTopLevel));

// One pointer per ItemId, filled on first use.
const std::array<const Tweak*, kItemCount>& table() {
    static const auto made = [] {
        std::array<const Tweak*, kItemCount> rows{};
        for (const CatalogueGroup& group : kGroups) {
            for (const Unit* unit : group.units) {
                for (const Tweak* tweak : unit->rows()) {
                    rows[static_cast<std::size_t>(tweak->id)] = tweak;
                }
            }
        }
        return rows;
    }();
    return made;
}

}  // namespace

bool CatalogueGroup::owns(int id) const {
    return std::ranges::any_of(units, [id](const Unit* unit) {
        return std::ranges::any_of(unit->ids(),
                                   [id](const IdRange& range) { return id >= range.first && id <= range.last; });
    });
}

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
