// What single items show of a stored value, and what pressing the button without a change makes of it: the numbers and
// texts that are not what their controls suggest.
#include "tests/catalogue/TweakCases.h"

#include <vector>

namespace korvane {
namespace {

class StoredValues : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, StoredValues, ::testing::ValuesIn(programKinds()), kindName);

struct Case {
    std::string before;  // data; empty: there is no value
    int shown;           // check state or selected entry
    std::string after;
};
struct Item {
    int id;
    std::string key;
    std::string name;
    std::vector<Case> cases;
    int control = 0;  // 0: the first box, or the first combo box on a page without boxes
};

const std::string kNone = dword(0xFFFFFFFF);
const std::string kInterpreter = user("Software\\Microsoft\\Command Processor");
const std::string kFileSystem = machine("SYSTEM\\CurrentControlSet\\Control\\FileSystem");
const std::string kSessions = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
const std::string kMemory = machine(kSessions + "\\Memory Management");
const std::string kOle = machine("SOFTWARE\\Microsoft\\Ole");
const std::string kServices = "SYSTEM\\CurrentControlSet\\Services\\";
const std::string kTime = machine(kServices + "W32Time\\Parameters");
const std::string kUsb =
    machine("SYSTEM\\CurrentControlSet\\Control\\Class\\{36FC9E60-C465-11CF-8056-444553540000}\\0000");
const std::string kBoot = machine("SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction");
const std::string kMessenger = user("Software\\Microsoft\\MessengerService");
const std::string kKeyboard = machine("SYSTEM\\CurrentControlSet\\Control\\Keyboard Layout");
const std::string kNoCapsLock = "hex:00,00,00,00,00,00,00,00,02,00,00,00,00,00,3a,00,00,00,00,00";
const std::string kNoWindowsKeys = "hex:00,00,00,00,00,00,00,00,03,00,00,00,00,00,5b,e0,00,00,5c,e0,00,00,00,00";

const Item kItems[] = {
    {6, kInterpreter, "EnableExtensions", {{"", 0, dword(1)}, {dword(0), 1, dword(0)}, {dword(5), 0, dword(1)}}},
    // 0 is not "Disable".
    {8, kInterpreter, "CompletionChar", {{"", -1, kNone}, {dword(4), 3, dword(4)}, {dword(0), -1, kNone}}},
    {10, kInterpreter, "PathCompletionChar", {{dword(9), 2, dword(9)}, {dword(0x40), -1, kNone}}},
    {72, user(kExplorer), "ThumbnailSize", {{dword(31), 64, dword(96)}, {dword(32), 0, dword(32)}}},
    {72, user(kExplorer), "ThumbnailSize", {{dword(256), 224, dword(256)}, {dword(257), 64, dword(96)}}},
    {72, user(kExplorer), "ThumbnailQuality", {{dword(49), 40, dword(90)}, {dword(100), 50, dword(100)}}, IDC_COMBO2},
    {124, kMemory, "LargeSystemCache", {{"", -1, kNone}, {dword(1), 1, dword(1)}}},
    {126, user(kExplorerPolicies), "NoResolveSearch", {{dword(2), 1, dword(1)}}},
    {127, kFileSystem, "Win31FileSystem", {{"", 0, dword(0)}, {dword(2), -1, kNone}}},
    {131, kFileSystem, "Win95TruncatedExtensions", {{"", 0, dword(1)}, {dword(0), 1, dword(0)}}},
    {133, user(kExplorer), "link", {{"hex:00,00,00,00,05", 1, "hex:00,00,00,00"}, {dword(0), 1, "hex:00,00,00,00"}}},
    {133, user(kExplorer), "link", {{"hex:00,00,00,01", 0, ""}}},
    {138, kBoot, "Enable", {{sz("Y"), 1, sz("Y")}, {sz("y"), 0, sz("N")}, {sz("Yes"), 0, sz("N")}}},
    // Zones count from one; without a choice 0 is written, which is no zone at all.
    {139, kFileSystem, "NtfsMftZoneReservation", {{"", -1, dword(0)}, {dword(1), 0, dword(1)}}},
    {139, kFileSystem, "NtfsMftZoneReservation", {{dword(4), 3, dword(4)}, {dword(5), -1, dword(0)}}},
    {141, machine(kSessions), "AutoChkTimeOut", {{"", -1, kNone}, {dword(3600), 3600, dword(3600)}}},
    {141, machine(kSessions), "AutoChkTimeOut", {{dword(3601), -1, kNone}}},
    // Two items write the same value, one as a text for the opposite of its box, one as a number.
    {158, kWinlogon, "ForceAutoLogon", {{"", 1, ""}, {sz("1"), 0, sz("1")}, {sz("0"), 1, ""}}, IDC_CHECK2},
    {158, kWinlogon, "ForceAutoLogon", {{dword(1), 1, ""}}, IDC_CHECK2},
    {168, kWinlogon, "ForceAutoLogon", {{sz("1"), 1, dword(1)}}},
    {159, login(kDesktop), "ScreenSaveActive", {{"", 0, sz("0")}, {sz(" 1x"), 1, sz("1")}, {sz("2"), 1, sz("1")}}},
    {159, login(kDesktop), "ScreenSaveActive", {{sz("yes"), 0, sz("0")}}},
    {160, kWinlogon, "LogonType", {{"", -1, kNone}}},
    {164, kMessenger, "PassportBalloon", {{"hex:0a", 1, "hex:0a,00,00,00"}}},
    {164, kMessenger, "PassportBalloon", {{"", 0, "hex:01,00,00,00"}, {"hex:0a,01,00,00", 0, "hex:01,00,00,00"}}},
    {165, kWinlogon, "IgnoreShiftOverride", {{sz("1"), 1, sz("1")}, {sz("0"), 0, ""}}},
    {173, kWinlogon, "CachedLogonsCount", {{"", -1, sz("-1")}, {sz("50"), 50, sz("50")}, {sz("51"), -1, sz("-1")}}},
    {173, kWinlogon, "CachedLogonsCount", {{sz(" 7 users"), 7, sz("7")}, {sz("many"), 0, sz("0")}}},
    {176, kWinlogon, "ForceUnlockLogon", {{"", 0, dword(0)}, {dword(2), -1, kNone}}},
    // A cleared box hides the folder altogether.
    {182, user(kAdvanced), "Start_ShowControlPanel", {{dword(1), 0, dword(0)}, {dword(2), 1, dword(2)}}},
    {186, user(kAdvanced), "Start_ShowPrinters", {{dword(1), 0, dword(0)}, {dword(2), 1, dword(2)}}},
    {191, user(kAdvanced), "EnableBalloonTips", {{"", 0, dword(1)}, {dword(0), 1, dword(0)}, {dword(5), 0, dword(1)}}},
    {194, user(kAdvanced), "TaskbarSizeMove", {{"", 0, dword(1)}, {dword(0), 1, dword(0)}, {dword(5), 0, dword(1)}}},
    {210, user(kAdvanced), "Start_ShowMyPics", {{"", 1, dword(1)}, {dword(2), 2, dword(2)}}, IDC_COMBO5},
    {210, user(kAdvanced), "Start_ShowMyPics", {{dword(3), -1, kNone}}, IDC_COMBO5},
    // Every other waiting time is twenty seconds.
    {213, user(kDesktop), "WaitToKillAppTimeout", {{"", 4, sz("20000")}, {sz("5000 ms"), 2, sz("5000")}}, IDC_COMBO1},
    {213, user(kDesktop), "WaitToKillAppTimeout", {{sz("25000"), 4, sz("20000")}}, IDC_COMBO1},
    {213, user(kDesktop), "AutoEndTasks", {{sz("1 "), 0, sz("0")}}},
    {217, kOle, "EnableRemoteConnect", {{"", 0, sz("Y")}, {sz("N"), 1, sz("N")}, {sz("n"), 0, sz("Y")}}},
    {223, kWinlogon, "PowerdownAfterShutdown", {{sz("1"), 1, sz("1")}, {sz("01"), 0, sz("0")}}},
    {228, classes("VBSFile\\Shell"), "", {{"", 0, sz("Open")}, {sz("EDIT"), 1, sz("Edit")}}},
    {228, classes("VBSFile\\Shell"), "", {{sz("oPEN2"), 2, sz("Open2")}, {sz("Play"), 0, sz("Open")}}},
    {229, user("SOFTWARE\\Microsoft\\Windows Script Host\\Settings"), "TrustPolicy", {{"", 0, dword(0)}}},
    {229, user("SOFTWARE\\Microsoft\\Windows Script Host\\Settings"), "TrustPolicy", {{dword(3), -1, dword(3)}}},
    {237, machine(kCurrentVersion + "\\Policies\\System"), "RunStartupScriptSync", {{"", 0, dword(1)}}},
    {237, machine(kCurrentVersion + "\\Policies\\System"), "RunStartupScriptSync", {{dword(0), 1, dword(0)}}},
    {240, kOle, "EnableDCOM", {{"", 0, sz("Y")}, {sz("n"), 1, sz("N")}, {sz("No"), 0, sz("Y")}}},
    {247, machine(kServices + "LanmanServer\\Parameters"), "Size", {{dword(3), 2, dword(3)}}},
    {247, machine(kServices + "LanmanServer\\Parameters"), "Size", {{dword(4), -1, dword(4)}}},
    {249, kTime, "Period", {{dword(24), -1, dword(24)}, {dword(65531), 5, dword(65531)}}, IDC_COMBO1},
    {249, kTime, "ReliableTimeSource", {{dword(1), 1, dword(1)}, {dword(2), -1, dword(2)}}, IDC_COMBO2},
    {249, kTime, "Type", {{sz("ntp "), -1, sz("ntp ")}, {sz("nosync"), 2, sz("NoSync")}}, IDC_COMBO3},
    {257, user("Control Panel\\PowerCfg"), "CurrentPowerPolicy", {{"", -1, ""}, {sz(" 3x"), 3, sz("3")}}},
    {257, user("Control Panel\\PowerCfg"), "CurrentPowerPolicy", {{sz("max"), 0, sz("0")}, {sz("6"), -1, sz("6")}}},
    {262, machine("SYSTEM\\CurrentControlSet\\Control\\WOW"), "DefaultSeparateVDM", {{sz("yES"), 1, sz("Yes")}}},
    {262, machine("SYSTEM\\CurrentControlSet\\Control\\WOW"), "DefaultSeparateVDM", {{sz("1"), 0, sz("No")}}},
    {264, kKeyboard, "Scancode Map", {{"", 0, ""}, {kNoCapsLock, 1, kNoWindowsKeys}}},
    {266, machine(kExplorer + "\\AlwaysUnloadDll"), "", {{sz("1"), 1, sz("1")}, {sz("1 "), 0, ""}}},
    {267, user(kExplorerPolicies), "NoManageMyComputerVerb", {{dword(2), 1, dword(1)}}},
    {269, kUsb, "IdleEnable", {{dword(2), 0, ""}}},
    {277, machine("SYSTEM\\CurrentControlSet\\Control\\CrashControl"), "CrashDumpEnabled", {{"", 0, dword(0)}}},
    {277, machine("SYSTEM\\CurrentControlSet\\Control\\CrashControl"), "CrashDumpEnabled", {{dword(9), -1, kNone}}},
    {285, kWinlogon, "UserEnvDebugLevel", {{"", 1, dword(0x10001)}, {dword(0), 0, dword(0)}}},
    {285, kWinlogon, "UserEnvDebugLevel", {{dword(0x30002), 3, dword(0x30002)}, {dword(1), -1, ""}}},
    {290, user("Software\\Microsoft\\Internet Explorer\\Main"), "Use StyleSheets", {{sz("yes"), 1, sz("Yes")}}},
    {297, user("Control Panel\\Keyboard"), "InitialKeyboardIndicators", {{sz("2"), 1, sz("2")}}},
    {297, user("Control Panel\\Keyboard"), "InitialKeyboardIndicators", {{sz("2147483648"), 0, sz("0")}}},
    {299, machine("SOFTWARE\\Microsoft\\Active Setup"), "SteppingMode", {{"", 0, sz("N")}, {sz("y"), 1, sz("Y")}}},
    {302, kMemory, "LargePageMinimum", {{dword(1), 0, ""}, {kNone, 1, kNone}}},
    {303, user(kExplorerPolicies), "NoDriveTypeAutoRun", {{"", 1, "hex:95,00,00,00"}}},
    {303, user(kExplorerPolicies), "NoDriveTypeAutoRun", {{dword(0x91), 1, "hex:91,00,00,00"}}},
    {303, user(kExplorerPolicies), "NoDriveTypeAutoRun", {{"hex:ff,ff,ff,03", 0, "hex:ff,ff,ff,03"}}},
    {303, user(kExplorerPolicies), "NoDriveTypeAutoRun", {{"hex:20", 0, "hex:20,00,00,00"}}},
    {309, user(kDesktop), "CoolSwitchColumns", {{"", 0, sz("0")}, {sz("100"), -1, sz("-1")}}},
    {309, user(kDesktop), "CoolSwitchColumns", {{sz("7 rows"), 7, sz("7")}}},
};

TEST_P(StoredValues, AreShownAndWrittenAgainAsTheirItemReadsThem) {
    for (const Item& item : kItems) {
        const bool isBox = item.control == 0 ? !findTweak(item.id)->boxes.empty() : item.control == IDC_CHECK2;
        const int control = item.control != 0 ? item.control : isBox ? IDC_CHECK1 : IDC_COMBO1;
        const std::string value = item.key + ' ' + nameOf(item.name);
        for (const Case& each : item.cases) {
            SCOPED_TRACE(std::to_string(item.id) + ' ' + value + each.before);
            open(item.id, block(item.key, each.before.empty() ? "" : nameOf(item.name) + each.before));
            EXPECT_EQ(isBox ? static_cast<int>(box(control)) : combo(control), each.shown);
            Changes expected;
            if (each.before != each.after) {
                expected = {'-' + value + each.before, '+' + value + each.after};
                expected.erase('-' + value);
                expected.erase('+' + value);
            }
            // Other values of the page are left out.
            Changes ofValue = apply();
            std::erase_if(ofValue, [&](const std::string& line) { return line.substr(1, value.size()) != value; });
            EXPECT_EQ(ofValue, expected);
        }
    }
}

}  // namespace
}  // namespace korvane
