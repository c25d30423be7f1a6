// The Services tweaks: services that can be disabled, time synchronisation, the
// memory of the Server service, and access to the desktop. The category is not in
// the tree.
#include "catalogue/Notes.h"
#include "catalogue/Units.h"
#include "pages/PageContext.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

// Start types of a service.
constexpr std::uint32_t kManual = 3;
constexpr std::uint32_t kDisabled = 4;
constexpr DwordFlag disabledService(std::string_view serviceKey) {
    return {.key = {Root::LocalMachine, serviceKey}, .name = "Start", .checked = kDisabled, .cleared = kManual};
}

constexpr KeyPath kTimeParameters{Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Services\\W32Time\\Parameters"};

constexpr int kServicesRows[] = {240, 241, 242, 243, 244, 245, 247, 248, 249};
constexpr Tweak kServices = {
    .id = 239,
    .title = "Services",
    .description = "Windows Service Settings and Enhancements",
    .category = true,
    .image = 24,
    .page = Page::Category,
    .overview = {.rows = kServicesRows},
};

// Intended: a space before most of the full stops.
constexpr CheckBox kDcom[] = {
    {.text = "Disable Distributed Component Object Model (DCOM) .",
     .binding = StringFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft\\Ole"},
                           .name = "EnableDCOM",
                           .checked = "N",
                           .cleared = "Y",
                           .compare = Compare::IgnoreCase}},
};
constexpr Tweak kDisableDistributedComponentObjectModelDcom = {
    .id = 240,
    .title = "Disable Distributed Component Object Model (DCOM)",
    .description =
        "DCOM lets programs call components on other computers over the network. If nothing on your network uses "
        "it, turning it off closes a way of attack; remote administration tools and some server software need it.",
    .page = Page::Checks,
    .boxes = kDcom,
    .note = kRestartWindowsNote,
    .source = "KB 825750 (from general knowledge)",
};

constexpr CheckBox kNetworkManager[] = {{.text = "Disable Network Manager Service .",
                                         .binding = disabledService("SYSTEM\\CurrentControlSet\\Services\\Netman")}};
constexpr Tweak kDisableNetworkManagerService = {
    .id = 241,
    .title = "Disable Network Manager Service",
    .description =
        "When checked, the service Netman (Network Connections) is set to disabled; unchecked, it is set to "
        "manual start. Without this service the Network Connections folder is empty and connections cannot be set "
        "up there, so disable it only where that is intended.",
    .page = Page::Checks,
    .boxes = kNetworkManager,
    .note = kRestartWindowsNote,
    .gate = kGate2000Xp,
    .source = "The service key Netman, displayed as Network Connections; no Microsoft text calls that service Network "
              "Manager",
};

constexpr CheckBox kGatewaySearch[] = {
    {.text = "Disable SSDP Discovery in Windows Messenger .",
     .binding = DwordFlag{.key = {Root::LocalMachine, "SOFTWARE\\Microsoft", "DirectPlayNATHelp\\DPNHUPnP"},
                          .name = "UPnPMode",
                          .checked = 2,
                          .clearedDeletesByPath = true}},
};
constexpr Tweak kDisableSsdpDiscoveryWindowsMessenger = {
    .id = 242,
    .title = "Disable SSDP Discovery in Windows Messenger",
    .description =
        "Stops Windows Messenger and other users of DirectPlay from looking for Internet gateways on the network "
        "by Universal Plug and Play. Useful if a firewall reports this traffic even though the SSDP service is "
        "off.",
    .page = Page::Checks,
    .boxes = kGatewaySearch,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "KB 317843 (from general knowledge)",
};

// Windows XP has its own key and value for the time server.
constexpr KeyPath kTimeProvider{Root::LocalMachine,
                                "SYSTEM\\CurrentControlSet\\Services\\W32Time\\TimeProviders\\NtpServer"};
constexpr VersionedBinding kXpTimeServer[] = {{kWinXP, DwordCheckState{.key = kTimeProvider, .name = "Enabled"}}};
constexpr CheckBox kTimeServer[] = {{.text = "Enable NTP Time Server .",
                                     .binding = DwordCheckState{.key = kTimeParameters, .name = "LocalNTP"},
                                     .onVersions = kXpTimeServer}};
constexpr Tweak kEnableNtpTimeServer = {
    .id = 244,
    .title = "Enable NTP Time Server",
    .description =
        "Makes this computer answer time requests of others, so that all clocks of a small network can follow it. "
        "The Windows Time service must be running, and its own clock should be kept right by a reliable source.",
    .page = Page::Checks,
    .boxes = kTimeServer,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = "KB 314054 for Windows XP (from general knowledge); KB 223184 for Windows 2000",
};

constexpr Field kInterval[] = {
    {.label = "Synchronization Interval in Seconds (604800=7 days):",
     .binding = DwordNumber{.key = {Root::LocalMachine,
                                    "SYSTEM\\CurrentControlSet\\Services\\W32Time\\TimeProviders\\NtpClient"},
                            .name = "SpecialPollInterval",
                            .whenEmpty = WhenEmpty::WritesNothing,
                            .minimum = 1}},
};
constexpr Tweak kModifyInternetTimeSynchronizationSchedule = {
    .id = 245,
    .title = "Modify the Internet Time Synchronization Schedule",
    .description =
        "Windows XP sets the clock from an Internet time server once a week. Enter another interval in seconds, "
        "for example 86400 for once a day, if your clock runs fast or slow; an empty field changes nothing.",
    .page = Page::CheckFields,
    .fields = kInterval,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGateXp,
    .source = "TechNet cc779560, reference of the Windows Time service, under the entry NtpServer",
};

constexpr Tweak kModifyInternetTimeSynchronizationServers = {
    .id = 246,
    .title = "Modify the Internet Time Synchronization Servers",
    .description =
        "The list of time servers offered on the Internet Time page of Date and Time can be extended or replaced, "
        "for example by a server of your own network or one that is nearer.",
};

constexpr NumberEntry kServerSizes[] = {{"Minimum Memory Used", 1}, {"Balance", 2}, {"Maximum Throughput", 3}};
constexpr Choice kServer[] = {
    {.label = "Optimize the Server Service for:",
     .binding =
         DwordChoice{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Services\\LanmanServer\\Parameters"},
                     .name = "Size",
                     .entries = kServerSizes,
                     .whenNone = WhenNone::WritesNothing}},
};
constexpr Tweak kOptimizeWindowsServerService = {
    .id = 247,
    .title = "Optimize the Windows Server Service",
    .description =
        "Tells the Server service, which shares files and printers, how much memory it may take: little for a "
        "workstation, a balance, or as much as is needed for many simultaneous connections on a file server.",
    .page = Page::CheckCombos,
    .choices = kServer,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
    .source = "Windows 2000 registry reference, `LanmanServer\\Parameters`, Size (from general knowledge)",
};

constexpr CheckBox kInteractive[] = {
    {.text = "Prevent Services from Interacting with the Desktop .",
     .binding = DwordCheckState{.key = {Root::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Windows"},
                                .name = "NoInteractiveServices"}},
};
constexpr Tweak kRestrictInteractiveServices = {
    .id = 248,
    .title = "Restrict Interactive Services",
    .description =
        "Services marked as interactive may show windows on the desktop of the logged-in user, where a window of "
        "a powerful account can be misused. Check this to forbid it to all services; some older ones then cannot "
        "show their messages.",
    .page = Page::Checks,
    .boxes = kInteractive,
    .note = kRestartWindowsNote,
    .gate = kGateNt,
    .source = "Windows 2000 registry reference, NoInteractiveServices",
};

// No choice leaves the value alone. The large periods are codes of the time service.
constexpr Field kTimeSource[] = {
    {.label = "Time Server:", .binding = StringValue{.key = kTimeParameters, .name = "NtpServer"}}};
constexpr NumberEntry kPeriods[] = {
    {"Once a day", 0},
    {"Once every 2 days", 65535},
    {"Once every 3 days", 65534},
    {"Once every week", 65533},
    {"Every 45 minutes until 3 good synchronizations, then every 8 hours (Default)", 65532},
    {"Every 45 minutes until 1 good synchronization, then once a day", 65531},
};
constexpr NumberEntry kReliable[] = {{"No", 0}, {"Yes", 1}};
constexpr TextEntry kTypes[] = {{"Nt5DS", "Nt5DS"}, {"NTP", "NTP"}, {"NoSync", "NoSync"}, {"AllSync", "AllSync"}};
constexpr Choice kTimeChoices[] = {
    {.label = "Synchronization Period:",
     .binding =
         DwordChoice{
             .key = kTimeParameters, .name = "Period", .entries = kPeriods, .whenNone = WhenNone::WritesNothing}},
    {.label = "Reliable Time Source:",
     .binding = DwordChoice{.key = kTimeParameters,
                            .name = "ReliableTimeSource",
                            .entries = kReliable,
                            .whenNone = WhenNone::WritesNothing}},
    {.label = "Synchronization Type:",
     .binding = StringChoice{.key = kTimeParameters,
                             .name = "Type",
                             .entries = kTypes,
                             .compare = Compare::IgnoreCase,
                             .whenNone = WhenNone::WritesNothing}},
};
constexpr Tweak kWindowsTimeSynchronizationSettings = {
    .id = 249,
    .title = "Windows Time Synchronization Settings",
    .description =
        "Sets the server that Windows takes the time from, how often it does so, whether this computer is a reliable "
        "source for others, and the method: Nt5DS follows the domain, NTP uses the given server, AllSync uses every "
        "source, NoSync turns synchronization off. A list without a choice leaves its value alone.",
    .page = Page::EditCombos,
    .fields = kTimeSource,
    .choices = kTimeChoices,
    .note = kSmallRestartOrLogOutNote,
    .gate = kGate2000Xp,
    .source = "KB 223184",
};

// One box for two services; it is checked only if both are disabled.
constexpr CheckBox kPlugAndPlay[] = {{.text = "Disable Universal Plug and Play Services ."}};
constexpr CheckBinding kPlugAndPlayServices[] = {disabledService("SYSTEM\\CurrentControlSet\\Services\\SSDPSRV"),
                                                 disabledService("SYSTEM\\CurrentControlSet\\Services\\upnphost")};
void showPlugAndPlay(PageContext& context) {
    for (const CheckBinding& service : kPlugAndPlayServices) {
        context.page.setCheck(IDC_CHECK1, 0);
        showCheck(context, IDC_CHECK1, service);
        if (!context.checked(IDC_CHECK1)) {
            return;
        }
    }
}

void applyPlugAndPlay(PageContext& context) {
    for (const CheckBinding& service : kPlugAndPlayServices) {
        applyCheck(context, IDC_CHECK1, service);
    }
}

constexpr Tweak kDisableUniversalPlugPlayServices = {
    .id = 243,
    .title = "Disable Universal Plug and Play Services",
    .description =
        "Disables the two services with which Windows XP finds and offers Universal Plug and Play devices (SSDP "
        "Discovery Service and Universal Plug and Play Device Host). Few home networks need them; unchecked sets "
        "both to manual start.",
    .page = Page::Checks,
    .boxes = kPlugAndPlay,
    .note = kRestartWindowsNote,
    .gate = kGateXp,
    .show = showPlugAndPlay,
    .apply = applyPlugAndPlay,
    .registry = "`Start` (REG_DWORD) in `HKLM\\SYSTEM\\CurrentControlSet\\Services\\SSDPSRV` and in "
                "`HKLM\\SYSTEM\\CurrentControlSet\\Services\\upnphost` (both opened): checked writes 4 (disabled), "
                "cleared 3 (manual). The box is shown checked while both are 4.",
    .source = "The service keys SSDPSRV and upnphost of Windows XP, with their start values (from general knowledge)",
};

constexpr const Tweak* kRows[] = {&kServices, &kDisableDistributedComponentObjectModelDcom,
                                  &kDisableNetworkManagerService, &kDisableSsdpDiscoveryWindowsMessenger,
                                  &kDisableUniversalPlugPlayServices, &kEnableNtpTimeServer,
                                  &kModifyInternetTimeSynchronizationSchedule,
                                  &kModifyInternetTimeSynchronizationServers, &kOptimizeWindowsServerService,
                                  &kRestrictInteractiveServices, &kWindowsTimeSynchronizationSettings};

}  // namespace

constinit decltype(kServicesUnit) kServicesUnit{kRows};

}  // namespace korvane
