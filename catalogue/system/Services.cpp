// The Services tweaks: services that can be switched off, time synchronization,
// and the memory and desktop access that services get. Not in the tree.
#include "catalogue/Units.h"

namespace korvane {
namespace {

constexpr OverviewRow kServicesRows[] = {{240}, {241}, {242}, {243}, {244}, {245}, {247}, {248}, {249}};
constexpr Overview kServicesOverview{.rows = kServicesRows};

constexpr Tweak kTweaks[] = {
    {.id = 239,
     .title = "Services",
     .description = "Windows Service Settings and Enhancements",
     .image = 24,
     .page = Page::Category,
     .overview = &kServicesOverview},
    {.id = 240,
     .title = "Disable Distributed Component Object Model (DCOM)",
     .description =
         "DCOM lets programs call components on other computers over the network. If nothing on your network uses "
         "it, turning it off closes a way of attack; remote administration tools and some server software need it."},
    {.id = 241,
     .title = "Disable Network Manager Service",
     .description =
         "When checked, the service Netman (Network Connections) is set to disabled; unchecked, it is set to "
         "manual start. Without this service the Network Connections folder is empty and connections cannot be set "
         "up there, so disable it only where that is intended."},
    {.id = 242,
     .title = "Disable SSDP Discovery in Windows Messenger",
     .description =
         "Stops Windows Messenger and other users of DirectPlay from looking for Internet gateways on the network "
         "by Universal Plug and Play. Useful if a firewall reports this traffic even though the SSDP service is "
         "off."},
    {.id = 243,
     .title = "Disable Universal Plug and Play Services",
     .description =
         "Disables the two services with which Windows XP finds and offers Universal Plug and Play devices (SSDP "
         "Discovery Service and Universal Plug and Play Device Host). Few home networks need them; unchecked sets "
         "both to manual start."},
    {.id = 244,
     .title = "Enable NTP Time Server",
     .description =
         "Makes this computer answer time requests of others, so that all clocks of a small network can follow it. "
         "The Windows Time service must be running, and its own clock should be kept right by a reliable source."},
    {.id = 245,
     .title = "Modify the Internet Time Synchronization Schedule",
     .description =
         "Windows XP sets the clock from an Internet time server once a week. Enter another interval in seconds, "
         "for example 86400 for once a day, if your clock runs fast or slow; an empty field changes nothing."},
    {.id = 246,
     .title = "Modify the Internet Time Synchronization Servers",
     .description =
         "The list of time servers offered on the Internet Time page of Date and Time can be extended or replaced, "
         "for example by a server of your own network or one that is nearer."},
    {.id = 247,
     .title = "Optimize the Windows Server Service",
     .description =
         "Tells the Server service, which shares files and printers, how much memory it may take: little for a "
         "workstation, a balance, or as much as is needed for many simultaneous connections on a file server."},
    {.id = 248,
     .title = "Restrict Interactive Services",
     .description =
         "Services marked as interactive may show windows on the desktop of the logged-in user, where a window of "
         "a powerful account can be misused. Check this to forbid it to all services; some older ones then cannot "
         "show their messages."},
    {.id = 249,
     .title = "Windows Time Synchronization Settings",
     .description =
         "Sets from which server Windows takes the time, how often, and by which method, and whether this computer "
         "counts as a reliable source for others. Type Nt5DS follows the domain, NTP uses the given server, NoSync "
         "switches synchronization off."},
};

}  // namespace

constinit const Unit kServicesUnit{kTweaks};

}  // namespace korvane
