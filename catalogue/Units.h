// The catalogue's units: one source file per topic, each a list of tweaks. A new unit is declared here and listed in
// Catalogue.cpp.
#pragma once

#include "pages/Tweak.h"

#include <cstddef>
#include <span>

namespace korvane {

// ItemIds from first to last, both included.
struct IdRange {
    int first;
    int last;
};

// Not defined: what is called here is what the compiler's message about a wrong unit names.
void theUnitsRowsAreNotExactlyItsIdsInOrder();

class Unit {
public:
    // In ItemId order; both lists live as long as the program.
    std::span<const Tweak* const> rows() const { return rows_; }
    constexpr std::span<const IdRange> ids() const { return ids_; }

protected:
    constexpr Unit(std::span<const Tweak* const> rows, std::span<const IdRange> ids) : rows_(rows), ids_(ids) {}

private:
    std::span<const Tweak* const> rows_;
    std::span<const IdRange> ids_;
};

// A unit that has exactly the ItemIds of its ranges: a row that is missing, out of order or in the wrong unit does not
// compile.
template <IdRange... kRanges>
class UnitOf : public Unit {
public:
    static constexpr IdRange kIds[] = {kRanges...};

    template <std::size_t count>
    consteval explicit UnitOf(const Tweak* const (&rows)[count]) : Unit(rows, kIds) {
        std::size_t row = 0;
        for (const IdRange& range : kIds) {
            for (int id = range.first; id <= range.last; ++id, ++row) {
                if (row >= count || rows[row]->id != id || rows[row]->category != (rows[row]->image != kTweakImage)) {
                    theUnitsRowsAreNotExactlyItsIdsInOrder();
                }
            }
        }
        if (row != count) {
            theUnitsRowsAreNotExactlyItsIdsInOrder();
        }
    }
};

extern const UnitOf<IdRange{1, 12}> kCommandProcessorUnit;
extern const UnitOf<IdRange{13, 24}> kDrWatsonUnit;
extern const UnitOf<IdRange{25, 29}> kRegistryEditorUnit;
extern const UnitOf<IdRange{30, 37}> kTaskSchedulerUnit;
extern const UnitOf<IdRange{38, 42}> kWindowsInstallerUnit;
extern const UnitOf<IdRange{0, 0}, IdRange{43, 50}> kOtherAccessoriesUnit;
extern const UnitOf<IdRange{52, 59}> kEffectsAndMenusUnit;
extern const UnitOf<IdRange{60, 67}> kFontsAndIconsUnit;
extern const UnitOf<IdRange{51, 51}, IdRange{68, 77}> kAppearanceUnit;
extern const UnitOf<IdRange{78, 79}, IdRange{81, 82}, IdRange{84, 86}, IdRange{88, 88}, IdRange{92, 94}> kDesktopUnit;
extern const UnitOf<IdRange{80, 80}, IdRange{83, 83}, IdRange{87, 87}, IdRange{89, 91}> kDesktopIconsUnit;
extern const UnitOf<IdRange{96, 102}> kSearchUnit;
extern const UnitOf<IdRange{95, 95}, IdRange{103, 121}> kExplorerUnit;
extern const UnitOf<IdRange{125, 136}> kFilesAndShortcutsUnit;
extern const UnitOf<IdRange{122, 124}, IdRange{137, 154}> kMaintenanceUnit;
extern const UnitOf<IdRange{155, 156}, IdRange{159, 164}, IdRange{166, 167}, IdRange{169, 171}, IdRange{173, 176}>
    kLoginUnit;
extern const UnitOf<IdRange{157, 158}, IdRange{165, 165}, IdRange{168, 168}, IdRange{172, 172}> kAutomaticLoginUnit;
extern const UnitOf<IdRange{178, 186}> kDocumentsAndFoldersUnit;
extern const UnitOf<IdRange{187, 195}> kTaskbarUnit;
extern const UnitOf<IdRange{177, 177}, IdRange{196, 210}> kStartMenuUnit;
extern const UnitOf<IdRange{211, 225}> kStartupAndShutdownUnit;
extern const UnitOf<IdRange{227, 238}> kScriptsUnit;
extern const UnitOf<IdRange{239, 249}> kServicesUnit;
extern const UnitOf<IdRange{250, 255}> kWindowsFileCheckerUnit;
extern const UnitOf<IdRange{226, 226}, IdRange{256, 272}> kSystemUnit;
extern const UnitOf<IdRange{274, 280}> kCrashControlUnit;
extern const UnitOf<IdRange{281, 287}> kLoggingUnit;
extern const UnitOf<IdRange{288, 294}> kRepairUnit;
extern const UnitOf<IdRange{273, 273}, IdRange{295, 305}> kTroubleshootingUnit;
extern const UnitOf<IdRange{306, 310}> kTopLevelUnit;

}  // namespace korvane
