// The units of the catalogue: one source file per topic, each a list of tweaks in
// ItemId order. A new unit is declared here and listed in Catalogue.cpp.
#pragma once

#include "pages/Tweak.h"

#include <span>

namespace korvane {

using Unit = std::span<const Tweak>;

extern const Unit kCommandProcessorUnit;
extern const Unit kDrWatsonUnit;
extern const Unit kRegistryEditorUnit;
extern const Unit kTaskSchedulerUnit;
extern const Unit kWindowsInstallerUnit;
extern const Unit kOtherAccessoriesUnit;
extern const Unit kEffectsAndMenusUnit;
extern const Unit kFontsAndIconsUnit;
extern const Unit kAppearanceUnit;
extern const Unit kDesktopUnit;
extern const Unit kSearchUnit;
extern const Unit kExplorerUnit;
extern const Unit kFilesAndShortcutsUnit;
extern const Unit kMaintenanceUnit;
extern const Unit kLoginUnit;
extern const Unit kDocumentsAndFoldersUnit;
extern const Unit kTaskbarUnit;
extern const Unit kStartMenuUnit;
extern const Unit kStartupAndShutdownUnit;
extern const Unit kScriptsUnit;
extern const Unit kServicesUnit;
extern const Unit kWindowsFileCheckerUnit;
extern const Unit kSystemUnit;
extern const Unit kTopLevelUnit;
extern const Unit kCrashControlUnit;
extern const Unit kLoggingUnit;
extern const Unit kRepairUnit;
extern const Unit kTroubleshootingUnit;

}  // namespace korvane
